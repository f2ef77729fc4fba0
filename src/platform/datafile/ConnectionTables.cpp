#include "platform/datafile/Connection.h"

#include "platform/datafile/TableSql.h"

#include <sqlite3.h>

// What a connection knows of the file's tables.

namespace datafile {

QStringList Connection::tableNames() {
    if (!namesKnown_) {
        tableNames_.clear();
        Statement names(*this, QStringLiteral("SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE "
                                              "'sqlite^_%' ESCAPE '^' ORDER BY name"));
        while (names.step()) tableNames_ << names.text(0);
        for (const QString& name : std::as_const(tableNames_)) tables_.insert(name.toLower(), nullptr);
        namesKnown_ = true;
    }
    return tableNames_;
}

void Connection::forgetSchema() {
    dropStatements();  // their columns are those of the old schema
    tables_.clear();
    namesKnown_ = false;
}

/// The engine's own way of adding a column reads all rows of a table with rules, for each column anew.
void Connection::rewriteDefinition(const QString& table, const QString& text) {
    const auto run = [this](const QString& pragma) {
        const int code = sqlite3_exec(handle_, QString(QStringLiteral("PRAGMA ") + pragma).toUtf8().constData(),
                                      nullptr, nullptr, nullptr);
        if (code != SQLITE_OK) raise(sqlite3_extended_errcode(handle_), pragma);
    };
    const auto protect = [this](int on) { sqlite3_db_config(handle_, SQLITE_DBCONFIG_DEFENSIVE, on, nullptr); };
    protect(0);
    try {
        run(QStringLiteral("writable_schema = ON"));
        Statement(*this, QStringLiteral("UPDATE sqlite_schema SET sql = ? WHERE type = 'table' AND name = ?"))
            .bind(Value{text})
            .bind(Value{table})
            .run();
        Statement version(*this, QStringLiteral("PRAGMA schema_version"));
        version.step();
        run(QStringLiteral("schema_version = %1").arg(version.number(0) + 1));
    } catch (...) {
        sqlite3_exec(handle_, "PRAGMA writable_schema = OFF", nullptr, nullptr, nullptr);
        protect(1);
        throw;
    }
    forgetSchema();
    protect(1);
    run(QStringLiteral("writable_schema = RESET"));
}

const TableDef* Connection::table(const QString& name) {
    tableNames();
    const auto found = tables_.find(name.toLower());
    if (found == tables_.end()) return nullptr;
    if (!found.value()) found.value() = std::make_shared<TableDef>(readTable(name));
    return found.value().get();
}

TableDef Connection::readTable(const QString& name) {
    Statement head(
        *this, QStringLiteral("SELECT name, sql FROM sqlite_schema WHERE type = 'table' AND name = ? COLLATE NOCASE"));
    head.bind(Value{name}).step();
    TableDef table{.name = head.text(0)};
    const QString text = head.text(1);
    Statement columns(*this,
                      QStringLiteral("SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info(?)"));
    columns.bind(Value{table.name});
    while (columns.step())
        table.fields << sql::readColumn(columns.text(0), columns.text(1), columns.number(2) != 0,
                                        isNull(columns.value(3)) ? QString() : columns.text(3), columns.number(4) != 0,
                                        text);
    Statement indexes(
        *this, QStringLiteral("SELECT name, \"unique\" FROM pragma_index_list(?) WHERE origin = 'c' ORDER BY name"));
    indexes.bind(Value{table.name});
    while (indexes.step()) {
        IndexDef index{indexes.text(0).mid(table.name.size() + 1), {}, false, indexes.number(1) != 0};
        index.primary = index.unique && index.name == QLatin1String("PrimaryKey");
        Statement parts(*this, QStringLiteral("SELECT name FROM pragma_index_info(?) ORDER BY seqno"));
        parts.bind(Value{indexes.text(0)});
        while (parts.step()) index.fields << parts.text(0);
        table.indexes << index;
    }
    table.relations = sql::readRelations(table.name, text);
    return table;
}

}  // namespace datafile
