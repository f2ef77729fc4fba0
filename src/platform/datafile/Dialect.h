#pragma once

#include "platform/datafile/Definitions.h"
#include "platform/datafile/Value.h"

#include <functional>

/// The program's query dialect and its translation to the engine's.
///
/// Names may stand in brackets, a column behind its table and `!` or `.`; `&` joins texts, reads nothing as ""
/// and writes a date column as M/D/YYYY; texts stand in double or single quotes (a doubled quote is a quote),
/// dates between `#`, True and False are 1 and 0. `ORDER BY [Name] COLLATE Names` puts accented letters beside their
/// plain letters, as in lists.
namespace datafile::dialect {

/// A statement whose literals were taken out: each text, number and date is a "?" in `text` and a value, in order,
/// in `values`. Statements that differ in their literals alone have one shape.
struct Shape {
    QString text;
    Values values;
};

/// Raises Error(Statement) for a literal that is not closed or a date that is none.
Shape shapeOf(const QString& statement);

/// A query cut into its clauses, each in the engine's language. Only a query over one table, without DISTINCT,
/// GROUP BY or an aggregate, has `table`; rows of others cannot be edited.
struct Query {
    QString table;
    QString columns;
    QString where;
    QString orderBy;
    qsizetype columnValues = 0;  ///< how many of the shape's values belong to the clause
    qsizetype whereValues = 0;
    qsizetype orderValues = 0;
    QString whole;
};

/// Finds a table of the file by its name; null when there is none.
using TableLookup = std::function<const TableDef*(const QString&)>;

Query translateQuery(const QString& shape, const TableLookup& tables);
/// Any statement, or a criteria text over `table`.
QString translate(const QString& shape, const TableLookup& tables, const QString& table = {});

}  // namespace datafile::dialect

namespace datafile {

/// A text as a literal of the dialect, quotes inside it doubled.
QString quoted(const QString& text);
/// A date as a literal of the dialect, "#4-2-2026#".
QString quoted(const QDate& date);
/// A time of day as a literal of the dialect, "#18:30:00#".
QString quoted(const QTime& time);

}  // namespace datafile
