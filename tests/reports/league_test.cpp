#include <gtest/gtest.h>

#include "reports/Filled.h"
#include "reports/Reports.h"
#include "reports/SampleReports.h"
#include "support/Printing.h"

namespace {

/// Two divisions with two teams each, and whatever a test adds.
class LeagueReports : public testing::Test {
protected:
    LeagueReports() {
        for (const char* table : {"tblDivision", "tblVolunteerPositions", "tblCertifications", "tblRating"})
            run(QString("DELETE FROM ") + table);
        add("tblDivision (DivisionId, DivName)", {"1, 'Minors'", "2, 'Majors'"});
        add("tblDivision (DivisionId, DivName, DeletedFlag)", {"3, 'Gone', True"});
        add("tblSponsor (SponsorId, SponsorName)", {"1, 'Bakery'", "2, 'Garage'"});
        add("tblSponsor (SponsorId, SponsorName, DeletedFlag)", {"3, 'Closed', True"});
        add("tblTeam (TeamId, DivisionId, TeamName, SponsorId)",
            {"1, 1, 'Bears', 1", "2, 1, 'Cubs', 0", "3, 2, 'Lions', 1", "4, 2, 'Tigers', 3"});
        add("tblTeam (TeamId, DivisionId, TeamName, SponsorId, DeletedFlag)", {"5, 1, 'Left', 2, True"});
    }
    void run(const QString& statement) { league.database().execute(statement); }
    void add(const QString& table, std::initializer_list<const char*> rows) {
        for (const char* row : rows) run(QString("INSERT INTO %1 VALUES (%2)").arg(table, row));
    }
    ReportInput input(const std::array<QString, 3>& lists = {}, std::optional<int> division = {},
                      std::optional<int> team = {}) {
        return {.lists = lists,
                .divisionId = division,
                .teamId = team,
                .globals = league.context.globals,
                .today = QDate(2026, 4, 22)};
    }
    QStringList filled(MakeReport make, const ReportInput& with) { return ::filled(make(with), league.context); }

    LeagueFile league;
};

}  // namespace

TEST_F(LeagueReports, StandingsRankEachDivisionByItself) {
    add("tblResults (DivisionId, HomeTeamId, VisitorTeamId, HomeTeamScore, VisitorTeamScore)",
        {"1, 1, 2, 5, 3", "1, 2, 1, 4, 4", "2, 3, 4, 1, 2"});
    const QStringList majors{"#Division: Majors", "1|Tigers|Closed|1|0|0|100.000", "2|Lions|Bakery|0|1|0|0.000"};
    EXPECT_EQ(filled(Reports::rptDivisionReport3, input({"", "Majors"}, 2)), majors);
    EXPECT_EQ(filled(Reports::rptDivisionReport3, input()),
              majors + QStringList({"#Division: Minors", "1|Bears|Bakery|1|0|1|50.000",
                                    "2|Cubs|No Sponsor Assigned|0|1|1|0.000", "2|Left|Garage|0|0|0|0.000"}));
}

TEST_F(LeagueReports, SchedulesGoByTheNamesInTheGames) {
    add("tblSchedule ([Date], [Day], [Time], division, VisitorsTeam, HomeTeam, [Field])",
        {"#5-9-2026#, 'Saturday', #9:00:00#, 'Minors', 'Bears', 'Cubs', 'Main'",
         "#5-2-2026#, 'Saturday', #13:30:00#, 'Minors', 'Cubs', 'bears', 'Oak'",
         "#5-2-2026#, 'Saturday', #9:00:00#, 'Lost', 'Bears', 'Left', 'Main'"});
    add("tblSchedule ([Date], [Day], [Time], division, VisitorsTeam, HomeTeam, [Field], DeletedFlag)",
        {"#5-3-2026#, 'Sunday', #9:00:00#, 'Minors', 'Bears', 'Cubs', 'Main', True"});
    const QString second = "5/2/2026|Saturday|1:30 PM|Cubs|bears";
    const QString lost = "5/2/2026|Saturday|9:00 AM|Bears|Left";
    const QString ninth = "5/9/2026|Saturday|9:00 AM|Bears|Cubs";
    EXPECT_EQ(filled(Reports::rptMasterSchedule, input()),
              QStringList({lost + "|Lost|Main", second + "|Minors|Oak", ninth + "|Minors|Main"}));
    EXPECT_EQ(filled(Reports::rptDivisionReport4, input()),
              QStringList({"#Division: Lost", lost + "|Main", "#Division: Minors", second + "|Oak", ninth + "|Main"}));
    EXPECT_EQ(filled(Reports::rptDivisionReport4, input({"", "Minors"}, 1)),
              QStringList({"#Division: Minors", second + "|Oak", ninth + "|Main"}));
    EXPECT_EQ(filled(Reports::rptFieldReport4, input({"Main"})),
              QStringList({"#Field: Main", lost + "|Lost", ninth + "|Minors"}));
    EXPECT_EQ(filled(Reports::rptFieldReport4, input({"All Fields"})).filter("#"),
              QStringList({"#Field: Main", "#Field: Oak"}));
    const QString none = "No games are scheduled for this team.";
    EXPECT_EQ(
        filled(Reports::rptTeamReport4, input()),
        QStringList({"#Division: Majors", "#Team: Lions", "|Bakery|", none, "#Team: Tigers", "|Sponsor Not Available|",
                     none, "#Division: Minors", "#Team: Bears", "|Bakery|", second + "|Oak", ninth + "|Main",
                     "#Team: Cubs", "|Sponsor Not Assigned|", second + "|Oak", ninth + "|Main"}));
}

