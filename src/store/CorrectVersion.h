#pragma once

#include "store/StoreContext.h"

/// Brings the data file to the program's version before anything else opens it, and leaves a copy of it as it was
/// beside it, with ".BKM" in the place of the last four characters of its name. The work tables are empty afterwards.
/// False when the file could not be brought up to date; the user has been told then.
bool CorrectVersion(StoreContext& context);

/// Copies the data file beside itself as ".BKM". A failure is reported and false.
bool MakeSafetyCopy(StoreContext& context);
