#pragma once

#include "platform/widgets/Binding.h"
#include "store/Columns.h"

#include <QStringList>

// A day of every year, such as an age cut-off: the month chosen by its name, the day by its number, both kept as the
// texts of numbers; a text that is no number counts as 1. February has 28 days.

/// January to December.
QStringList monthNames();
/// The days of the month with this number, "1" to its length; 31 where there is no such month.
QStringList daysOfMonth(const QString& month);

Binding monthBinding(Text& month);
/// A day that the month does not have shows as none.
Binding dayBinding(Text& day, const Text& month);
