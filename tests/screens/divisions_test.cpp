#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/CommentBox.h"
#include "platform/widgets/SearchCombo.h"
#include "reports/frmDivisionAges.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

namespace {

class DivisionsTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"Majors", "Minors", "T-Ball"})
            running.league.database().execute(
                "INSERT INTO tblDivision ([DivName], [DivAgeCutOffMonth], [DivAgeCutOffDay], "
                "[DeletedFlag]) VALUES (\"" +
                QString(name) + "\", \"5\", \"31\", False)");
        screen = running.open("frmTeams");
    }
    void choose(const char* name, const QString& text) {
        auto* box = control<ChoiceBox>(screen, name);
        ASSERT_GE(box->indexOf(text), 0) << name;
        box->setCurrentIndex(box->indexOf(text));
        Q_EMIT box->activated(box->currentIndex());
    }
    void pick(const QString& name) {
        auto* search = control<SearchCombo>(screen, "cboDivSearchList");
        search->setFocus();
        QTest::keyClick(search, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(search, name);
        QTest::keyClick(search, Qt::Key_Return);
        ASSERT_EQ(shown("txtDivName"), name);
    }
    QString shown(const char* name) { return control<QLineEdit>(screen, name)->text(); }
    QString chosen(const char* name) { return control<ChoiceBox>(screen, name)->text(); }
    QString kept(const QString& division, const char* column) {
        return running.league.value("SELECT * FROM tblDivision WHERE [DivName] = " + datafile::quoted(division),
                                    QLatin1String(column));
    }
    int count(const QString& table, const QString& where) {
        return running.league.count("SELECT * FROM " + table + " WHERE " + where);
    }
    void run(const QString& statement) { running.league.database().execute(statement); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(DivisionsTest, NewDivisionTakesTheDefaultsAndKeepsWhatIsEntered) {
    running.league.context.globals.defaultAgeCutoffMonth = "8";
    running.league.context.globals.defaultAgeCutoffDay = "15";
    press(screen, "cmdAdd");
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen->focusWidget() == control(screen, "txtDivName"); }));
    EXPECT_EQ(shown("txtDivRegistrationFee"), "$0.00");
    EXPECT_EQ(chosen("cboDivAgeCutOffMonth") + u' ' + chosen("cboDivAgeCutOffDay"), "August 15");
    EXPECT_EQ(shown("mskedDivMinAge"), "0");
    type(screen, "txtDivName", "Juniors");
    type(screen, "mskedDivMinAge", "13x");
    choose("cboDivGender", "Male & Female");
    choose("cboDivSport", "Softball");
    type(screen, "mskedDivUmpPlatePay", "45.00");
    type(screen, "mskedDivNbrOfUmpsRequired", "2");
    control<QRadioButton>(screen, "optDivCertUmpsRequired1")->click();
    choose("cboDivDifficultyRating", "Recreational");
    type(screen, "txtDivRegistrationFee", "95.5");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Juniors\" Saved.");
    const struct {
        const char* column;
        const char* value;
    } columns[] = {{"DivMinAge", "13"},
                   {"DivMaxAge", ""},
                   {"DivGender", "Male & Female"},
                   {"DivSport", "Softball"},
                   {"DivUmpPlatePay", "45.00"},
                   {"DivNbrOfUmpsRequired", "2"},
                   {"DivCertUmpsRequired", "1"},
                   {"DivDifficultyRating", "Recreational"},
                   {"DivAgeCutOffMonth", "8"},
                   {"DivAgeCutOffDay", "15"},
                   {"DivRegistrationFee", "95.5"},
                   {"DateStamp", "2026-04-22"},
                   {"DeletedFlag", "0"}};
    for (const auto& each : columns) EXPECT_EQ(kept("Juniors", each.column), each.value) << each.column;
    EXPECT_EQ(shown("txtDivRegistrationFee"), "$95.50");
    EXPECT_EQ(control<SearchCombo>(screen, "cboDivSearchList")->entryCount(), 4);
}

TEST_F(DivisionsTest, DayListFollowsTheMonthAndBeginsAnew) {
    auto* day = control<ChoiceBox>(screen, "cboDivAgeCutOffDay");
    EXPECT_EQ(day->text(), "31");
    choose("cboDivAgeCutOffMonth", "February");
    EXPECT_EQ(day->entryCount(), 28);
    EXPECT_EQ(day->text(), "1");
    press(screen, "cmdSave");
    EXPECT_EQ(kept("Majors", "DivAgeCutOffMonth") + u'/' + kept("Majors", "DivAgeCutOffDay"), "2/1");
    run("UPDATE tblDivision SET [DivAgeCutOffDay] = \"29\" WHERE [DivName] = \"Majors\"");
    pick("Minors");
    EXPECT_EQ(day->entryCount(), 31);
    pick("Majors");
    EXPECT_EQ(day->entryCount(), 28);
    EXPECT_EQ(day->text(), "") << "February has no such day";
    EXPECT_FALSE(control(screen, "cmdSave")->isEnabled()) << "a look is no edit";
}

