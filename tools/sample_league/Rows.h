#pragma once

#include <QDate>
#include <vector>

#include "platform/datafile/Database.h"

namespace sample {

/// When a row was last saved, and whether it is deleted since.
struct Saved {
    QDate day;
    int second = 0;  ///< of the day
    bool deleted = false;
};

/// A column and what stands in it.
struct Cell {
    Cell(const QString& name, const QString& text) : column(name), value(text) {}
    Cell(const QString& name, const char* text) : Cell(name, QString::fromUtf8(text)) {}
    Cell(const QString& name, int number) : column(name), value(qint64{number}) {}
    Cell(const QString& name, bool flag) : column(name), value(datafile::fromFlag(flag)) {}
    Cell(const QString& name, QDate date) : column(name), value(datafile::fromDate(date)) {}
    Cell(const QString& name, QTime time) : column(name), value(datafile::fromTime(time)) {}

    QString column;
    datafile::Value value;
};
using Cells = std::vector<Cell>;

inline void append(Cells& cells, const Cells& more) { cells.insert(cells.end(), more.begin(), more.end()); }

/// Adds rows to one table.
class Rows {
public:
    Rows(const datafile::Database& database, const char* table);
    /// The key of the new row.
    int add(const Cells& cells, const Saved& saved);

private:
    datafile::Recordset rows_;
};

}  // namespace sample
