#include "platform/report/Field.h"

#include <QCoreApplication>
#include <QDateTime>
#include <cmath>

#include "platform/report/ReportError.h"

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

QDate dateOf(const QVariant& value) {
    const int type = value.typeId();
    if (type == QMetaType::QDate || type == QMetaType::QDateTime) return value.toDate();
    return QDate::fromString(value.toString().left(10), Qt::ISODate);
}

QTime timeOf(const QVariant& value) {
    const int type = value.typeId();
    if (type == QMetaType::QTime || type == QMetaType::QDateTime) return value.toTime();
    const QString text = value.toString();
    return QTime::fromString(text.mid(text.indexOf(u'T') + 1).mid(text.indexOf(u' ') + 1), Qt::ISODate);
}

QString dateText(const QVariant& value) {
    const QDate date = dateOf(value);
    if (!date.isValid()) return value.toString();
    return QString::number(date.month()) % u'/' % QString::number(date.day()) % u'/' % QString::number(date.year());
}

QString timeText(const QVariant& value) {
    const QTime time = timeOf(value);
    if (!time.isValid()) return value.toString();
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    return QString::number(hour) % u':' % QString::number(time.minute()).rightJustified(2, u'0') %
           QLatin1String(time.hour() < 12 ? " AM" : " PM");
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

QString joined(const QString& first, QLatin1String separator, const QString& second) {
    if (first.isEmpty() || second.isEmpty()) return first % second;
    return first % separator % second;
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
Field computed(std::function<QVariant(const Row&)> function, Format format) {
    return Field{.format = format, .compute = std::move(function)};
}

BoundField::BoundField(const Field& field, const RowSource& source) : field_(&field) {
    for (const QString& name : field.columns) columns_.push_back(columnOf(source, name));
}

QString BoundField::evaluate(const RowSource& source, QVariant& value) const {
    QString text;
    if (columns_.size() == 2) {
        const QString first = source.value(columns_[0]).toString();
        const QString second = source.value(columns_[1]).toString();
        switch (field_->format) {
            case Format::Phone: text = phoneText(first, second); break;
            case Format::FirstLast: text = joined(second, QLatin1String(" "), first); break;
            default: text = joined(first, QLatin1String(", "), second); break;
        }
        value = text;
    } else if (!columns_.empty() || field_->compute) {
        value = field_->compute ? field_->compute(Row(source)) : source.value(columns_[0]);
        text = formatted(value, field_->format);
    }
    if (text.isEmpty()) text = field_->whenEmpty;
    return field_->prefix.isEmpty() ? text : QString(field_->prefix % text);
}

QString formatted(const QVariant& value, Format format) {
    switch (format) {
        case Format::Money: {
            const auto amount = tenThousandths(value);
            return amount ? moneyText(*amount) : value.toString();
        }
        case Format::Date: return dateText(value);
        case Format::Time: return timeText(value);
        default: return value.toString();
    }
}

std::optional<qint64> tenThousandths(const QVariant& value) {
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !(std::abs(number) < 9.0e13)) return std::nullopt;
    return std::llround(number * 10000.0);
}

QString moneyText(qint64 tenThousandths) {
    const qint64 cents = (std::abs(tenThousandths) + 50) / 100;
    QString text = QString::number(cents / 100);
    for (qsizetype at = text.size() - 3; at > 0; at -= 3) text.insert(at, u',');
    const QString amount = u'$' % text % u'.' % QString::number(cents % 100).rightJustified(2, u'0');
    return tenThousandths < 0 && cents > 0 ? QString(u'(' % amount % u')') : amount;
}

}  // namespace report
