#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptMasterSchedule(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Master Schedule"));
    list.landscape = true;
    list.query = games().orderBy("[Date], [Time], [Field]");
    list.columns = gameColumns({gameDivision(), gameField()});
    return list;
}
