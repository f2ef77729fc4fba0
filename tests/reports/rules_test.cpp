#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/text/Money.h"
#include "reports/Filled.h"
#include "reports/Reports.h"
#include "reports/SampleReports.h"
#include "support/Printing.h"

namespace {

/// A league of a few rows.
class ReportRules : public testing::Test {
protected:
    ReportRules() {
        for (const char* table : {"tblDivision", "tblShirtSize", "tblPantSize", "tblHatSize", "tblShoeSize"})
            run(QString("DELETE FROM ") + table);
    }
    void run(const QString& statement) { league.database().execute(statement); }
    void addDivision(int id, const QString& name, const QString& minimum = {}, const QString& maximum = {}) {
        run(QString("INSERT INTO tblDivision (DivisionId, DivName, DivMinAge, DivMaxAge) VALUES (%1, '%2', '%3', '%4')")
                .arg(QString::number(id), name, minimum, maximum));
    }
    void addTeam(int id, int division, const QString& name, const QString& fee = {}, const QString& paid = {}) {
        run(QString("INSERT INTO tblTeam (TeamId, DivisionId, TeamName, TeamFeeAmount, TeamFeePaid) "
                    "VALUES (%1, %2, '%3', '%4', '%5')")
                .arg(QString::number(id), QString::number(division), name, fee, paid));
    }
    /// An active player born on 2 April 2014 with further columns: "PlayerAge = 12, PlayerTeamId = 3".
    void addPlayer(const QString& name, const QString& columns = "PlayerAge = 12") {
        run(QString("INSERT INTO tblRegistration (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerActive) "
                    "VALUES ('%1', 'A', #4-2-2014#, True)")
                .arg(name));
        run(QString("UPDATE tblRegistration SET %2 WHERE PlayerLastName = '%1'").arg(name, columns));
    }
    ReportInput input(const std::array<QString, 3>& lists = {}) {
        return {.lists = lists, .globals = league.context.globals, .today = QDate(2026, 4, 22)};
    }
    QStringList filled(MakeReport make, const ReportInput& with) { return ::filled(make(with), league.context); }
    /// The first cell of each row: who is listed.
    QStringList listed(MakeReport make, const ReportInput& with) {
        QStringList names;
        for (const QString& line : filled(make, with))
            if (!line.startsWith('#') && !line.startsWith('=')) names << line.section(',', 0, 0);
        return names;
    }

    LeagueFile league;
};

}  // namespace

TEST_F(ReportRules, AgeExceptionsAreThoseOutsideTheStoredLimits) {
    const struct {
        QString minimum, maximum;
        QStringList outside;  ///< of players of 9, 10, 11 and 12
    } cases[] = {
        {"10", "11", {"P12", "P9"}},
        {"11", "11", {"P10", "P12", "P9"}},
        {"", "10", {"P11", "P12"}},
        {"11", "", {"P10", "P9"}},
        {"", "", {}},
        {"9.9", "11", {"P12"}},
        {"ten", "any", {}},
        {"0", "0", {"P10", "P11", "P12", "P9"}},
    };
    addDivision(1, "Minors");
    for (const int age : {9, 10, 11, 12})
        addPlayer(QString("P%1").arg(age), QString("PlayerDivisionId = 1, PlayerAge = %1").arg(age));
    addPlayer("Idle", "PlayerDivisionId = 1, PlayerAge = 40, PlayerActive = False");
    addPlayer("Deleted", "PlayerDivisionId = 1, PlayerAge = 40, DeletedFlag = True");
    addPlayer("Free", "PlayerDivisionId = 0, PlayerAge = 40");
    for (const auto& each : cases) {
        run(QString("UPDATE tblDivision SET DivMinAge = '%1', DivMaxAge = '%2'").arg(each.minimum, each.maximum));
        EXPECT_EQ(listed(Reports::rptPlayerReport9, input({"", "All Divisions"})), each.outside)
            << each.minimum.toStdString() << " to " << each.maximum.toStdString();
    }
}

