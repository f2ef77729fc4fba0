#pragma once

#include <QStringList>
#include <vector>

#include "platform/report/RowSource.h"

namespace report {

/// How a value becomes printed text.
enum class Format {
    Text,
    Money,      ///< "$#,##0.00", negative amounts in parentheses; a text that is no number stays as it is
    Date,       ///< "M/d/yyyy"
    Time,       ///< "h:Nn AM/PM"
    Phone,      ///< area and number columns: "(555) 123-4567"; without an area the number alone
    LastFirst,  ///< last and first name columns: "Smith, John"
    FirstLast   ///< last and first name columns: "John Smith"
};

/// The current row, by column names, for the computed fields of a definition.
class Row {
public:
    explicit Row(const RowSource& source) : source_(source) {}
    /// Raises ReportError where the query has no such column.
    QVariant operator[](const QString& column) const;
    QString text(const QString& column) const { return (*this)[column].toString(); }

private:
    const RowSource& source_;
};

/// Where the content of a cell comes from: columns of the row and their format, a function of the row, or, with
/// neither, the prefix alone.
struct Field {
    QStringList columns{};
    Format format = Format::Text;
    QString prefix{};     ///< printed before the value
    QString whenEmpty{};  ///< printed in place of an empty value
    std::function<QVariant(const Row&)> compute{};

    Field before(QString text) const;
    Field orElse(QString text) const;
};

Field fixed(QString text);
Field column(QString name);
Field money(QString name);
Field date(QString name);
Field time(QString name);
Field phone(QString areaColumn, QString numberColumn);
Field lastFirst(QString lastColumn, QString firstColumn);
Field firstLast(QString lastColumn, QString firstColumn);
Field computed(std::function<QVariant(const Row&)> function, Format format = Format::Text);

/// A field tied to the columns of one query. The field must outlive it.
class BoundField {
public:
    /// Raises ReportError where the query lacks one of the field's columns.
    BoundField(const Field& field, const RowSource& source);
    /// The printed text of the current row; the value behind it goes to `value`.
    QString evaluate(const RowSource& source, QVariant& value) const;
    /// The value of the field's first column in the current row, as it is stored.
    QVariant stored(const RowSource& source) const { return source.value(columns_.front()); }

private:
    const Field* field_;
    std::vector<int> columns_;
};

/// The printed form of a single value (every format but those made of two columns).
QString formatted(const QVariant& value, Format format);

}  // namespace report
