#include "reports/Reports.h"
#include "reports/UniformRows.h"

using namespace report;

LeagueReport Reports::rptUniformReport4(const ReportInput& input) {
    ReportDefinition report = headed(input, tr("Uniform Pants and Shirt Size Summary"));
    const SizeOwners owners = wholeLeague();
    report.subReports = {pantCounts(owners), shirtCounts(owners)};
    report.subReportsAcross = 2;
    return report;
}
