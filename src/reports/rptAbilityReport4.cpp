#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptAbilityReport4(const ReportInput& input) {
    ReportDefinition list = ratingList(input, tr("Player Ability Rating Report By Team"), Needs::Team,
                                       "DivName, TeamName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    list.groups = {byDivision(), byTeam()};
    return list;
}
