#pragma once

#include "store/UpgradeSteps.h"

/// Runs the changes of a step in order, as one transaction. One that the file refuses (a table that is there already, a
/// row against a rule) ends the step without a word, and what came before it stays. A failing disk, a damaged or locked
/// file and a lack of memory raise datafile::Error, and nothing of the step is written.
void runUpgradeStep(const UpgradeStep& step, StoreContext& context, const datafile::Database& database);

/// Gives every table the form that it has in a new file: its columns in order, their rules, its indexes. Columns and
/// indexes that no new file has are kept behind them. A table whose rows do not meet the rules stays as it is.
void finishUpgrade(const datafile::Database& database);