TEST_F(ReportRules, PlayersAreListedByWhatTheyBelongTo) {
    addDivision(1, "Minors");
    addDivision(2, "Majors");
    addDivision(3, "Gone");
    run("UPDATE tblDivision SET DeletedFlag = True WHERE DivisionId = 3");
    addTeam(1, 1, "Bears");
    addTeam(2, 2, "Lions");
    addPlayer("Bear", "PlayerDivisionId = 1, PlayerTeamId = 1, PlayerSchoolName = 'Elm'");
    addPlayer("Lion", "PlayerDivisionId = 2, PlayerTeamId = 2, PlayerSchoolName = 'Oak'");
    addPlayer("Minor", "PlayerDivisionId = 1");
    addPlayer("Free", "PlayerDivisionId = 0");
    addPlayer("Lost", "PlayerDivisionId = 3");
    addPlayer("Idle", "PlayerActive = False, PlayerDivisionId = 1, PlayerTeamId = 1");
    const std::array<QString, 3> all{"", "All Divisions", "All Teams"};
    ReportInput minors = input(all), lions = input(all);
    minors.divisionId = 1;
    lions.divisionId = 2;
    lions.teamId = 2;
    const struct {
        const char* name;
        MakeReport make;
        ReportInput input;
        QStringList listed;
    } cases[] = {
        {"by division", Reports::rptPlayerReport2, input(all), {"Free", "Bear", "Minor", "Lion", "Lost"}},
        {"of one division", Reports::rptPlayerReport2, minors, {"Bear", "Minor"}},
        {"rosters", Reports::rptPlayerReport3, input(all), {"Lion", "Bear"}},
        {"one roster", Reports::rptPlayerReport3, lions, {"Lion"}},
        {"unassigned", Reports::rptPlayerReport4, input(all), {"Minor"}},
        {"all schools", Reports::rptPlayerReport5, input({"All Schools"}), {"Free", "Lost", "Lion", "Minor", "Bear"}},
        {"one school", Reports::rptPlayerReport5, input({"Oak"}), {"Lion"}},
        {"a school of one division", Reports::rptPlayerReport5, minors, {"Minor", "Bear"}},
        {"by age", Reports::rptPlayerReport6, minors, {"Bear", "Minor"}},
        {"active", Reports::rptPlayerReport7, input(), {"Bear", "Free", "Lion", "Lost", "Minor"}},
        {"inactive", Reports::rptPlayerReport8, input(), {"Idle"}},
    };
    for (const auto& each : cases) EXPECT_EQ(listed(each.make, each.input), each.listed) << each.name;
    EXPECT_EQ(filled(Reports::rptPlayerReport2, input(all)).first(), "#Division: Not Assigned to a Division");
}

TEST_F(ReportRules, OneEntryOfTheListMeansOnePlayer) {
    addPlayer("Smith - Day, Jr.");
    addPlayer("Smith");
    run("UPDATE tblRegistration SET PlayerBirthDate = #5-6-2015# WHERE PlayerLastName = 'Smith'");
    addPlayer("Idle", "PlayerActive = False");
    const struct {
        QString entry;
        int forms;
    } cases[] = {
        {"Smith, A - 5/6/2015", 1},
        {"Smith - Day, Jr., A - 4/2/2014", 1},
        {"Smith, A - 5/7/2015", 0},
        {"All Players", 3},
        {"", 2},
    };
    for (const auto& each : cases) {
        const QStringList lines = filled(Reports::rptPlayerRegistrationForm, input({each.entry}));
        EXPECT_EQ(lines.filter("Youth X-Large").size(), 2 * each.forms) << each.entry.toStdString();
    }
}

TEST_F(ReportRules, RegistrationFormIsFilledInOrLeftToBe) {
    addPlayer("Smith", "PlayerGender = 'Female', PlayerShirtSize = 'youth medium', PlayerPantSize = '3XL'");
    const QStringList form = filled(Reports::rptPlayerRegistrationForm, input({"All Players"}));
    EXPECT_TRUE(form.contains("A Smith|(    ) ____________|4/2/2014"));
    EXPECT_EQ(form.filter("[ ] Male").size(), 1);
    EXPECT_EQ(form.filter("[x] Female").size(), 1);
    EXPECT_EQ(form.filter("[x] Youth Medium").size(), 1);
    EXPECT_EQ(form.filter("[x] Other ______________").size(), 1) << "a size that has no box";
    const QStringList blank = filled(Reports::rptPlayerBlankRegistrationForm, input());
    EXPECT_TRUE(blank.contains("____________|(    ) ____________|____________"));
    EXPECT_TRUE(blank.filter("[x]").isEmpty());
}

