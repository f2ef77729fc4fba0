#include "reports/Reports.h"

LeagueReport Reports::rptAbilityReport3(const ReportInput& input) { return rptAbilityReport5(input); }
