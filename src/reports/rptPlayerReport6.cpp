#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport6(const ReportInput& input) {
    ReportDefinition list = playerList(input, tr("Player Report by Age"));
    list.groups = {byDivision(tr("Players of the Division:"))};
    list.query = activePlayers(Needs::Division)
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .orderBy("DivName, PlayerBirthDate, PlayerLastName, PlayerFirstName");
    return list;
}
