#pragma once

#include "tour/Guide.h"

// The tour's further chapters, one file each. A chapter begins and ends at the navigator.

/// A second officer's file is made and merged.
void mergeSecondFile(Guide& guide);
