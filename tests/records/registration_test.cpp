#include "league/clsDivision.h"
#include "registration/clsRegistration.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace {

class RegistrationTest : public testing::Test {
protected:
    void add(const QString& last, const QString& first, QDate birth) {
        player.NewPlayerRecord();
        player.PlayerLastName = last;
        player.PlayerFirstName = first;
        player.PlayerBirthDate = birth;
        player.SavePlayerRecord();
    }
    LeagueFile league;
    clsRegistration player{league.context};
};

TEST_F(RegistrationTest, PlayersAreFoundByTheTextOfTheirEntry) {
    const struct {
        const char* last;
        const char* first;
        QDate birth;
    } children[]{{"Smith", "Ann", QDate(2012, 4, 2)},      {"Smith-Jones", "Mary-Ann", QDate(2011, 12, 31)},
                 {"O\"Neil", "D'Arcy", QDate(1929, 1, 9)}, {"van der Berg", "Jo - El", QDate(2029, 1, 9)},
                 {"Peña", "Zoë", QDate(2012, 4, 2)},       {"O\"Neil", "D'Arcy", QDate(2029, 1, 9)}};
    for (const auto& child : children) add(child.last, child.first, child.birth);
    EXPECT_EQ(player.recordCount(), 6);
    for (const auto& child : children) {
        const QString key = PlayerKey{child.last, child.first, child.birth}.text();
        EXPECT_TRUE(player.FindPlayerRecord(key, false, true)) << key.toStdString();
        EXPECT_EQ(player.PlayerLastName(), child.last);
        EXPECT_EQ(player.PlayerFirstName(), child.first);
        EXPECT_EQ(player.PlayerBirthDate(), child.birth) << "all four digits of the year count";
    }
    league.dialogs.expectInformation({}, "No Records found for Smith, Bob.");
    EXPECT_FALSE(player.FindPlayerRecord("Smith, Bob - 4/2/2012", true, true));
}

TEST_F(RegistrationTest, AddNeverDoublesAChildAndLeavesItWithoutATeam) {
    add("Smith", "Ann", QDate(2012, 4, 2));
    league.database().execute("UPDATE tblRegistration SET [PlayerTeamId] = 4");
    player.FindPlayerRecord("Smith, Ann - 4/2/2012", false, true);
    player.PlayerCity = "Oakville";
    player.SavePlayerRecord();
    EXPECT_EQ(league.value("tblRegistration", "PlayerTeamId"), "4");
    player.DeletePlayerRecord();
    EXPECT_EQ(league.value("tblRegistration", "PlayerActive"), "0");
    EXPECT_EQ(player.PlayerLastName(), "");
    add("smith", "ann", QDate(2012, 4, 2));
    EXPECT_EQ(league.count("tblRegistration"), 1);
    EXPECT_EQ(league.value("tblRegistration", "DeletedFlag"), "0");
    EXPECT_EQ(league.value("tblRegistration", "PlayerTeamId"), "0");
    EXPECT_EQ(league.value("tblRegistration", "PlayerActive"), "1");
    int count = -1;
    player.CountPlayers(2, count);
    EXPECT_EQ(count, 1);
    player.CountPlayers(4, count);
    EXPECT_EQ(count, 0);
}

TEST_F(RegistrationTest, StoredAgeFollowsTheDivisionsOrTheDefaultCutOff) {
    league.database().execute(
        "INSERT INTO tblDefaults ([DefaultAgeCutoffMonth], [DefaultAgeCutoffDay]) VALUES (\"5\", \"15\")");
    league.database().execute(
        "INSERT INTO tblDivision ([DivName], [DivAgeCutOffMonth], [DivAgeCutOffDay]) VALUES (\"Minors\", \"8\", \"\")");
    clsRegistration child(league.context);
    const auto ageIn = [&](int division, QDate birth) {
        child.NewPlayerRecord();
        child.PlayerLastName = "Smith";
        child.PlayerFirstName = "Ann";
        child.PlayerBirthDate = birth;
        child.PlayerDivisionId = division;
        child.SavePlayerRecord();
        return child.PlayerAge();
    };
    EXPECT_EQ(ageIn(1, QDate(2012, 8, 1)), "14") << "a division's blank day is the first";
    EXPECT_EQ(ageIn(1, QDate(2012, 8, 2)), "13");
    EXPECT_EQ(ageIn(0, QDate(2012, 5, 15)), "14");
    EXPECT_EQ(ageIn(99, QDate(2012, 5, 16)), "13") << "a division that is gone leaves the defaults";
}

