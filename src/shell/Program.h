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

    /// Where the program puts a file "beside itself", and looks first for one: its own folder when that holds the
    /// data file and can be written, otherwise the per-user folder, which is made when it is missing.
    QString homeFolder() const;
    /// The path of an existing file of that name in the program's folder, else in the per-user folder, else empty.
    QString findFile(const QString& name) const;
};

inline constexpr char dataFileName[] = "Kestrelmoor.kmr";
inline constexpr char baseFileName[] = "Kestrelmoor.base";  ///< the empty data file with which a first start begins
inline constexpr char helpFileName[] = "Kestrelmoor.hlp";

/// Where the settings keep the path of the data file.
inline constexpr char pathSection[] = "Database";
inline constexpr char pathKey[] = "Path";
