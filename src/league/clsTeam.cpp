#include "league/clsTeam.h"

namespace {

QString named(const QString& name, int divisionId) { return matches({{"DivisionId", divisionId}, {"TeamName", name}}); }

}  // namespace

clsTeam::clsTeam(StoreContext& context)
    : RecordClass(context),
      divisions_(database().openRecordset("SELECT * FROM tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]")),
      sponsors_(
          database().openRecordset("SELECT * FROM tblSponsor WHERE [DeletedFlag] = False ORDER BY [SponsorName]")) {
    open({.source = "tblTeam",
          .tag = ".clsTeam",
          .noRecords = "Team Table.  ",
          .required = {{&TeamName, "Missing the Team Name."}}});
}

/// A team of the division that was deleted under the same name comes back with its key, and so with its old results.
QString clsTeam::twinCriteria() const { return deleted(named(TeamName, TeamDivisionId)); }

void clsTeam::loadNeighbour() {
    const QString others = QStringLiteral("SELECT * FROM tblTeam WHERE [DeletedFlag] = False AND ") +
                           matches("DivisionId", static_cast<int>(main().number("DivisionId"))) +
                           QStringLiteral(" AND [TeamId] ");
    const QString gone = QString::number(main().number("TeamId"));
    for (const QString& side :
         {QString("< " + gone + " ORDER BY [TeamId] DESC"), QString("> " + gone + " ORDER BY [TeamId]")}) {
        datafile::Recordset neighbours = database().openRecordset(others + side);
        if (!neighbours.eof() && find(matches("TeamId", static_cast<int>(neighbours.number("TeamId"))), true)) return;
    }
    blank();
}

bool clsTeam::findInDivision(const QString& criteria, const QString& name, bool show, bool load) {
    return findOrTell(criteria, name, show, load,
                      {"Team Not Found!", "No Records found for team %1.", "No Records found for team %1."});
}

bool clsTeam::FindTeamRecord(const QString& name, int divisionId, bool show, bool load) {
    return findInDivision(live(named(name, divisionId)), name, show, load);
}

bool clsTeam::FindDeletedTeamRecord(const QString& name, int divisionId, bool show, bool load) {
    return findInDivision(deleted(named(name, divisionId)), name, show, load);
}

bool clsTeam::FindTeamMergeRecord(const QString& name, int divisionId, bool show, bool load) {
    return findInDivision(named(name, divisionId), name, show, load);
}

QString clsTeam::FindTeamName(int teamId, int divisionId) const {
    datafile::Recordset team = database().openRecordset("SELECT * FROM tblTeam WHERE " +
                                                        matches({{"TeamId", teamId}, {"DivisionId", divisionId}}));
    return team.eof() ? QString() : team.text("TeamName");
}

int clsTeam::FindTeamId(const QString& name, int divisionId) const {
    datafile::Recordset team =
        database().openRecordset("SELECT * FROM tblTeam WHERE " + named(name, divisionId) + " ORDER BY [DeletedFlag]");
    return team.eof() ? 0 : static_cast<int>(team.number("TeamId"));
}

bool clsTeam::FindDivisionRecord(const QString& name) {
    if (!standOn(divisions_, matches("DivName", name))) return false;
    DivisionId = static_cast<int>(divisions_.number("DivisionId"));
    DivisionName = divisions_.text("DivName");
    DivisionAgeCutOffMonth = divisions_.text("DivAgeCutOffMonth");
    DivisionAgeCutOffDay = divisions_.text("DivAgeCutOffDay");
    DivisionRegistrationFee = divisions_.text("DivRegistrationFee");
    return true;
}

bool clsTeam::loadSponsor(const QString& criteria) {
    if (!standOn(sponsors_, criteria)) return false;
    SponsorId = static_cast<int>(sponsors_.number("SponsorId"));
    SponsorName = sponsors_.text("SponsorName");
    SponsorColorRequest = sponsors_.text("SponsorColorRequest");
    SponsorNbrOfTeams = sponsors_.text("SponsorNbrOfTeams");
    return true;
}
