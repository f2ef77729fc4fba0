#pragma once

#include <QDateTime>
#include <QStringList>
#include <optional>
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
    FirstLast,  ///< last and first name columns: "John Smith"
    CityLine,   ///< city, state, postal code and country columns: "Mill, OR 97050  Canada"
    Joined,     ///< any columns: those that are not empty, with the field's separator between them
    Number,     ///< by the field's pattern ("0.000"), or as it is stored; a text that is no number stays as it is
    YesNo,      ///< a flag: "Yes" or "No"
    Box         ///< a flag: a box, ticked or not, with the prefix beside it
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
    QString pattern{};    ///< of a number; between joined columns
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
/// "1 Elm St, Apt 2": the columns that are not empty.
Field joined(QStringList columns, QString separator = QStringLiteral(", "));
Field cityLine(QString city, QString state, QString postalCode, QString country);
Field number(QString name, QString pattern = {});
Field yesNo(QString name);
/// A box beside its caption: ticked where the column holds the value (upper and lower case alike), or by a function.
Field box(QString caption, QString name, QString ticked);
Field box(QString caption, std::function<bool(const Row&)> ticked = {});
Field computed(std::function<QVariant(const Row&)> function, Format format = Format::Text);

/// A field tied to the columns of one query. The field must outlive it.
class BoundField {
public:
    /// Raises ReportError where the query lacks one of the field's columns.
    BoundField(const Field& field, const RowSource& source);
    /// The printed text of the current row; the value behind it goes to `value`.
    QString evaluate(const RowSource& source, QVariant& value) const;
    /// Whether it has a value of the row, as against words of its own.
    bool hasValue() const { return !columns_.empty() || field_->compute; }
    /// The value of the field's first column in the current row, as it is stored.
    QVariant stored(const RowSource& source) const { return source.value(columns_.front()); }

private:
    QString ofSeveral(const RowSource& source) const;

    const Field* field_;
    std::vector<int> columns_;
};

/// The date or the time that a value is or names: those of the data file are texts in ISO form, others as people type
/// them.
std::optional<QDate> dateOf(const QVariant& value);
std::optional<QTime> timeOf(const QVariant& value);

/// "(555) 123-4567"; without an area the number alone; nothing without a number.
QString phoneText(const QString& area, const QString& number);

/// The printed form of a single value (every format but those made of several columns).
QString formatted(const QVariant& value, Format format, const QString& pattern = {});

}  // namespace report
