#include "platform/datafile/Connection.h"

#include "platform/datafile/DataFile.h"
#include "platform/datafile/SqlFunctions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <cerrno>
#include <sqlite3.h>
#include <utility>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }

constexpr int lockWaitMilliseconds = 2000;
constexpr int mostIdleStatements = 400;

Fault faultOf(int code) {
    switch (code & 0xff) {
        case SQLITE_FULL: return Fault::Full;
        case SQLITE_NOMEM: return Fault::OutOfMemory;
        case SQLITE_BUSY:
        case SQLITE_LOCKED: return Fault::Locked;
        case SQLITE_READONLY:
        case SQLITE_PERM: return Fault::ReadOnly;
        case SQLITE_CANTOPEN: return Fault::ReadOnly;
        case SQLITE_CORRUPT: return Fault::Damaged;
        case SQLITE_NOTADB: return Fault::NotADataFile;
        case SQLITE_IOERR: return Fault::InputOutput;
        default: return Fault::Statement;
    }
}

QString explain(Fault fault, const QString& path) {
    const QString name = QDir::toNativeSeparators(path);
    switch (fault) {
        case Fault::NotFound: return tr("The data file %1 does not exist.").arg(name);
        case Fault::NotADataFile: return tr("The file %1 is not a Kestrelmoor data file.").arg(name);
        case Fault::Damaged:
            return tr("The data file %1 is damaged.  Restore it from a backup or from its safety copy (.BKM).")
                .arg(name);
        case Fault::ReadOnly:
            return tr("The data file %1 cannot be written.  Check the permissions of the file and of its folder.")
                .arg(name);
        case Fault::Locked:
            return tr("The data file %1 is in use by another program.  Close it there and try again.").arg(name);
        case Fault::Full: return tr("There is no space left on the disk of %1.  Nothing was saved.").arg(name);
        case Fault::State: return tr("A part of the work failed.  Nothing of it was saved.");
        case Fault::OutOfMemory: return tr("There is not enough memory.");
        default: return tr("The disk reported an error on %1.  Nothing was saved.").arg(name);
    }
}

}  // namespace

Connection::Connection(QString path, bool mustExist) : path_(std::move(path)) { open(mustExist); }

Connection::~Connection() { close(); }

void Connection::open(bool mustExist) {
    if (mustExist) inspectDataFile(path_);
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (mustExist ? 0 : SQLITE_OPEN_CREATE);
    const int code = sqlite3_open_v2(QFile::encodeName(path_).constData(), &handle_, flags, nullptr);
    try {
        if (code != SQLITE_OK) raise(code, {});
        configure();
        if (!mustExist) {
            Statement(*this, QStringLiteral("PRAGMA application_id = %1").arg(applicationId)).run();
            return;
        }
        if (sqlite3_db_readonly(handle_, "main") == 1 || !files::canWriteFolder(QFileInfo(path_).absolutePath()))
            throw Error(Fault::ReadOnly, explain(Fault::ReadOnly, path_));
        Statement pages(*this,
                        QStringLiteral("SELECT page_count * page_size FROM pragma_page_count, pragma_page_size"));
        pages.step();
        if (pages.number(0) > QFileInfo(path_).size()) throw Error(Fault::Damaged, explain(Fault::Damaged, path_));
        tableNames();
    } catch (...) {
        close();
        throw;
    }
}

void Connection::configure() {
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_timeout(handle_, lockWaitMilliseconds);
    for (const int option : {SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL, SQLITE_DBCONFIG_TRUSTED_SCHEMA,
                             SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW})
        sqlite3_db_config(handle_, option, 0, nullptr);
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sql::addFunctions(handle_);
    for (const char* pragma : {"foreign_keys = ON", "synchronous = EXTRA", "temp_store = MEMORY", "cache_size = -16000",
                               "cell_size_check = ON", "locking_mode = NORMAL", "journal_mode = DELETE"})
        Statement(*this, QStringLiteral("PRAGMA ") + QLatin1String(pragma)).run();
}

void Connection::close() {
    dropStatements();
    sqlite3_close_v2(std::exchange(handle_, nullptr));
    depth_ = 0;
    ended_.reset();
    forgetSchema();
}

void Connection::reopen() {
    ++epoch_;
    open(true);
}

qint64 Connection::changes() const { return sqlite3_total_changes64(handle_); }
qint64 Connection::lastKey() const { return sqlite3_last_insert_rowid(handle_); }

