#include "maintenance/work/Backup.h"

#include "maintenance/work/Codes.h"
#include "platform/files/Files.h"
#include "store/CorrectVersion.h"
#include "store/Housekeeping.h"

void compactWithoutWorkTables(StoreContext& context) {
    for (const RecordKind kind : {TempResults, TempSearchList, TempFeeReport}) DeleteRecords(context, kind);
    CompactDataFile(context);
}

QStringList purgeDeletedRows(StoreContext& context) {
    QStringList failures;
    for (const QString& table : purgedTables()) {
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
