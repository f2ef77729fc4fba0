#pragma once

#include <sqlite3.h>

#include <QFile>
#include <QString>
#include <variant>
#include <vector>

/// A data file opened by hand, with the settings that the program opens it with: what the engine can do at best.
class RawFile {
public:
    explicit RawFile(const QString& path) {
        sqlite3_open_v2(QFile::encodeName(path).constData(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr);
        sqlite3_exec(handle_,
                     "PRAGMA foreign_keys = ON; PRAGMA synchronous = EXTRA; PRAGMA temp_store = MEMORY;"
                     "PRAGMA cache_size = -16000; PRAGMA cell_size_check = ON; PRAGMA journal_mode = DELETE",
                     nullptr, nullptr, nullptr);
    }
    ~RawFile() { sqlite3_close_v2(handle_); }
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;
    sqlite3* handle() const { return handle_; }
    void run(const QString& statement) const {
        char* error = nullptr;
        if (sqlite3_exec(handle_, statement.toUtf8().constData(), nullptr, nullptr, &error) != SQLITE_OK)
            qFatal("%s: %s", qPrintable(statement), error);
    }

private:
    sqlite3* handle_ = nullptr;
};

/// A statement prepared once.
class RawStatement {
public:
    RawStatement(const RawFile& file, const char* sql) {
        if (sqlite3_prepare_v2(file.handle(), sql, -1, &statement_, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(file.handle()));
    }
    ~RawStatement() { sqlite3_finalize(statement_); }
    RawStatement(const RawStatement&) = delete;
    RawStatement& operator=(const RawStatement&) = delete;

    void bind(int place, const QByteArray& text) {
        sqlite3_bind_text(statement_, place, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
    void bind(int place, qint64 number) { sqlite3_bind_int64(statement_, place, number); }
    bool step() { return sqlite3_step(statement_) == SQLITE_ROW; }
    void reset() { sqlite3_reset(statement_); }
    qint64 number(int column) const { return sqlite3_column_int64(statement_, column); }
    QString text(int column) const {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
        return QString::fromUtf8(bytes, sqlite3_column_bytes(statement_, column));
    }
    /// Every column of the current row, as text or number.
    void readRow(std::vector<std::variant<qint64, QString>>& row) const {
        row.resize(static_cast<size_t>(sqlite3_column_count(statement_)));
        for (int i = 0; i < static_cast<int>(row.size()); ++i) {
            if (sqlite3_column_type(statement_, i) == SQLITE_TEXT)
                row[static_cast<size_t>(i)] = text(i);
            else
                row[static_cast<size_t>(i)] = number(i);
        }
    }

private:
    sqlite3_stmt* statement_ = nullptr;
};
