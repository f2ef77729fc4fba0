#include <gtest/gtest.h>

#include "schedule/clsResults.h"
#include "schedule/clsSchedule.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

const QDate saturday(2026, 4, 25);

class ScheduleTest : public testing::Test {
protected:
    void add(const QString& division, QTime time, const QString& home = "Owls") {
        game.ScheduleDate = saturday;
        game.ScheduleDay = "Saturday";
        game.ScheduleTime = time;
        game.ScheduleDivision = division;
        game.ScheduleVisitorsTeam = "Hawks";
        game.ScheduleHomeTeam = home;
        game.ScheduleField = "Oak \"A\"";
        game.AddNewScheduleRecord();
    }
    LeagueFile league;
    clsSchedule game{league.context};
};

TEST_F(ScheduleTest, GamesAreKeptByNameAndMayStandTwice) {
    EXPECT_EQ(game.ScheduleTime(), QTime(12, 0)) << "no time is now";
    add("Minors", QTime(9, 5, 33));
    add("Minors", QTime(9, 5));
    EXPECT_EQ(league.count("tblSchedule"), 2);
    EXPECT_EQ(league.value("tblSchedule", "Time"), "09:05:00");
    EXPECT_EQ(league.value("tblSchedule", "DeletedFlag"), "0");
    EXPECT_TRUE(game.FindDivisionRecord("minors"));
    EXPECT_FALSE(game.FindDivisionRecord("Min"));
    ASSERT_TRUE(game.FindScheduleRecord(2, false, true));
    game.DeleteScheduleRecord();
    EXPECT_EQ(game.ScheduleId, 1);
    EXPECT_TRUE(
        game.FindScheduleMergeRecord(saturday, "Saturday", QTime(9, 5), "Minors", "Hawks", "Owls", "Oak \"A\"", true));
    EXPECT_FALSE(
        game.FindScheduleMergeRecord(saturday, "Saturday", QTime(9, 6), "Minors", "Hawks", "Owls", "Oak \"A\"", true));
    game.ScheduleTime = QTime(18, 30);
    game.UpdateScheduleRecord();
    EXPECT_EQ(league.value("tblSchedule", "Time"), "18:30:00");
    league.database().execute("UPDATE tblSchedule SET [Time] = NULL, [Date] = NULL WHERE [ScheduleId] = 1");
    ASSERT_TRUE(game.FindScheduleRecord(1, false, true));
    EXPECT_EQ(game.ScheduleTime(), QTime(12, 0));
    EXPECT_EQ(game.ScheduleDate(), QDate(2026, 4, 22));
    league.dialogs.expectWarning("Record Not Found", "Schedule Record Not Found.");
    EXPECT_FALSE(game.FindScheduleRecord(99, true, true));
}

TEST_F(ScheduleTest, ScheduleOfADivisionIsReplacedAsAWhole) {
    for (const char* division : {"Minors", "Minors", "Majors"}) add(division, QTime(9, 0));
    ASSERT_TRUE(game.FindScheduleRecord(1, false, true));
    game.DeleteScheduleRecord();
    const std::vector<Game> games{{saturday, "Saturday", QTime(10, 30, 44), "Minors", "Hawks", "Owls", "Oak \"A\""},
                                  {saturday.addDays(1), "", QTime(11, 0), "Minors", "", "", ""}};
    game.ReplaceDivisionSchedule("minors", clsSchedule::Games::NotDeleted, games);
    EXPECT_EQ(league.count("SELECT * FROM tblSchedule WHERE [division] = \"Minors\""), 3) << "with the deleted one";
    ASSERT_TRUE(game.FindScheduleMergeRecord(saturday, "Saturday", QTime(10, 30), "Minors", "Hawks", "Owls",
                                             "Oak \"A\"", true));
    EXPECT_EQ(game.ScheduleStamps.DateStamp(), QDate(2026, 4, 22));
    EXPECT_EQ(game.ScheduleStamps.TimeStamp, 12 * 3600);
    EXPECT_FALSE(game.ScheduleStamps.DeletedFlag);
    EXPECT_EQ(game.recordCount(), 4);
    const Game tooLong{.date = saturday, .time = QTime(9, 0), .visitorsTeam = QString(36, u'x')};
    EXPECT_THROW(game.ReplaceDivisionSchedule("Minors", clsSchedule::Games::All, {games[0], tooLong}), datafile::Error);
    EXPECT_EQ(league.count("tblSchedule"), 4) << "nothing has changed";
    game.ReplaceDivisionSchedule("Minors", clsSchedule::Games::NotDeleted, {});
    EXPECT_TRUE(game.FindDivisionRecord("Minors")) << "the deleted one counts";
    game.ReplaceDivisionSchedule("Minors", clsSchedule::Games::All, {});
    EXPECT_FALSE(game.FindDivisionRecord("Minors"));
    EXPECT_TRUE(game.FindDivisionRecord("Majors"));
    game.ReplaceDivisionSchedule("Majors", clsSchedule::Games::None, games);
    EXPECT_EQ(game.recordCount(), 3);
}

class ResultsTest : public testing::Test {
protected:
    void play(int home, int visitor, int homeScore, int visitorScore, QTime time = QTime(9, 0)) {
        result.NewResultsRecord();
        result.DivisionId = 1;
        result.HomeTeamId = home;
        result.VisitorTeamId = visitor;
        result.GameDate = saturday;
        result.GameTime = time;
        result.HomeTeamScore = homeScore;
        result.VisitorTeamScore = visitorScore;
        result.SaveResultsRecord();
    }
    void addTeam(const QString& name, int division, int sponsor = 0) {
        league.database().execute(
            QStringLiteral("INSERT INTO tblTeam ([TeamName], [DivisionId], [SponsorId]) VALUES (\"%1\", %2, %3)")
                .arg(name)
                .arg(division)
                .arg(sponsor));
    }
    QStringList table() {
        QStringList lines;
        for (const Standing& each : result.standings())
            lines << QStringLiteral("%1 %2 %3-%4-%5 %6")
                         .arg(each.rank)
                         .arg(each.teamName)
                         .arg(each.wins)
                         .arg(each.losses)
                         .arg(each.ties)
                         .arg(each.winPercentage);
        return lines;
    }
    LeagueFile league;
    clsResults result{league.context};
};

