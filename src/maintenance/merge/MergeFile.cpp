#include "maintenance/merge/MergeFile.h"

#include "maintenance/merge/MergeSteps.h"
#include "maintenance/work/Backup.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using datafile::Database;
using datafile::Error;
using datafile::Fault;

namespace {

constexpr double firstVersion = 1.38;
constexpr qsizetype numberAt = 8;  ///< in "Version 1.39"
constexpr char memberName[] = "Kestrelmoor.kmr";

bool hasTable(const Database& database, const QString& name) {
    const datafile::TableDef* table = database.table(name);
    if (!table) return false;
    for (const datafile::TableDef& expected : schema::tables()) {
        if (expected.name != name) continue;
        return std::all_of(expected.fields.begin(), expected.fields.end(),
                           [table](const datafile::FieldDef& field) { return table->field(field.name) != nullptr; });
    }
    return false;
}

}  // namespace

MergeFile::MergeFile(StoreContext& context, const QString& path, const datafile::Progress& progress)
    : copy_(context.dataFilePath) {
    constexpr int copied = 40;
    constexpr int checked = 100;
    try {
        datafile::inspectDataFile(path);
        datafile::Workspace::copyUntouched(path, copy_.path);
        if (progress) progress(copied);
        datafile::checkIntegrity(copy_.path, datafile::Check::Quick, datafile::part(progress, copied, checked));
        database_.emplace(context.workspace.openDatabase(copy_.path));
        code_ = judge(*database_);
    } catch (const Error& error) {
        if (error.fault() == Fault::NotADataFile) return;
        if (error.fault() != Fault::Damaged) throw;
        throw Error(
            Fault::Damaged,
            QCoreApplication::translate("Merge", "The data file %1 is damaged.").arg(QDir::toNativeSeparators(path)));
    }
}

MergeFile::Code MergeFile::judge(const Database& database) {
    if (!database.table(QStringLiteral("tblVersion"))) return Code::NotOurs;
    datafile::Recordset versions = database.openRecordset(QStringLiteral("SELECT * FROM tblVersion"));
    if (versions.eof()) return Code::NotOurs;
    if (versions.text(QStringLiteral("DBVersion")).mid(numberAt).toDouble() < firstVersion) return Code::Older;
    for (const MergeStep& step : mergeSteps())
        for (const MergeTable& table : step.tables)
            if (!hasTable(database, QString::fromLatin1(table.name))) return Code::NotOurs;
    return Code::Fits;
}

archive::Fault unpackForMerge(const QString& archive, const QString& to, const archive::Progress& progress) {
    QDir().mkpath(QFileInfo(to).absolutePath());
    QFile::remove(to);
    datafile::removeSidecars(to);
    return archive::unpack(archive, QString::fromLatin1(memberName), to, largestDataFile, progress);
}
