#include "reports/Reports.h"
#include "reports/UniformRows.h"

using namespace report;

LeagueReport Reports::rptUniformReport5(const ReportInput& input) {
    ReportDefinition report = headed(input, tr("Uniform Pants and Shirts Summary by Division"));
    report.groups = {byDivision()};
    report.query = QueryText("SELECT DivisionId AS OwnerDivision, 0 AS OwnerTeam, DivName FROM tblDivision")
                       .where("DeletedFlag = False")
                       .orderBy("DivName");
    const SizeOwners owners = eachDivision();
    report.subReports = {pantCounts(owners), shirtCounts(owners)};
    report.subReportsAcross = 2;
    report.noData = NoData{tr("No Data to Report"), tr("No Data to Report - No Divisions have been Defined.")};
    return report;
}
