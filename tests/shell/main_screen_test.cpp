#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <QVBoxLayout>

#include "shell/ShellFixture.h"
#include "shell/WindowPlacement.h"
#include "shell/frmSplash.h"
#include "shell/frmUpdateStatus.h"

namespace {

TEST_F(Shell, MenuAndToolbarOpenWhatTheySay) {
    struct Case {
        const char* menu;
        const char* key;
        const char* screen;
    };
    const std::vector<Case> cases{
        {"mnuViewStartup", "btnStartUp", "frmStartUp"},       {"mnuViewRegistration", "btnRegister", "frmRegister"},
        {"mnuViewDivision", "btnTeams", "frmTeams"},          {"mnuViewRatings", "btnRatings", "frmRatings"},
        {"mnuViewEquipment", "btnEquipment", "frmEquipment"}, {"mnuViewResults", "btnResults", "frmResults"},
        {"mnuViewReports", "btnReports", "frmReports"}};
    WatchedScreen& setup = watched();
    EXPECT_FALSE(setup.findChild<QAction*>("mnuViewSetup")->isEnabled());
    EXPECT_FALSE(setup.findChild<QAction*>("btnSetup")->isEnabled());
    for (const Case& each : cases) {
        for (const char* way : {each.menu, each.key}) {
            trigger(setup, way);
            ASSERT_TRUE(screens.isOpen(each.screen)) << way;
            screens.load(each.screen)->unload();
            EXPECT_EQ(openScreens(), QStringList({"frmSetup"}));
        }
    }
    EXPECT_NE(watched("frmTeams").findChild<QAction*>("mnuViewTeams"), nullptr);
    for (const char* way : {"mnuHelpAbout", "btnAbout"}) {
        dialogs.expectForm("frmAbout", [](QDialog& form) { form.accept(); });
        trigger(setup, way);
    }
    for (const char* way : {"mnuToolsPreferences", "mnuExportToDS", "mnuImportFromDS", "mnuToolsNewSeason"}) {
        dialogs.expectInformation("Kestrelmoor", "This is not yet part of this version.");
        trigger(setup, way);
    }
    EXPECT_TRUE(screens.isOpen("frmSetup"));
    trigger(setup, "mnuFileExit");
    EXPECT_FALSE(screens.isOpen("frmSetup"));
}

TEST_F(Shell, NewSeasonTakesTheScreenDownUnlessItKeepsUnsavedWork) {
    screens.addForm("frmNewSeason", [] {
        auto form = std::make_unique<QDialog>();
        form->setObjectName("frmNewSeason");
        return form;
    });
    WatchedScreen& setup = watched();
    setup.saves = false;
    trigger(setup, "mnuToolsNewSeason");
    EXPECT_TRUE(screens.isOpen("frmSetup"));
    setup.saves = true;
    dialogs.expectForm("frmNewSeason", [](QDialog& form) { form.accept(); });
    trigger(setup, "mnuToolsNewSeason");
    EXPECT_EQ(openScreens(), QStringList({"frmStartUp"}));
    EXPECT_EQ(setup.offers, 2);
}

TEST_F(Shell, HelpOpensTheHelpFileOrSaysThatThereIsNone) {
    WatchedScreen& setup = watched();
    for (const char* way : {"mnuHelpContents", "mnuHelpSearch"}) {
        program.helpFile.clear();
        dialogs.expectInformation("Kestrelmoor", "Help is currently not available.");
        trigger(setup, way);
        program.helpFile = "/league/Kestrelmoor.hlp";
        dialogs.expectAddress("file:///league/Kestrelmoor.hlp");
        trigger(setup, way);
    }
}

TEST_F(Shell, AScreenPutsItsOwnEntriesInPlace) {
    WatchedScreen& setup = watched();
    int merged = 0;
    setup.addEntry(setup.fileMenu(), "mnuFileMerge", "&Merge...", [&] { ++merged; });
    trigger(setup, "mnuFileMerge");
    EXPECT_EQ(merged, 1);
    QStringList entries;
    for (const QAction* action : setup.fileMenu()->actions()) entries << action->objectName();
    EXPECT_EQ(entries, QStringList({"mnuFileMerge", "", "mnuFileExit"}));
    setup.dataMenu();
    QStringList menus;
    for (const QAction* action : setup.menuBar()->actions()) menus << action->menu()->objectName();
    EXPECT_EQ(menus, QStringList({"mnuFile", "mnuEdit", "mnuView", "mnuData", "mnuTools", "mnuHelp"}));
}

TEST_F(Shell, ToolbarStandsAtTheSideOfALowWindow) {
    WatchedScreen& setup = watched();
    auto* bar = setup.findChild<QToolBar*>("tbrScreens");
    setup.setMinimumSize(300, 300);
    for (const auto& [height, area] : {std::pair(360, Qt::LeftToolBarArea), std::pair(600, Qt::TopToolBarArea)}) {
        setup.resize(640, height);
        EXPECT_TRUE(QTest::qWaitFor([&] { return setup.toolBarArea(bar) == area; })) << height;
        EXPECT_TRUE(bar->isVisible());
    }
}

TEST_F(Shell, StatusLineKeepsItsTextUnderAPassingHint) {
    WatchedScreen& setup = watched();
    auto* line = setup.findChild<QLabel*>("lblStatus");
    setup.UpdateStatusBar("Record \"<b>Minors</b>\" Saved.");
    EXPECT_EQ(line->text(), QString("Record \"<b>Minors</b>\" Saved."));
    EXPECT_EQ(line->textFormat(), Qt::PlainText);
    QStatusTipEvent hint("passing");
    QCoreApplication::sendEvent(&setup, &hint);
    QStatusTipEvent none("");
    QCoreApplication::sendEvent(&setup, &none);
    EXPECT_TRUE(line->isVisible());
    setup.ResetStatusBar();
    EXPECT_EQ(line->text(), QString());
}

TEST_F(Shell, EditMenuWorksOnTheActiveBox) {
    WatchedScreen& setup = watched();
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* first = new QLineEdit("Minors");
    auto* second = new QComboBox;
    second->setEditable(true);
    column->addWidget(first);
    column->addWidget(second);
    setup.setCentralWidget(page);
    auto* menu = setup.findChild<QMenu*>("mnuEdit");
    const auto enabled = [&](const char* name) {
        Q_EMIT menu->aboutToShow();
        return setup.findChild<QAction*>(name)->isEnabled();
    };
    QGuiApplication::clipboard()->clear();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&setup));
    EXPECT_FALSE(enabled("mnuEditCut") || enabled("mnuEditCopy") || enabled("mnuEditPaste"));
    first->setFocus();
    EXPECT_FALSE(enabled("mnuEditCut") || enabled("mnuEditPaste"));
    first->selectAll();
    EXPECT_TRUE(enabled("mnuEditCut"));
    trigger(setup, "mnuEditCut");
    EXPECT_EQ(first->text(), QString());
    second->setFocus();
    setup.menuBar()->setFocus();
    EXPECT_TRUE(enabled("mnuEditPaste"));
    trigger(setup, "mnuEditPaste");
    EXPECT_EQ(second->currentText(), QString("Minors"));
    first->setReadOnly(true);
    first->setFocus();
    EXPECT_FALSE(enabled("mnuEditPaste"));
    trigger(setup, "mnuEditUndo");
    EXPECT_EQ(setup.undone, 1);
}

