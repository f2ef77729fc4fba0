#include "reports/Reports.h"
#include "reports/UniformRows.h"

using namespace report;

LeagueReport Reports::rptUniformReport2(const ReportInput& input) {
    ReportDefinition report = headed(input, tr("Division/Team Uniform Summary"));
    report.points = 7.5;  // two teams with eighteen sizes of shoes to the page
    report.groups = {byDivision(), byTeam()};
    report.query = teams(input).orderBy("DivName, TeamName");
    const SizeOwners owners = eachTeam();
    report.subReports = {shirtCounts(owners), pantCounts(owners), hatCounts(owners), shoeCounts(owners)};
    report.subReportsAcross = 4;
    return report;
}
