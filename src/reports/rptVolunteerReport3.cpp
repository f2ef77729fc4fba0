#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptVolunteerReport3(const ReportInput& input) {
    ReportDefinition record = volunteerRecord(input, tr("Volunteer Report by Division/Team"));
    record.groups = {byDivision(), byTeamId()};
    record.query =
        volunteersOfPlayers(input, Needs::Team).orderBy("DivName, TeamName, tblTeam!TeamId, VolLastName, VolFirstName");
    return record;
}