TEST_F(Shell, WindowComesBackWhereItWasLeft) {
    const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize design(500, 400);
    struct Case {
        const char* what;
        QStringList stored;  ///< State, Left, Top, Width, Height
        QRect place;         ///< null: the middle of the desktop
        bool maximised;
    };
    for (const Case& each : {Case{"nothing", {"", "", "", "", ""}, {}, false},
                             Case{"normal", {"0", "20.5", "30", "520", "410"}, {21, 30, 520, 410}, false},
                             Case{"maximised", {"2", "20", "30", "520", "410"}, {20, 30, 520, 410}, true},
                             Case{"minimised", {"1", "20", "30", "520", "410"}, {20, 30, 520, 410}, false},
                             Case{"too small", {"0", "20", "30", "5", "-4"}, {20, 30, 300, 200}, false},
                             Case{"no numbers", {"x", "wide", "", "1e99", "nan"}, {}, false},
                             Case{"out of reach",
                                  {"0", "9000", "-5000", "520", "410"},
                                  {desktop.right() - 519, desktop.top(), 520, 410},
                                  false}}) {
        SCOPED_TRACE(each.what);
        const QStringList keys{"State", "Left", "Top", "Width", "Height"};
        for (int key = 0; key < 5; ++key) settings.write("WindowSettings\\frmTest", keys[key], each.stored[key]);
        QWidget window;
        const WindowPlacement placement(settings, "frmTest");
        placement.restore(window, design, {300, 200});
        EXPECT_EQ(window.isMaximized(), each.maximised);
        EXPECT_FALSE(window.isMinimized());
        QRect wanted = each.place;
        if (wanted.isNull()) {
            wanted.setSize(design);
            wanted.moveCenter(desktop.center());
        }
        EXPECT_EQ(window.normalGeometry(), wanted);
        placement.save(window);
        EXPECT_EQ(settings.read("WindowSettings\\frmTest", "State"), QString(each.maximised ? "2" : "0"));
        EXPECT_EQ(settings.read("WindowSettings\\frmTest", "Left"), QString::number(wanted.left()));
        EXPECT_EQ(settings.read("WindowSettings\\frmTest", "Height"), QString::number(wanted.height()));
    }
}

