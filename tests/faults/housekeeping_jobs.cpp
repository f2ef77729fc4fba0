#include <gtest/gtest.h>

#include "faults/Jobs.h"
#include "store/Housekeeping.h"

// The compact, and the purge: each table's rows go together, one table after the other.

void prepareEveryTable(const LeagueFolder& folder) {
    folder.makeLeague([](StoreContext& context) {
        const datafile::Database database = context.database();
        QStringList tables = purgedTables();
        std::reverse(tables.begin(), tables.end());  // what others refer to comes first
        for (const QString& table : tables) {
            datafile::Recordset rows = database.openRecordset(table);
            for (int number = 1; number <= 6; ++number) {
                rows.addNew();
                for (const datafile::FieldDef& field : database.table(table)->fields) {
                    if (field.name == u"DeletedFlag")
                        rows.set(field.name, number % 2 == 0);
                    else if (field.type == datafile::ColumnType::Long || field.type == datafile::ColumnType::Integer)
                        rows.set(field.name, number);
                    else if (field.type == datafile::ColumnType::Text && field.required)
                        rows.set(field.name, QString::number(number));
                    else if (field.type == datafile::ColumnType::Date)
                        rows.set(field.name, QDate(2012, 4, number));
                }
                rows.update();
            }
        }
    });
}

namespace {

int deletedRows(const datafile::Database& database, const QString& table) {
    return database.openRecordset("SELECT * FROM " + table + " WHERE [DeletedFlag] = True").recordCount();
}

void purge(StoreContext& context) {
    for (const QString& table : purgedTables()) DeleteRecords(context, DeletedRows, table);
}

/// Tables up to one are purged and those behind it untouched.
void judgePurge(const Aftermath& aftermath) {
    aftermath.folder.with([&](StoreContext& context) {
        const datafile::Database database = context.database();
        int untouched = 0;
        for (const QString& table : purgedTables()) {
            SCOPED_TRACE(table.toStdString());
            const int deleted = deletedRows(database, table);
            EXPECT_TRUE(deleted == 0 || deleted == 3) << "the table is purged in part";
            EXPECT_TRUE(deleted == 3 || untouched == 0) << "a table before it is not purged";
            untouched += deleted > 0;
        }
        EXPECT_TRUE(aftermath.died || aftermath.saidDone() == (untouched == 0)) << "the user was told otherwise";
    });
}

void purgeAnew(const Aftermath& aftermath) {
    aftermath.folder.with(purge);
    EXPECT_TRUE(aftermath.folder.contents() == aftermath.after);
}

}  // namespace

QList<FaultJob> housekeepingJobs() {
    return {{.name = "purge",
             .samples = 8,
             .prepare = prepareEveryTable,
             .begin = FaultJob::step(purge),
             .judge = judgePurge,
             .next = purgeAnew},
            {.name = "compact",
             .samples = 8,
             .prepare = prepareEveryTable,
             .begin = FaultJob::step([](StoreContext& context) { CompactDataFile(context); })}};
}
