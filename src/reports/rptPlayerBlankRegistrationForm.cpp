#include "reports/Reports.h"

LeagueReport Reports::rptPlayerBlankRegistrationForm(const ReportInput& input) { return registrationForm(input); }
