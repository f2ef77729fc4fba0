#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport4(const ReportInput& input) {
    ReportDefinition list = playerList(input, tr("Unassigned Players List"));
    list.groups = {byDivision(tr("Players without a Team:"))};
    list.query = activePlayers(Needs::Division)
                     .where("(PlayerTeamId = 0 OR PlayerTeamId IS NULL)")
                     .orderBy("DivName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    return list;
}
