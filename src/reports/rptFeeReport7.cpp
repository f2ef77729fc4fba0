#include "platform/text/Money.h"
#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptFeeReport7(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Team Fee Balance/Refund Due Report"));
    list.query = QueryText(
                     "SELECT DivName AS DivisionName, TeamName, TeamFeeAmount, TeamFeePaid FROM tblTeam "
                     "INNER JOIN tblDivision ON tblTeam!DivisionId = tblDivision!DivisionId "
                     "AND tblDivision!DeletedFlag = False")
                     .where("tblTeam!DeletedFlag = False")
                     .where("TeamFeeAmount <> \"\"")
                     .where("TeamFeeAmount <> \"0\"")
                     .orderBy("DivName, TeamName");
    const Field difference = computed(
        [](const Row& row) {
            return (Money::orZero(row.text("TeamFeeAmount")) - Money::orZero(row.text("TeamFeePaid"))).text("0.00");
        },
        Format::Money);
    list.columns = {
        {tr("Division"), column("DivisionName"), 26},
        {tr("Team"), column("TeamName"), 30},
        {tr("Team Fee"), money("TeamFeeAmount"), 13, {}, Total::Sum},
        {tr("Fee Paid"), money("TeamFeePaid"), 13, {}, Total::Sum},
        {tr("Balance"), difference, 13, {}, Total::Sum},
    };
    list.totals = fixed(tr("Totals:"));
    return list;
}
