#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "shell/frmUpdateStatus.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

class NewSeasonScreen : public testing::Test {
protected:
    void SetUp() override {
        running.league.database().execute(
            "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerActive], "
            "[PlayerGradeLevel]) VALUES (\"A\", \"A\", #4-2-2012#, True, \"3\")");
    }
    /// Opens the form, does something in it and closes it. What it is going to ask is scripted by `later`.
    template <class Drive>
    void drive(Drive what, const std::function<void()>& later = {}) {
        dialogs.expectForm("frmNewSeason", [&](QDialog& dialog) {
            form = &dialog;
            EXPECT_TRUE(QTest::qWaitForWindowActive(form));
            what();
            if (dialog.isVisible()) press(form, "cmdNewSeasonClose");
            EXPECT_FALSE(dialog.isVisible());
        });
        if (later) later();
        running.screens.show("frmNewSeason");
    }
    void click(const char* box) { QTest::keyClick(control(form, box), Qt::Key_Space); }
    bool isChecked(const char* box) { return control<QCheckBox>(form, box)->isChecked(); }
    bool isEnabled(const char* name) { return control(form, name)->isEnabled(); }
    bool isArmed() {
        EXPECT_EQ(isEnabled("cmdNewSeasonGo"), isEnabled("cmdNewSeasonRefresh"));
        return isEnabled("cmdNewSeasonGo");
    }
    QString year() { return control<QLineEdit>(form, "mskedNewSeasonYear")->text(); }
    QString kept(const char* column, const char* table = "tblRegistration") {
        return running.league.value(QLatin1String(table), QLatin1String(column));
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    QDialog* form = nullptr;
};

TEST_F(NewSeasonScreen, BoxesAndYearArmIt) {
    drive([&] {
        EXPECT_EQ(form->windowTitle(), "New Season Configuration");
        EXPECT_EQ(form->findChildren<QCheckBox*>().size(), 26);
        EXPECT_EQ(year(), "2026");
        EXPECT_FALSE(isArmed());
        click("chkRemoveTeamAssignment");
        EXPECT_TRUE(isArmed());
        click("chkRemoveTeamAssignment");
        EXPECT_FALSE(isArmed());
        type(form, "mskedNewSeasonYear", "2027");
        EXPECT_TRUE(isArmed());
        click("chkDeleteDivisions");
        click("chkDeleteTeams");
        EXPECT_TRUE(isChecked("chkDeleteTeams")) << "held by the divisions";
        EXPECT_TRUE(isChecked("chkResetTeamSponsors"));
        click("chkDeleteAllVolunteers");
        EXPECT_FALSE(isEnabled("chkClearVolunteerRatings"));
        EXPECT_TRUE(isEnabled("chkResetTeamCoachInformation"));
        press(form, "cmdNewSeasonRefresh");
        EXPECT_EQ(year(), "2026");
        EXPECT_FALSE(isArmed());
        for (const auto* box : form->findChildren<QCheckBox*>())
            EXPECT_TRUE(box->isEnabled() && !box->isChecked()) << box->objectName().toStdString();
    });
    EXPECT_EQ(kept("CurrentSeasonYear", "tblOptions"), "2026");
}

TEST_F(NewSeasonScreen, RunShowsItsEndAndMayBeRepeated) {
    Screen* setup = running.open("frmSetup");
    drive([&] {
        type(form, "mskedNewSeasonYear", "2027");
        click("chkIncreaseGradeLevel");
        for (int run = 1; run <= 2; ++run) {
            press(form, "cmdNewSeasonGo");
            auto* status = form->findChild<frmUpdateStatus*>();
            ASSERT_TRUE(status);
            EXPECT_TRUE(status->isVisible());
            EXPECT_EQ(status->windowTitle(), "New Season Update Status");
            EXPECT_EQ(control<QLabel>(status, "lblStatusText")->text(), "New Season Updates Complete.");
            EXPECT_EQ(control<QProgressBar>(status, "prgStatusBar")->value(), 100);
            EXPECT_EQ(kept("PlayerGradeLevel"), QString::number(3 + run));
            EXPECT_TRUE(isArmed());
            EXPECT_TRUE(isChecked("chkIncreaseGradeLevel"));
            press(status, "cmdClose");
            EXPECT_FALSE(status->isVisible());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    });
    EXPECT_EQ(kept("CurrentSeasonYear", "tblOptions"), "2027");
    EXPECT_EQ(running.league.context.globals.currentSeasonYear, "2027");
    EXPECT_TRUE(setup->isVisible());
}

/// Clicks that come while it runs are not made up for afterwards.
TEST_F(NewSeasonScreen, TakesNoInputWhileItRuns) {
    drive([&] {
        click("chkIncreaseGradeLevel");
        std::optional<bool> isHeld;
        const auto watch = [&] {
            if (!form->findChild<frmUpdateStatus*>()) return;
            isHeld = !isEnabled("chkIncreaseGradeLevel") && !isEnabled("cmdNewSeasonGo");
            form->reject();
            *isHeld = *isHeld && form->isVisible();
        };
        QTimer::singleShot(0, form, watch);
        press(form, "cmdNewSeasonGo");
        EXPECT_EQ(isHeld, true);
        EXPECT_EQ(kept("PlayerGradeLevel"), "4");
    });
}

TEST_F(NewSeasonScreen, WrongYearKeepsTheFocus) {
    drive(
        [&] {
            type(form, "mskedNewSeasonYear", "1979");
            QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialogs.shown().size() == 2; }));
            EXPECT_EQ(form->focusWidget()->objectName(), "mskedNewSeasonYear");
            type(form, "mskedNewSeasonYear", "20");
            press(form, "cmdNewSeasonGo");
            EXPECT_FALSE(form->findChild<frmUpdateStatus*>()) << "ran all the same";
        },
        [&] {
            dialogs.expectWarning("Invalid Year Entered",
                                  "The year you entered is not valid.\nThe valid year range is 1980 to 2050.");
            dialogs.expectWarning("Invalid Year Entered");
        });
    EXPECT_EQ(kept("CurrentSeasonYear", "tblOptions"), "2026");
}

}  // namespace
