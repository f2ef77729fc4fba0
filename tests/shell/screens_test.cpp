#include <QLabel>
#include <QPushButton>

#include "shell/ShellFixture.h"

namespace {

TEST_F(Shell, ClosingTheLastScreenBringsTheNavigatorAndClosingThatEnds) {
    Screen& setup = open("frmSetup");
    Screen& teams = open("frmTeams");
    EXPECT_EQ(&open("frmSetup"), &setup);
    teams.close();
    EXPECT_EQ(openScreens(), QStringList({"frmSetup"}));
    EXPECT_FALSE(endsProgram([&] { setup.close(); }));
    EXPECT_EQ(openScreens(), QStringList({"frmStartUp"}));
    EXPECT_TRUE(screens.load("frmStartUp")->isVisible());
    open("frmTeams");
    EXPECT_FALSE(endsProgram([&] { screens.load("frmStartUp")->close(); }));
    EXPECT_EQ(openScreens(), QStringList({"frmTeams"}));
    screens.load("frmTeams")->close();
    EXPECT_TRUE(endsProgram([&] { screens.load("frmStartUp")->close(); }));
    EXPECT_EQ(openScreens(), QStringList());
}

TEST_F(Shell, AScreenMayRefuseToClose) {
    WatchedScreen& setup = watched();
    setup.saves = false;
    EXPECT_FALSE(setup.close());
    EXPECT_TRUE(setup.isVisible() && screens.isOpen("frmSetup"));
    setup.fails = true;
    dialogs.expectError("Kestrelmoor", "No space left.");
    EXPECT_FALSE(setup.close());
    EXPECT_TRUE(setup.isVisible() && screens.isOpen("frmSetup"));
    setup.fails = false;
    setup.saves = true;
    EXPECT_TRUE(setup.close());
    EXPECT_EQ(setup.offers, 3);
}

TEST_F(Shell, TheEndIsOfferedToAllScreensBeforeOneCloses) {
    WatchedScreen& setup = watched("frmSetup");
    WatchedScreen& teams = watched("frmTeams");
    open("frmReports");
    teams.saves = false;
    EXPECT_FALSE(endsProgram([&] { trigger(setup, "mnuViewExit"); }));
    EXPECT_EQ(openScreens(), QStringList({"frmTeams", "frmReports", "frmSetup"}));
    teams.saves = true;
    setup.offers = teams.offers = 0;
    dialogs.expectQuestion("Exit...", BoxAnswer::No, "Exit Kestrelmoor?");
    EXPECT_FALSE(endsProgram([&] { trigger(setup, "btnExit"); }));
    EXPECT_EQ(setup.offers + teams.offers, 0);
    dialogs.expectQuestion("Exit...", BoxAnswer::Yes, "Exit Kestrelmoor?");
    const QPointer<WatchedScreen> gone = &setup;
    EXPECT_TRUE(endsProgram([&] {
        trigger(setup, "btnExit");
        EXPECT_EQ(setup.offers, 1);
        EXPECT_EQ(teams.offers, 1);
    }));
    EXPECT_TRUE(gone.isNull());
    EXPECT_EQ(openScreens(), QStringList());
    EXPECT_EQ(settings.read("WindowSettings\\frmTeams", "Width"), QString("700"));
}

TEST_F(Shell, AScreenLearnsThatItCameForwardButNotAfterABox) {
    const auto activate = [](QWidget& window) {
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&window, &activated);
    };
    WatchedScreen& setup = watched("frmSetup");
    activate(setup);
    EXPECT_EQ(setup.refreshed, 0) << "it has just been loaded";
    activate(setup);
    EXPECT_EQ(setup.refreshed, 0) << "only a message box was closed";
    WatchedScreen& teams = watched("frmTeams");
    activate(teams);
    activate(setup);
    EXPECT_EQ(setup.refreshed, 1);
    dialogs.expectForm("frmAbout", [](QDialog& form) { form.accept(); });
    screens.show("frmAbout");
    activate(setup);
    EXPECT_EQ(setup.refreshed, 2) << "a form may have changed the data";
}

TEST_F(Shell, AFormBesideTheScreensIsOneAndGoesWithTheProgram) {
    screens.addForm(
        "frmExport", [] { return std::make_unique<QDialog>(); }, Screens::Shown::BesideTheScreens);
    WatchedScreen& setup = watched();
    const auto windows = [] {
        int count = 0;
        for (const QWidget* widget : QApplication::topLevelWidgets())
            count += widget->metaObject() == &QDialog::staticMetaObject;
        return count;
    };
    trigger(setup, "mnuExportToDS");
    trigger(setup, "mnuExportToDS");
    EXPECT_EQ(windows(), 1);
    EXPECT_TRUE(endsProgram([this] { screens.endProgram(); }));
    EXPECT_EQ(windows(), 0);
}

TEST_F(Shell, NavigatorHandsOverByButtonOrLabel) {
    struct Case {
        const char* button;
        const char* label;
        const char* screen;
    };
    for (const Case& each :
         {Case{"cmdRegister", "lblRegister", "frmRegister"}, Case{"cmdTeams", "lblTeams", "frmTeams"},
          Case{"cmdRatings", "lblRatings", "frmRatings"}, Case{"cmdEquipment", "lblEquipment", "frmEquipment"},
          Case{"cmdGameResults", "lblGameResults", "frmResults"}, Case{"cmdReports", "lblReports", "frmReports"},
          Case{"cmdSetup", "lblSetup", "frmSetup"}}) {
        SCOPED_TRACE(each.screen);
        for (const bool byLabel : {false, true}) {
            Screen& navigator = open("frmStartUp");
            EXPECT_EQ(navigator.windowTitle(), QString("Kestrelmoor - /league/Kestrelmoor.kmr"));
            if (byLabel) {
                QTest::mouseClick(navigator.findChild<QLabel*>(each.label), Qt::LeftButton);
            } else {
                QTest::keyClick(navigator.findChild<QPushButton*>(each.button), Qt::Key_Return);
            }
            EXPECT_EQ(openScreens(), QStringList({each.screen}));
            screens.load(each.screen)->close();
            EXPECT_EQ(openScreens(), QStringList({"frmStartUp"}));
        }
    }
}

TEST_F(Shell, NavigatorStaysForFormsAndForWhatIsMissing) {
    Screen& navigator = open("frmStartUp");
    for (const char* label : {"lblBackup1", "lblBackup2"}) {
        dialogs.expectInformation("Kestrelmoor", "This is not yet part of this version.");
        QTest::mouseClick(navigator.findChild<QLabel*>(label), Qt::LeftButton);
    }
    dialogs.expectForm("frmAbout", [](QDialog& form) { form.accept(); });
    navigator.findChild<QPushButton*>("cmdAbout")->click();
    EXPECT_EQ(openScreens(), QStringList({"frmStartUp"}));
    WatchedScreen& teams = watched("frmTeams");
    teams.saves = false;
    QPushButton* exit = navigator.findChild<QPushButton*>("cmdExit");
    EXPECT_FALSE(endsProgram([&] { exit->click(); }));
    EXPECT_TRUE(navigator.isVisible());
    teams.saves = true;
    EXPECT_TRUE(endsProgram([&] { exit->click(); }));
}

}  // namespace
