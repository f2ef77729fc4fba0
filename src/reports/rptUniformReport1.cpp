#include "reports/Reports.h"

LeagueReport Reports::rptUniformReport1(const ReportInput& input) {
    ReportInput all = input;
    all.divisionId.reset();
    all.teamId.reset();
    return uniformsByTeam(all, teams(all));
}
