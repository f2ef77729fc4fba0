#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptAbilityReport5(const ReportInput& input) {
    ReportDefinition list = ratingList(input, tr("Player Ability Rating Report By Division"), Needs::Division,
                                       "DivName, PlayerLastName, PlayerFirstName, PlayerBirthDate");
    list.groups = {byDivision()};
    return list;
}