TEST_F(ReportRules, OneLeagueHasFormsOfItsOwn) {
    const auto optionNamed = [](const QString& caption) {
        for (const ReportCategory& category : Reports::table())
            for (const ReportOption& option : category.options)
                if (option.caption == caption) return option.report;
        return MakeReport();
    };
    for (const auto& [league_, own] : {std::pair{"Bracken Vale Girls Softball", true},
                                       std::pair{"bracken vale girls softball", false}, std::pair{"", false}}) {
        ReportInput with = input({"All Players"});
        with.globals.organizationName = league_;
        EXPECT_EQ(
            filled(optionNamed("Blank Registration Form"), with),
            filled(own ? Reports::rptBrackenValeBlankRegistration : Reports::rptPlayerBlankRegistrationForm, with));
    }
    EXPECT_NE(filled(Reports::rptBrackenValeBlankRegistration, input()),
              filled(Reports::rptPlayerBlankRegistrationForm, input()));
}

TEST_F(ReportRules, BalancesAreWhatTheFeesLeave) {
    addDivision(1, "Minors");
    addTeam(1, 1, "Bears");
    const QString bears = "PlayerDivisionId = 1, PlayerTeamId = 1, ";
    addPlayer("Cent", bears + "PlayerFeeAmount = '$45.00', PlayerAmountPaid = '$45.01'");
    addPlayer("Even", bears + "PlayerFeeAmount = '0.10', PlayerOtherFees = '0.20', PlayerAmountPaid = '0.30'");
    addPlayer("Odd", "PlayerFeeAmount = 'waived', PlayerFundRaiserFee = '$5', PlayerAmountPaid = ''");
    addPlayer("Owes", bears + "PlayerFeeAmount = '$1,045.00', PlayerAmountPaid = '40', PlayerFeePaid = '99'");
    addPlayer("Idle", bears + "PlayerFeeAmount = '7', PlayerActive = False");
    addPlayer("Deleted", bears + "PlayerFeeAmount = '7', DeletedFlag = True");
    EXPECT_EQ(filled(Reports::rptFeeReport3, input()),
              QStringList({"Cent, A||4/2/2014|$45.00|$0.00|$0.00|$45.01|($0.01)",
                           "=Totals:|$45.00|$0.00|$0.00|$45.01|($0.01)"}));
    EXPECT_EQ(filled(Reports::rptFeeReport5, input()),
              QStringList({"Odd, A||4/2/2014|$0.00|$5.00|$0.00|$0.00|$5.00",
                           "Owes, A||4/2/2014|$1,045.00|$0.00|$0.00|$40.00|$1,005.00",
                           "=Totals:|$1,045.00|$5.00|$0.00|$40.00|$1,010.00"}));
    EXPECT_EQ(listed(Reports::rptFeeReport6, input()), QStringList({"Odd", "Owes"}));
    EXPECT_EQ(filled(Reports::rptFeeReport6, input()).filter("#"),
              QStringList({"#Division: Not Assigned to a Division", "#Team: Not Assigned to a Team",
                           "#Division: Minors", "#Team: Bears"}));
    ReportInput minors = input();
    minors.divisionId = 1;
    EXPECT_EQ(listed(Reports::rptFeeReport6, minors), QStringList("Owes"));
    EXPECT_EQ(listed(Reports::rptFeeReport4, minors), QStringList("Cent"));
    EXPECT_EQ(listed(Reports::rptSummaryReport2, input()), QStringList({"Cent", "Even", "Odd", "Owes"}));
}

