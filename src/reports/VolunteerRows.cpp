#include "reports/Reports.h"

using namespace report;

namespace {

ReportDefinition part(const QString& title, double share, const QueryText& query, const QString& order,
                      const Line& columns) {
    ReportDefinition list;
    list.title = title;
    list.share = share;
    list.query = query.orderBy("VolId, " + order);
    list.columns = columns;
    list.boundTo = list.keys = QStringList{"VolId"};
    return list;
}

}  // namespace

QueryText Reports::volunteers(const QString& moreColumns, const QString& joins) {
    return QueryText(
               "SELECT DISTINCT tblVolunteer!VolId AS VolId, VolLastName, VolFirstName, VolActive, VolAddress1, "
               "VolAddress2, VolCity, VolStateId, VolPostalCode, VolCountryCode, VolEmailAddress, VolHomePhoneArea, "
               "VolHomePhone, VolWorkPhoneArea, VolWorkPhone, VolFaxPhoneArea, VolFaxPhone, VolOccupation, "
               "VolComments" +
               moreColumns + " FROM tblVolunteer" + joins)
        .where("tblVolunteer!DeletedFlag = False");
}

QueryText Reports::volunteersOfPlayers(const ReportInput& input, Needs parents) {
    QString columns;
    QString joins =
        " INNER JOIN tblRegistrationVolunteer ON tblRegistrationVolunteer!VolId = tblVolunteer!VolId "
        "AND tblRegistrationVolunteer!DeletedFlag = False "
        "INNER JOIN tblRegistration ON tblRegistrationVolunteer!PlayerId = tblRegistration!PlayerId "
        "AND tblRegistration!DeletedFlag = False "
        "INNER JOIN tblDivision ON PlayerDivisionId = tblDivision!DivisionId AND tblDivision!DeletedFlag = False";
    if (parents != Needs::Nothing) columns += ", DivName";
    if (parents == Needs::Team) {
        columns += ", TeamName, tblTeam!TeamId AS TeamId";
        joins += " INNER JOIN tblTeam ON PlayerTeamId = tblTeam!TeamId AND tblTeam!DeletedFlag = False";
    }
    return volunteers(columns, joins)
        .whereChosen("PlayerDivisionId", input.divisionId)
        .whereChosen("PlayerTeamId", input.teamId);
}

QueryText& Reports::whereVolunteer(QueryText& query, const QString& entry) {
    return query.where("([VolLastName] & \", \" & [VolFirstName] & \" - \" & [VolHomePhone]) = ?", {entry});
}

ReportDefinition Reports::volunteerRecord(const ReportInput& input, const QString& title) {
    ReportDefinition record = headed(input, title);
    record.lines = {
        Line{{.field = lastFirst("VolLastName", "VolFirstName"), .share = 40, .bold = true, .larger = 1.5},
             {tr("Home Phone:"), phone("VolHomePhoneArea", "VolHomePhone"), 30},
             {tr("Active:"), yesNo("VolActive"), 30}},
        Line{{.field = joined({"VolAddress1", "VolAddress2"}), .share = 40},
             {.field = cityLine("VolCity", "VolStateId", "VolPostalCode", "VolCountryCode"), .share = 60}}
            .ifFilled(),
        Line{{tr("Email:"), column("VolEmailAddress"), 40},
             {tr("Work Phone:"), phone("VolWorkPhoneArea", "VolWorkPhone"), 30},
             {tr("Fax:"), phone("VolFaxPhoneArea", "VolFaxPhone"), 30}}
            .ifFilled(),
        Line{{tr("Occupation:"), column("VolOccupation")}}.ifFilled(),
        Line{{tr("Comments:"), column("VolComments")}}.ifFilled(),
    };
    record.subReports = {rptVolunteerPlayer(), rptVolunteerPositions(), rptVolunteerAssignments(),
                         rptVolunteerCertifications()};
    record.subReportsAcross = 2;
    return record;
}

ReportDefinition Reports::rptVolunteerPlayer() {
    return part(tr("Players"), 52,
                QueryText("SELECT DISTINCT VolId, PlayerLastName, PlayerFirstName, PlayerBirthDate "
                          "FROM tblRegistrationVolunteer INNER JOIN tblRegistration "
                          "ON tblRegistrationVolunteer!PlayerId = tblRegistration!PlayerId "
                          "AND tblRegistration!DeletedFlag = False")
                    .where("tblRegistrationVolunteer!DeletedFlag = False"),
                "PlayerLastName, PlayerFirstName, PlayerBirthDate",
                {{.field = lastFirst("PlayerLastName", "PlayerFirstName"), .share = 31},
                 {.field = date("PlayerBirthDate"), .share = 11}});
}

ReportDefinition Reports::rptVolunteerPositions() {
    return part(tr("Positions"), 48,
                QueryText("SELECT DISTINCT VolId, VolPosName FROM tblVolToPosition INNER JOIN tblVolunteerPositions "
                          "ON tblVolToPosition!VolPosId = tblVolunteerPositions!VolPosId "
                          "AND tblVolunteerPositions!DeletedFlag = False")
                    .where("tblVolToPosition!DeletedFlag = False"),
                "VolPosName", {{.field = column("VolPosName")}});
}

ReportDefinition Reports::rptVolunteerAssignments() {
    return part(
        tr("Teams"), 52,
        QueryText("SELECT VolId, VolPosName, DivName, TeamName FROM tblTeamVolunteer "
                  "LEFT JOIN tblDivision ON tblTeamVolunteer!DivisionId = tblDivision!DivisionId "
                  "AND tblDivision!DeletedFlag = False "
                  "LEFT JOIN tblTeam ON tblTeamVolunteer!TeamId = tblTeam!TeamId AND tblTeam!DeletedFlag = False")
            .where("tblTeamVolunteer!DeletedFlag = False"),
        "DivName, TeamName, VolPosName",
        {{.field = staffPosition(), .share = 11},
         {.field = column("DivName").orElse(tr("Unknown Division")), .share = 20},
         {.field = column("TeamName").orElse(tr("Unknown Team")), .share = 11}});
}

ReportDefinition Reports::rptVolunteerCertifications() {
    return part(tr("Certifications"), 48,
                QueryText("SELECT VolId, CertifyingOrganization, CertificationName FROM tblVolunteerCertifications "
                          "INNER JOIN tblCertifications "
                          "ON tblVolunteerCertifications!CertificationId = tblCertifications!CertificationId "
                          "AND tblCertifications!DeletedFlag = False")
                    .where("tblVolunteerCertifications!DeletedFlag = False"),
                "CertifyingOrganization, CertificationName",
                {{.field = column("CertifyingOrganization"), .share = 15},
                 {.field = column("CertificationName"), .share = 13}});
}
