#include "platform/datafile/Connection.h"

#include "platform/datafile/DataFile.h"
#include "platform/datafile/TableSql.h"
#include "platform/text/Collation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVarLengthArray>
#include <QtEndian>
#include <cerrno>
#include <sqlite3.h>
#include <utility>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }

constexpr int lockWaitMilliseconds = 2000;
constexpr int mostIdleStatements = 400;

/// Texts joined, nothing read as "".
void joined(sqlite3_context* context, int count, sqlite3_value** values) {
    QVarLengthArray<char, 256> text;
    for (int i = 0; i < count; ++i) {
        const int size = sqlite3_value_bytes(values[i]);
        text.append(static_cast<const char*>(sqlite3_value_blob(values[i])), size);
    }
    sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// "2026-04-02" as "4/2/2026"; what is no date stays as it is.
void shortDate(sqlite3_context* context, int, sqlite3_value** values) {
    const int size = sqlite3_value_bytes(values[0]);
    const auto* iso = static_cast<const char*>(sqlite3_value_blob(values[0]));
    if (size < 10 || iso[4] != '-' || iso[7] != '-') return sqlite3_result_value(context, values[0]);
    char text[11];
    int at = 0;
    for (const int part : {5, 8}) {
        if (iso[part] != '0') text[at++] = iso[part];
        text[at++] = iso[part + 1];
        text[at++] = '/';
    }
    for (int i = 0; i < 4; ++i) text[at++] = iso[i];
    sqlite3_result_text(context, text, at, SQLITE_TRANSIENT);
}

int compareAsNames(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return compareNames({static_cast<const char*>(left), static_cast<size_t>(leftSize)},
                        {static_cast<const char*>(right), static_cast<size_t>(rightSize)});
}

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

Statement::Statement(Connection& connection, const QString& sql)
    : connection_(connection), sql_(sql), statement_(connection.take(sql)) {}

Statement::~Statement() { connection_.giveBack(sql_, statement_); }

Statement& Statement::bind(const Value& value) {
    ++bound_;
    if (const auto* text = std::get_if<QString>(&value)) {
        const QByteArray bytes = text->toUtf8();
        sqlite3_bind_text(statement_, bound_, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
    } else if (const auto* number = std::get_if<qint64>(&value)) {
        sqlite3_bind_int64(statement_, bound_, *number);
    } else if (const auto* real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement_, bound_, *real);
    } else {
        sqlite3_bind_null(statement_, bound_);
    }
    return *this;
}

Statement& Statement::bind(const Values& values, size_t from, size_t count) {
    for (size_t i = from; i < values.size() && i - from < count; ++i) bind(values[i]);
    return *this;
}

bool Statement::step() {
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) connection_.raise(sqlite3_extended_errcode(connection_.handle_), sql_);
    return false;
}

int Statement::columns() const { return sqlite3_column_count(statement_); }
QString Statement::name(int column) const { return QString::fromUtf8(sqlite3_column_name(statement_, column)); }
QString Statement::declaredType(int column) const {
    return QString::fromUtf8(sqlite3_column_decltype(statement_, column));
}
qint64 Statement::number(int column) const { return sqlite3_column_int64(statement_, column); }

QString Statement::text(int column) const {
    const int size = sqlite3_column_bytes(statement_, column);  // makes it UTF-8; what follows need not end it with a 0
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
    return QString::fromUtf8(bytes ? bytes : "", size);
}

Value Statement::value(int column) const {
    switch (sqlite3_column_type(statement_, column)) {
        case SQLITE_INTEGER: return qint64{sqlite3_column_int64(statement_, column)};
        case SQLITE_FLOAT: return sqlite3_column_double(statement_, column);
        case SQLITE_NULL: return {};
        default: return text(column);
    }
}

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
    constexpr int kind = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
    sqlite3_create_function(handle_, "joined", -1, kind, nullptr, joined, nullptr, nullptr);
    sqlite3_create_function(handle_, "shortdate", 1, kind, nullptr, shortDate, nullptr, nullptr);
    // For the order of queries alone: a file whose indexes or columns used it could be read by no other tool.
    sqlite3_create_collation(handle_, "Names", SQLITE_UTF8, nullptr, compareAsNames);
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
