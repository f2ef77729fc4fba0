#include "reports/Reports.h"

LeagueReport Reports::rptBrackenValeBlankRegistration(const ReportInput& input) { return brackenValeForm(input); }
