#include "reports/Reports.h"

LeagueReport Reports::rptFeeReport3(const ReportInput& input) {
    LeagueReport refunds = balances(input, tr("Refund Due Summary Report"), "< 0");
    refunds.definition.footer = tr("Refund Due Fee Report");
    return refunds;
}
