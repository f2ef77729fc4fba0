#include "reports/Reports.h"

using namespace report;

namespace {

QueryText chosen(QueryText players, const ReportInput& input) {
    return players.whereChosen("PlayerDivisionId", input.divisionId).whereChosen("PlayerTeamId", input.teamId);
}

}  // namespace

LeagueReport Reports::rptPlayerReport3(const ReportInput& input) {
    ReportDefinition roster = headed(input, tr("Team Roster"));
    roster.landscape = true;
    roster.groups = {byDivision(), byTeam(tr("Players:"))};
    roster.groups[1].startsPage = true;
    roster.query = chosen(activePlayers(Needs::Team), input)
                       .orderBy("DivName, TeamName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    roster.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 18, {}, Total::Count},
        {tr("Jersey"), column("PlayerJerseyNumber"), 6, Alignment::Center},
        {tr("Birth Date"), date("PlayerBirthDate"), 9, Alignment::Right},
        {tr("Age"), playerAge(input), 4, Alignment::Center},
        {tr("Address"), playerAddress(), 20},
        {tr("City"), column("PlayerCity"), 11},
        {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 12},
        {tr("Guardians"), guardianNames(), 20},
        {tr("Guardian Phones"), guardianPhones(), 13},
    };
    return roster;
}

LeagueReport Reports::rptPlayerReport3ByAge(const ReportInput& input) {
    LeagueReport roster = rptPlayerReport3(input);
    roster.definition.query = chosen(activePlayers(Needs::Team), input)
                                  .orderBy("DivName, TeamName, PlayerBirthDate, PlayerLastName, PlayerFirstName");
    return roster;
}
