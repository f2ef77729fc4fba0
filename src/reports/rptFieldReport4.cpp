#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptFieldReport4(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Field Schedule Report"));
    list.groups = {byField("Field")};
    QueryText chosen = games();
    if (!meansAll(input.lists[0], ListKind::Fields)) chosen.where("[Field] = ?", {input.lists[0]});
    list.query = chosen.orderBy("[Field] COLLATE Names, [Date], [Time]");
    list.columns = gameColumns({gameDivision()});
    return list;
}
