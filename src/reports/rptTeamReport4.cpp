#include "reports/Reports.h"

using namespace report;

namespace {

/// The games of each team, whether it is the host or the guest. They name it and its division; nothing links them.
ReportDefinition rptTeamReport4Sub1(Line columns, const QString& whenEmpty) {
    const QString games =
        "SELECT ScheduleId, division, [Date], [Day], [Time], VisitorsTeam, HomeTeam, [Field], %1 AS Team "
        "FROM tblSchedule WHERE DeletedFlag = False";
    ReportDefinition list;
    list.query = QueryText("SELECT * FROM (" + games.arg("HomeTeam") + " UNION " + games.arg("VisitorsTeam") + ")")
                     .orderBy("[Date], [Time], [Field]");
    list.columns = std::move(columns);
    list.whenEmpty = whenEmpty;
    list.boundTo = QStringList{"DivName", "TeamName"};
    list.keys = QStringList{"division", "Team"};
    return list;
}

}  // namespace

LeagueReport Reports::rptTeamReport4(const ReportInput& input) {
    ReportDefinition report = headed(input, tr("Team Schedule"));
    report.groups = {byDivision(), byTeamId()};
    report.groups[1].lines = {
        Line{{tr("Head Coach:"), column("HeadCoach")}, {tr("Sponsor:"), teamSponsor()}, {.share = 5}}};
    report.query = teamRecords(input).orderBy("DivName, TeamName, tblTeam!TeamId");
    report.subReports = {rptTeamReport4Sub1(gameColumns({gameField()}), tr("No games are scheduled for this team."))};
    return report;
}
