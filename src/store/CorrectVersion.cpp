#include "store/CorrectVersion.h"

#include "store/Journal.h"
#include "store/Schema.h"

#include <QCoreApplication>

namespace {

constexpr char journalModule[] = "UpdateFunctions";
constexpr char safetySuffix[] = ".BKM";

void emptyWorkTables(const datafile::Database& database) {
    datafile::Transaction transaction(database);
    for (const char* table : {"tblTempResults", "tblTempSearchList", "tblTempFeeReport"})
        if (database.table(table)) database.execute(QStringLiteral("DELETE FROM [%1]").arg(QLatin1String(table)));
    transaction.commit();
}

QString versionOf(const datafile::Database& database) {
    if (!database.table("tblVersion")) return QStringLiteral("Version 1.0");
    datafile::Recordset version = database.openRecordset("tblVersion");
    return version.eof() ? QStringLiteral("Version 1.0") : version.text("DBVersion");
}

/// A version before the program's own; any other text counts as current.
bool isOlder(const QString& version) {
    for (int step = 0; step < 39; ++step)
        if (version == QStringLiteral("Version 1.%1").arg(step)) return true;
    return false;
}

}  // namespace

bool MakeSafetyCopy(StoreContext& context) {
    try {
        context.workspace.copyDatabase(context.dataFilePath, context.dataFilePath.chopped(4) + QLatin1String(safetySuffix));
        return true;
    } catch (const datafile::Error& error) {
        WriteJournal(context.clock, context.dialogs, QLatin1String(journalModule), QStringLiteral("Backup"), error.text());
        return false;
    }
}

bool CorrectVersion(StoreContext& context) {
    try {
        const datafile::Database database = context.workspace.openDatabase(context.dataFilePath);
        emptyWorkTables(database);
        MakeSafetyCopy(context);
        const QString version = versionOf(database);
        if (!isOlder(version)) return true;
        throw datafile::Error(datafile::Fault::State,
                              QCoreApplication::translate("store", "The data file is at \"%1\"; this program needs \"%2\".").arg(version, GetCurrentDBVersion()));
    } catch (const datafile::Error& error) {
        WriteJournal(context.clock, context.dialogs, QLatin1String(journalModule), QStringLiteral("CorrectVersion"), error.text());
        return false;
    }
}
