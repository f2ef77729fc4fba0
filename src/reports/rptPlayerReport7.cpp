#include "reports/Reports.h"

using namespace report;

ReportDefinition Reports::rptPlayerReport7(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Active Player List"));
    list.landscape = true;
    list.points = 8.5;
    list.query.text = QStringLiteral(
        "SELECT PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerGender, PlayerAddress1, PlayerAddress2, "
        "PlayerCity, PlayerPostalCode, PlayerPhoneArea, PlayerPhone, PlayerDadLastName, PlayerDadFirstName, "
        "PlayerMomLastName, PlayerMomFirstName, DivName, DivAgeCutOffMonth, DivAgeCutOffDay "
        "FROM tblRegistration LEFT JOIN tblDivision ON tblRegistration!PlayerDivisionId = tblDivision!DivisionId "
        "AND tblDivision!DeletedFlag = False "
        "WHERE PlayerActive = True AND tblRegistration!DeletedFlag = False "
        "ORDER BY PlayerLastName, PlayerFirstName");
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 15, {}, Total::Count},
        {tr("Birth Date"), date("PlayerBirthDate"), 9, Alignment::Right},
        {tr("Age"), playerAge(input), 4, Alignment::Right},
        {tr("Gender"), column("PlayerGender"), 6.5},
        {tr("Address"), playerAddress(), 21},
        {tr("City"), column("PlayerCity"), 11},
        {tr("Zip/Postal"), column("PlayerPostalCode"), 9.5},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 11.5},
        {tr("Division"), column("DivName").orElse(tr("Not Assigned to a Division")), 16.5},
        {tr("Guardians"), playerGuardians(), 21},
    };
    list.totals = fixed(tr("Active Players:"));
    return list;
}
