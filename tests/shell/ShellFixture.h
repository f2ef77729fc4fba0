#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "shell/MainScreen.h"
#include "shell/Program.h"
#include "shell/ScreenTable.h"
#include "shell/Screens.h"
#include "shell/frmAbout.h"
#include "shell/frmStartUp.h"
#include "support/MemorySettings.h"
#include "support/Printing.h"
#include "support/ScriptedDialogs.h"

/// A main screen that may refuse to close and counts what it is told.
class WatchedScreen : public MainScreen {
public:
    using MainScreen::addEntry;
    using MainScreen::dataMenu;
    using MainScreen::fileMenu;
    using MainScreen::MainScreen;

    bool saves = true;
    bool fails = false;
    int offers = 0;
    int undone = 0;
    int refreshed = 0;

    bool offerToSave() override {
        ++offers;
        if (fails) throw datafile::Error(datafile::Fault::Full, "No space left.");
        return saves;
    }

protected:
    void undo() override { ++undone; }
    void cameForward() override { ++refreshed; }
};

/// The shell with every screen of the table registered: `frmSetup` and `frmTeams` watched, the others empty.
struct Shell : testing::Test {
    datafile::Workspace workspace;
    FixedClock clock{QDateTime({2026, 4, 2}, {18, 30})};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    StoreContext store{workspace, clock, dialogs, "/league/Kestrelmoor.kmr"};
    Screens screens{dialogs, "frmStartUp"};
    Program program{store, settings, screens, "/nowhere", "/nowhere"};

    Shell() {
        screens.addScreen("frmStartUp", [this] { return std::make_unique<frmStartUp>(program); });
        for (const QString name : {"frmRegister", "frmRatings", "frmEquipment", "frmResults", "frmReports"}) {
            screens.addScreen(name,
                              [this, name] { return std::make_unique<MainScreen>(program, name, QSize(960, 640)); });
        }
        for (const QString name : {"frmTeams", "frmSetup"}) {
            screens.addScreen(name,
                              [this, name] { return std::make_unique<WatchedScreen>(program, name, QSize(700, 500)); });
        }
        screens.addForm("frmAbout", [this] { return std::make_unique<frmAbout>(dialogs); });
    }
    ~Shell() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    Screen& open(const QString& name) {
        EXPECT_TRUE(screens.show(name));
        return *screens.load(name);
    }
    WatchedScreen& watched(const QString& name = "frmSetup") { return dynamic_cast<WatchedScreen&>(open(name)); }
    QStringList openScreens() const {
        QStringList names;
        for (const ScreenEntry& screen : screenTable) {
            if (screens.isOpen(screen.name)) names << screen.name;
        }
        return names;
    }
    /// Does it with the event loop running; true when the loop was left by it.
    static bool endsProgram(const std::function<void()>& action) {
        QTimer act;
        QTimer giveUp;
        QObject::connect(&act, &QTimer::timeout, [&] {
            act.stop();
            action();
            giveUp.start(0);
        });
        QObject::connect(&giveUp, &QTimer::timeout, [] { QCoreApplication::exit(1); });
        act.start(0);
        return QCoreApplication::exec() == 0;
    }
    static void trigger(QWidget& screen, const QString& action) {
        auto* found = screen.findChild<QAction*>(action);
        ASSERT_NE(found, nullptr) << action.toStdString();
        EXPECT_TRUE(found->isEnabled()) << action.toStdString();
        found->trigger();
    }
};