TEST_F(LeagueReports, SponsorsStandOnceForEachTeam) {
    const auto names = [&](MakeReport make, const ReportInput& with) {
        QStringList firstCells;
        for (const QString& line : filled(make, with)) firstCells << line.section('|', 0, 0);
        return firstCells;
    };
    EXPECT_EQ(names(Reports::rptSponsorReport2, input()),
              QStringList({"#Division: Majors", "Bakery", "#Division: Minors", "Bakery"}));
    EXPECT_EQ(names(Reports::rptSponsorReport3, input({}, 1)),
              QStringList({"#Division: Minors", "#Team: Bears", "Bakery"}));
    EXPECT_EQ(names(Reports::rptSponsorReport4, input()), QStringList({"Garage", "=Sponsors: 1"}));
    EXPECT_EQ(names(Reports::rptSponsorReport5, input()), QStringList({"Bakery", "Garage", "=Sponsors: 2"}));
    add("tblSponsorPreviousPledge (SponsorId, PreviousPledgeYear, PreviousPledgeAmount)",
        {"1, '2023', '$100.00'", "1, '2025', '$150.50'", "2, '2024', '$7.00'"});
    EXPECT_EQ(filled(Reports::rptSponsorReport1, input({"Bakery"})).mid(6),
              QStringList({"2025|$150.50|$0.00|", "2023|$100.00|$0.00|", "=Totals:|$250.50|$0.00|"}));
}

TEST_F(LeagueReports, VolunteersComeWithAllThatTheyDo) {
    add("tblVolunteer (VolId, VolLastName, VolFirstName, VolHomePhone)", {"1, 'Day', 'Al', '555-0101'"});
    add("tblVolunteer (VolId, VolLastName, VolFirstName)", {"2, 'Poe', 'Di'"});
    add("tblRegistration (PlayerId, PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerDivisionId, PlayerTeamId)",
        {"1, 'Day', 'Bo', #4-2-2014#, 1, 1", "2, 'Day', 'Cy', #4-2-2015#, 1, 2", "3, 'Roe', 'Ed', #4-2-2015#, 2, 0"});
    add("tblRegistrationVolunteer (VolId, PlayerId, VolGender)", {"1, 1, 'Dad'", "1, 2, 'Dad'", "2, 3, 'Mom'"});
    add("tblVolunteerPositions (VolPosId, VolPosName)", {"1, 'Umpire'"});
    add("tblVolToPosition (VolId, PlayerId, VolPosId)", {"1, 1, 1", "1, 2, 1"});
    add("tblCertifications (CertificationId, CertifyingOrganization, CertificationName)", {"1, 'Red', 'CPR'"});
    add("tblVolunteerCertifications (VolId, CertificationId)", {"1, 1"});
    add("tblTeamVolunteer (VolId, DivisionId, TeamId, VolPosName)",
        {"1, 1, 1, 'SecondAssistant'", "1, 3, 5, 'TeamParent2'"});
    const QStringList day = filled(Reports::rptVolunteerReport1, input({"Day, Al - 555-0101"}));
    const auto holds = [&](const QString& text) { return !day.filter(text).isEmpty(); };
    EXPECT_TRUE(holds("Players") && holds("Day, Bo|4/2/2014") && holds("Day, Cy|4/2/2015"));
    EXPECT_EQ(day.filter("Umpire").size(), 1);
    EXPECT_TRUE(holds("Assistant Coach|Minors|Bears") && holds("Team Parent|Unknown Division|Unknown Team"));
    EXPECT_TRUE(holds("Red|CPR"));
    const auto people = [&](MakeReport make, const ReportInput& with) {
        QStringList names;
        for (const QString& line : filled(make, with))
            if (line.startsWith('#') ? line.startsWith("#Div") || line.startsWith("#Team:") || line.startsWith("#Vol")
                                     : line.endsWith("|No") || line.endsWith("|Yes"))
                names << line.section('|', 0, 0);
        return names;
    };
    EXPECT_EQ(people(Reports::rptVolunteerReport2, input()),
              QStringList({"#Division: Majors", "Poe, Di", "#Division: Minors", "Day, Al"}))
        << "once, whatever the number of children";
    EXPECT_EQ(people(Reports::rptVolunteerReport3, input()),
              QStringList({"#Division: Minors", "#Team: Bears", "Day, Al", "#Team: Cubs", "Day, Al"}));
    EXPECT_EQ(people(Reports::rptVolunteerReport4, input()), QStringList({"Day, Al", "Poe, Di"}));
    EXPECT_EQ(people(Reports::rptVolunteerReport5, input({"Umpire"})),
              QStringList({"#Volunteer Category: Umpire", "Day, Al"}));
    EXPECT_EQ(people(Reports::rptVolunteerReport5, input({"All Volunteer Categories"})), QStringList("Day, Al"));
}

