#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include "platform/widgets/SearchCombo.h"
#include "support/RunningProgram.h"

namespace {

/// What the registration tabs share, over three players and three volunteers of which the first is inactive.
class RegistrationScreenTest : public testing::Test {
protected:
    void SetUp() override {
        execute("UPDATE tblDefaults SET [DefaultAgeCutoffMonth] = \"1\", [DefaultAgeCutoffDay] = \"1\"");
        execute(
            "INSERT INTO tblDivision ([DivName], [DivAgeCutOffMonth], [DivAgeCutOffDay]) VALUES (\"Minors\", \"8\", "
            "\"1\")");
        for (const char* name : {"Ash", "Birch", "Cedar"}) {
            execute(QString("INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], "
                            "[PlayerActive]) VALUES (\"%1\", \"Kim\", #4/2/2012#, %2)")
                        .arg(name, name[0] == 'A' ? "False" : "True"));
            execute(QString("INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], [VolActive]) "
                            "VALUES (\"%1\", \"Kim\", \"555-0100\", %2)")
                        .arg(name, name[0] == 'A' ? "False" : "True"));
        }
        loadGlobals(running.league.context);
        running.program.globals().currentSeasonYear = "2026";
        screen = running.open("frmRegister");
    }
    void execute(const QString& statement) { running.league.database().execute(statement); }
    QTabWidget* tabs() { return screen->findChild<QTabWidget*>(); }
    QString shownIn(const char* search) { return control<QComboBox>(screen, search)->currentText(); }
    QAction* entry(const char* name) {
        auto* found = screen->findChild<QAction*>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    QString player(int id, const QString& column) {
        return running.league.value(QString("SELECT * FROM tblRegistration WHERE [PlayerId] = %1").arg(id), column);
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(RegistrationScreenTest, InactiveRecordsAndTheScheduleGoAfterAQuestion) {
    execute("INSERT INTO tblSchedule ([division]) VALUES (\"Minors\")");
    const QString title = "Delete Inactive Players";
    const struct {
        const char* entry;
        const char* question;
        const char* done;
        const char* cancelled;
        const char* rest;  ///< a query
        int left;
    } cases[]{{"mnuToolsDeletePlayers", "This will delete ALL Players that\nare NOT marked Active.",
               "All Inactive Players have been deleted.", "Delete Inactive Players process cancelled.",
               "SELECT * FROM tblRegistration WHERE [DeletedFlag] = False", 2},
              {"mnuToolsDeleteVolunteers", "This will delete ALL Volunteers that\nare NOT marked Active.",
               "All Inactive Volunteers have been deleted.", "Delete Inactive Volunteers process cancelled.",
               "SELECT * FROM tblVolunteer WHERE [DeletedFlag] = False", 2},
              {"mnuToolsDeleteSchedule", "This will delete ALL records \nfrom the Schedule Table.",
               "All Schedule table records have been deleted.", "Delete of Schedule table records cancelled.",
               "SELECT * FROM tblSchedule", 0}};
    for (const auto& each : cases) {
        const QString question = QString(each.question) + "\n\nDo You Want to delete these records?";
        const int before = running.league.count(each.rest);
        dialogs.expectQuestion(title, BoxAnswer::No, question);
        dialogs.expectInformation(title, each.cancelled);
        entry(each.entry)->trigger();
        EXPECT_EQ(running.league.count(each.rest), before) << each.entry;
        dialogs.expectQuestion(title, BoxAnswer::Yes, question);
        dialogs.expectInformation(title, each.done);
        entry(each.entry)->trigger();
        EXPECT_EQ(running.league.count(each.rest), each.left) << each.entry;
    }
    EXPECT_EQ(shownIn("cboPlayerSearchList"), "Birch, Kim - 4/2/2012");
    EXPECT_EQ(shownIn("cboVolSearchList"), "Birch, Kim - 555-0100");
    EXPECT_EQ(running.league.count("tblRegistration"), 3) << "only marked";
    execute("UPDATE tblRegistration SET [PlayerActive] = False");
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    dialogs.expectInformation(title);
    entry("mnuToolsDeletePlayers")->trigger();
    EXPECT_EQ(shownIn("cboPlayerSearchList"), "");
    EXPECT_FALSE(entry("mnuDataDeletePlayerRecord")->isEnabled());
    EXPECT_FALSE(entry("mnuDataNewSiblingRecord")->isEnabled());
}

TEST_F(RegistrationScreenTest, UnsavedWorkIsOfferedForSavingBeforeAPurge) {
    type(screen, "txtPlayerFirstName", "Lee");
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current Player record?");
    dialogs.expectWarning("Validation Error - Player Registration");
    entry("mnuToolsDeletePlayers")->trigger();
    EXPECT_EQ(control<QLineEdit>(screen, "txtPlayerFirstName")->text(), "Lee") << "the user stays with it";
    EXPECT_EQ(running.league.count("SELECT * FROM tblRegistration WHERE [DeletedFlag] = False"), 3);
}

TEST_F(RegistrationScreenTest, AgesAreRecalculatedAndNothingElse) {
    const struct {
        const char* set;
        const char* age;
    } cases[]{{"[PlayerDivisionId] = 1, [PlayerAge] = 3", "14"},
              {"[PlayerDivisionId] = 77, [PlayerAge] = 3, [DeletedFlag] = True", "13"},
              {"[PlayerDivisionId] = 0, [PlayerAge] = 3", "13"}};
    int id = 0;
    for (const auto& each : cases)
        execute(
            QString("UPDATE tblRegistration SET %1, [TimeStamp] = 5 WHERE [PlayerId] = %2").arg(each.set).arg(++id));
    dialogs.expectInformation("Age Calculation Complete", "All Player Ages have been recalculated.");
    entry("mnuToolsRecalculatePlayerAges")->trigger();
    id = 0;
    for (const auto& each : cases) {
        EXPECT_EQ(player(++id, "PlayerAge"), each.age) << each.set;
        EXPECT_EQ(player(id, "TimeStamp"), "5");
    }
}

TEST_F(RegistrationScreenTest, MenusFollowTheTab) {
    EXPECT_EQ(screen->windowTitle(), "Kestrelmoor - Player/Parent/Volunteer/Sponsor Registrations");
    EXPECT_EQ(control<QLabel>(screen, "lblDataFile")->text(), running.league.context.dataFilePath);
    for (const char* name : {"mnuFileBackup", "mnuFileRestore", "mnuFileMerge"}) EXPECT_FALSE(entry(name)->isEnabled());
    const struct {
        const char* group;
        const char* title;
        const char* add;
        const char* addTitle;
    } groups[]{{"mnuDataPlayer", "Player Registration", "mnuDataNewPlayerRecord", "&New Player"},
               {"mnuDataVolunteer", "Volunteer Registration", "mnuDataNewVolunteerRecord", "&New Volunteer"}};
    for (const int tab : {1, 0}) {
        tabs()->setCurrentIndex(tab);
        for (int group = 0; group < 2; ++group) EXPECT_EQ(entry(groups[group].group)->isEnabled(), group == tab);
        EXPECT_EQ(entry(groups[tab].group)->text(), groups[tab].title);
        EXPECT_EQ(entry(groups[tab].add)->text(), groups[tab].addTitle);
        const auto* search = control(screen, tab == 0 ? "cboPlayerSearchList" : "cboVolSearchList");
        EXPECT_TRUE(search->hasFocus());
    }
}

TEST_F(RegistrationScreenTest, LeavingATabSettlesItsRecord) {
    const QString title = "Save Record?";
    type(screen, "txtPlayerFirstName", "Lee");
    dialogs.expectQuestion(title, BoxAnswer::Yes, "Save the current Player record?");
    dialogs.expectWarning("Validation Error - Player Registration");
    tabs()->setCurrentIndex(1);
    EXPECT_EQ(tabs()->currentIndex(), 0) << "the record cannot be saved as it is";
    dialogs.expectQuestion(title, BoxAnswer::No);
    tabs()->setCurrentIndex(1);
    EXPECT_EQ(tabs()->currentIndex(), 1);
    type(screen, "txtVolCity", "Elm");
    dialogs.expectQuestion(title, BoxAnswer::No, "Save the current Volunteer record?");
    tabs()->setCurrentIndex(0);
    EXPECT_EQ(control<QLineEdit>(screen, "txtPlayerFirstName")->text(), "Kim") << "dropped on the way out";
    press(screen, "cmdAdd");
    dialogs.expectQuestion(title, BoxAnswer::No);
    tabs()->setCurrentIndex(1);
    EXPECT_EQ(control<QLineEdit>(screen, "txtPlayerLastName")->text(), "") << "the new record is given up";
    EXPECT_EQ(shownIn("cboPlayerSearchList"), "");
    EXPECT_EQ(running.league.count("tblRegistration"), 3);
}

}  // namespace
