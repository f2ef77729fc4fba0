#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptPlayerReport5(const ReportInput& input) {
    const QString& school = input.lists[0];
    ReportDefinition list = playerList(input, tr("Player Report by School"));
    Group bySchool{.key = "PlayerSchoolName",
                   .header = {{.field = column("PlayerSchoolName").before(tr("School:") + u' ').orElse(tr("None"))}},
                   .footer = fixed(tr("Players of the School:"))};
    QueryText players = activePlayers(Needs::Nothing).whereChosen("PlayerDivisionId", input.divisionId);
    if (!school.isEmpty() && school != ReportLists::allEntry(ListKind::Schools))
        players.where("PlayerSchoolName = ?", {school});
    const QString order = "PlayerSchoolName, PlayerLastName, PlayerFirstName, PlayerBirthDate";
    if (input.divisionId) {
        list.groups = {bySchool};
        list.query = players.orderBy(order);
    } else {
        list.groups = {byDivision(), bySchool};
        list.query = players.orderBy("DivName, " + order);
    }
    return list;
}