TEST_F(DivisionsTest, NameIsRequiredAndUniqueAmongLiveDivisions) {
    const auto duplicate = [](const char* name) {
        return QStringLiteral(
                   "The Division Name %1\nalready exists\nDuplicates are not allowed.\nPlease enter a New Division "
                   "Name.")
            .arg(QLatin1String(name));
    };
    type(screen, "txtDivName", " ");
    dialogs.expectWarning("Validation Error - Division", "The Division Name is a required entry.");
    press(screen, "cmdSave");
    EXPECT_EQ(screen->focusWidget(), control(screen, "txtDivName"));
    type(screen, "txtDivName", "minors");
    dialogs.expectWarning("Validation Error - Division", duplicate("minors"));
    press(screen, "cmdSave");
    type(screen, "txtDivName", "MAJORS");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"MAJORS\" Saved.") << "the same division in another case";
    press(screen, "cmdAdd");
    type(screen, "txtDivName", "Minors");
    dialogs.expectWarning("Validation Error - Division", duplicate("Minors"));
    press(screen, "cmdSave");
    press(screen, "cmdCancel");
    EXPECT_EQ(count("tblDivision", "DeletedFlag = False"), 3);

    run("UPDATE tblDivision SET [DeletedFlag] = True, [DivComments] = \"old\" WHERE [DivName] = \"T-Ball\"");
    press(screen, "cmdAdd");
    type(screen, "txtDivName", "T-Ball");
    press(screen, "cmdSave");
    EXPECT_EQ(count("tblDivision", "DivName = \"T-Ball\""), 1) << "the deleted row came back";
    EXPECT_EQ(kept("T-Ball", "DeletedFlag") + kept("T-Ball", "DivComments"), "0");
}

TEST_F(DivisionsTest, ScheduleFollowsARenamedDivisionOnly) {
    for (const char* name : {"Majors", "Majors", "T-Ball"})
        run(QStringLiteral("INSERT INTO tblSchedule ([division]) VALUES (\"%1\")").arg(name));
    type(screen, "txtDivName", "O'Neil 100%");
    press(screen, "cmdSave");
    EXPECT_EQ(count("tblSchedule", "division = \"O'Neil 100\""), 2);
    EXPECT_EQ(count("tblSchedule", "division = \"T-Ball\""), 1);
    press(screen, "cmdAdd");
    type(screen, "txtDivName", "Juniors");
    press(screen, "cmdSave");
    EXPECT_EQ(count("tblSchedule", "division = \"Juniors\""), 0) << "a new division renames nothing";
}

TEST_F(DivisionsTest, UnknownDifficultyRatingMayJoinTheList) {
    const QString question =
        "The Difficulty Rating you specified is not\ncurrently in the list of selectable items.\n\n"
        "Do you want to add the item to the list?";
    const auto save = [&](BoxAnswer answer, const char* button) {
        type(screen, "cboDivDifficultyRating", "Hard");
        dialogs.expectQuestion("Add to Difficulty Ratings?", answer, question);
        if (button)
            dialogs.expectForm("frmDifficultyRating", [&](QDialog& form) {
                EXPECT_EQ(control<QLabel>(&form, "lblRating")->text(), "Hard");
                QTest::keyClicks(control<CommentBox>(&form, "txtRatingComments"), "Nine innings");
                press(&form, button);
            });
        press(screen, "cmdSave");
        EXPECT_EQ(kept("Majors", "DivDifficultyRating"), "Hard");
    };
    const auto ratings = [&] { return count("tblDifficultyRating", "DifficultyRatingText = \"Hard\""); };
    save(BoxAnswer::No, nullptr);
    EXPECT_EQ(ratings(), 0);
    save(BoxAnswer::Yes, "cmdCancel");
    EXPECT_EQ(ratings(), 0);
    save(BoxAnswer::Yes, "cmdSave");
    EXPECT_EQ(ratings(), 1);
    EXPECT_EQ(
        running.league.value("SELECT * FROM tblDifficultyRating WHERE [DifficultyRatingText] = \"Hard\"", "Comments"),
        "Nine innings");
    type(screen, "cboDivDifficultyRating", "hard");
    press(screen, "cmdSave");
    run("UPDATE tblDifficultyRating SET [DeletedFlag] = True WHERE [DifficultyRatingText] = \"Hard\"");
    press(screen, "cmdRefresh");
    save(BoxAnswer::Yes, "cmdSave");
    EXPECT_EQ(ratings(), 1) << "the deleted rating came back";
}

