#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptVolunteerReport1(const ReportInput& input) {
    ReportDefinition record = volunteerRecord(input, tr("Volunteer Report"));
    QueryText one = volunteers();
    record.query = whereVolunteer(one, input.lists[0]).orderBy("VolLastName, VolFirstName");
    return record;
}