TEST_F(RegistrationTest, NewAndSiblingRecordsStartFromTheirDefaults) {
    add("Smith", "Ann", QDate(2012, 4, 2));
    player.PlayerCity = "Oakville";
    player.PlayerDadLastName = "Smith";
    player.PlayerDoctorName = "Dr. Wu";
    player.PlayerFeeAmount = "85.00";
    player.PlayerDadVolunteer = 0;
    player.SavePlayerRecord();
    player.NewSiblingPlayerRecord();
    EXPECT_TRUE(player.IsPlayerNew());
    EXPECT_FALSE(player.IsPlayerDirty());
    EXPECT_EQ(player.PlayerFirstName(), "");
    EXPECT_EQ(player.PlayerDadLastName(), "Smith");
    EXPECT_EQ(player.PlayerDoctorName(), "Dr. Wu");
    EXPECT_EQ(player.PlayerBirthDate(), QDate(2012, 4, 2));
    EXPECT_EQ(player.PlayerDadVolunteer, 1);
    EXPECT_EQ(player.PlayerFundRaiserFee(), "0");
    player.UndoPlayerRecord();
    EXPECT_EQ(player.PlayerFirstName(), "Ann");
    EXPECT_EQ(player.PlayerDadVolunteer, 0);
    player.NewPlayerRecord();
    EXPECT_EQ(player.PlayerCity(), "Oakville");
    EXPECT_EQ(player.PlayerFeeAmount(), "85.00");
    EXPECT_EQ(player.PlayerDoctorName(), "");
    EXPECT_EQ(player.PlayerBirthDate(), QDate(2026, 4, 22));
    EXPECT_TRUE(player.PlayerBirthCertificateChecked);
    EXPECT_FALSE(player.PlayerSendInvitation);
}

TEST_F(RegistrationTest, MergeAddKeepsTheTeamThatItIsGiven) {
    player.NewPlayerRecord();
    player.PlayerLastName = "Smith, Jr.";
    player.PlayerFirstName = "Al";
    player.PlayerBirthDate = QDate(2012, 4, 2);
    player.PlayerTeamId = 7;
    player.PlayerDateStamp = QDate(2025, 1, 2);
    player.SavePlayerMergeRecord();
    EXPECT_EQ(league.value("tblRegistration", "PlayerTeamId"), "7");
    EXPECT_EQ(league.value("tblRegistration", "DateStamp"), "2025-01-02");
    bool found = false;
    player.FindExactPlayerRecord("Smith, Jr.", "al", QDate(2012, 4, 2), found, true);
    EXPECT_TRUE(found);
    player.FindExactPlayerRecord("Smith, Jr.", "Al", QDate(), found, false);
    EXPECT_FALSE(found) << "without a birth date nobody is meant";
}

TEST_F(RegistrationTest, ParentsAndTeamsChangeForAllTheirPlayersAtOnce) {
    for (const char* child : {"Ann", "Bob", "Cy"}) add("Smith", child, QDate(2012, 4, 2));
    league.database().execute(
        "UPDATE tblRegistration SET [PlayerDivisionId] = 2, [PlayerTeamId] = 3, [PlayerDadLastName] = \"Smith\", "
        "[PlayerDadFirstName] = \"Al\", [PlayerDadPhone] = \"555-1234\", [DateStamp] = #1/2/2025#");
    league.database().execute(
        "UPDATE tblRegistration SET [PlayerTeamId] = 4, [PlayerDadPhone] = \"555-9999\" WHERE [PlayerFirstName] = "
        "\"Cy\"");
    league.database().execute("UPDATE tblRegistration SET [DeletedFlag] = True WHERE [PlayerFirstName] = \"Bob\"");
    bool found = false;
    player.UpdateOldVolInfo("Mom", {"Smith", "Al", "555-1234"}, {"X", "X", "X"}, found);
    EXPECT_FALSE(found);
    player.UpdateOldVolInfo("Dad", {"smith", "al", "555-1234"}, {"O'Hara \"AJ\"", "Al", "555-4321", "206"}, found);
    EXPECT_TRUE(found);
    const QString changed = QStringLiteral("SELECT * FROM tblRegistration WHERE [PlayerDadPhone] = \"555-4321\"");
    EXPECT_EQ(league.count(changed), 2);
    EXPECT_EQ(league.value(changed, "PlayerDadLastName"), "O'Hara \"AJ\"");
    EXPECT_EQ(league.value(changed, "PlayerDadPhoneArea"), "206");
    EXPECT_EQ(league.value(changed, "DateStamp"), "2026-04-22");

    player.RemovePlayerAssignments(2, 3);
    player.FindPlayerAssignments(2, 3, found);
    EXPECT_FALSE(found) << "deleted players have left too";
    player.FindPlayerAssignments(2, 4, found);
    EXPECT_TRUE(found);
    EXPECT_EQ(league.count("SELECT * FROM tblRegistration WHERE [PlayerDivisionId] = 2"), 3);
}

}  // namespace
