#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptSummaryReport1(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Registration Summary"));
    list.points = 11;
    list.query = QueryText(
                     "SELECT DivName, DivMinAge, DivMaxAge, DivGender, (SELECT COUNT(*) FROM tblRegistration "
                     "WHERE PlayerActive = True AND tblRegistration!DeletedFlag = False "
                     "AND PlayerDivisionId = tblDivision!DivisionId) AS Players FROM tblDivision")
                     .where("tblDivision!DeletedFlag = False")
                     .orderBy("DivName");
    list.columns = {
        {tr("Division"), column("DivName"), 40},
        {tr("Ages"), joined({"DivMinAge", "DivMaxAge"}, QStringLiteral(" - ")), 15},
        {tr("Gender"), column("DivGender"), 20},
        {tr("Active Players"), number("Players"), 20, {}, Total::Sum},
    };
    list.totals = fixed(tr("Players of all divisions:"));
    return list;
}
