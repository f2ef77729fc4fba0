#pragma once

#include "store/StoreContext.h"

/// The file that hands one division to the outside scheduler (.shd): its teams with their head coaches and its fields,
/// as sections of lines that end with CR LF, in Latin-1 with "?" for what that has not. A division that is not found
/// has no teams and no fields. Raises datafile::Error.
QByteArray schedulerFile(StoreContext& context, const QString& division);
