#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptSponsorReport3(const ReportInput& input) {
    ReportDefinition list = sponsorList(input, tr("Sponsor Report by Division/Team"));
    list.noData = noRecords();
    list.groups = {byDivision(), byTeamId()};
    list.query = sponsorsOfTeams(input).orderBy("DivName, TeamName, tblTeam!TeamId, SponsorName");
    list.columns[0].total = Total::None;
    return list;
}
