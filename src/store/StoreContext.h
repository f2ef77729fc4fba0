#pragma once

#include "platform/datafile/Workspace.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/text/Clock.h"
#include "store/Globals.h"

/// All that the store needs from the program around it. One object, made in the program's start and passed by
/// reference; it outlives every record class and screen.
struct StoreContext {
    datafile::Workspace& workspace;
    Clock& clock;
    Dialogs& dialogs;
    QString dataFilePath{};
    Globals globals{};

    /// The data file of the user.
    datafile::Database database() const { return workspace.openDatabase(dataFilePath); }
};
