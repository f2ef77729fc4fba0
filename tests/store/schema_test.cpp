#include "platform/datafile/DataFile.h"
#include "store/Schema.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace datafile;

namespace {

TEST(SchemaTest, NewFileHoldsEveryDefinitionAsStated) {
    LeagueFile league;
    const Database database = league.database();
    for (const TableDef& table : schema::tables()) {
        const TableDef* made = database.table(table.name);
        ASSERT_TRUE(made) << table.name.toStdString();
        EXPECT_EQ(made->fields.size(), table.fields.size()) << table.name.toStdString();
        for (const FieldDef& field : table.fields) {
            ASSERT_TRUE(made->field(field.name)) << field.name.toStdString();
            EXPECT_TRUE(*made->field(field.name) == field)
                << table.name.toStdString() << '.' << field.name.toStdString();
        }
        EXPECT_EQ(made->indexes.size(), table.indexes.size()) << table.name.toStdString();
        EXPECT_EQ(made->relations, table.relations) << table.name.toStdString();
    }
    EXPECT_EQ(database.tableNames().size(), schema::tables().size());
    checkIntegrity(league.path());
}

TEST(SchemaTest, NewFileStartsWithItsVersionAndLookupRowsOnly) {
    LeagueFile league;
    EXPECT_EQ(league.value("tblVersion", "DBVersion"), "Version 1.39");
    EXPECT_EQ(league.value("SELECT * FROM tblState WHERE [StateName] = \"Quebec\"", "StateId"), "QC");
    EXPECT_EQ(league.count("SELECT * FROM tblState WHERE [DeletedFlag] = False"), 63);
    EXPECT_EQ(league.count("tblSport"), 5);
    EXPECT_EQ(league.count("SELECT * FROM tblOfficialDivisionNames WHERE [OrganizationName] = \"Little League\""), 24);
    for (const char* table :
         {"tblHowFeePaid", "tblPantSize", "tblShirtSize", "tblHatSize", "tblSocksSize", "tblShoeSize", "tblRating",
          "tblDifficultyRating", "tblVolunteerPositions", "tblCertifications"})
        EXPECT_GE(league.count(table), 4) << table;
    for (const char* table : {"tblRegistration", "tblOptions", "tblDefaults"})
        EXPECT_EQ(league.count(table), 0) << table;
}

/// The less plain forms of statement that screens and reports use.
TEST(SchemaTest, StatementsOfTheProgramRunAsTheyStand) {
    LeagueFile league;
    const Database database = league.database();
    database.execute("INSERT INTO tblDivision ([DivName]) VALUES (\"Minors\")");
    database.execute("INSERT INTO tblField ([FieldName]) VALUES (\"Oak\")");
    database.execute("INSERT INTO tblTeamField ([FieldId], [DivisionId]) VALUES (1, 1)");
    database.execute(
        "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerDivisionId], "
        "[PlayerTeamId], [PlayerActive], [PlayerAge]) VALUES (\"O'Hara\", \"Zoë\", #4/2/2012#, 1, 0, True, 14)");
    database.execute("INSERT INTO tblEquipment ([ItemName], [Description], [NbrItems]) VALUES (\"Bat\", \"Long\", 5)");
    database.execute("INSERT INTO tblEquipmentAvailable VALUES (1, 5, 2, 3)");
    database.execute(
        "INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId], [EquipmentId], "
        "[DistributionQuantity]) VALUES (1, 0, 0, 0, 1, \"2\")");
    database.execute(
        "INSERT INTO tblSchedule ([Date], [Time], [division], [HomeTeam], [VisitorsTeam]) VALUES "
        "(#4/25/2026#, #6:30 PM#, \"Minors\", \"Owls\", \"Hawks\")");
    const std::vector<std::pair<const char*, int>> statements{
        {"SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as Name FROM "
         "tblRegistration WHERE "
         "tblRegistration![DeletedFlag] = False   AND tblRegistration![PlayerActive] = True ORDER BY [PlayerLastName], "
         "[PlayerFirstName], [PlayerBirthDate]",
         1},
        {"SELECT DISTINCT[OrganizationName] FROM tblOfficialDivisionNames ORDER BY [OrganizationName]", 24},
        {"SELECT * FROM tblSchedule WHERE [Division] = \"minors\"  AND [DeletedFlag] = False  ORDER BY [Date], [Time], "
         "[HomeTeam]",
         1},
        {"SELECT * FROM tblSchedule WHERE [Division] = \"Minors\"  AND ([VisitorsTeam] = \"Owls\"    OR  [HomeTeam] = "
         "\"Owls\")",
         1},
        {"SELECT [VolPosName] FROM tblVolunteerPositions WHERE tblVolunteerPositions![DeletedFlag] = False   AND "
         "tblVolunteerPositions![VolPosId] NOT IN "
         "(SELECT tblVolToPosition![VolPosId] FROM tblVolToPosition WHERE tblVolToPosition![VolId] = 1 AND "
         "tblVolToPosition![PlayerId] = 0) ORDER by [VolPosName]",
         14},
        {"SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as Name FROM "
         "tblRegistration WHERE (([PlayerDivisionId] = 1 AND "
         "[PlayerTeamId] = 0) OR [PlayerDivisionId] = 0) AND [PlayerActive] = TRUE AND [DeletedFlag] = False ORDER BY "
         "[PlayerLastName]",
         1},
        {"SELECT *, ([FieldName]) as Name FROM tblField WHERE tblfield.FieldId NOT IN (Select tblTeamField.FieldId "
         "FROM tblTeamField WHERE tblTeamField.DivisionId = 1)   AND tblField.DeletedFlag = False  ORDER BY "
         "[FieldName]",
         0},
        {"SELECT DISTINCT(tblTeamField![FieldId]) as FieldId FROM tblTeamField WHERE tblteamField![DivisionId] = 1", 1},
        {"SELECT *, ([LastName] & \", \" & [FirstName] & \" - \" & [HomePhone]  ) as Name FROM tblTempSearchList WHERE "
         "[VolId] <> 0 ORDER BY [LastName], [FirstName]",
         0},
        {"SELECT [PlayerId], 0, [PlayerFirstName], [PlayerMiddleInitial], [PlayerLastName], [PlayerBirthDate] FROM "
         "tblRegistration WHERE [PlayerIsUmpire] = True AND [DeletedFlag] = False",
         0},
        {"SELECT ([ItemName]) as Name, ([Description]) as ItemDescription, tblEquipment.*, tblEquipmentAvailable.* "
         "FROM tblEquipment, tblEquipmentAvailable WHERE [DeletedFlag] = False   AND "
         "tblEquipment![EquipId] = tblEquipmentAvailable![EquipmentId]   AND tblEquipmentAvailable![QuantityAvailable] "
         "> 0  ORDER BY [ItemName], [Description]",
         1},
        {"SELECT tblEquipmentAssignment.*, tblEquipment![ItemName], tblEquipment![Description] FROM "
         "tblEquipmentAssignment, tblEquipment WHERE tblEquipmentAssignment![DivisionId] = 1   AND "
         "tblEquipmentAssignment![DeletedFlag] = False   AND tblEquipmentAssignment![EquipmentId] = "
         "tblEquipment![EquipId] ORDER BY tblEquipment![ItemName], tblEquipment![Description]",
         1},
        {"SELECT *, tblteam![TeamName] as Name FROM tblTeam WHERE tblteam![DivisionId] = 1  AND tblTeam![DeletedFlag] "
         "= False ORDER BY tblTeam![TeamName]",
         0},
        {"SELECT [PlayerLastName], [DivName] FROM tblRegistration INNER JOIN tblDivision ON "
         "tblRegistration.PlayerDivisionId = tblDivision.DivisionId WHERE [PlayerAge] < 15 AND "
         "tblRegistration.DeletedFlag = False ORDER BY [DivName]",
         1},
    };
    for (const auto& [statement, rows] : statements) {
        SCOPED_TRACE(statement);
        EXPECT_EQ(database.openRecordset(statement).recordCount(), rows);
    }
    database.execute(
        "INSERT INTO tblTempFeeReport ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerFeePaid], "
        "[DivisionName], [TotalFeeAmount]) "
        "SELECT tblRegistration![PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerAmountPaid], [DivName], "
        "0 FROM tblRegistration "
        "LEFT JOIN tblDivision ON tblRegistration![PlayerDivisionId] = tblDivision![DivisionId] "
        "WHERE tblRegistration![PlayerActive] = True AND tblRegistration![DeletedFlag] = False");
    EXPECT_EQ(league.value("tblTempFeeReport", "DivisionName"), "Minors");
    EXPECT_EQ(league.value("tblTempFeeReport", "PlayerFeePaid"), "0");
    EXPECT_EQ(league.value(statements[0].first, "Name"), "O'Hara, Zoë - 4/2/2012");
}

TEST(SchemaTest, PlayerListIsReadInOrderFromAnIndexAlone) {
    LeagueFile league;
    const QString plan = league.database()
                             .queryPlan(
                                 "SELECT ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & "
                                 "[PlayerBirthDate]) as Name FROM tblRegistration WHERE "
                                 "tblRegistration![DeletedFlag] = False "
                                 "ORDER BY [PlayerLastName], [PlayerFirstName], [PlayerBirthDate]")
                             .join('\n');
    EXPECT_TRUE(plan.contains("COVERING INDEX")) << plan.toStdString();
    EXPECT_FALSE(plan.contains("TEMP B-TREE")) << plan.toStdString();
}

}  // namespace
