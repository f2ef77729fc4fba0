#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptLabelFormat2(const ReportInput& input) {
    const QString& category = input.lists[0];
    const bool all = meansAll(category, ListKind::Categories);
    QString select =
        "SELECT DISTINCT tblVolunteer!VolId AS VolId, VolLastName, VolFirstName, VolAddress1 AS Address1, "
        "VolAddress2 AS Address2, VolCity AS City, VolStateId AS State, VolPostalCode AS PostalCode, "
        "VolCountryCode AS CountryCode FROM tblVolunteer";
    if (!all)
        select +=
            " INNER JOIN tblVolToPosition ON tblVolToPosition!VolId = tblVolunteer!VolId "
            "AND tblVolToPosition!DeletedFlag = False INNER JOIN tblVolunteerPositions "
            "ON tblVolToPosition!VolPosId = tblVolunteerPositions!VolPosId "
            "AND tblVolunteerPositions!DeletedFlag = False";
    QueryText volunteers(select);
    volunteers.where("tblVolunteer!DeletedFlag = False");
    if (!all) volunteers.where("VolPosName = ?", {category});
    if (input.labels.choice == LabelOptions::ActiveVolunteers) volunteers.where("VolActive = True");
    if (input.labels.choice == LabelOptions::InactiveVolunteers) volunteers.where("VolActive = False");
    return labels(input, firstLast("VolLastName", "VolFirstName"), volunteers.orderBy("VolLastName, VolFirstName"));
}
