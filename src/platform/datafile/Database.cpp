#include "platform/datafile/Database.h"

#include "platform/datafile/Connection.h"
#include "platform/datafile/TableSql.h"

#include <QCoreApplication>
#include <algorithm>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }

dialect::TableLookup lookup(Connection& connection) {
    return [&connection](const QString& name) { return connection.table(name); };
}

bool sameName(const QString& one, const QString& other) { return one.compare(other, Qt::CaseInsensitive) == 0; }

}  // namespace

const QString& Database::path() const { return connection_->path(); }

Recordset Database::openRecordset(const QString& source, Recordset::Type type) const {
    return Recordset(connection_, source, type);
}

std::vector<QString> Database::readList(const QString& query, const QString& column) const {
    const dialect::Shape shape = dialect::shapeOf(query);
    const dialect::Query parts = dialect::translateQuery(shape.text, lookup(*connection_));
    Statement statement(*connection_, QStringLiteral("SELECT %1 FROM (%2)").arg(sql::identifier(column), parts.whole));
    statement.bind(shape.values);
    std::vector<QString> list;
    while (statement.step()) list.push_back(statement.text(0));
    return list;
}

qint64 Database::execute(const QString& text) const {
    const dialect::Shape shape = dialect::shapeOf(text);
    const qint64 before = connection_->changes();
    connection_->write([&] {
        Statement(*connection_, dialect::translate(shape.text, lookup(*connection_))).bind(shape.values).run();
    });
    return connection_->changes() - before;
}

Statement Database::prepare(const QString& sql) const { return Statement(*connection_, sql); }
qint64 Database::lastKey() const { return connection_->lastKey(); }

QStringList Database::queryPlan(const QString& query) const {
    const dialect::Shape shape = dialect::shapeOf(query);
    Statement plan(*connection_,
                   QStringLiteral("EXPLAIN QUERY PLAN ") + dialect::translate(shape.text, lookup(*connection_)));
    plan.bind(shape.values);
    QStringList steps;
    while (plan.step()) steps << plan.text(3);
    return steps;
}

qint64 Database::changes() const { return (qint64{connection_->epoch()} << 48) + connection_->changes(); }

QStringList Database::tableNames() const { return connection_->tableNames(); }
const TableDef* Database::table(const QString& name) const { return connection_->table(name); }

TableDef Database::need(const QString& table) const {
    const TableDef* found = connection_->table(table);
    if (!found) throw Error(Fault::Statement, tr("There is no table %1.").arg(table));
    return *found;
}

void Database::createTable(const TableDef& table) const {
    if (connection_->table(table.name))
        throw Error(Fault::Statement, tr("There is a table %1 already.").arg(table.name));
    Transaction transaction(*this, Transaction::Kind::Schema);
    Statement(*connection_, sql::createTable(table)).run();
    for (const IndexDef& index : table.indexes) Statement(*connection_, sql::createIndex(table.name, index)).run();
    transaction.commit();
    connection_->forgetSchema();
}

void Database::deleteTable(const QString& name) const {
    const QString table = need(name).name;
    Transaction transaction(*this, Transaction::Kind::Schema);
    Statement(*connection_, QStringLiteral("DROP TABLE ") + sql::identifier(table)).run();
    transaction.commit();
    connection_->forgetSchema();
}

void Database::addFields(const QString& table, const QList<FieldDef>& fields) const {
    const TableDef from = need(table);
    TableDef to = from;
    bool plain = true;
    for (const FieldDef& field : fields) {
        if (to.field(field.name))
            throw Error(Fault::Statement, tr("The table %1 has a column %2 already.").arg(table, field.name));
        const bool flag = field.type == ColumnType::Boolean;
        plain = plain && (flag || (!field.hasDefault && !field.required)) && field.type != ColumnType::AutoKey;
        to.fields << field;
    }
    if (!plain) return rebuild(from, to);
    Transaction transaction(*this, Transaction::Kind::Schema);
    connection_->rewriteDefinition(from.name, sql::createTable(to));
    transaction.commit();
}

void Database::deleteField(const QString& table, const QString& field) const {
    const TableDef from = need(table);
    if (!from.field(field)) throw Error(Fault::Statement, tr("The table %1 has no column %2.").arg(table, field));
    TableDef to = from;
    to.fields.removeIf([&](const FieldDef& each) { return sameName(each.name, field); });
    to.indexes.removeIf([&](const IndexDef& index) { return index.fields.contains(field, Qt::CaseInsensitive); });
    to.relations.removeIf([&](const RelationDef& relation) { return sameName(relation.foreignField, field); });
    rebuild(from, to);
}

void Database::changeTable(const TableDef& to) const { rebuild(need(to.name), to); }

void Database::addIndex(const QString& table, const IndexDef& index) const {
    changeSchema(sql::createIndex(need(table).name, index));
}

void Database::deleteIndex(const QString& table, const QString& index) const {
    changeSchema(QStringLiteral("DROP INDEX ") + sql::identifier(sql::indexName(need(table).name, index)));
}

void Database::changeSchema(const QString& statement) const {
    connection_->write([&] { Statement(*connection_, statement).run(); });
    connection_->forgetSchema();
}

/// The file's engine changes a column by making the table anew: new table, rows over, old one away, indexes again.
void Database::rebuild(const TableDef& from, const TableDef& to) const {
    Transaction transaction(*this, Transaction::Kind::Schema);
    TableDef made = to;
    made.name = to.name + QStringLiteral(" (new)");
    QStringList columns{QStringLiteral("rowid")};
    QStringList values = columns;
    for (const FieldDef& field : to.fields) {
        const bool isNew = !from.field(field.name);
        if (isNew && (field.required || field.type == ColumnType::Boolean)) continue;  // takes its default
        columns << sql::identifier(field.name);
        values << (isNew ? QStringLiteral("NULL") : columns.last());
    }
    QStringList statements{sql::createTable(made), QStringLiteral("INSERT INTO %1 (%2) SELECT %3 FROM %4")
                                                       .arg(sql::identifier(made.name), columns.join(u','),
                                                            values.join(u','), sql::identifier(from.name))};
    const auto isKey = [](const FieldDef& field) { return field.type == ColumnType::AutoKey; };
    if (std::any_of(to.fields.begin(), to.fields.end(), isKey))  // a key that was given out is never given out again
        statements << QStringLiteral("DELETE FROM sqlite_sequence WHERE name = ") + sql::literal(made.name)
                   << QStringLiteral("INSERT INTO sqlite_sequence SELECT %1, seq FROM sqlite_sequence WHERE name = %2")
                          .arg(sql::literal(made.name), sql::literal(from.name));
    statements
        << QStringLiteral("DROP TABLE ") + sql::identifier(from.name)
        << QStringLiteral("PRAGMA legacy_alter_table = ON")
        << QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(sql::identifier(made.name), sql::identifier(to.name))
        << QStringLiteral("PRAGMA legacy_alter_table = OFF");
    for (const QString& statement : statements) Statement(*connection_, statement).run();
    for (const IndexDef& index : to.indexes) Statement(*connection_, sql::createIndex(to.name, index)).run();
    transaction.commit();
    connection_->forgetSchema();
}

Transaction::Transaction(const Database& database, Kind kind) : connection_(database.connection_) {
    connection_->begin(kind == Kind::Schema);
}

Transaction::~Transaction() {
    if (open_) connection_->rollback();
}

void Transaction::commit() {
    connection_->commit();
    open_ = false;
}

}  // namespace datafile
