#pragma once

#include "platform/datafile/Definitions.h"
#include "platform/datafile/Recordset.h"

#include <memory>

namespace datafile {

class Connection;
class Statement;

/// A light handle on an open data file; handles on one path share one connection, which closes with the last of
/// them. Copies are handles on the same file. Every operation raises Error.
class Database {
public:
    explicit Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

    const QString& path() const;

    /// `source` is a table's name or a query in the dialect.
    Recordset openRecordset(const QString& source, Recordset::Type type = Recordset::Type::Dynaset) const;
    /// One column of a query's rows as texts, read in one go and no more of the rows than that column: for lists.
    std::vector<QString> readList(const QString& query, const QString& column) const;
    /// Runs a statement that gives no rows; the number of rows it changed.
    qint64 execute(const QString& statement) const;
    /// A statement in the engine's own language, for work over many rows where a cursor takes too long. It must be gone
    /// before the event loop runs again.
    Statement prepare(const QString& sql) const;
    /// The key of the row that was added last.
    qint64 lastKey() const;
    /// The steps in which the engine would answer the query, for tests ("SEARCH tblDivision USING INDEX ...").
    QStringList queryPlan(const QString& query) const;

    /// Rows changed in the file so far by this process; another number says that something may look different now.
    qint64 changes() const;

    QStringList tableNames() const;
    /// Null when there is none. Valid until the schema changes.
    const TableDef* table(const QString& name) const;
    void createTable(const TableDef& table) const;
    void deleteTable(const QString& name) const;
    /// Old rows read nothing in the new columns, or false in a flag. Columns that are not required and have no default
    /// come without touching a row, however many rows there are.
    void addFields(const QString& table, const QList<FieldDef>& fields) const;
    void deleteField(const QString& table, const QString& field) const;
    /// Gives the table of that name this definition: columns in its order, their rules, indexes and relations. Rows
    /// keep what they hold in columns of the same name and must meet the new rules.
    void changeTable(const TableDef& to) const;
    void addIndex(const QString& table, const IndexDef& index) const;
    void deleteIndex(const QString& table, const QString& index) const;

private:
    friend class Transaction;
    void changeSchema(const QString& statement) const;
    void rebuild(const TableDef& from, const TableDef& to) const;
    TableDef need(const QString& table) const;

    std::shared_ptr<Connection> connection_;
};

/// Everything between its making and commit() is written together or not at all. No box, no event loop and no
/// waiting for a user while one is open. A transaction within another is part of the outer one.
class Transaction {
public:
    enum class Kind { Rows, Schema };
    explicit Transaction(const Database& database, Kind kind = Kind::Rows);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    std::shared_ptr<Connection> connection_;
    bool open_ = true;
};

}  // namespace datafile
