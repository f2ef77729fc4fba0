#include "reports/Reports.h"

LeagueReport Reports::rptSummaryReport2(const ReportInput& input) {
    return registeredFees(input, tr("Fee Summary Report"), "PlayerLastName, PlayerFirstName, PlayerBirthDate");
}
