#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptTeamMedical(const ReportInput& input) {
    ReportDefinition sheet = headed(input, tr("Team Medical Report"));
    sheet.groups = {byDivision(), byTeam()};
    sheet.groups[1].startsPage = true;
    sheet.query =
        activePlayers(Needs::Team,
                      "PlayerEmergencyContactName, PlayerEmergencyContactRelationship, PlayerEmergencyPhoneArea, "
                      "PlayerEmergencyPhone, PlayerDoctorName, PlayerDoctorPhoneArea, PlayerDoctorPhone, "
                      "PlayerDentistName, PlayerDentistPhoneArea, PlayerDentistPhone, PlayerHospitalName, "
                      "PlayerInsuranceCarrier, PlayerInsPolicyNumber, PlayerMedicalComments")
            .whereChosen("PlayerDivisionId", input.divisionId)
            .whereChosen("PlayerTeamId", input.teamId)
            .orderBy("DivName, TeamName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    const auto guardian = [](const QString& which) {
        return Line{{tr("Guardian:"), firstLast(which + "LastName", which + "FirstName"), 37},
                    {.field = allPhones(which), .share = 63}}
            .ifFilled();
    };
    sheet.lines = {
        Line{{.field = lastFirst("PlayerLastName", "PlayerFirstName"), .share = 37, .bold = true, .larger = 1},
             {tr("Birth Date:"), date("PlayerBirthDate"), 21},
             {tr("Age:"), playerAge(input), 21},
             {tr("Phone:"), phone("PlayerPhoneArea", "PlayerPhone"), 21}},
        guardian("PlayerDad"),
        guardian("PlayerMom"),
        Line{{tr("Emergency:"), column("PlayerEmergencyContactName"), 37},
             {.field = column("PlayerEmergencyContactRelationship"), .share = 42},
             {.field = phone("PlayerEmergencyPhoneArea", "PlayerEmergencyPhone"), .share = 21}}
            .ifFilled(),
        Line{{tr("Doctor:"), column("PlayerDoctorName"), 37},
             {.field = phone("PlayerDoctorPhoneArea", "PlayerDoctorPhone"), .share = 21},
             {tr("Hospital:"), column("PlayerHospitalName"), 42}}
            .ifFilled(),
        Line{{tr("Dentist:"), column("PlayerDentistName"), 37},
             {.field = phone("PlayerDentistPhoneArea", "PlayerDentistPhone"), .share = 21},
             {tr("Insurance:"), joined({"PlayerInsuranceCarrier", "PlayerInsPolicyNumber"}), 42}}
            .ifFilled(),
        Line{{tr("Medical History:"), column("PlayerMedicalComments"), 10, {}, Total::None, true}}.ifFilled(),
    };
    return sheet;
}
