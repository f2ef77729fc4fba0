#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptDivisionReport5(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Team Coach/Team Parent Report"));
    list.groups = {byDivision(), byTeamId()};
    list.query =
        QueryText(
            "SELECT DivName, TeamName, tblTeamVolunteer!TeamId AS TeamId, VolPosName, VolLastName, VolFirstName, "
            "VolHomePhoneArea, VolHomePhone, VolWorkPhoneArea, VolWorkPhone, VolEmailAddress FROM tblTeamVolunteer "
            "INNER JOIN tblDivision ON tblTeamVolunteer!DivisionId = tblDivision!DivisionId "
            "AND tblDivision!DeletedFlag = False "
            "INNER JOIN tblTeam ON tblTeamVolunteer!TeamId = tblTeam!TeamId AND tblTeam!DeletedFlag = False "
            "INNER JOIN tblVolunteer ON tblTeamVolunteer!VolId = tblVolunteer!VolId "
            "AND tblVolunteer!DeletedFlag = False")
            .where("tblTeamVolunteer!DeletedFlag = False")
            .whereChosen("tblTeamVolunteer!DivisionId", input.divisionId)
            .whereChosen("tblTeamVolunteer!TeamId", input.teamId)
            .orderBy("DivName, TeamName, tblTeamVolunteer!TeamId, VolPosName");
    list.columns = {
        {tr("Position"), staffPosition(), 16},
        {tr("Name"), lastFirst("VolLastName", "VolFirstName"), 24},
        {tr("Home Phone"), phone("VolHomePhoneArea", "VolHomePhone"), 15},
        {tr("Work Phone"), phone("VolWorkPhoneArea", "VolWorkPhone"), 15},
        {tr("Email"), column("VolEmailAddress"), 32},
    };
    return list;
}