sqlite3_stmt* Connection::take(const QString& sql) {
    if (!handle_) throw Error(Fault::NotFound, explain(Fault::NotFound, path_));
    if (ended_) throw Error(*ended_, explain(*ended_, path_));
    if (sqlite3_stmt* idle = idle_.take(sql)) return idle;
    sqlite3_stmt* statement = nullptr;
    const QByteArray text = sql.toUtf8();
    const int code = sqlite3_prepare_v3(handle_, text.constData(), static_cast<int>(text.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (code != SQLITE_OK) raise(sqlite3_extended_errcode(handle_), sql);
    return statement;
}

void Connection::giveBack(const QString& sql, sqlite3_stmt* statement) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (!handle_ || idle_.contains(sql)) {
        sqlite3_finalize(statement);
        return;
    }
    if (idle_.size() >= mostIdleStatements) dropStatements();
    idle_.insert(sql, statement);
}

void Connection::dropStatements() {
    for (sqlite3_stmt* statement : std::as_const(idle_)) sqlite3_finalize(statement);
    idle_.clear();
}

void Connection::raise(int code, const QString& sql) {
    const QString message = handle_ ? QString::fromUtf8(sqlite3_errmsg(handle_)) : QString();
    const QString what = message.section(QStringLiteral(": "), 1);
    const QString column = what.section(u'.', -1);
    switch (code) {
        case SQLITE_CONSTRAINT_CHECK: {
            const QString name = what.section(u':', 0, 0);
            const QString rule = what.section(u':', 1);
            if (rule == QLatin1String("empty"))
                throw Error(Fault::NotAllowed, tr("The column %1 may not be empty.").arg(name));
            throw Error(Fault::TooLong,
                        tr("The text is too long for the column %1, which takes %2 characters.").arg(name, rule));
        }
        case SQLITE_CONSTRAINT_NOTNULL:
            throw Error(Fault::Required, tr("A value is required in the column %1.").arg(column));
        case SQLITE_CONSTRAINT_UNIQUE:
        case SQLITE_CONSTRAINT_PRIMARYKEY:
        case SQLITE_CONSTRAINT_ROWID: throw Error(Fault::Duplicate, tr("Another row has the same %1.").arg(what));
        case SQLITE_CONSTRAINT_FOREIGNKEY: {
            QStringList columns;
            for (const QString& name : tableNames())
                if (const TableDef* def = sql.contains(name, Qt::CaseInsensitive) ? table(name) : nullptr)
                    for (const QString& other : tableNames())
                        for (const RelationDef& relation : table(other)->relations)
                            if (relation.foreignTable == def->name || relation.table == def->name)
                                columns << relation.foreignTable + u'.' + relation.foreignField;
            columns.removeDuplicates();
            throw Error(
                Fault::Relation,
                tr("Rows that belong together would be torn apart: %1.").arg(columns.join(QStringLiteral(", "))));
        }
        default: break;
    }
    Fault fault = faultOf(code);
    const bool ofSystem =
        fault == Fault::InputOutput || fault == Fault::ReadOnly;  // a journal that cannot be made, too
    if (ofSystem && handle_ && (sqlite3_system_errno(handle_) == ENOSPC || sqlite3_system_errno(handle_) == EDQUOT))
        fault = Fault::Full;
    if (depth_ > 0 && handle_ && sqlite3_get_autocommit(handle_)) ended_ = fault;
    throw Error(fault, fault == Fault::Statement ? QString(message + u'\n' + sql) : explain(fault, path_));
}

void Connection::begin(bool schema) {
    if (depth_ == 0) {
        if (schema) Statement(*this, QStringLiteral("PRAGMA foreign_keys = OFF")).run();
        schemaTransaction_ = schema;
        try {
            Statement(*this, QStringLiteral("BEGIN IMMEDIATE")).run();
        } catch (const Error&) {
            watchRelations();
            throw;
        }
    }
    ++depth_;
}

void Connection::commit() {
    if (depth_ > 1) {
        --depth_;
        return;
    }
    if (schemaTransaction_) {
        Statement broken(*this, QStringLiteral("PRAGMA foreign_key_check"));
        if (broken.step())
            throw Error(Fault::Relation, tr("Rows that belong together would be torn apart: %1.").arg(broken.text(0)));
    }
    const quint32 before = commitsInFile();
    try {
        Statement(*this, QStringLiteral("COMMIT")).run();
    } catch (const Error&) {
        if (!hasMoreCommits(before)) throw;
    }
    depth_ = 0;
    watchRelations();
}

/// Behind the end of a transaction: relations, if it was one of the schema, are watched again.
void Connection::watchRelations() {
    if (std::exchange(schemaTransaction_, false) && handle_)
        sqlite3_exec(handle_, "PRAGMA foreign_keys = ON", nullptr, nullptr, nullptr);
}

/// The count of commits in the file's header. Reading from the file first takes back a commit that was cut short.
quint32 Connection::commitsInFile() {
    constexpr qint64 countAt = 24;
    Statement(*this, QStringLiteral("SELECT 1 FROM sqlite_schema")).step();
    sqlite3_file* file = nullptr;
    quint32 count = 0;
    int code = sqlite3_file_control(handle_, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (code == SQLITE_OK) code = file->pMethods->xRead(file, &count, sizeof count, countAt);
    if (code != SQLITE_OK) raise(code, {});
    return qFromBigEndian(count);
}

/// After a commit that failed: whether it is in the file all the same.
bool Connection::hasMoreCommits(quint32 than) {
    if (!sqlite3_get_autocommit(handle_)) return false;  // it did not even begin
    ended_.reset();
    try {
        return commitsInFile() != than;
    } catch (const Error&) {
        return false;
    }
}

void Connection::rollback() {
    if (depth_ == 0) return;
    if (handle_ && !sqlite3_get_autocommit(handle_)) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    if (--depth_ > 0) {
        if (!ended_) ended_ = Fault::State;
        return;
    }
    ended_.reset();
    watchRelations();
    forgetSchema();
}

}  // namespace datafile
