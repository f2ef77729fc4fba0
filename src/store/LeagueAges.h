#pragma once

#include "store/StoreContext.h"

/// Writes every player's league age, deleted players' too, by the cut-off date of the player's division or, each part
/// by itself, the default one of the globals. No stamps: nobody edited the players. One transaction.
void recalculateLeagueAges(StoreContext& context, const datafile::Database& database);
