#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport8(const ReportInput& input) {
    ReportDefinition list = playerStatusList(input, tr("Inactive Player List"));
    list.query = players(Needs::Nothing).where("PlayerActive = False").orderBy("PlayerLastName, PlayerFirstName");
    list.totals = fixed(tr("Inactive Players:"));
    return list;
}
