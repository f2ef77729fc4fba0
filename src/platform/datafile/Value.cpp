#include "platform/datafile/Value.h"

namespace datafile {

namespace {

/// The number made of `count` digits at `at`, or -1.
int digits(QStringView text, qsizetype at, qsizetype count) {
    if (at + count > text.size()) return -1;
    int number = 0;
    for (qsizetype i = at; i < at + count; ++i) {
        const int digit = text[i].unicode() - '0';
        if (digit < 0 || digit > 9) return -1;
        number = number * 10 + digit;
    }
    return number;
}

/// Writes the number's digits so that the last one stands before `end`.
void write(QString& text, qsizetype end, int number) {
    for (; number > 0; number /= 10) text[--end] = QChar(u'0' + number % 10);
}

}  // namespace

QString toText(const Value& value) {
    if (const auto* text = std::get_if<QString>(&value)) return *text;
    if (const auto* number = std::get_if<qint64>(&value)) return QString::number(*number);
    if (const auto* real = std::get_if<double>(&value)) return QString::number(*real, 'g', 15);
    return {};
}

qint64 toNumber(const Value& value, qint64 otherwise) {
    if (const auto* number = std::get_if<qint64>(&value)) return *number;
    if (const auto* real = std::get_if<double>(&value)) return qRound64(*real);
    if (const auto* text = std::get_if<QString>(&value)) {
        bool ok = false;
        const qint64 number = text->trimmed().toLongLong(&ok);
        if (ok) return number;
    }
    return otherwise;
}

double toReal(const Value& value, double otherwise) {
    if (const auto* number = std::get_if<qint64>(&value)) return static_cast<double>(*number);
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* text = std::get_if<QString>(&value)) {
        bool ok = false;
        const double number = text->trimmed().toDouble(&ok);
        if (ok) return number;
    }
    return otherwise;
}

QDate toDate(const Value& value) {
    const auto* text = std::get_if<QString>(&value);
    if (!text || text->size() < 10 || text->at(4) != u'-' || text->at(7) != u'-') return {};
    const int year = digits(*text, 0, 4);
    const int month = digits(*text, 5, 2);
    const int day = digits(*text, 8, 2);
    return year < 0 || month < 0 || day < 0 ? QDate() : QDate(year, month, day);
}

QTime toTime(const Value& value) {
    const auto* text = std::get_if<QString>(&value);
    if (!text || text->size() < 8) return {};
    const qsizetype at = text->size() - 8;
    if (text->at(at + 2) != u':' || text->at(at + 5) != u':') return {};
    return QTime(digits(*text, at, 2), digits(*text, at + 3, 2), digits(*text, at + 6, 2));
}

Value fromDate(const QDate& date) {
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < 1 || year > 9999) return {};
    QString text(QStringLiteral("0000-00-00"));
    write(text, 4, year);
    write(text, 7, month);
    write(text, 10, day);
    return text;
}

Value fromTime(const QTime& time) {
    if (!time.isValid()) return {};
    QString text(QStringLiteral("00:00:00"));
    write(text, 2, time.hour());
    write(text, 5, time.minute());
    write(text, 8, time.second());
    return text;
}

}  // namespace datafile
