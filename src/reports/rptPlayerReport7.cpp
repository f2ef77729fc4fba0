#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport7(const ReportInput& input) {
    ReportDefinition list = playerStatusList(input, tr("Active Player List"));
    list.query = activePlayers(Needs::Nothing).orderBy("PlayerLastName, PlayerFirstName");
    list.totals = fixed(tr("Active Players:"));
    return list;
}
