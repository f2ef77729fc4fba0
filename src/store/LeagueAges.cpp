#include "store/LeagueAges.h"

#include "store/AgeRule.h"

#include <QHash>

using datafile::Database;
using datafile::Recordset;

namespace {

QHash<qint64, CutOff> cutOffs(const Database& database) {
    QHash<qint64, CutOff> divisions;
    Recordset rows = database.openRecordset(QStringLiteral("SELECT * FROM tblDivision ORDER BY DivisionId"));
    for (; !rows.eof(); rows.moveNext())
        divisions.insert(rows.number(QStringLiteral("DivisionId")), {rows.text(QStringLiteral("DivAgeCutOffMonth")),
                                                                     rows.text(QStringLiteral("DivAgeCutOffDay"))});
    return divisions;
}

using Ages = std::vector<std::pair<qint64, int>>;  ///< player -> age

/// Many rows in one statement: a statement for each row takes ten times as long.
void writeAges(const Database& database, const Ages& ages) {
    constexpr size_t block = 500;
    for (size_t from = 0; from < ages.size(); from += block) {
        QStringList rows;
        for (size_t i = from; i < std::min(from + block, ages.size()); ++i)
            rows << QStringLiteral("(%1, %2)").arg(ages[i].first).arg(ages[i].second);
        database.execute(
            QStringLiteral("UPDATE tblRegistration SET [PlayerAge] = computed.column2 FROM (VALUES %1) AS computed "
                           "WHERE [PlayerId] = computed.column1")
                .arg(rows.join(u',')));
    }
}

}  // namespace

void recalculateLeagueAges(StoreContext& context, const Database& database) {
    const Globals& globals = context.globals;
    datafile::Transaction transaction(database);
    const CutOff standard{globals.defaultAgeCutoffMonth, globals.defaultAgeCutoffDay};
    const QHash<qint64, CutOff> divisions = cutOffs(database);

    Recordset players =
        database.openRecordset(QStringLiteral("SELECT [PlayerId], [PlayerDivisionId], [PlayerBirthDate], [PlayerAge] "
                                              "FROM tblRegistration ORDER BY [PlayerId]"));
    const int id = players.field(QStringLiteral("PlayerId"));
    const int division = players.field(QStringLiteral("PlayerDivisionId"));
    const int birth = players.field(QStringLiteral("PlayerBirthDate"));
    const int age = players.field(QStringLiteral("PlayerAge"));
    Ages changed;
    for (; !players.eof(); players.moveNext()) {
        const QDate born = datafile::toDate(players.value(birth));
        if (!born.isValid()) continue;
        const CutOff cutOff = cutOffByField(divisions.value(datafile::toNumber(players.value(division))), standard);
        const int years = CalculateAge(born.toString(QStringLiteral("M/d/yyyy")), cutOff.month, cutOff.day,
                                       globals.currentSeasonYear);
        if (datafile::toNumber(players.value(age), -1) != years)
            changed.emplace_back(datafile::toNumber(players.value(id)), years);
    }
    writeAges(database, changed);
    transaction.commit();
}
