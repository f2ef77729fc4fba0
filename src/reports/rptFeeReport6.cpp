#include "reports/Reports.h"

LeagueReport Reports::rptFeeReport6(const ReportInput& input) {
    return balancesByTeam(input, tr("Balance Due by Division/Team Report"), "> 0");
}
