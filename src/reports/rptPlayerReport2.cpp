#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport2(const ReportInput& input) {
    ReportDefinition list = playerList(input, tr("Player List by Division"));
    list.groups = {byDivision(tr("Players of the Division:"))};
    list.groups[0].key = "PlayerDivisionId";
    list.query = activePlayers(Needs::Nothing)
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .orderBy("PlayerDivisionId, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    return list;
}
