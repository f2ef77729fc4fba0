#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptFeeReport2(const ReportInput& input) {
    ReportDefinition list = registeredFees(input, tr("Fee Summary by Division/Team Report"),
                                           "DivName, TeamName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    list.groups = {byDivision(tr("Totals of the Division:")), byTeam(tr("Totals of the Team:"))};
    return list;
}
