#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptDivisionReport2(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Team Report by Division"));
    list.noData = noRecords();
    list.landscape = true;
    list.points = 8.5;
    list.groups = {byDivision(tr("Teams of the Division:"))};
    list.query = teamRecords(input).orderBy("DivName, TeamName");
    list.columns = {
        {tr("Team Name"), column("TeamName"), 19, {}, Total::Count},
        {tr("League Team Name"), column("TeamLeagueName"), 23},
        {tr("Gender"), column("TeamGender"), 12},
        {tr("Colors"), column("TeamColors"), 18},
        {tr("Head Coach"), column("HeadCoach"), 18},
        {tr("Sponsor"), teamSponsor(), 24},
        {tr("Team Fee"), money("TeamFeeAmount"), 10},
        {tr("Fee Paid"), money("TeamFeePaid"), 10},
    };
    list.totals = fixed(tr("Teams:"));
    return list;
}
