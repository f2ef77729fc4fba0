#pragma once

#include "store/StoreContext.h"

/// Brings the data file to the program's version before anything else opens it, and leaves a copy of it as it was
/// beside it, with ".BKM" in the place of the last four characters of its name. The work tables are empty afterwards.
/// An older file runs every step from its version on, gets the form of a new one, its new version, and is compacted;
/// an unknown version passes as current. Files that a program which was ended left half-made beside the data file go
/// when they are a day old. False when that could not be done; the user has been told then. The version is
/// written last, so that the next start begins again from the old one.
bool CorrectVersion(StoreContext& context);

/// The path of the safety copy beside the data file.
QString safetyCopyPath(const StoreContext& context);

/// Copies the data file there. A failure is reported and false.
bool MakeSafetyCopy(StoreContext& context);
