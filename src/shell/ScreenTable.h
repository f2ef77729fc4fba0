#pragma once

#include <QtGlobal>
#include <array>

/// One screen as the menus, the toolbar and the navigator offer it. Texts are to be translated in the context
/// "Screens".
struct ScreenEntry {
    const char* name;       ///< in the register of screens
    const char* menuEntry;  ///< object name of its View entry
    const char* toolKey;    ///< object name of its toolbar button
    const char* button;     ///< object name of its button on the navigator; null for the navigator itself
    const char* label;      ///< object name of that button's label
    const char* icon;
    const char* menuText;
    const char* toolText;
    const char* labelText;
    const char* hint;
};

/// In the order in which every menu and panel shows them. Their shortcuts are Ctrl+1 and so on.
inline constexpr std::array<ScreenEntry, 8> screenTable{{
    {"frmStartUp", "mnuViewStartup", "btnStartUp", nullptr, nullptr, "startup",
     QT_TRANSLATE_NOOP("Screens", "&Startup"), QT_TRANSLATE_NOOP("Screens", "Startup"), nullptr,
     QT_TRANSLATE_NOOP("Screens", "Show the startup panel")},
    {"frmRegister", "mnuViewRegistration", "btnRegister", "cmdRegister", "lblRegister", "register",
     QT_TRANSLATE_NOOP("Screens", "&Registration"), QT_TRANSLATE_NOOP("Screens", "Register"),
     QT_TRANSLATE_NOOP("Screens", "&Registration"),
     QT_TRANSLATE_NOOP("Screens", "Register players, volunteers and sponsors")},
    {"frmTeams", "mnuViewDivision", "btnTeams", "cmdTeams", "lblTeams", "teams",
     QT_TRANSLATE_NOOP("Screens", "&Divisions and Teams"), QT_TRANSLATE_NOOP("Screens", "Teams"),
     QT_TRANSLATE_NOOP("Screens", "Divisions and &Teams"),
     QT_TRANSLATE_NOOP("Screens", "Divisions, teams, fields and who plays where")},
    {"frmRatings", "mnuViewRatings", "btnRatings", "cmdRatings", "lblRatings", "ratings",
     QT_TRANSLATE_NOOP("Screens", "Ability R&atings"), QT_TRANSLATE_NOOP("Screens", "Ratings"),
     QT_TRANSLATE_NOOP("Screens", "&Ability Ratings"),
     QT_TRANSLATE_NOOP("Screens", "Rate players, umpires and coaches")},
    {"frmEquipment", "mnuViewEquipment", "btnEquipment", "cmdEquipment", "lblEquipment", "equipment",
     QT_TRANSLATE_NOOP("Screens", "&Equipment"), QT_TRANSLATE_NOOP("Screens", "Equipment"),
     QT_TRANSLATE_NOOP("Screens", "&Equipment"),
     QT_TRANSLATE_NOOP("Screens", "The equipment inventory and who holds what")},
    {"frmResults", "mnuViewResults", "btnResults", "cmdGameResults", "lblGameResults", "results",
     QT_TRANSLATE_NOOP("Screens", "&Game Results"), QT_TRANSLATE_NOOP("Screens", "Results"),
     QT_TRANSLATE_NOOP("Screens", "&Game Results"),
     QT_TRANSLATE_NOOP("Screens", "The schedule, results and standings")},
    {"frmReports", "mnuViewReports", "btnReports", "cmdReports", "lblReports", "reports",
     QT_TRANSLATE_NOOP("Screens", "Re&ports"), QT_TRANSLATE_NOOP("Screens", "Reports"),
     QT_TRANSLATE_NOOP("Screens", "Re&ports"), QT_TRANSLATE_NOOP("Screens", "Preview, print and export reports")},
    {"frmSetup", "mnuViewSetup", "btnSetup", "cmdSetup", "lblSetup", "setup", QT_TRANSLATE_NOOP("Screens", "Set&up"),
     QT_TRANSLATE_NOOP("Screens", "Setup"), QT_TRANSLATE_NOOP("Screens", "&Setup"),
     QT_TRANSLATE_NOOP("Screens", "Maintain the lists that the screens offer")},
}};
