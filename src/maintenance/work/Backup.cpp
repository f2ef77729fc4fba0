#include "maintenance/work/Backup.h"

#include "maintenance/work/Codes.h"
#include "platform/files/Files.h"
#include "store/CorrectVersion.h"
#include "store/Housekeeping.h"

void compactWithoutWorkTables(StoreContext& context, const datafile::Progress& progress) {
    for (const RecordKind kind : {TempResults, TempSearchList, TempFeeReport}) DeleteRecords(context, kind);
    CompactDataFile(context, progress);
}

QStringList purgeDeletedRows(StoreContext& context, const datafile::Progress& progress) {
    QStringList failures;
    const QStringList tables = purgedTables();
    for (qsizetype i = 0; i < tables.size(); ++i) {
        const QString& table = tables[i];
        if (progress) progress(datafile::percentOf(i, tables.size()));
        try {
            DeleteRecords(context, DeletedRows, table);
        } catch (const datafile::Error& error) {
            failures << table + u": " + error.text();
        }
    }
    return failures;
}

int backUp(StoreContext& context, const QString& archive, const archive::Progress& packing,
           const archive::Progress& comparing) {
    if (files::sameFile(archive, safetyCopyPath(context))) return backupCode(archive::Fault::SameFile);
    return backupCode(archive::packAndCompare(context.dataFilePath, archive, packing, comparing));
}
