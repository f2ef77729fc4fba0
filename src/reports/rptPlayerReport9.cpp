#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport9(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Player Age Exception Report"));
    list.landscape = true;
    list.points = 8;
    list.groups = {byDivision(tr("Players outside the Ages of the Division:"))};
    // An age limit that is no number limits nothing.
    const QString outside =
        "(PlayerAge < CAST(%1 AS INTEGER) OR (PlayerAge > CAST(%2 AS INTEGER) "
        "AND (CAST(%2 AS INTEGER) > 0 OR %2 = \"0\")))";
    const QString minimum = input.ages ? datafile::quoted(input.ages->minimum) : "DivMinAge";
    const QString maximum = input.ages ? datafile::quoted(input.ages->maximum) : "DivMaxAge";
    list.query = activePlayers(Needs::Division)
                     .where(outside.arg(minimum, maximum))
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .orderBy("DivName, PlayerBirthDate, PlayerLastName, PlayerFirstName");
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 16, {}, Total::Count},
        {tr("Address"), playerAddress(), 18},
        {tr("City"), column("PlayerCity"), 12},
        {tr("ZipCode"), column("PlayerPostalCode"), 11},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 13},
        {tr("Birth Date"), date("PlayerBirthDate"), 10.5},
        {tr("Guardians"), guardianNames(), 18},
        {tr("Guardian Phones"), guardianPhones(), 13},
        {tr("Gender"), column("PlayerGender"), 7},
        {tr("Age"), playerAge(input), 4, Alignment::Center},
        {tr("Minimum Age"), input.ages ? fixed(input.ages->minimum) : column("DivMinAge"), 9, Alignment::Center},
        {tr("Maximum Age"), input.ages ? fixed(input.ages->maximum) : column("DivMaxAge"), 9, Alignment::Center},
    };
    list.totals = fixed(tr("Players:"));
    return list;
}
