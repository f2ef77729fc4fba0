#include "reports/Reports.h"
#include "schedule/clsResults.h"
#include "store/Housekeeping.h"

using namespace report;

namespace {

/// Standings that could not be computed are none, rather than those of another day.
void computeStandings(StoreContext& store) {
    constexpr bool tells = false;
    if (!clsResults(store).BuildAllStandings(tells)) DeleteRecords(store, TempResults);
}

}  // namespace

LeagueReport Reports::rptDivisionReport3(const ReportInput& input) {
    ReportDefinition list = headed(input, tr("Division Standings"));
    list.noData = noRecords();
    list.groups = {byDivision()};
    list.query = QueryText(
                     "SELECT DivisionName AS DivName, TeamName, SponsorName, Wins, Losses, Ties, WinPercentage, "
                     "(SELECT COUNT(DISTINCT Better!WinPercentage) FROM tblTempResults AS Better "
                     "WHERE Better!DivisionId = tblTempResults!DivisionId "
                     "AND Better!WinPercentage > tblTempResults!WinPercentage) + 1 AS Place FROM tblTempResults")
                     .whereChosen("DivisionId", input.divisionId)
                     .orderBy("DivisionName, WinPercentage DESC, TeamName");
    list.columns = {
        {tr("Rank"), number("Place"), 7, Alignment::Center},
        {tr("Team Name"), column("TeamName"), 30},
        {tr("Sponsor"), column("SponsorName"), 34},
        {tr("Wins"), number("Wins"), 8},
        {tr("Losses"), number("Losses"), 8},
        {tr("Ties"), number("Ties"), 8},
        {tr("Win Percent"), number("WinPercentage", "##0.000"), 13},
    };
    return {list, computeStandings};
}