TEST_F(DivisionsTest, OfficialNameIsForOneOrganizationOnly) {
    Globals& globals = running.league.context.globals;
    for (const auto& [name, affiliation, shown] :
         {std::tuple("Little League", "Other", true), std::tuple("Little League West", "little league", false),
          std::tuple("", "Other", false)}) {
        screen->unload();
        globals.organizationName = name;
        globals.organizationAffiliation = affiliation;
        screen = running.open("frmTeams");
        EXPECT_EQ(control(screen, "cboOfficialDivisionName")->isVisible(), shown) << name << ", " << affiliation;
    }
    run("UPDATE tblDivision SET [OfficialDivName] = \"Challenger\"");
    type(screen, "txtDivName", "Major");
    press(screen, "cmdSave");
    EXPECT_EQ(kept("Major", "OfficialDivName"), "Challenger") << "what is not shown is left alone";
    screen->unload();
    globals.organizationAffiliation = "Little League";
    screen = running.open("frmTeams");
    EXPECT_TRUE(control(screen, "cboOfficialDivisionName")->isVisible());
    choose("cboOfficialDivisionName", "T-Ball BB");
    press(screen, "cmdSave");
    EXPECT_EQ(kept("Major", "OfficialDivName"), "T-Ball BB");
}

TEST_F(DivisionsTest, DeletingAsksForEquipmentThenTeamsThenTheUser) {
    const QString id = kept("Minors", "DivisionId");
    run("INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId], [DeletedFlag]) VALUES (" +
        id + ", 0, 0, 0, False)");
    run("INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId], [DeletedFlag]) VALUES (" +
        id + ", 4, 0, 0, False)");
    run("INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"Hawks\", " + id + ", False)");
    pick("Minors");
    dialogs.expectError("Delete Error...",
                        "The Division being deleted has Equipment \nassigned to it.  Delete any equipment assignments\n"
                        "before deleting this record.");
    press(screen, "cmdDelete");
    run("UPDATE tblEquipmentAssignment SET [DeletedFlag] = True WHERE [TeamId] = 0");
    dialogs.expectWarning(
        "Division Delete Request",
        "There are currently Teams assigned to this Division.\n\nYou must first delete the Teams (from the Teams tab\n"
        "on this form) that are assigned to this Division\nbefore you can delete the Division.");
    press(screen, "cmdDelete");
    run("UPDATE tblTeam SET [DeletedFlag] = True");
    const QString question = "Are you sure you want to delete Division \"Minors\"?";
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::No, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(kept("Minors", "DeletedFlag"), "0");
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(kept("Minors", "DeletedFlag") + kept("Minors", "DateStamp"), "12026-04-22");
    EXPECT_EQ(status(screen), "Record \"Minors\" Deleted.");
    EXPECT_EQ(shown("txtDivName"), "Majors");
}

TEST_F(DivisionsTest, FailedRenameLeavesScheduleAndDivisionTogether) {
    run("INSERT INTO tblSchedule ([division]) VALUES (\"Majors\")");
    type(screen, "txtDivName", "Seniors");
    run("DELETE FROM tblDivision WHERE [DivName] = \"Majors\"");
    dialogs.expectError("The record was not saved");
    press(screen, "cmdSave");
    EXPECT_EQ(running.league.value("tblSchedule", "division"), "Majors");
    press(screen, "cmdCancel");
    EXPECT_EQ(status(screen), "Record \"Majors\" was not found.");
    EXPECT_EQ(shown("txtDivName"), "Minors");
}

TEST_F(DivisionsTest, LeavingTheTabAsksForTheDivision) {
    type(screen, "txtDivName", "Seniors");
    dialogs.expectQuestion("Save Record?", BoxAnswer::No, "Save the current Division record?");
    screen->findChild<QTabWidget*>()->setCurrentIndex(1);
    EXPECT_EQ(shown("txtDivName"), "Majors");
    screen->findChild<QTabWidget*>()->setCurrentIndex(0);
    type(screen, "txtDivName", "Seniors");
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current record?");
    EXPECT_TRUE(screen->close());
    EXPECT_EQ(kept("Seniors", "DeletedFlag"), "0");
}

TEST(DivisionAgesTest, ShowsAgesThatAreNumbersAndHandsBackWhatIsTyped) {
    frmDivisionAges form("Minors", {"nine", "10"}, "Please enter the ages.");
    form.show();
    EXPECT_EQ(form.ages().minimum, "");
    EXPECT_EQ(form.ages().maximum, "10");
    type(&form, "txtMinimumAge", "8y");
    press(&form, "cmdOK");
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(form.ages().minimum, "8");
}

}  // namespace
