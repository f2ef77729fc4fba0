#include "platform/datafile/Connection.h"

#include <sqlite3.h>

namespace datafile {

Statement::Statement(Connection& connection, const QString& sql)
    : connection_(connection), sql_(sql), statement_(connection.take(sql)) {}

Statement::~Statement() { connection_.giveBack(sql_, statement_); }

Statement& Statement::bind(const Value& value) {
    ++bound_;
    if (const auto* text = std::get_if<QString>(&value)) {
        const QByteArray& bytes = texts_.emplace_back(text->toUtf8());
        sqlite3_bind_text(statement_, bound_, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_STATIC);
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

void Statement::reset() {
    sqlite3_reset(statement_);
    bound_ = 0;
    texts_.clear();
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

}  // namespace datafile