TEST_F(Shell, AMinimisedWindowKeepsItsLastPosition) {
    WatchedScreen& setup = watched();
    setup.setGeometry(40, 50, 640, 480);
    settings.write("WindowSettings\\frmSetup", "Left", "7");
    setup.setWindowState(Qt::WindowMinimized | Qt::WindowMaximized);
    setup.close();
    EXPECT_EQ(settings.read("WindowSettings\\frmSetup", "State"), QString("1"));
    EXPECT_EQ(settings.read("WindowSettings\\frmSetup", "Left"), QString("7"));
}

TEST_F(Shell, OpeningAMinimisedScreenBringsItForward) {
    WatchedScreen& setup = watched();
    setup.setWindowState(Qt::WindowMinimized);
    screens.show("frmSetup");
    EXPECT_FALSE(setup.isMinimized());
    EXPECT_TRUE(setup.isVisible());
}

TEST(Splash, AsksNotToBeShownOnlyWhenTheBoxIsCleared) {
    for (const bool cleared : {false, true}) {
        int stopped = 0;
        frmSplash splash([&] { ++stopped; });
        if (cleared) splash.findChild<QCheckBox*>("chkSkipScreen")->click();
        splash.findChild<QPushButton*>("cmdOK")->click();
        EXPECT_EQ(stopped, cleared ? 1 : 0);
        EXPECT_EQ(splash.result(), QDialog::Accepted);
    }
}

TEST_F(Shell, AboutLeadsToTheSiteAndToSystemInformation) {
    frmAbout about(dialogs);
    auto* address = about.findChild<QLabel*>("lblWebAddress");
    const char question[] =
        "This will start your local browser\nand connect to the Kestrelmoor Site.\n"
        "Do you wish to continue?";
    dialogs.expectQuestion("Start Browser?", BoxAnswer::No, question);
    Q_EMIT address->linkActivated({});
    dialogs.expectQuestion("Start Browser?", BoxAnswer::Yes, question);
    dialogs.expectAddress("https://kestrelmoor.example", true);
    Q_EMIT address->linkActivated({});

    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    dialogs.expectInformation("Kestrelmoor", "System Information Is Unavailable At This Time");
    about.findChild<QPushButton*>("cmdSysInfo")->click();
    qputenv("PATH", path);
}

TEST(UpdateStatus, CannotBeClosedWhileTheRunLasts) {
    frmUpdateStatus status("New Season Update Status");
    status.begin();
    status.showStep("Marking players");
    status.showProgress(40);
    status.close();
    EXPECT_TRUE(status.isVisible());
    status.finish("New Season Updates Complete.");
    status.findChild<QPushButton*>("cmdClose")->click();
    EXPECT_FALSE(status.isVisible());
}

}  // namespace
