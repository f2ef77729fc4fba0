#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptVolunteerReport2(const ReportInput& input) {
    ReportDefinition record = volunteerRecord(input, tr("Volunteer Report by Division"));
    record.groups = {byDivision()};
    record.query = volunteersOfPlayers(input, Needs::Division).orderBy("DivName, VolLastName, VolFirstName");
    return record;
}
