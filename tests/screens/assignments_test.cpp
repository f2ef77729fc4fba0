#include "league/ScoredPlayers.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>

namespace {

/// Majors (1) with the Hawks (1), Minors (2).
class AssignmentsTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"Majors", "Minors"})
            run(QStringLiteral("INSERT INTO tblDivision ([DivName]) VALUES (\"%1\")").arg(name));
        run("INSERT INTO tblTeam ([TeamName], [DivisionId]) VALUES (\"Hawks\", 1)");
    }
    void open(const QString& caption) {
        screen = running.open("frmTeams");
        for (const QString& each : {QStringLiteral("Teams"), caption})
            for (auto* tabs : screen->findChildren<QTabWidget*>())
                for (int index = 0; index < tabs->count(); ++index)
                    if (tabs->tabText(index) == each) tabs->setCurrentIndex(index);
    }
    int addPlayer(const QString& name, int division, int team, bool active = true) {
        run(QStringLiteral("INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], "
                           "[PlayerDivisionId], [PlayerTeamId], [PlayerActive]) VALUES (%1, \"Jo\", #4/2/2016#, %2, "
                           "%3, %4)")
                .arg(datafile::quoted(name))
                .arg(division)
                .arg(team)
                .arg(active ? "True" : "False"));
        return ++players;
    }
    void rate(int player, const QString& skills, const QString& grades) {
        run(QStringLiteral("INSERT INTO tblAbilityRating ([PlayerId], [VolId], %1) VALUES (%2, 0, %3)")
                .arg(skills)
                .arg(player)
                .arg(grades));
    }
    QListView* list(const char* name) { return control<QListView>(screen, name); }
    QStringList entries(const char* name) {
        QStringList texts;
        for (int row = 0; row < list(name)->model()->rowCount(); ++row)
            texts << list(name)->model()->index(row, 0).data().toString();
        return texts;
    }
    void move(const char* name, const QString& entry) {
        const auto row = entries(name).indexOf(entry);
        ASSERT_GE(row, 0) << entry.toStdString();
        list(name)->setCurrentIndex(list(name)->model()->index(static_cast<int>(row), 0));
        QTest::keyClick(list(name), Qt::Key_Return);
    }
    QString label(const char* name) { return control<QLabel>(screen, name)->text(); }
    QString place(int player) {
        const QString row = QStringLiteral("SELECT * FROM tblRegistration WHERE [PlayerId] = %1").arg(player);
        return running.league.value(row, "PlayerDivisionId") + u'/' + running.league.value(row, "PlayerTeamId");
    }
    void run(const QString& statement) { running.league.database().execute(statement); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
    int players = 0;
};

TEST_F(AssignmentsTest, ListsHoldTheActivePlayersWithTheScoresOfTheirRatedSkills) {
    const int ash = addPlayer("Ash", 1, 0);
    addPlayer("Birch", 0, 0);
    const int elm = addPlayer(QString::fromUtf8("Élm"), 1, 0);
    addPlayer("Fir", 2, 0);
    addPlayer("Oak", 1, 0, false);
    const int pine = addPlayer("Pine", 1, 1);
    addPlayer("Reed", 1, 1);
    addPlayer("Sedge", 1, 1, false);
    addPlayer("Thorn", 2, 1);
    rate(ash, "[BattingRating], [CatcherRating], [PitcherRating], [CoachAbilityRating]", "4, 4, 5, 5");
    rate(elm, "[RunningRating], [ThrowingRating]", "-3, 0");
    rate(pine, "[KnowledgeRating], [InfieldRating], [OutfieldRating]", "12, -2, 9");
    open("Player/Team Assignments");
    EXPECT_EQ(label("lblAssignmentDivision") + u'/' + label("lblAssignmentTeam"), "Majors/Hawks");
    EXPECT_EQ(entries("lstPlayerRegistrations"),
              (QStringList{"(4.33) Ash, Jo - 4/2/2016", "(0.00) Birch, Jo - 4/2/2016",
                           QString::fromUtf8("(0.00) Élm, Jo - 4/2/2016")}));
    EXPECT_EQ(entries("lstTeamList"), (QStringList{"(10.50) Pine, Jo - 4/2/2016", "(0.00) Reed, Jo - 4/2/2016"}));
    EXPECT_EQ(label("lblNumberPlayers") + u'/' + label("lblAverageAbilityRating"), "2/5.25");
}

