#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptVolunteerReport5(const ReportInput& input) {
    const QString& category = input.lists[0];
    ReportDefinition record = volunteerRecord(input, tr("Volunteers by Category Report"));
    const bool all = meansAll(category, ListKind::Categories);
    QueryText chosen = volunteers(
        all ? QString() : ", VolPosName",
        " INNER JOIN tblVolToPosition ON tblVolToPosition!VolId = tblVolunteer!VolId "
        "AND tblVolToPosition!DeletedFlag = False INNER JOIN tblVolunteerPositions "
        "ON tblVolToPosition!VolPosId = tblVolunteerPositions!VolPosId AND tblVolunteerPositions!DeletedFlag = False");
    if (!all) {
        chosen.where("VolPosName = ?", {category});
        record.groups = {Group{.key = "VolPosName",
                               .header = {{.field = column("VolPosName").before(tr("Volunteer Category:") + u' ')}}}};
    }
    record.query = chosen.orderBy("VolLastName, VolFirstName");
    return record;
}
