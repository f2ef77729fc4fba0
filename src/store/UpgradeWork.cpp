#include "store/UpgradeWork.h"

#include "platform/text/Numbers.h"
#include "store/AgeRule.h"
#include "store/BaseFile.h"
#include "store/Lookup.h"

#include <algorithm>

using datafile::Database;
using datafile::Recordset;

namespace {

constexpr char lastOrganization[] = "Babe Ruth League";

/// A file's number, as text, or `otherwise` where it holds none.
QString numericField(StoreContext& context, const char* field, const char* query, const QString& otherwise) {
    const QString value = ReadFieldValue(context, context.dataFilePath, QLatin1String(field), QLatin1String(query));
    return isNumeric(value) ? value : otherwise;
}

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

void joinZipCodes(StoreContext&, const Database& database) {
    for (const char* prefix : {"Field", "Player", "Sponsor", "Vol"}) {
        const QString table = QString::fromLatin1(qstrcmp(prefix, "Player") == 0 ? "Registration"
                                                  : qstrcmp(prefix, "Vol") == 0  ? "Volunteer"
                                                                                 : prefix);
        database.execute(QStringLiteral("UPDATE tbl%1 SET [%2PostalCode] = IIF([%2ZipCode4] <> \"\", [%2ZipCode] & "
                                        "\"-\" & [%2ZipCode4], [%2ZipCode]), "
                                        "[%2ZipCode] = \"\", [%2ZipCode4] = \"\"")
                             .arg(table, QLatin1String(prefix)));
    }
    for (const auto& [table, prefix] :
         {std::pair{"tblInsurance", "Ins"}, std::pair{"tblOptions", ""}, std::pair{"tblVendor", "Vendor"}})
        database.execute(QStringLiteral("UPDATE %1 SET [%2PostalCode] = [%2ZipCode], [%2ZipCode] = \"\"")
                             .arg(QLatin1String(table), QLatin1String(prefix)));
}

void addCanadianStates(StoreContext&, const Database& database) {
    const QStringList provinces{"NF", "NS", "PE", "NB", "QC", "ON", "MB", "SK", "AB", "BC", "NT", "YU"};
    addBaseRows(database, QStringLiteral("tblState"),
                [&](const BaseRow& row) { return provinces.contains(row.value("StateId")); });
}

void addFirstOfficialNames(StoreContext&, const Database& database) {
    addBaseRows(database, QStringLiteral("tblOfficialDivisionNames"),
                [](const BaseRow& row) { return row.value("OrganizationName") != QLatin1String(lastOrganization); });
}

void addLastOfficialName(StoreContext&, const Database& database) {
    addBaseRows(database, QStringLiteral("tblOfficialDivisionNames"),
                [](const BaseRow& row) { return row.value("OrganizationName") == QLatin1String(lastOrganization); });
}

void computeAges(StoreContext& context, const Database& database) {
    Globals& globals = context.globals;
    constexpr char defaults[] = "SELECT * FROM tblDefaults";
    globals.defaultAgeCutoffMonth = numericField(context, "DefaultAgeCutoffMonth", defaults, QStringLiteral("1"));
    globals.defaultAgeCutoffDay = numericField(context, "DefaultAgeCutoffDay", defaults, QStringLiteral("1"));
    globals.currentSeasonYear = numericField(context, "CurrentSeasonYear", "SELECT * FROM tblOptions",
                                             QString::number(context.clock.today().year()));
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
}
