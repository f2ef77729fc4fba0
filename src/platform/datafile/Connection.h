#pragma once

#include "platform/datafile/Definitions.h"
#include "platform/datafile/Error.h"
#include "platform/datafile/Value.h"

#include <QHash>
#include <memory>
#include <optional>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace datafile {

class Connection;

/// A prepared statement on loan: reset and given back when it goes out of scope.
class Statement {
public:
    Statement(Connection& connection, const QString& sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Binds `count` values from `from` on, behind those already bound.
    Statement& bind(const Values& values, size_t from = 0, size_t count = SIZE_MAX);
    Statement& bind(const Value& value);
    /// To the next row; false when there is none. Raises Error.
    bool step();
    /// Runs a statement that gives no rows.
    void run() {
        while (step()) {
        }
    }
    /// Ready to be bound anew and run once more.
    void reset();
    int columns() const;
    QString name(int column) const;
    QString declaredType(int column) const;
    Value value(int column) const;
    QString text(int column) const;
    qint64 number(int column) const;

private:
    Connection& connection_;
    QString sql_;
    sqlite3_stmt* statement_;
    int bound_ = 0;
    std::vector<QByteArray> texts_;  ///< bound; the engine reads them here
};

/// The one open connection to a data file; every handle on the file's path shares it.
class Connection {
public:
    /// Opens the file and checks that it is ours and whole; raises Error and leaves the file as it is otherwise.
    Connection(QString path, bool mustExist);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    const QString& path() const { return path_; }
    /// Goes up whenever the file under the connection was replaced: what was read before is stale.
    int epoch() const { return epoch_; }
    /// Rows changed through this connection so far.
    qint64 changes() const;
    qint64 lastKey() const;

    /// A table's definition; null when there is none. Valid until the schema changes.
    const TableDef* table(const QString& name);
    QStringList tableNames();
    void forgetSchema();
    /// Puts `text`, a CREATE TABLE that adds columns behind those of the table, in the place of the table's own. Its
    /// rows stay as they are. Within a transaction.
    void rewriteDefinition(const QString& table, const QString& text);

    /// Closes the file, lets `between` do its work on it, and opens it again.
    template <class Work>
    void whileClosed(Work between) {
        close();
        try {
            between();
        } catch (...) {
            reopen();
            throw;
        }
        reopen();
    }

    /// Nested transactions count as part of the outermost: where one is rolled back, or the disk fails in it, nothing
    /// more can be done until the outermost is rolled back too. `schema`: relations are not watched until the commit.
    void begin(bool schema);
    /// When it raises, nothing was written: a commit that reports a failure is looked up in the file before that is
    /// said.
    void commit();
    void rollback();
    /// Runs `work` as a transaction of its own, or as part of the open one.
    template <class Work>
    void write(Work work) {
        if (inTransaction()) return work();
        begin(false);
        try {
            work();
            commit();
        } catch (...) {
            rollback();
            throw;
        }
    }
    bool inTransaction() const { return depth_ > 0; }

    [[noreturn]] void raise(int code, const QString& sql);

private:
    friend class Statement;
    friend class Watch;
    void open(bool mustExist);
    void close();
    void reopen();
    void configure();
    sqlite3_stmt* take(const QString& sql);
    void giveBack(const QString& sql, sqlite3_stmt* statement);
    void dropStatements();
    TableDef readTable(const QString& name);
    void watchRelations();
    quint32 commitsInFile();
    bool hasMoreCommits(quint32 than);

    QString path_;
    sqlite3* handle_ = nullptr;
    int epoch_ = 0;
    int depth_ = 0;
    bool schemaTransaction_ = false;
    std::optional<Fault> ended_;  ///< what ended the open transaction before its time
    QHash<QString, sqlite3_stmt*> idle_;
    QStringList tableNames_;
    bool namesKnown_ = false;
    QHash<QString, std::shared_ptr<TableDef>> tables_;  ///< by lower-case name
};

}  // namespace datafile
