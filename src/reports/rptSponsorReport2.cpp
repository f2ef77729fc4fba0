#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptSponsorReport2(const ReportInput& input) {
    ReportDefinition list = sponsorList(input, tr("Sponsor Report by Division"));
    list.noData = noRecords();
    list.groups = {byDivision()};
    list.query = sponsorsOfTeams(input).orderBy("DivName, SponsorName, TeamName");
    list.columns[0].total = Total::None;
    list.columns.insert(list.columns.begin() + 1, {tr("Team"), column("TeamName"), 16});
    return list;
}
