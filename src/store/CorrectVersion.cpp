#include "store/CorrectVersion.h"

#include "store/Housekeeping.h"
#include "store/Journal.h"
#include "store/Schema.h"
#include "store/UpgradeRun.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <optional>

using datafile::Database;
using datafile::Recordset;

namespace {

constexpr char journalModule[] = "UpdateFunctions";
constexpr char versionTable[] = "tblVersion";
constexpr char versionColumn[] = "DBVersion";
constexpr char firstVersion[] = "Version 1.0";
constexpr char firstSeason[] = "2000";

/// The work tables mean nothing between two starts. Mostly they are empty, and then nothing is written. The fee
/// report's came with a later version.
void emptyWorkTables(StoreContext& context, const Database& database) {
    const std::pair<const char*, RecordKind> kinds[] = {
        {"tblTempResults", TempResults}, {"tblTempSearchList", TempSearchList}, {"tblTempFeeReport", TempFeeReport}};
    for (const auto& [name, kind] : kinds) {
        const QString table = QString::fromLatin1(name);
        const bool mayBeMissing = kind == TempFeeReport;
        if (mayBeMissing && !database.table(table)) continue;
        if (!database.openRecordset(table).eof()) DeleteRecords(context, kind);
    }
}

/// The number behind "Version 1." of a file older than the program; nothing for any other text, which counts as
/// current.
std::optional<int> olderVersion(const QString& text) {
    for (int version = 0; version <= upgradeSteps().last().lastVersion; ++version)
        if (text == QStringLiteral("Version 1.%1").arg(version)) return version;
    return {};
}

/// A file of the first versions may come without a version.
QString versionOf(const Database& database) {
    const QString name = QString::fromLatin1(versionTable);
    if (!database.table(name))
        for (const datafile::TableDef& table : schema::tables())
            if (table.name == name) database.createTable(table);
    Recordset rows = database.openRecordset(name);
    return rows.eof() ? QString::fromLatin1(firstVersion) : rows.text(QLatin1String(versionColumn));
}

void writeVersion(const Database& database, const QString& version) {
    Recordset rows = database.openRecordset(QLatin1String(versionTable));
    if (rows.eof())
        rows.addNew();
    else
        rows.edit();
    rows.set(QLatin1String(versionColumn), datafile::Value{version});
    rows.update();
}

/// What a file of the first version gets beyond its step. Until all is done its version says that it is not.
void beginFirstVersion(const Database& database) {
    datafile::Transaction transaction(database);
    writeVersion(database, QString::fromLatin1(firstVersion));
    Recordset options = database.openRecordset(QStringLiteral("tblOptions"));
    if (!options.eof()) {
        options.edit();
        options.set(QStringLiteral("CurrentSeasonYear"), datafile::Value{QString::fromLatin1(firstSeason)});
        options.update();
    }
    transaction.commit();
}

void upgrade(StoreContext& context, const Database& database, int version) {
    for (const UpgradeStep& step : upgradeSteps()) {
        if (step.lastVersion < version) continue;
        runUpgradeStep(step, context, database);
        if (step.lastVersion == 0) beginFirstVersion(database);
    }
    finishUpgrade(database);
    writeVersion(database, GetCurrentDBVersion());
    ClearUpgradeWork(context);
    CompactDataFile(context);
}

/// A program that was ended while it wrote a file leaves it half-made beside its target. What is not a day old may be
/// in the making by a program that still runs.
void removeHalfMadeFiles(const StoreContext& context) {
    const QFileInfo dataFile(context.dataFilePath);
    const QRegularExpression halfMade(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(dataFile.completeBaseName()) +
                                            QStringLiteral("\\.\\w{3}\\.[0-9a-f]{5}~(-journal)?")));
    for (const QFileInfo& file : dataFile.dir().entryInfoList(QDir::Files | QDir::Hidden))
        if (halfMade.match(file.fileName()).hasMatch() && file.lastModified() < context.clock.now().addDays(-1))
            QFile::remove(file.filePath());
}

}  // namespace

QString safetyCopyPath(const StoreContext& context) { return context.dataFilePath.chopped(4) + QStringLiteral(".BKM"); }

bool MakeSafetyCopy(StoreContext& context) {
    try {
        context.workspace.copyDatabase(context.dataFilePath, safetyCopyPath(context));
        return true;
    } catch (const datafile::Error& error) {
        WriteJournal(context.clock, context.dialogs, QLatin1String(journalModule), QStringLiteral("Backup"),
                     error.text());
        return false;
    }
}

bool CorrectVersion(StoreContext& context) {
    try {
        const Database database = context.database();
        emptyWorkTables(context, database);
        MakeSafetyCopy(context);
        removeHalfMadeFiles(context);
        if (const std::optional<int> version = olderVersion(versionOf(database))) upgrade(context, database, *version);
        return true;
    } catch (const datafile::Error& error) {
        WriteJournal(context.clock, context.dialogs, QLatin1String(journalModule), QStringLiteral("CorrectVersion"),
                     error.text());
        return false;
    }
}
