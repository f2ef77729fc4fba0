#pragma once

#include "store/StoreContext.h"

// What upgrade steps do to rows, where that is more than one statement. Each runs within the step's transaction.

/// The zip code and its four-digit tail become one postal code, "12345-6789", and the old columns "".
void joinZipCodes(StoreContext& context, const datafile::Database& database);
void addCanadianStates(StoreContext& context, const datafile::Database& database);
/// The official division names of the first list, and the one organisation that came later.
void addFirstOfficialNames(StoreContext& context, const datafile::Database& database);
void addLastOfficialName(StoreContext& context, const datafile::Database& database);
/// Every player's league age, by the cut-off date of the player's division or the default one. The default cut-off
/// date and the season year are taken from the file into the globals.
void computeAges(StoreContext& context, const datafile::Database& database);
