#include "store/UpgradeWork.h"

#include "platform/text/Numbers.h"
#include "store/BaseFile.h"
#include "store/LeagueAges.h"
#include "store/Lookup.h"

#include <algorithm>

using datafile::Database;

namespace {

constexpr char lastOrganization[] = "Babe Ruth League";

/// A file's number, as text, or `otherwise` where it holds none.
QString numericField(StoreContext& context, const char* field, const char* query, const QString& otherwise) {
    const QString value = ReadFieldValue(context, context.dataFilePath, QLatin1String(field), QLatin1String(query));
    return isNumeric(value) ? value : otherwise;
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
    recalculateLeagueAges(context, database);
}