TEST_F(ResultsTest, GamesAreFoundByTheirTimeAndRemovedForGood) {
    play(1, 2, 3, 4);
    play(1, 2, 5, 6, QTime(14, 30, 12));
    EXPECT_TRUE(result.FindResults(1, 1, 2, saturday, false, true));
    EXPECT_EQ(result.HomeTeamScore, 3);
    EXPECT_FALSE(result.FindResults(1, 2, 1, saturday, false, true))
        << "the teams are not at home in the other's place";
    EXPECT_FALSE(result.FindResultsWithTime(1, 1, 2, saturday, QTime(9, 1), false, true));
    EXPECT_TRUE(result.FindResultsWithTime(1, 1, 2, saturday, QTime(14, 30), false, true));
    EXPECT_TRUE(result.FindResultToDelete(1, 1, 2, saturday, QTime(14, 30, 59), false, true));
    result.DeleteResultsRecord();
    EXPECT_EQ(result.HomeTeamScore, 3) << "the neighbour is shown";
    result.DeleteResultsRecord();
    EXPECT_EQ(league.count("tblResults"), 0);
    EXPECT_EQ(result.GameId, 0);
    EXPECT_EQ(result.GameDate(), QDate(2026, 4, 22));
    EXPECT_EQ(result.GameTime(), QTime(12, 0));
    result.UndoResultsRecord();
    EXPECT_THROW(result.DeleteResultsRecord(), datafile::Error);
    play(1, 2, 7, 8);
    EXPECT_EQ(result.recordCount(), 1);
}

TEST_F(ResultsTest, StandingsCountEveryGameAndShareRanks) {
    league.database().execute("INSERT INTO tblDivision ([DivName]) VALUES (\"Minors\")");
    league.database().execute("INSERT INTO tblDivision ([DivName]) VALUES (\"Majors\")");
    league.database().execute("INSERT INTO tblSponsor ([SponsorName]) VALUES (\"Bob's \"\"Diner\"\"\")");
    addTeam("Owls", 1, 1);
    addTeam("Hawks", 1, 9);
    addTeam("Crows", 1);
    addTeam("Auks", 1);
    addTeam("Terns", 1);
    addTeam("Big", 2);
    play(1, 2, 5, 3);
    play(2, 1, 4, 4);
    play(1, 6, 9, 0);  // a team of another division
    play(2, 3, 0, 10);
    play(3, 3, 2, 1);  // against itself: a win and a loss
    play(4, 5, 1, 1);
    league.database().execute(
        "INSERT INTO tblResults ([HomeTeamId], [VisitorTeamId]) VALUES (1, 2)");  // no scores: not played
    league.database().execute("UPDATE tblTeam SET [DeletedFlag] = True WHERE [TeamName] = \"Terns\"");
    ASSERT_TRUE(result.BuildStandings(1, true));
    EXPECT_EQ(table(), (QStringList{"1 Crows 2-1-0 66.667", "1 Owls 2-0-1 66.667", "2 Auks 0-0-1 0.000",
                                    "2 Hawks 0-2-1 0.000", "2 Terns 0-0-1 0.000"}));
    EXPECT_EQ(result.standings()[0].sponsorName, "No Sponsor Assigned");
    EXPECT_EQ(result.standings()[1].sponsorName, "Bob's \"Diner\"");
    EXPECT_EQ(result.standings()[3].sponsorName, "Sponsor Not Available");
    ASSERT_TRUE(result.BuildAllStandings(true));
    EXPECT_EQ(league.value("SELECT * FROM tblTempResults WHERE [TeamName] = \"Big\"", "DivisionName"), "Majors");
    EXPECT_EQ(league.value("SELECT * FROM tblTempResults WHERE [TeamName] = \"Big\"", "Losses"), "1");
    EXPECT_EQ(league.count("tblTempResults"), 6);
    league.database().execute("UPDATE tblDivision SET [DeletedFlag] = True WHERE [DivName] = \"Minors\"");
    ASSERT_TRUE(result.BuildAllStandings(true));
    EXPECT_EQ(league.count("tblTempResults"), 1);
    league.dialogs.expectWarning("Division Standings", "No Records available for the division.");
    EXPECT_FALSE(result.BuildStandings(7, true));
    league.database().deleteTable("tblSponsor");
    league.dialogs.expectError("Update Results Records", "An Error has occurred. The\nResults have not been Updated.");
    EXPECT_FALSE(result.BuildStandings(1, true));
}

TEST_F(ResultsTest, PercentagesAreRoundedToThreePlaces) {
    result.AddRecordToTempResults(1, "Owls", 0, "");
    const struct {
        int wins, losses, ties;
        const char* percentage;
    } cases[]{{0, 0, 0, "0.000"},    {1, 2, 0, "33.333"},    {2, 0, 1, "66.667"},    {2, 0, 2, "50.000"},
              {1, 1999, 0, "0.050"}, {1, 15999, 0, "0.006"}, {1, 199999, 0, "0.001"}};
    for (const auto& each : cases) {
        result.UpdateTempResultRecord(1, each.wins, each.losses, each.ties);
        EXPECT_EQ(result.standings().front().winPercentage, each.percentage) << each.losses;
    }
}

}  // namespace
