#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerSummary(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Player Summary Report"));
    list.landscape = true;
    list.points = 8.5;
    list.query = activePlayers(Needs::Nothing,
                               "PlayerGradeLevel, PlayerYearsExperience, PlayerRegistrationDate, "
                               "PlayerRegistrationNumber")
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .whereChosen("PlayerTeamId", input.teamId)
                     .orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate");
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 18, {}, Total::Count},
        {tr("Birth Date"), date("PlayerBirthDate"), 9, Alignment::Right},
        {tr("Age"), playerAge(input), 4, Alignment::Center},
        {tr("Gender"), column("PlayerGender"), 6.5},
        {tr("Division"), column("DivName").orElse(tr("Not Assigned to a Division")), 16},
        {tr("Team"), column("TeamName").orElse(tr("Not Assigned to a Team")), 17},
        {tr("School"), column("PlayerSchoolName"), 20},
        {tr("Grade"), column("PlayerGradeLevel"), 6, Alignment::Center},
        {tr("Years Played"), column("PlayerYearsExperience"), 6.5, Alignment::Center},
        {tr("Registered"), date("PlayerRegistrationDate"), 9.5},
        {tr("Registration No."), column("PlayerRegistrationNumber"), 13},
    };
    list.totals = fixed(tr("Players:"));
    return list;
}
