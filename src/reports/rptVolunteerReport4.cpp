#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptVolunteerReport4(const ReportInput& input) {
    ReportDefinition record = volunteerRecord(input, tr("All Volunteers Report"));
    record.query = volunteersOfPlayers(input, Needs::Nothing).orderBy("VolLastName, VolFirstName");
    return record;
}