TEST(TeamAverageTest, IsReadFromTheFirstFourCharactersOfEachScore) {
    const struct {
        std::vector<QString> entries;
        const char* average;
    } teams[] = {{{}, "0.00"},
                 {{"(3.25) A, B - 1/1/2012"}, "3.25"},
                 {{"(3.25) A, B - 1/1/2012", "(0.00) C, D - 1/1/2012"}, "1.63"},
                 {{"(10.56) A, B - 1/1/2012"}, "10.50"},
                 {{"(100.25) A, B - 1/1/2012", "(0.00) C, D - 1/1/2012"}, "50.00"}};
    for (const auto& team : teams) EXPECT_EQ(averageScore(team.entries), team.average);
}

TEST_F(AssignmentsTest, MovedPlayersAreWrittenAtOnceAndCounted) {
    const int none = addPlayer("Ash, Jr (A) - 5", 0, 0);
    const int high = addPlayer("Birch", 1, 0);
    addPlayer("Cedar", 1, 1);
    rate(high, "[BattingRating]", "12");
    open("Player/Team Assignments");
    const QString ash = "(0.00) Ash, Jr (A) - 5, Jo - 4/2/2016";
    move("lstPlayerRegistrations", "(12.00) Birch, Jo - 4/2/2016");
    EXPECT_EQ(status(screen), "Player Assigned to Team.");
    EXPECT_EQ(place(high), "1/1");
    EXPECT_EQ(entries("lstTeamList"), (QStringList{"(12.00) Birch, Jo - 4/2/2016", "(0.00) Cedar, Jo - 4/2/2016"}));
    EXPECT_EQ(label("lblNumberPlayers") + u'/' + label("lblAverageAbilityRating"), "2/6.00");
    EXPECT_EQ(entries("lstPlayerRegistrations"), QStringList{ash});

    run("UPDATE tblRegistration SET [PlayerLastName] = \"Aspen\" WHERE [PlayerId] = 1");
    press(screen, "cmdRefresh");
    move("lstPlayerRegistrations", "(0.00) Aspen, Jo - 4/2/2016");
    EXPECT_EQ(place(none), "1/1") << "a player of no division joins division and team";
    move("lstTeamList", "(0.00) Aspen, Jo - 4/2/2016");
    EXPECT_EQ(status(screen), "Player Removed from Team.");
    EXPECT_EQ(place(none), "1/0") << "the division stays";
    EXPECT_EQ(label("lblNumberPlayers"), "2");
    EXPECT_EQ(running.league.value("tblRegistration", "DateStamp"), "2026-04-22");
}

TEST_F(AssignmentsTest, NothingIsWrittenWhereDivisionOrTeamAreGone) {
    const auto gone = [](const char* what) {
        return QStringLiteral(
                   "An Error has occurred -- \nThe %1 Name was not found\nPlease check that a Division and "
                   "\nTeam are selected on the Teams Tab")
            .arg(QLatin1String(what));
    };
    const QString entry = "(0.00) Ash, Jo - 4/2/2016";
    const int ash = addPlayer("Ash", 1, 0);
    open("Player/Team Assignments");
    run("UPDATE tblTeam SET [DeletedFlag] = True");
    dialogs.expectError("Team Name Not Found...", gone("Team"));
    move("lstPlayerRegistrations", entry);
    EXPECT_EQ(entries("lstTeamList"), QStringList{entry}) << "the entry has gone over until the lists are filled again";
    run("UPDATE tblDivision SET [DeletedFlag] = True");
    dialogs.expectError("Division Name Not Found...", gone("Division"));
    move("lstTeamList", entry);
    EXPECT_EQ(place(ash), "1/0");
    run("DELETE FROM tblRegistration");
    move("lstPlayerRegistrations", entry);
    EXPECT_EQ(entries("lstPlayerRegistrations"), QStringList{entry}) << "who is no player does not move";
}

