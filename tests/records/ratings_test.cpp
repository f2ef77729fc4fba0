#include <gtest/gtest.h>

#include "ratings/clsAbilityRating.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

class RatingsTest : public testing::Test {
protected:
    void SetUp() override {
        const datafile::Database database = league.database();
        database.execute(
            "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerComments], "
            "[PlayerIsUmpire]) "
            "VALUES (\"Smith\", \"Ann\", #4/2/2012#, \"old\", True)");
        database.execute(
            "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate]) VALUES (\"Wu\", "
            "\"Bo\", #5/2/2012#)");
        database.execute(
            "INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], [VolComments]) "
            "VALUES (\"O'Hara\", \"Al\", \"555-1234\", \"old\")");
    }
    void addPlayer(int id) {
        rating.NewARRecord();
        rating.PlayerId = id;
        rating.BattingRating = 4;
        rating.SaveARRecord();
    }
    LeagueFile league;
    clsAbilityRating rating{league.context};
};

TEST_F(RatingsTest, CommentsGoToThePersonAndOnlyWhenTheyWereTyped) {
    league.database().execute(
        "INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PlayerComments]) VALUES (1, 0, \"stale\")");
    rating.requery();
    ASSERT_TRUE(rating.FindARPlayerRecord(1, false, true));
    EXPECT_EQ(rating.PlayerComments(), "stale");
    rating.BattingRating = 5;
    rating.SaveARRecord();
    EXPECT_EQ(league.value("tblRegistration", "PlayerComments"), "old");
    rating.PlayerComments = "\"quick\"";
    rating.VolunteerComments = "nobody's";
    rating.SaveARRecord();
    EXPECT_EQ(league.value("tblRegistration", "PlayerComments"), "\"quick\"");
    EXPECT_EQ(league.value("SELECT * FROM tblRegistration WHERE [PlayerId] = 2", "PlayerComments"), "");
    EXPECT_EQ(league.value("tblVolunteer", "VolComments"), "old");
    EXPECT_EQ(league.value("tblAbilityRating", "PlayerComments"), "stale");
    EXPECT_EQ(league.value("tblAbilityRating", "BattingRating"), "5");

    rating.NewARRecord();
    rating.VolId = 1;
    rating.VolunteerComments = "patient";
    rating.SaveARRecord();
    EXPECT_EQ(league.value("tblVolunteer", "VolComments"), "patient");
    rating.VolunteerComments = "from another file";
    rating.SaveARMergeRecord();
    EXPECT_EQ(league.value("tblVolunteer", "VolComments"), "patient");
}

TEST_F(RatingsTest, OnePersonHasOneRow) {
    addPlayer(2);
    rating.DeleteARRecord();
    EXPECT_EQ(rating.BattingRating, 0);
    EXPECT_TRUE(rating.FindARPlayerRecord(2, false, true)) << "deleted rows are found";
    addPlayer(1);
    EXPECT_EQ(league.count("tblAbilityRating"), 2);
    addPlayer(2);
    EXPECT_EQ(league.count("tblAbilityRating"), 2) << "the deleted row of the same player comes back";
    EXPECT_EQ(league.count("SELECT * FROM tblAbilityRating WHERE [DeletedFlag] = True"), 0);
    league.dialogs.expectWarning("Record Not Found...", "No Records found.");
    EXPECT_FALSE(rating.FindARVolunteerRecord(2, true, false)) << "the row of player 2 is none of volunteer 2";
}

TEST_F(RatingsTest, ScaleTurnsWordsIntoValuesAndBack) {
    league.database().execute(
        "INSERT INTO tblRating ([RatingText], [RatingValue]) VALUES (\"Out \"\"of\"\" form\", \"-2\")");
    league.database().execute("INSERT INTO tblRating ([RatingText], [RatingValue]) VALUES (\"Odd\", \"n/a\")");
    const std::pair<const char*, int> words[]{{"Good", 4}, {"out \"of\" form", -2}, {"Odd", 0}, {"", 0}, {"Super", 0}};
    for (const auto& [word, value] : words) EXPECT_EQ(rating.FindRatingValue(word), value) << word;
    EXPECT_EQ(rating.FindRatingText(-2), "Out \"of\" form");
    EXPECT_EQ(rating.FindRatingText(0), "Not Rated");
    EXPECT_EQ(rating.FindRatingText(77), "Rating Not Found");
    league.database().execute("INSERT INTO tblDivision ([DivName]) VALUES (\"Minors\")");
    league.database().execute("INSERT INTO tblTeam ([TeamName], [DivisionId]) VALUES (\"Owls\", 1)");
    EXPECT_EQ(rating.FindDivisionRecordById(1), "Minors");
    EXPECT_EQ(rating.FindTeamName(1, 1), "Owls");
    EXPECT_EQ(rating.FindTeamName(2, 1), "");
}

TEST_F(RatingsTest, WorkTableListsUmpiresAndVolunteers) {
    rating.AddNewTempRecord({.volId = 99, .lastName = "Left", .homePhone = "over"});
    rating.FillTempRecords();
    EXPECT_EQ(league.count("tblTempSearchList"), 2);
    EXPECT_EQ(league.value("SELECT ([LastName] & \", \" & [FirstName] & \" - \" & [BirthDate]) as Name FROM "
                           "tblTempSearchList WHERE [PlayerId] <> 0",
                           "Name"),
              "Smith, Ann - 4/2/2012");
    const QString volunteer =
        "SELECT *, ([LastName] & \", \" & [FirstName] & \" - \" & [HomePhone]) as Name FROM tblTempSearchList WHERE "
        "[VolId] <> 0";
    EXPECT_EQ(league.value(volunteer, "Name"), "O'Hara, Al - 555-1234");
    EXPECT_EQ(league.value(volunteer, "BirthDate"), "1940-01-01");
    rating.DeleteAllTempRecords();
    EXPECT_EQ(league.count("tblTempSearchList"), 0);
}

}  // namespace
