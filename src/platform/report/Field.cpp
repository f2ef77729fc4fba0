#include "platform/report/Field.h"

#include <QCoreApplication>
#include <QDateTime>

#include "platform/report/ReportError.h"
#include "platform/text/Dates.h"
#include "platform/text/Money.h"
#include "platform/text/Numbers.h"

namespace report {

namespace {

int columnOf(const RowSource& source, const QString& name) {
    const int column = source.column(name);
    if (column < 0)
        throw ReportError(QCoreApplication::translate("report",
                                                      "The report needs the column \"%1\", which the data "
                                                      "it reads does not have.")
                              .arg(name));
    return column;
}

/// What is there of both, with the separator between them.
QString together(const QString& first, const QString& separator, const QString& second) {
    if (first.isEmpty() || second.isEmpty()) return first % second;
    return first % separator % second;
}

QString yesNoText(const QVariant& value) {
    if (value.isNull()) return {};
    return value.toBool() ? QCoreApplication::translate("report", "Yes") : QCoreApplication::translate("report", "No");
}

}  // namespace

QVariant Row::operator[](const QString& column) const { return source_.value(columnOf(source_, column)); }

Field Field::before(QString text) const {
    Field field = *this;
    field.prefix = std::move(text);
    return field;
}

Field Field::orElse(QString text) const {
    Field field = *this;
    field.whenEmpty = std::move(text);
    return field;
}

Field fixed(QString text) { return Field{.prefix = std::move(text)}; }
Field column(QString name) { return Field{.columns = {std::move(name)}}; }
Field money(QString name) { return Field{.columns = {std::move(name)}, .format = Format::Money}; }
Field date(QString name) { return Field{.columns = {std::move(name)}, .format = Format::Date}; }
Field time(QString name) { return Field{.columns = {std::move(name)}, .format = Format::Time}; }
Field phone(QString areaColumn, QString numberColumn) {
    return Field{.columns = {std::move(areaColumn), std::move(numberColumn)}, .format = Format::Phone};
}
Field lastFirst(QString lastColumn, QString firstColumn) {
    return Field{.columns = {std::move(lastColumn), std::move(firstColumn)}, .format = Format::LastFirst};
}
Field firstLast(QString lastColumn, QString firstColumn) {
    return Field{.columns = {std::move(lastColumn), std::move(firstColumn)}, .format = Format::FirstLast};
}
Field joined(QStringList columns, QString separator) {
    return Field{.columns = std::move(columns), .format = Format::Joined, .pattern = std::move(separator)};
}
Field cityLine(QString city, QString state, QString postalCode, QString country) {
    return Field{.columns = {std::move(city), std::move(state), std::move(postalCode), std::move(country)},
                 .format = Format::CityLine};
}
Field number(QString name, QString pattern) {
    return Field{.columns = {std::move(name)}, .format = Format::Number, .pattern = std::move(pattern)};
}
Field yesNo(QString name) { return Field{.columns = {std::move(name)}, .format = Format::YesNo}; }
Field box(QString caption, QString name, QString ticked) {
    return box(std::move(caption), [name = std::move(name), ticked = std::move(ticked)](const Row& row) {
        return row.text(name).compare(ticked, Qt::CaseInsensitive) == 0;
    });
}
Field box(QString caption, std::function<bool(const Row&)> ticked) {
    Field field{.format = Format::Box, .prefix = std::move(caption)};
    if (ticked) field.compute = [ticked = std::move(ticked)](const Row& row) { return QVariant(ticked(row)); };
    return field;
}
Field computed(std::function<QVariant(const Row&)> function, Format format) {
    return Field{.format = format, .compute = std::move(function)};
}

BoundField::BoundField(const Field& field, const RowSource& source) : field_(&field) {
    for (const QString& name : field.columns) columns_.push_back(columnOf(source, name));
}

QString BoundField::ofSeveral(const RowSource& source) const {
    const auto text = [&](size_t index) { return source.value(columns_[index]).toString(); };
    switch (field_->format) {
        case Format::Phone: return phoneText(text(0), text(1));
        case Format::FirstLast: return together(text(1), QStringLiteral(" "), text(0));
        case Format::LastFirst: return together(text(0), QStringLiteral(", "), text(1));
        case Format::CityLine: {
            const QString region = together(text(1), QStringLiteral(" "), text(2));
            return together(together(text(0), QStringLiteral(", "), region), QStringLiteral("  "), text(3));
        }
        default: {
            QString all;
            for (size_t index = 0; index < columns_.size(); ++index) all = together(all, field_->pattern, text(index));
            return all;
        }
    }
}

QString BoundField::evaluate(const RowSource& source, QVariant& value) const {
    QString text;
    if (columns_.size() > 1) {
        text = ofSeveral(source);
        value = text;
    } else if (hasValue()) {
        value = field_->compute ? field_->compute(Row(source)) : source.value(columns_[0]);
        text = formatted(value, field_->format, field_->pattern);
    }
    if (field_->format == Format::Box)
        return (value.toBool() ? QLatin1String("[x] ") : QLatin1String("[ ] ")) % field_->prefix;
    if (text.isEmpty()) text = field_->whenEmpty;
    return field_->prefix.isEmpty() ? text : QString(field_->prefix % text);
}

QString phoneText(const QString& area, const QString& number) {
    QString digits;
    for (const QChar c : number)
        if (c.isDigit()) digits += c;
    if (digits.isEmpty()) return {};
    const QString shaped = digits.size() == 7 ? QString(digits.left(3) % u'-' % digits.mid(3)) : number.trimmed();
    const QString code = area.trimmed();
    return code.isEmpty() ? shaped : QString(u'(' % code % QLatin1String(") ") % shaped);
}

std::optional<QDate> dateOf(const QVariant& value) {
    const int type = value.typeId();
    if (type == QMetaType::QDate || type == QMetaType::QDateTime) return value.toDate();
    const QString text = value.toString();
    const QDate stored = QDate::fromString(text.left(10), Qt::ISODate);
    return stored.isValid() ? stored : parseDate(text);
}

std::optional<QTime> timeOf(const QVariant& value) {
    const int type = value.typeId();
    if (type == QMetaType::QTime || type == QMetaType::QDateTime) return value.toTime();
    return parseTime(value.toString());
}

QString formatted(const QVariant& value, Format format, const QString& pattern) {
    switch (format) {
        case Format::Money: {
            const auto amount = Money::parse(value.toString());
            return amount ? amount->text() : value.toString();
        }
        case Format::Date: {
            const auto day = dateOf(value);
            return day ? shortDate(*day) : value.toString();
        }
        case Format::Time: {
            const auto time = timeOf(value);
            return time ? formatTime(*time) : value.toString();
        }
        case Format::YesNo: return yesNoText(value);
        case Format::Number: {
            const auto amount = pattern.isEmpty() ? std::nullopt : Decimal::parse(value.toString());
            return amount ? formatNumber(*amount, pattern) : value.toString();
        }
        default: return value.toString();
    }
}

}  // namespace report
