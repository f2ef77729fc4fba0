#pragma once

#include "store/StoreContext.h"

/// Fills tblTempFeeReport with the active players, their fees and what they or the league still owe. A fee that is no
/// number is none. The names and ids of division and team come with `byTeam`; without, they stay 0 and empty.
void fillFeeWorkTable(StoreContext& store, bool byTeam);
