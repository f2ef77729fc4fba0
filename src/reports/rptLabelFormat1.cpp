#include "reports/LabelRows.h"
#include "reports/Reports.h"

using namespace report;

namespace {

Query families() {
    return QueryText(
               "SELECT LastName & \" Family\" AS FamilyName, Address1, Address2, City, State, PostalCode, CountryCode "
               "FROM tblTempFamilyLabels")
        .orderBy("LastName, Address1");
}

}  // namespace

LeagueReport Reports::rptLabelFormat1(const ReportInput& input) {
    const LabelOptions& chosen = input.labels;
    if (chosen.choice == LabelOptions::Family) {
        LeagueReport sheet = labels(input, column("FamilyName"), families());
        sheet.prepare = [division = input.divisionId](StoreContext& store) { fillFamilyLabels(store, division); };
        return sheet;
    }
    QueryText players = QueryText(
                            "SELECT PlayerLastName, PlayerFirstName, PlayerAddress1 AS Address1, "
                            "PlayerAddress2 AS Address2, PlayerCity AS City, PlayerStateId AS State, "
                            "PlayerPostalCode AS PostalCode, PlayerCountryCode AS CountryCode FROM tblRegistration")
                            .where("DeletedFlag = False")
                            .whereChosen("PlayerDivisionId", input.divisionId);
    const bool byAge = chosen.choice == LabelOptions::AgeRange;
    if (byAge) players.where("PlayerAge >= ? AND PlayerAge <= ?", {chosen.lowerAge, chosen.upperAge});
    if (chosen.choice == LabelOptions::Active || (byAge && chosen.status == LabelOptions::OnlyActive))
        players.where("PlayerActive = True");
    if (chosen.choice == LabelOptions::Inactive || (byAge && chosen.status == LabelOptions::OnlyInactive))
        players.where("PlayerActive = False");
    return labels(input, firstLast("PlayerLastName", "PlayerFirstName"),
                  players.orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate"));
}
