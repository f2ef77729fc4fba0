#include "reports/Reports.h"

LeagueReport Reports::rptFeeReport4(const ReportInput& input) {
    return balancesByTeam(input, tr("Refund Due by Division/Team Report"), "< 0");
}
