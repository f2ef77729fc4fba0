#include "reports/Reports.h"

LeagueReport Reports::rptUniformReport3(const ReportInput& input) { return uniformsByTeam(input, teams(input)); }
