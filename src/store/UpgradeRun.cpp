#include "store/UpgradeRun.h"

#include "store/Schema.h"

#include <algorithm>

using datafile::Database;
using datafile::Error;
using datafile::Fault;
using datafile::FieldDef;
using datafile::IndexDef;
using datafile::TableDef;

namespace {

bool sameName(const QString& one, const QString& other) { return one.compare(other, Qt::CaseInsensitive) == 0; }

/// False when the file refused a part of the work.
template <class Work>
bool unlessRefused(Work work) {
    try {
        work();
        return true;
    } catch (const Error& error) {
        if (!datafile::isRefusal(error.fault())) throw;
        return false;
    }
}

TableDef finalTable(const QString& name) {
    for (const TableDef& table : schema::tables())
        if (sameName(table.name, name)) return table;
    throw Error(Fault::Statement, name);
}

const IndexDef* indexOf(const TableDef& table, const QString& name) {
    const auto found = std::find_if(table.indexes.begin(), table.indexes.end(),
                                    [&](const IndexDef& each) { return sameName(each.name, name); });
    return found == table.indexes.end() ? nullptr : &*found;
}

const TableDef& standing(const Database& database, const QString& name) {
    if (const TableDef* table = database.table(name)) return *table;
    throw Error(Fault::Statement, name);
}

/// Old rows hold nothing in a new column, whatever its default; the default comes when the upgrade is finished.
void addColumns(const Database& database, const Change& change) {
    const TableDef table = finalTable(change.table);
    QList<FieldDef> fields;
    for (const QString& name : change.names) {
        fields << *table.field(name);
        FieldDef& field = fields.last();
        if (field.type != datafile::ColumnType::Boolean) field.hasDefault = false, field.defaultValue.clear();
    }
    database.addFields(change.table, fields);
}

void takeFinalRules(const Database& database, const Change& change) {
    const TableDef end = finalTable(change.table);
    const TableDef& now = standing(database, change.table);
    TableDef to = now;
    for (FieldDef& field : to.fields)
        if (change.names.contains(field.name, Qt::CaseInsensitive)) field = *end.field(field.name);
    if (to != now) database.changeTable(to);
}

void createTable(const Database& database, const Change& change) {
    TableDef table = finalTable(change.table);
    table.fields.removeIf([&](const FieldDef& field) { return change.names.contains(field.name); });
    table.indexes.clear();
    database.createTable(table);
}

void apply(const Change& change, StoreContext& context, const Database& database) {
    switch (change.kind) {
        case Change::Kind::AddColumns: return addColumns(database, change);
        case Change::Kind::DropColumns:
            for (const QString& name : change.names) database.deleteField(change.table, name);
            return;
        case Change::Kind::FinalRules: return takeFinalRules(database, change);
        case Change::Kind::CreateTable: return createTable(database, change);
        case Change::Kind::DropTable: return database.deleteTable(change.table);
        case Change::Kind::AddIndexes:
            for (const QString& name : change.names)
                database.addIndex(change.table, *indexOf(finalTable(change.table), name));
            return;
        case Change::Kind::DropIndex: return database.deleteIndex(change.table, change.names.first());
        case Change::Kind::Work: return change.work(context, database);
    }
}

/// The table as a new file has it, and behind that what only this file has.
TableDef withOwn(TableDef end, const TableDef& now) {
    for (const FieldDef& field : now.fields)
        if (!end.field(field.name)) end.fields << field;
    for (const IndexDef& index : now.indexes)
        if (!indexOf(end, index.name)) end.indexes << index;
    return end;
}

void finishTable(const Database& database, const TableDef& end) {
    const TableDef* found = database.table(end.name);
    if (!found) return database.createTable(end);
    const TableDef now = *found;
    const TableDef to = withOwn(end, now);
    if (to.fields != now.fields || to.relations != now.relations) return database.changeTable(to);
    for (const IndexDef& index : to.indexes) {
        const IndexDef* old = indexOf(now, index.name);
        if (old && *old == index) continue;
        if (old) database.deleteIndex(end.name, old->name);
        database.addIndex(end.name, index);
    }
}

}  // namespace

void runUpgradeStep(const UpgradeStep& step, StoreContext& context, const Database& database) {
    unlessRefused([&] {
        datafile::Transaction transaction(database, datafile::Transaction::Kind::Schema);
        unlessRefused([&] {
            for (const Change& change : step.changes) apply(change, context, database);
        });
        transaction.commit();
    });
}

void finishUpgrade(const Database& database) {
    const QList<TableDef> tables = schema::tables();
    const auto finish = [&](const QList<TableDef>& some) {
        return unlessRefused([&] {
            datafile::Transaction transaction(database, datafile::Transaction::Kind::Schema);
            for (const TableDef& table : some) finishTable(database, table);
            transaction.commit();
        });
    };
    if (finish(tables)) return;
    for (const TableDef& table : tables) finish({table});
}
