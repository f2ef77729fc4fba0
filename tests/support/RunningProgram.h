#pragma once

#include "app/ProgramParts.h"
#include "setup/clsOptions.h"
#include "support/LeagueFile.h"
#include "support/MemorySettings.h"
#include "support/Screens.h"

/// The whole program over a new league, its boxes answered from a script: what a test of a screen or a journey needs.
struct RunningProgram {
    RunningProgram() {
        loadGlobals(league.context);
        settings.write(QStringLiteral("WindowSettings\\frmRegister"), QStringLiteral("ShowGuardianMsg"),
                       QStringLiteral("False"));
    }

    /// Opens a screen and waits until it stands.
    Screen* open(const char* name) {
        screens.show(QLatin1String(name));
        Screen* screen = screens.load(QLatin1String(name));
        EXPECT_TRUE(QTest::qWaitForWindowExposed(screen));
        return screen;
    }

    LeagueFile league;
    MemorySettings settings;
    ProgramParts parts{league.context, settings, league.folder.path(), league.folder.path()};
    Screens& screens = parts.screens();
    Program& program = parts.program();
};
