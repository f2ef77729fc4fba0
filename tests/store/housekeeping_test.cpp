#include "store/Housekeeping.h"

#include "platform/datafile/DataFile.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

using namespace datafile;

namespace {

class HousekeepingTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* statement :
             {"INSERT INTO tblTeam ([TeamName], [DeletedFlag]) VALUES (\"Owls\", True)",
              "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerTeamId], "
              "[PlayerActive]) "
              "VALUES (\"Ash\", \"Ann\", #4/2/2012#, 1, True), (\"Birch\", \"Bo\", #4/2/2012#, 9, True), (\"Cedar\", "
              "\"Cy\", #4/2/2012#, 0, False)",
              "INSERT INTO tblVolunteer ([VolLastName], [VolActive]) VALUES (\"Vine\", True), (\"Willow\", False)",
              "INSERT INTO tblSchedule ([division], [HomeTeam], [DeletedFlag]) VALUES (\"Minors \"\"A\"\"\", \"Owls\", "
              "False), "
              "(\"Minors \"\"A\"\"\", \"Hawks\", True), (\"Majors\", \"Jays\", False)",
              "INSERT INTO tblTempResults ([TeamName]) VALUES (\"x\")",
              "INSERT INTO tblTempSearchList ([LastName]) VALUES (\"x\")",
              "INSERT INTO tblTempFeeReport ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate]) VALUES (\"x\", "
              "\"x\", #4/2/2012#)",
              "INSERT INTO tblTempFamilyLabels ([LastName]) VALUES (\"x\")",
              "INSERT INTO tblEquipmentAvailable VALUES (1, 5, 2, 3)"})
            league.database().execute(statement);
    }
    /// One column of all rows, in the order of their keys.
    QStringList column(const char* table, const char* name) {
        QStringList values;
        for (Recordset rows = league.database().openRecordset(table); !rows.eof(); rows.moveNext())
            values << rows.text(name);
        return values;
    }
    LeagueFile league;
};

TEST_F(HousekeepingTest, EachKindRemovesWhatItNames) {
    struct Case {
        int kind;
        const char* text;
        const char* table;
        const char* column;
        QStringList left;
    };
    for (const Case& each :
         {Case{InactivePlayers, "", "tblRegistration", "DeletedFlag", {"0", "0", "1"}},
          Case{InactiveVolunteers, "", "tblVolunteer", "DeletedFlag", {"0", "1"}},
          Case{LostTeams, "", "tblRegistration", "PlayerTeamId", {"1", "0", "0"}},
          Case{DivisionSchedule, "", "tblSchedule", "HomeTeam", {"Owls", "Hawks", "Jays"}},
          Case{DivisionSchedule, "minors \"a\"", "tblSchedule", "HomeTeam", {"Hawks", "Jays"}},
          Case{DeletedRows, "tblSchedule", "tblSchedule", "HomeTeam", {"Jays"}},
          Case{DeletedRows, "tblRegistration", "tblRegistration", "PlayerLastName", {"Ash", "Birch"}},
          Case{0, "", "tblSchedule", "HomeTeam", {"Jays"}},
          Case{12, "tblSchedule", "tblSchedule", "HomeTeam", {"Jays"}},
          Case{Schedule, "", "tblSchedule", "HomeTeam", {}}, Case{TempResults, "", "tblTempResults", "TeamName", {}},
          Case{TempSearchList, "", "tblTempSearchList", "LastName", {}},
          Case{TempFeeReport, "", "tblTempFeeReport", "PlayerLastName", {}},
          Case{TempFamilyLabels, "", "tblTempFamilyLabels", "LastName", {}},
          Case{EquipmentAvailable, "", "tblEquipmentAvailable", "EquipmentId", {}}}) {
        DeleteRecords(league.context, each.kind, each.text);
        EXPECT_EQ(column(each.table, each.column), each.left) << "kind " << each.kind << ' ' << each.text;
    }
}

TEST_F(HousekeepingTest, RowsThatAreMarkedOrMendedAreStampedAndOthersAreNot) {
    DeleteRecords(league.context, InactivePlayers);
    DeleteRecords(league.context, LostTeams);
    EXPECT_EQ(column("tblRegistration", "DateStamp"), (QStringList{"1899-12-30", "2026-04-22", "2026-04-22"}));
    EXPECT_EQ(column("tblRegistration", "TimeStamp"), (QStringList{"0", "43200", "43200"}));
}

TEST_F(HousekeepingTest, PurgeTakesChildrenBeforeParentsAndKnowsItsTables) {
    for (const char* statement :
         {"INSERT INTO tblDivision ([DivName], [DeletedFlag]) VALUES (\"Minors\", True)",
          "INSERT INTO tblField ([FieldName], [DeletedFlag]) VALUES (\"Oak\", True)",
          "INSERT INTO tblTeamField ([FieldId], [DivisionId], [DeletedFlag]) VALUES (1, 1, True)"})
        league.database().execute(statement);
    for (const QString& table : purgedTables()) DeleteRecords(league.context, DeletedRows, table);
    for (const QString& table : purgedTables())
        EXPECT_EQ(league.count("SELECT * FROM " + table + " WHERE [DeletedFlag] = True"), 0) << table.toStdString();
    EXPECT_THROW(DeleteRecords(league.context, DeletedRows, "tblVersion"), datafile::Error) << "has no mark to go by";
    EXPECT_THROW(DeleteRecords(league.context, DeletedRows, "tblNothing"), datafile::Error);
}

TEST_F(HousekeepingTest, CompactGivesBackSpaceAndKeepsRowsPermissionsAndCursors) {
    for (int i = 0; i < 12; ++i)
        league.database().execute(
            "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerComments]) "
            "SELECT [PlayerLastName], [PlayerFirstName], [PlayerBirthDate], \"" +
            QString(200, 'c') + "\" FROM tblRegistration");
    league.database().execute("DELETE FROM tblRegistration WHERE [PlayerComments] <> \"\"");
    const qint64 size = QFileInfo(league.path()).size();
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(league.path(), permissions));
    QFile stale(league.folder.filePath("Kestrelmoor.CPT"));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly) && stale.write("half") == 4);
    stale.close();
    Recordset players = league.database().openRecordset("SELECT * FROM tblRegistration ORDER BY [PlayerLastName]");
    players.moveLast();

    CompactDataFile(league.context);
    EXPECT_LT(QFileInfo(league.path()).size(), size / 2);
    EXPECT_EQ(QFile::permissions(league.path()) & (QFile::ReadOther | QFile::ReadGroup | permissions), permissions);
    EXPECT_FALSE(stale.exists());
    EXPECT_EQ(players.text("PlayerLastName"), "Cedar");
    players.movePrevious();
    EXPECT_EQ(players.text("PlayerLastName"), "Birch");
    checkIntegrity(league.path());
}

}  // namespace
