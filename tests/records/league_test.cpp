#include "league/clsFieldInfo.h"
#include "league/clsTeam.h"
#include "league/clsTeamField.h"
#include "league/clsTeamVolunteer.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace {

class LeagueRecordsTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"Minors", "Majors"})
            league.database().execute("INSERT INTO tblDivision ([DivName], [DivRegistrationFee]) VALUES (" +
                                      datafile::quoted(QString(name)) + ", \"$85.00\")");
    }
    int addTeam(const QString& name, int division) {
        clsTeam team(league.context);
        team.NewTeamRecord();
        team.TeamName = name;
        team.TeamDivisionId = division;
        team.SaveTeamRecord();
        return team.TeamId;
    }
    QString holders(const QString& position) {
        QStringList ids;
        datafile::Recordset rows = league.database().openRecordset(
            "SELECT * FROM tblTeamVolunteer WHERE [DeletedFlag] = False AND [VolPosName] = " +
            datafile::quoted(position));
        for (; !rows.eof(); rows.moveNext()) ids << rows.text("VolId") + '/' + rows.text("VolShirtSize");
        return ids.join(' ');
    }
    LeagueFile league;
};

TEST_F(LeagueRecordsTest, ATeamIsKnownByItsNameWithinItsDivision) {
    const int owls = addTeam("Owls", 1);
    const int others = addTeam("Owls", 2);
    clsTeam team(league.context);
    ASSERT_TRUE(team.FindTeamRecord("owls", 2, false, true));
    EXPECT_EQ(team.TeamId, others);
    EXPECT_EQ(team.TeamFeeAmount(), "0");
    league.dialogs.expectWarning("Team Not Found!", "No Records found for team Hawks.");
    EXPECT_FALSE(team.FindTeamRecord("Hawks", 1, true, false));
    ASSERT_TRUE(team.FindTeamRecord("Owls", 1, false, true));
    team.DeleteTeamRecord();
    EXPECT_FALSE(team.FindTeamRecord("Owls", 1, false, false));
    EXPECT_TRUE(team.FindDeletedTeamRecord2("Owls", 1, false, false));
    EXPECT_FALSE(team.FindDeletedTeamRecord("Owls", 2, false, false));
    EXPECT_TRUE(team.FindTeamMergeRecord("Owls", 1, false, false));
    EXPECT_EQ(addTeam("Owls", 1), owls) << "a team of that name in that division comes back with its results";
    EXPECT_EQ(league.count("tblTeam"), 2);
    EXPECT_EQ(team.FindTeamId("OWLS", 2), others);
    EXPECT_EQ(team.FindTeamId("Hawks", 2), 0);
    EXPECT_EQ(team.FindTeamName(owls, 1), "Owls");
    EXPECT_EQ(team.FindTeamName(owls, 2), "");
}

TEST_F(LeagueRecordsTest, ADeletedTeamGivesWayToANeighbourOfItsDivision) {
    addTeam("Owls", 1);
    addTeam("Bears", 2);
    addTeam("Hawks", 1);
    addTeam("Larks", 1);
    clsTeam team(league.context);
    const struct {
        const char* gone;
        const char* neighbour;
    } steps[]{{"Hawks", "Owls"}, {"Owls", "Larks"}, {"Larks", ""}};
    for (const auto& step : steps) {
        ASSERT_TRUE(team.FindTeamRecord(step.gone, 1, false, true));
        team.DeleteTeamRecord();
        EXPECT_EQ(team.TeamName(), step.neighbour);
        EXPECT_FALSE(team.isChanged());
    }
    EXPECT_EQ(team.TeamId, 0);
    EXPECT_EQ(league.count("SELECT * FROM tblTeam WHERE [DeletedFlag] = True"), 3);
}

TEST_F(LeagueRecordsTest, ATeamLooksUpLiveDivisionsAndSponsors) {
    league.database().execute(
        "INSERT INTO tblSponsor ([SponsorName], [SponsorColorRequest], [SponsorNbrOfTeams]) VALUES (\"Acme\", \"Red\", "
        "\"2\")");
    addTeam("Owls", 1);
    clsTeam team(league.context);
    EXPECT_EQ(team.FindSponsorId("acme"), 1);
    EXPECT_EQ(team.SponsorColorRequest, "Red");
    EXPECT_EQ(team.GetSponsorNameById(1), "Acme");
    EXPECT_EQ(team.FindDivisionId("Majors"), 2);
    EXPECT_EQ(team.DivisionRegistrationFee, "$85.00");
    league.database().execute("UPDATE tblSponsor SET [DeletedFlag] = True");
    league.database().execute("UPDATE tblDivision SET [DeletedFlag] = True");
    EXPECT_EQ(team.FindSponsorId("Acme"), 0);
    EXPECT_EQ(team.GetSponsorNameById(1), "");
    EXPECT_EQ(team.FindDivisionId("Majors"), 0);
    team.TeamComments = "kept";
    team.SaveTeamRecord();
    EXPECT_EQ(league.value("tblTeam", "TeamComments"), "kept") << "looking up leaves the record in hand";
}

