#pragma once

#include <QString>

#include "store/StoreContext.h"

/// The grade of the next school year. "12" has left school and becomes "0", and "0" stays.
QString nextGrade(const QString& grade);
/// A year more; anything that is no number becomes the first.
QString nextExperience(const QString& years);

/// Raises every player's grade, and takes the school of those who left it.
void increaseGrades(StoreContext& context, const datafile::Database& database, const QString& year);
void increaseExperience(StoreContext& context, const datafile::Database& database, const QString& year);
