#include "reports/Reports.h"

using namespace report;

/// Games hold the names of divisions, also of those that nobody knows any more.
LeagueReport Reports::rptDivisionReport4(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Division Schedule Report"));
    list.groups = {byDivision()};
    QueryText chosen = games();
    list.query = input.divisionId ? chosen.where("division = ?", {input.lists[1]}).orderBy("[Date], [Time], [Field]")
                                  : chosen.orderBy("division COLLATE Names, [Date], [Time], [Field]");
    list.columns = gameColumns({gameField()});
    return list;
}
