#pragma once

#include "shell/Program.h"
#include "shell/Screens.h"
#include "shell/StartRoutine.h"

/// The program put together: its register of screens, filled, what it shares, and its start. What it runs on (store,
/// settings and folders) is the caller's and outlives it.
class ProgramParts {
public:
    ProgramParts(StoreContext& store, Settings& settings, const QString& programFolder, const QString& userFolder);

    /// From the search for the data file to the navigator on the screen.
    StartRoutine::Outcome start();

    Program& program() { return program_; }
    Screens& screens() { return screens_; }

private:
    void showSplash();

    Screens screens_;
    Program program_;
};