TEST_F(LeagueReports, RatingsAreAveragedOverWhatIsRated) {
    add("tblRating (RatingText, RatingValue)", {"'Good', '4'"});
    add("tblRegistration (PlayerId, PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerActive, "
        "PlayerDivisionId, PlayerTeamId)",
        {"1, 'Day', 'Bo', #4-2-2014#, True, 1, 1", "2, 'Poe', 'Cy', #4-2-2015#, True, 1, 0",
         "3, 'Roe', 'Ed', #4-2-2015#, False, 1, 1"});
    add("tblAbilityRating (PlayerId, VolId, PitcherRating, BattingRating, RunningRating, UmpireFieldRating, "
        "CoachReturn, PositionShortStop)",
        {"1, 0, 4, 4, 5, 3, 7, True"});
    const QString day = "Day, Bo|4/2/2014|11|4||||4||5||13|4.33";
    EXPECT_EQ(filled(Reports::rptAbilityReport5, input()),
              QStringList({"#Division: Minors", day, "Poe, Cy|4/2/2015|10|||||||||0|0.00"}));
    EXPECT_EQ(filled(Reports::rptAbilityReport4, input()), QStringList({"#Division: Minors", "#Team: Bears", day}));
    const QString record = filled(Reports::rptAbilityRating1, input({"Day, Bo - 4/2/2014"})).join('\n');
    EXPECT_TRUE(record.contains("Good (4)|Not Rated|Not Rated|Not Rated"));
    EXPECT_TRUE(record.contains("Rating Not Found (5)"));
    EXPECT_TRUE(record.contains("13|4.33") && record.contains("Short Stop") && record.contains("0|Don't Know"));
    EXPECT_TRUE(filled(Reports::rptAbilityRating1, input({"Poe, Cy - 4/2/2015"})).contains("0|Unknown"));
}

TEST_F(LeagueReports, ThoseThatCheckThemselvesSayWhyNothingIsPrinted) {
    const QString nothing = "No Records available to\ndisplay on the report.";
    const struct {
        MakeReport make;
        std::array<QString, 3> lists;
        QString title, text;
    } cases[] = {
        {Reports::rptDivisionReport1, {}, "No Data to Report", nothing},
        {Reports::rptDivisionReport2, {}, "No Data to Report", nothing},
        {Reports::rptDivisionReport3, {}, "No Data to Report", nothing},
        {Reports::rptSponsorReport2, {}, "No Data to Report", nothing},
        {Reports::rptSponsorReport3, {}, "No Data to Report", nothing},
        {Reports::rptFieldReport1, {"All Fields"}, "No Data to Report", nothing},
        {Reports::rptFieldReport1,
         {"Nowhere"},
         "Field Report Error",
         "No Field Selected.  Cannot\ndisplay Field information."},
        {Reports::rptFieldReport3, {}, "No Data Available", "No Team/Field Assignments"},
    };
    for (const char* table : {"tblTeam", "tblDivision"}) run(QString("DELETE FROM ") + table);
    for (const auto& each : cases) {
        EXPECT_EQ(filled(each.make, input(each.lists)), QStringList());
        const std::optional<report::NoData> told = each.make(input(each.lists)).definition.noData;
        ASSERT_TRUE(told);
        EXPECT_EQ(told->title, each.title);
        EXPECT_EQ(told->text, each.text);
    }
}

TEST_F(LeagueReports, RegistrationsAreCountedByDivision) {
    add("tblRegistration (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerActive, PlayerDivisionId, "
        "DeletedFlag)",
        {"'A', 'A', #4-2-2014#, True, 1, False", "'B', 'B', #4-2-2014#, True, 1, True",
         "'C', 'C', #4-2-2014#, False, 1, False", "'D', 'D', #4-2-2014#, True, 3, False"});
    EXPECT_EQ(filled(Reports::rptSummaryReport1, input()),
              QStringList({"Majors|||0", "Minors|||1", "=Players of all divisions:|1"}));
}
