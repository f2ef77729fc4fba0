#include "store/BaseFile.h"

#include "store/Schema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

static void registerSeed() { Q_INIT_RESOURCE(seed); }

namespace {

QJsonObject baseTables() {
    registerSeed();
    QFile seed(QStringLiteral(":/seed/base_rows.json"));
    if (!seed.open(QIODevice::ReadOnly))
        throw datafile::Error(datafile::Fault::NotFound, QStringLiteral("The program's base rows are missing."));
    return QJsonDocument::fromJson(seed.readAll()).object();
}

}  // namespace

void addBaseRows(const datafile::Database& database, const QString& table,
                 const std::function<bool(const BaseRow&)>& wanted) {
    datafile::Recordset rows = database.openRecordset(table);
    for (const QJsonValue& value : baseTables().value(table).toArray()) {
        const QVariantMap columns = value.toObject().toVariantMap();
        BaseRow row;
        for (auto column = columns.begin(); column != columns.end(); ++column)
            row.insert(column.key(), column.value().toString());
        if (wanted && !wanted(row)) continue;
        rows.addNew();
        for (auto column = row.begin(); column != row.end(); ++column)
            rows.set(column.key(), datafile::Value{column.value()});
        rows.update();
    }
}

void makeBaseFile(const QString& path) {
    datafile::Workspace::createWhole(path, [](const QString& made) {
        datafile::Workspace workspace;
        const datafile::Database database = workspace.createDatabase(made);
        datafile::Transaction transaction(database, datafile::Transaction::Kind::Schema);
        for (const datafile::TableDef& table : schema::tables()) database.createTable(table);
        for (const QString& table : baseTables().keys()) addBaseRows(database, table);
        datafile::Recordset version = database.openRecordset(QStringLiteral("tblVersion"));
        version.addNew();
        version.set(QStringLiteral("DBVersion"), datafile::Value{GetCurrentDBVersion()});
        version.update();
        transaction.commit();
    });
}
