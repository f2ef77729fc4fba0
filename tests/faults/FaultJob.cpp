#include "faults/FaultJob.h"

#include <gtest/gtest.h>

#include <QFile>

#include "platform/datafile/DataFile.h"
#include "store/BaseFile.h"
#include "support/Printing.h"
#include "support/QuietDialogs.h"

const QString FaultJob::done = QStringLiteral("done");

namespace {

bool isDataFile(const QString& path) {
    return path.endsWith(QLatin1String(".kmr")) || path.endsWith(QLatin1String(".BKM"));
}

QString tableText(const datafile::Database& database, const QString& name) {
    const datafile::TableDef& table = *database.table(name);
    QStringList parts{name};
    for (const datafile::FieldDef& field : table.fields)
        parts << QStringLiteral("%1 %2 %3 %4 %5 %6")
                     .arg(field.name)
                     .arg(int(field.type))
                     .arg(field.size)
                     .arg(field.required)
                     .arg(field.allowZeroLength)
                     .arg(field.hasDefault ? field.defaultValue : QStringLiteral("-"));
    QStringList indexes;
    for (const datafile::IndexDef& index : table.indexes) indexes << index.name + '(' + index.fields.join(',') + ')';
    indexes.sort();
    parts += indexes;
    datafile::Recordset rows = database.openRecordset(name);
    for (; !rows.eof(); rows.moveNext()) {
        QString row;
        for (int field = 0; field < rows.fieldCount(); ++field) row += datafile::toText(rows.value(field)) + '|';
        parts << row;
    }
    return parts.join('\n');
}

QString contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    if (!isDataFile(path)) return QString::fromLatin1(file.readAll());
    datafile::checkIntegrity(path);
    datafile::Workspace workspace;
    const datafile::Database database = workspace.openDatabase(path);
    QStringList tables = database.tableNames();
    tables.sort();
    for (QString& table : tables) table = tableText(database, table);
    return tables.join(QStringLiteral("\n\n"));
}

}  // namespace

QMap<QString, QString> LeagueFolder::contents() const {
    QMap<QString, QString> contents;
    for (const QString& name : entryList(QDir::Files)) contents[name] = contentOf(filePath(name));
    return contents;
}

void LeagueFolder::with(const std::function<void(StoreContext&)>& work) const {
    datafile::Workspace workspace;
    FixedClock clock(QDateTime(QDate(2026, 4, 22), QTime(12, 0)));
    QuietDialogs dialogs;
    StoreContext context{workspace, clock, dialogs, dataFile()};
    context.globals.currentSeasonYear = QStringLiteral("2026");
    work(context);
}

void LeagueFolder::makeLeague(const std::function<void(StoreContext&)>& fill) const {
    makeBaseFile(dataFile());
    if (!fill) return;
    with([&](StoreContext& context) {
        datafile::Transaction transaction(context.database());
        fill(context);
        transaction.commit();
    });
}

bool isFullSweep() { return qgetenv("KESTREL_FAULTS") == "full"; }

bool Aftermath::saidDone() const { return !told.empty() && told.last() == FaultJob::done; }

void FaultJob::expectBeforeOrAfter(const Aftermath& aftermath) {
    QStringList names = aftermath.before.keys() + aftermath.after.keys();
    names.removeDuplicates();
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        const bool was = aftermath.now.value(name) == aftermath.before.value(name);
        const bool is = aftermath.now.value(name) == aftermath.after.value(name);
        EXPECT_TRUE(was || is) << "the work is there in part";
        EXPECT_TRUE(aftermath.died || (aftermath.saidDone() ? is : was)) << "the user was told otherwise";
    }
}

std::function<std::function<QString()>(StoreContext&)> FaultJob::step(std::function<void(StoreContext&)> work) {
    return [work = std::move(work)](StoreContext& context) {
        return [&context, work] {
            work(context);
            return done;
        };
    };
}
