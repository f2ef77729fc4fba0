#include "reports/Reports.h"

LeagueReport Reports::rptFeeReport5(const ReportInput& input) {
    return balances(input, tr("Balance Due Summary Report"), "> 0");
}
