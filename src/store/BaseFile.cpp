#include "store/BaseFile.h"

#include "platform/files/Files.h"
#include "store/Schema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

void addSeedRows(const datafile::Database& database) {
    QFile seed(QStringLiteral(":/seed/base_rows.json"));
    if (!seed.open(QIODevice::ReadOnly)) throw datafile::Error(datafile::Fault::NotFound, QStringLiteral("The program's base rows are missing."));
    const QJsonObject tables = QJsonDocument::fromJson(seed.readAll()).object();
    for (auto table = tables.begin(); table != tables.end(); ++table) {
        datafile::Recordset rows = database.openRecordset(table.key());
        for (const QJsonValue& row : table.value().toArray()) {
            rows.addNew();
            const QJsonObject columns = row.toObject();
            for (auto column = columns.begin(); column != columns.end(); ++column)
                rows.set(column.key(), datafile::Value{column.value().toString()});
            rows.update();
        }
    }
}

}  // namespace

void makeBaseFile(const QString& path) {
    Q_INIT_RESOURCE(seed);
    const QString made = files::temporaryName(path);
    try {
        {
            datafile::Workspace workspace;
            const datafile::Database database = workspace.createDatabase(made);
            datafile::Transaction transaction(database, datafile::Transaction::Kind::Schema);
            for (const datafile::TableDef& table : schema::tables()) database.createTable(table);
            addSeedRows(database);
            datafile::Recordset version = database.openRecordset(QStringLiteral("tblVersion"));
            version.addNew();
            version.set(QStringLiteral("DBVersion"), datafile::Value{GetCurrentDBVersion()});
            version.update();
            transaction.commit();
        }
        files::replaceWith(made, path);
    } catch (const files::Error& error) {
        QFile::remove(made);
        throw datafile::Error(datafile::Fault::InputOutput, error.text());
    } catch (...) {
        QFile::remove(made);
        throw;
    }
}