TEST_F(AssignmentsTest, FieldsAreAssignedToDivisions) {
    for (const char* field : {"Elm Park", "Elm Park South", "Oak Street"})
        run(QStringLiteral("INSERT INTO tblField ([FieldName]) VALUES (\"%1\")").arg(field));
    run("INSERT INTO tblTeamField ([FieldId], [DivisionId]) VALUES (1, 2)");
    open("Field Assignments");
    EXPECT_FALSE(control(screen, "cmdSave")->isVisible() || control(screen, "cmdAdd")->isVisible());
    move("lstFieldsAvailable", "Oak Street");
    EXPECT_EQ(status(screen), "Field Assigned to Team Assignment.");
    move("lstFieldsAvailable", "Elm Park");
    EXPECT_EQ(entries("lstFieldsAssigned"), (QStringList{"Elm Park", "Oak Street"}));
    EXPECT_EQ(running.league.count("SELECT * FROM tblTeamField WHERE [FieldId] = 1"), 2)
        << "a field has many divisions";
    move("lstFieldsAssigned", "Elm Park");
    EXPECT_EQ(status(screen), "Field Removed from Team Assignments.");
    EXPECT_EQ(running.league.value("SELECT * FROM tblTeamField WHERE [FieldId] = 1", "DivisionId"), "2");
    press(screen, "cmdFieldDivsiionMove3");
    EXPECT_EQ(entries("lstFieldsAssigned"), QStringList{"Elm Park"});
    run("UPDATE tblField SET [DeletedFlag] = True WHERE [FieldId] = 1");
    press(screen, "cmdRefresh");
    EXPECT_EQ(entries("lstFieldsAvailable") + entries("lstFieldsAssigned"),
              (QStringList{"Elm Park South", "Oak Street"}));

    run("UPDATE tblDivision SET [DeletedFlag] = True");
    const QString gone = "An Error has occurred -- \nThe Division Name was not found\nPlease check that a Division ";
    dialogs.expectError("Division Name Not Found...", gone + "and \nTeam are selected.");
    move("lstFieldsAvailable", "Oak Street");
    dialogs.expectError("Division Name Not Found...", gone + "\nis selected on the Teams Tab");
    move("lstFieldsAssigned", "Oak Street");
    EXPECT_EQ(running.league.count("SELECT * FROM tblTeamField"), 2);
}

class FieldsTest : public AssignmentsTest {
protected:
    void SetUp() override { open("Fields"); }
    int entryCount() { return control<SearchCombo>(screen, "cboFieldSearchList")->entryCount(); }
    void add(const char* name) {
        press(screen, "cmdAdd");
        type(screen, "txtFieldName", name);
        press(screen, "cmdSave");
        EXPECT_EQ(status(screen), QStringLiteral("Record \"%1\" Added.").arg(name));
    }
    QString kept(const char* column) { return running.league.value("tblField", QLatin1String(column)); }
};

TEST_F(FieldsTest, FieldIsKeptAsEntered) {
    EXPECT_FALSE(control(screen, "cmdFieldAvailability")->isEnabled());
    press(screen, "cmdAdd");
    dialogs.expectWarning("Critical Error - Defaults Setup", "The Field Name is a required entry.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtFieldName")->hasFocus());
    type(screen, "txtFieldName", "Elm Park");
    type(screen, "mskedFieldContactPhone", "5550182");
    press(screen, "optFieldLights1");
    type(screen, "mskedFieldZipCode", "97001");
    type(screen, "txtFieldDirections", "North");
    press(screen, "cmdSave");
    EXPECT_EQ(kept("FieldContactPhone") + u'/' + kept("FieldZipCode") + u'/' + kept("FieldDirections"),
              "555-0182/97001/North");
    EXPECT_EQ(kept("FieldLights") + kept("FieldMultiPurpose"), "10") << "No is 1, Yes is 0";
    dialogs.expectForm("frmFieldAvailability", [](QDialog& form) { press(&form, "cmdClose"); });
    control<QPushButton>(screen, "cmdFieldAvailability")->click();
    type(screen, "txtFieldName", "Elm Park South");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Elm Park South\" Added.") << "an update too";
}

TEST_F(FieldsTest, FieldsOfOneNameStandSideBySide) {
    run("INSERT INTO tblDivision ([DivName]) VALUES (\"Majors\")");
    add("Elm Park");
    add("Elm Park");
    EXPECT_EQ(entryCount(), 2);
    run("INSERT INTO tblTeamField ([FieldId], [DivisionId]) VALUES (1, 1)");
    type(screen, "txtFieldName", "Oak Street");
    press(screen, "cmdSave");
    EXPECT_EQ(entryCount(), 2);
    EXPECT_EQ(kept("FieldName"), "Oak Street") << "of two the first one is found";
    const QString question = "This will permanently delete the current record.\n\nDo you want to continue?";
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::No, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Oak Street\" NOT Deleted.");
    for (const char* deleted : {"Oak Street", "Elm Park"}) {
        dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, question);
        press(screen, "cmdDelete");
        EXPECT_EQ(status(screen), QStringLiteral("Record \"%1\" Deleted.").arg(deleted));
    }
    EXPECT_EQ(running.league.count("SELECT * FROM tblTeamField"), 1);
    EXPECT_FALSE(control(screen, "cmdFieldAvailability")->isEnabled());
}

}  // namespace
