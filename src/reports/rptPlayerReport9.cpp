#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport9(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Player Age Exception Report"));
    list.landscape = true;
    list.points = 8.5;
    list.groups = {byDivision(tr("Players outside the Ages of the Division:"))};
    // An age limit that is no number limits nothing.
    list.query = activePlayers(Needs::Division)
                     .where("(PlayerAge < CAST(DivMinAge AS INTEGER) OR (PlayerAge > CAST(DivMaxAge AS INTEGER) "
                            "AND (CAST(DivMaxAge AS INTEGER) > 0 OR DivMaxAge = \"0\")))")
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .orderBy("DivName, PlayerBirthDate, PlayerLastName, PlayerFirstName");
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 16, {}, Total::Count},
        {tr("Address"), playerAddress(), 19},
        {tr("City"), column("PlayerCity"), 11},
        {tr("ZipCode"), column("PlayerPostalCode"), 9},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 12},
        {tr("Birth Date"), date("PlayerBirthDate"), 9, Alignment::Right},
        {tr("Guardians"), playerGuardians(), 18},
        {tr("Guardian Phones"), playerGuardianPhones(), 12.5},
        {tr("Gender"), column("PlayerGender"), 6.5},
        {tr("Age"), playerAge(input), 4, Alignment::Right},
        {tr("Minimum Age"), column("DivMinAge"), 8, Alignment::Right},
        {tr("Maximum Age"), column("DivMaxAge"), 8, Alignment::Right},
    };
    list.totals = fixed(tr("Players:"));
    return list;
}