TEST_F(LeagueRecordsTest, StaffPassesFromVolunteerToVolunteer) {
    for (const char* name : {"Smith", "Jones"})
        league.database().execute("INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone]) VALUES (" +
                                  datafile::quoted(QString(name)) + ", \"Jo - El\", \"555-1234\")");
    clsTeamVolunteer staff(league.context);
    EXPECT_FALSE(staff.GetTeamVolunteerInfo(1, 4, "HeadCoach"));
    staff.SaveVolunteerInfo(1, 1, 4, "HeadCoach", "L");
    staff.SaveVolunteerInfo(1, 1, 4, "TeamParent", "M");
    EXPECT_EQ(holders("HeadCoach"), "1/L");
    EXPECT_EQ(holders("TeamParent"), "1/M") << "one person may be both";
    staff.SaveVolunteerInfo(2, 1, 4, "HeadCoach", "XL");
    ASSERT_TRUE(staff.GetTeamVolunteerInfo(1, 4, "HeadCoach"));
    EXPECT_EQ(staff.VolLastName(), "Jones");
    EXPECT_EQ(staff.VolShirtSize, "XL");
    EXPECT_EQ(league.count("tblTeamVolunteer"), 2) << "the position's row passes on";

    staff.DeleteVolunteerInfo(1, 0, "HeadCoach");
    staff.DeleteVolunteerInfo(1, 4, "HeadCoach");
    EXPECT_FALSE(staff.GetTeamVolunteerInfo(1, 4, "HeadCoach"));
    EXPECT_EQ(staff.VolLastName(), "");
    EXPECT_TRUE(staff.GetTeamVolunteerInfo2(1, 4, "HeadCoach"));
    EXPECT_EQ(staff.VolLastName(), "Jones");

    staff.SaveVolunteerMergeInfo(1, 1, 4, "HeadCoach", "S", false);
    EXPECT_EQ(holders("HeadCoach"), "1/S");
    staff.SaveVolunteerInfo(2, 1, 4, "HeadCoach", "XL");
    EXPECT_EQ(holders("HeadCoach"), "2/XL") << "two rows of one position do not stand in each other's way";
    EXPECT_EQ(league.count("tblTeamVolunteer"), 3);
    EXPECT_TRUE(staff.FindVolMergeRecord(1, 1, 4, "HeadCoach"));
    EXPECT_FALSE(staff.FindVolMergeRecord(1, 1, 4, "TeamParent2"));

    for (const char* text : {"Smith, Jo - El - 555-1234", "Jones, Jo - El - 555-1234"}) {
        EXPECT_TRUE(staff.GetVolunteerRecord(text));
        EXPECT_TRUE(QString(text).startsWith(staff.VolLastName()));
    }
    EXPECT_FALSE(staff.GetVolunteerRecord("Smith"));
}

TEST_F(LeagueRecordsTest, ADivisionsFieldIsThereOnceOrNot) {
    league.database().execute("INSERT INTO tblField ([FieldName]) VALUES (\"Oak\")");
    clsTeamField assignment(league.context);
    const auto set = [&assignment](int field, int division) {
        assignment.FieldFieldId = field;
        assignment.FieldDivisionId = division;
    };
    for (int division : {1, 2, 1}) {
        set(1, division);
        assignment.AddNewTeamFieldRecord();
    }
    EXPECT_EQ(league.count("tblTeamField"), 2);
    set(1, 99);
    EXPECT_THROW(assignment.AddNewTeamFieldRecord(), datafile::Error);
    league.dialogs.expectInformation({}, "No Records found.");
    assignment.RemoveTeamFieldRecord();
    set(1, 1);
    assignment.RemoveTeamFieldRecord();
    EXPECT_EQ(assignment.FieldDivisionId, 2);
    EXPECT_FALSE(assignment.isChanged());
    EXPECT_FALSE(assignment.FindTeamFieldMergeRecord(1, 1, false));
    assignment.RemoveTeamFieldRecord();
    EXPECT_EQ(league.count("tblTeamField"), 0);
    EXPECT_EQ(assignment.FieldFieldId, 0);
}

TEST_F(LeagueRecordsTest, AFieldIsFoundInItsOwnWords) {
    clsFieldInfo field(league.context);
    league.dialogs.expectWarning("Record Not Found...", "No Records found for Oak");
    EXPECT_FALSE(field.FindFieldRecord("Oak", true, false));
    field.NewFieldRecord();
    field.FieldName = "Oak";
    field.FieldLights = 1;
    field.SaveFieldRecord();
    field.DeleteFieldRecord();
    EXPECT_FALSE(field.FindFieldRecordById(1, false, false));
    EXPECT_TRUE(field.FindDeletedFieldRecord("Oak", false, true));
    EXPECT_EQ(field.FieldLights, 1);
    EXPECT_TRUE(field.FindFieldMergeRecord("Oak", false, false));
    EXPECT_FALSE(field.FindFieldRecord("Oak", false, false));
}

}  // namespace