TEST_F(ReportRules, UniformsAreCountedAsTheSupplierIsToBeAsked) {
    addDivision(1, "Minors");
    addTeam(1, 1, "Bears");
    addTeam(2, 1, "Cubs");
    for (const char* table : {"Shirt", "Pant"}) {
        run(QString("INSERT INTO tbl%1Size (%1Size, %1SizeText) VALUES ('S', 'Small')").arg(table));
        run(QString("INSERT INTO tbl%1Size (%1Size, %1SizeText) VALUES ('L', 'Large')").arg(table));
    }
    const auto wearing = [](int team, const QString& size, const QString& more = {}) {
        return QString("PlayerDivisionId = 1, PlayerTeamId = %1, PlayerShirtSize = '%2', PlayerPantSize = '%2'%3")
            .arg(QString::number(team), size, more);
    };
    addPlayer("A", wearing(1, "Small"));
    addPlayer("B", wearing(1, "small"));
    addPlayer("C", wearing(2, "Large"));
    addPlayer("D", wearing(0, "Large"));
    addPlayer("E", wearing(1, "Enormous"));
    addPlayer("F", wearing(1, "Large", ", PlayerActive = False"));
    // One coach of two teams, one who left.
    for (const char* values : {"1, 1, 'HeadCoach', False", "2, 1, 'HeadCoach', False"})
        run(QString("INSERT INTO tblTeamVolunteer (TeamId, DivisionId, VolPosName, DeletedFlag, VolId, VolShirtSize) "
                    "VALUES (%1, 9, 'Large')")
                .arg(values));
    run("INSERT INTO tblTeamVolunteer (TeamId, DivisionId, VolPosName, DeletedFlag, VolId, VolShirtSize) "
        "VALUES (2, 1, 'TeamParent', True, 8, 'Large')");
    EXPECT_EQ(filled(Reports::rptUniformReport2, input()),
              QStringList({"#Division: Minors", "#Team: Bears", "Large|1|Large|0||", "Small|2|Small|2||",
                           "=Total:|3|Total:|2||", "#Team: Cubs", "Large|3|Large|1||", "Small|0|Small|0||",
                           "=Total:|3|Total:|1||"}))
        << "shirts of players and staff, pants of players alone";
    const QStringList league_{"Large|2|Large|2", "Small|2|Small|2", "=Total:|4|Total:|4"};
    EXPECT_EQ(filled(Reports::rptUniformReport4, input()), league_);
    EXPECT_EQ(filled(Reports::rptUniformReport5, input()), QStringList("#Division: Minors") + league_);
}

TEST_F(ReportRules, TeamsWithoutAFeeAreLeftOut) {
    addDivision(1, "Minors");
    addTeam(1, 1, "Bears", "$150.00", "$50.00");
    addTeam(2, 1, "Cubs", "0");
    addTeam(3, 1, "Dogs", "0.00", "$10.00");
    addTeam(4, 1, "Eels", "");
    EXPECT_EQ(filled(Reports::rptFeeReport7, input()),
              QStringList({"Minors|Bears|$150.00|$50.00|$100.00", "Minors|Dogs|$0.00|$10.00|($10.00)",
                           "=Totals:|$150.00|$60.00|$90.00"}));
}

TEST_F(ReportRules, SumsAgreeWithPlainQueriesOverTheSampleLeague) {
    SampleReports sample;
    const auto value = [&](const QString& expression, const QString& condition) {
        return sample.league.value("SELECT " + expression + " AS V FROM tblTempFeeReport WHERE " + condition, "V");
    };
    QStringList lines = ::filled(Reports::rptFeeReport5(sample.input()), sample.league.context);
    EXPECT_EQ(lines.last().section('|', -1),
              Money::orZero(value("SUM(BalanceCalculation)", "BalanceCalculation > 0")).text());
    EXPECT_EQ(QString::number(lines.filter(QRegularExpression("^[^=].*\\|\\d+/\\d+/\\d{4}\\|")).size()),
              value("COUNT(*)", "BalanceCalculation > 0"));
    lines = ::filled(Reports::rptSummaryReport2(sample.input()), sample.league.context);
    EXPECT_EQ(lines.last().section('|', -1), Money::orZero(value("SUM(BalanceCalculation)", "True")).text());
}
