#pragma once

#include "tour/Guide.h"

// The tour's further chapters, one file each. A chapter begins and ends at the navigator.

/// Backs the data file up into the archive, and then opens the season of the year after it, which leaves little of the
/// league as it was.
void visitMaintenance(Guide& guide, const QString& archive);
