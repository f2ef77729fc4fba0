#include "schedule/clsResults.h"

#include "platform/text/Numbers.h"

namespace {

QString criteriaOf(int divisionId, int homeTeamId, int visitorTeamId, QDate date) {
    const QString both = QStringLiteral(" AND ");
    return matches("DivisionId", divisionId) + both + matches("HomeTeamId", homeTeamId) + both +
           matches("VisitorTeamId", visitorTeamId) + QStringLiteral(" AND GameDate = ") + datafile::quoted(date);
}

}  // namespace

bool clsResults::FindResults(int divisionId, int homeTeamId, int visitorTeamId, QDate date, bool show, bool load) {
    return findOrTell(criteriaOf(divisionId, homeTeamId, visitorTeamId, date), show, load);
}

bool clsResults::FindResultsWithTime(int divisionId, int homeTeamId, int visitorTeamId, QDate date, QTime time,
                                     bool show, bool load) {
    return findOrTell(criteriaOf(divisionId, homeTeamId, visitorTeamId, date) + QStringLiteral(" AND GameTime = ") +
                          datafile::quoted(time),
                      show, load);
}

bool clsResults::FindResultToDelete(int divisionId, int homeTeamId, int visitorTeamId, QDate date, QTime time,
                                    bool show, bool load) {
    return FindResultsWithTime(divisionId, homeTeamId, visitorTeamId, date, TimeOfDay::toMinute(time), show, load);
}

void clsResults::AddRecordToTempResults2(int teamId, const QString& teamName, int sponsorId, const QString& sponsorName,
                                         int divisionId, const QString& divisionName) {
    datafile::Recordset rows = database().openRecordset("tblTempResults");
    rows.addNew();
    rows.set("TeamId", teamId);
    rows.set("TeamName", datafile::Value{teamName});
    rows.set("SponsorId", sponsorId);
    rows.set("SponsorName", datafile::Value{sponsorName});
    rows.set("DivisionId", divisionId);
    rows.set("DivisionName", datafile::Value{divisionName});
    for (const char* column : {"Wins", "Losses", "Ties", "WinPercentage"}) rows.set(column, 0);
    rows.update();
}

void clsResults::UpdateTempResultRecord(int teamId, int wins, int losses, int ties) {
    datafile::Recordset row =
        database().openRecordset("SELECT * FROM tblTempResults WHERE [TeamId] = " + QString::number(teamId));
    if (row.eof()) return;
    const qint64 games = qint64{wins} + losses + ties;
    const qint64 thousandths = games < 1 ? 0 : (2 * 100'000 * qint64{wins} + games) / (2 * games);  // halves go up
    row.edit();
    row.set("Wins", wins);
    row.set("Losses", losses);
    row.set("Ties", ties);
    row.set("WinPercentage", datafile::Value{static_cast<double>(thousandths) / 1000});
    row.update();
}

bool clsResults::BuildStandings(int divisionId, bool show) {
    return buildStandings(QStringLiteral("tblTeam![DivisionId] = ") + QString::number(divisionId), show);
}

bool clsResults::BuildAllStandings(bool show) {
    return buildStandings(QStringLiteral("tblDivision![DeletedFlag] = False"), show);
}

bool clsResults::buildStandings(const QString& divisions, bool show) {
    bool any = false;
    try {
        datafile::Transaction transaction(database());
        database().execute("DELETE FROM tblTempResults");
        datafile::Recordset teams = database().openRecordset(
            "SELECT tblTeam![TeamId], [TeamName], tblTeam![SponsorId], [SponsorName], tblTeam![DivisionId], [DivName] "
            "FROM tblTeam "
            "LEFT JOIN tblSponsor ON tblTeam![SponsorId] = tblSponsor![SponsorId] "
            "LEFT JOIN tblDivision ON tblTeam![DivisionId] = tblDivision![DivisionId] WHERE " +
            divisions + " ORDER BY [DivName], [TeamName]");
        any = !teams.eof();
        for (; !teams.eof(); teams.moveNext()) {
            const int sponsor = static_cast<int>(teams.number("SponsorId"));
            const QString known = teams.text("SponsorName");
            const QString name = sponsor == 0      ? QStringLiteral("No Sponsor Assigned")
                                 : known.isEmpty() ? QStringLiteral("Sponsor Not Available")
                                                   : known;
            AddRecordToTempResults2(static_cast<int>(teams.number("TeamId")), teams.text("TeamName"), sponsor, name,
                                    static_cast<int>(teams.number("DivisionId")), teams.text("DivName"));
        }
        countGames();
        transaction.commit();
    } catch (const datafile::Error&) {
        if (show)
            context().dialogs.error("Update Results Records",
                                    "An Error has occurred. The\nResults have not been Updated.");
        return false;
    }
    if (!any && show) context().dialogs.warning("Division Standings", "No Records available for the division.");
    return any;
}

/// A game counts once for either side, so twice for a team that played itself.
void clsResults::countGames() {
    datafile::Recordset counts = database().openRecordset(
        "SELECT [TeamId], SUM([Own] > [Other]) as Wins, SUM([Own] < [Other]) as Losses, SUM([Own] = [Other]) as Ties "
        "FROM "
        "(SELECT [HomeTeamId] as TeamId, [HomeTeamScore] as Own, [VisitorTeamScore] as Other FROM tblResults "
        "UNION ALL SELECT [VisitorTeamId], [VisitorTeamScore], [HomeTeamScore] FROM tblResults) "
        "WHERE [TeamId] IN (SELECT [TeamId] FROM tblTempResults) GROUP BY [TeamId]");
    for (; !counts.eof(); counts.moveNext())
        UpdateTempResultRecord(static_cast<int>(counts.number("TeamId")), static_cast<int>(counts.number("Wins")),
                               static_cast<int>(counts.number("Losses")), static_cast<int>(counts.number("Ties")));
}

std::vector<Standing> clsResults::standings() const {
    std::vector<Standing> places;
    datafile::Recordset rows = database().openRecordset(
        "SELECT * from tblTempResults ORDER BY [WinPercentage] DESC, [TeamName]", datafile::Recordset::Type::Snapshot);
    int rank = 0;
    double previous = 99999;
    for (; !rows.eof(); rows.moveNext()) {
        const double percentage = datafile::toReal(rows.value("WinPercentage"));
        if (percentage != previous) ++rank;
        previous = percentage;
        places.push_back({rank, rows.text("TeamName"), rows.text("SponsorName"), static_cast<int>(rows.number("Wins")),
                          static_cast<int>(rows.number("Losses")), static_cast<int>(rows.number("Ties")),
                          formatNumber(percentage, QStringLiteral("##0.000"))});
    }
    return places;
}
