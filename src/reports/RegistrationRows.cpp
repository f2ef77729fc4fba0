#include "reports/RegistrationForm.h"
#include "reports/Reports.h"

using namespace report;

namespace {

/// The league that has forms of its own.
bool isBrackenVale(const ReportInput& input) {
    return input.globals.organizationName == QLatin1String("Bracken Vale Girls Softball");
}

}  // namespace

ReportDefinition Reports::filledIn(ReportDefinition form, const ReportInput& input) {
    QueryText chosen = players(
        Needs::Nothing,
        "1 AS League, PlayerWeight AS palyerweight, PlayerHeight, PlayerEmailAddress, PlayerParentApproval, "
        "PlayerGuardian1Relationship, PlayerGuardian2Relationship, PlayerEmergencyContactName, "
        "PlayerEmergencyContactRelationship, PlayerEmergencyPhoneArea, PlayerEmergencyPhone, PlayerDoctorName, "
        "PlayerDoctorPhoneArea, PlayerDoctorPhone, PlayerDentistName, PlayerDentistPhoneArea, PlayerDentistPhone, "
        "PlayerHospitalName, PlayerInsuranceCarrier, PlayerInsPolicyNumber, PlayerMedicalComments, PlayerShirtSize, "
        "PlayerPantSize, PlayerHatSize, PlayerShoeSize");
    if (const QString& player = input.lists[0]; !player.isEmpty())
        wherePlayer(chosen, player);
    else
        chosen.where("PlayerActive = True").whereChosen("PlayerDivisionId", input.divisionId);
    form.query = chosen.orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate");
    form.rowStartsPage = true;
    for (ReportDefinition& part : form.subReports) part.boundTo = part.keys = QStringList{"League"};
    return form;
}

LeagueReport Reports::blankRegistration(const ReportInput& input) {
    return isBrackenVale(input) ? rptBrackenValeBlankRegistration(input) : rptPlayerBlankRegistrationForm(input);
}

LeagueReport Reports::playerRegistration(const ReportInput& input) {
    return isBrackenVale(input) ? rptBrackenValePlayerRegistration(input) : rptPlayerRegistrationForm(input);
}
