#pragma once

#include "sample_league/Chance.h"
#include "sample_league/Rows.h"

namespace sample {

/// The money columns of a player: what is asked, what came in, and how. Every state of payment occurs: nothing paid,
/// a part, all of it, too much, and fees that were waived.
Cells feeCells(Chance& chance, int fee, bool isSibling);

}  // namespace sample
