#pragma once

#include "app/ProgramParts.h"
#include "setup/clsOptions.h"
#include "support/LeagueFile.h"
#include "support/MemorySettings.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

/// The whole program over a new league, its boxes answered from a script: what a test of a screen or a journey needs.
struct RunningProgram {
    RunningProgram() {
        loadGlobals(league.context);
        settings.write(QStringLiteral("WindowSettings\\frmRegister"), QStringLiteral("ShowGuardianMsg"), QStringLiteral("False"));
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

/// A control by its object name; fails the test when there is none.
template <class Kind = QWidget>
Kind* control(QWidget* screen, const char* name) {
    auto* found = screen->findChild<Kind*>(QLatin1String(name));
    EXPECT_TRUE(found) << name;
    return found;
}
inline void press(QWidget* screen, const char* name) { QTest::mouseClick(control(screen, name), Qt::LeftButton); }
/// Replaces what stands in a box by what is typed.
inline void type(QWidget* screen, const char* name, const QString& text) {
    QWidget* box = control(screen, name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}
inline QString status(QWidget* screen) { return control<QLabel>(screen, "lblStatus")->text(); }
