#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptFieldReport3(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Team/Field Assignments Report"));
    list.noData = NoData{tr("No Data Available"), tr("No Team/Field Assignments")};
    list.groups = {byField("FieldName")};
    list.query = QueryText(
                     "SELECT FieldName, DivName, TeamName, TeamColors FROM tblTeamField "
                     "INNER JOIN tblField ON tblTeamField!FieldId = tblField!FieldId AND tblField!DeletedFlag = False "
                     "INNER JOIN tblDivision ON tblTeamField!DivisionId = tblDivision!DivisionId "
                     "AND tblDivision!DeletedFlag = False "
                     "INNER JOIN tblTeam ON tblTeamField!DivisionId = tblTeam!DivisionId "
                     "AND tblTeam!DeletedFlag = False")
                     .where("tblTeamField!DeletedFlag = False")
                     .whereChosen("tblTeamField!DivisionId", input.divisionId)
                     .orderBy("FieldName, DivName, TeamName");
    list.columns = {
        {tr("Division"), column("DivName"), 35},
        {tr("Team"), column("TeamName"), 40},
        {tr("Colors"), column("TeamColors"), 35},
    };
    return list;
}
