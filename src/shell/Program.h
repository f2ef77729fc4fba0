#pragma once

#include "platform/settings/Settings.h"
#include "store/StoreContext.h"

class Screens;

/// What the whole program shares, passed by reference. Made in `app/`; owns nothing itself.
struct Program {
    StoreContext& store;
    Settings& settings;
    Screens& screens;
    QString programFolder;  ///< where the program lies; its data file and help file are looked for there first
    QString userFolder;     ///< per-user data folder, used where the program's folder cannot be written
    QString helpFile{};     ///< empty when there is none

    Dialogs& dialogs() const { return store.dialogs; }
    Clock& clock() const { return store.clock; }
    Globals& globals() const { return store.globals; }
};
