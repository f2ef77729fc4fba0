#pragma once

#include "tour/Guide.h"

// The tour's further chapters, one file each. A chapter begins and ends at the navigator.

/// A registration form, a roster and the balance report in their previews.
void visitReports(Guide& guide);
void visitLabels(Guide& guide);
