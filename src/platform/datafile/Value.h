#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <variant>
#include <vector>

namespace datafile {

/// One stored value: nothing, a whole number (flags are 0 or 1), a fraction or a text. Dates are ISO texts,
/// "2026-04-02", times of day "18:30:00".
using Value = std::variant<std::monostate, qint64, double, QString>;
using Values = std::vector<Value>;

inline bool isNull(const Value& value) { return std::holds_alternative<std::monostate>(value); }
/// The value as text; nothing reads as "".
QString toText(const Value& value);
/// The value as a number; a text that is none, and nothing, read as `otherwise`.
qint64 toNumber(const Value& value, qint64 otherwise = 0);
double toReal(const Value& value, double otherwise = 0);
/// The date of an ISO text, with or without a time behind it; invalid when the value is no date.
QDate toDate(const Value& value);
/// The time of an ISO text, alone or behind a date; invalid when the value is no time.
QTime toTime(const Value& value);

Value fromDate(const QDate& date);
Value fromTime(const QTime& time);
inline Value fromFlag(bool flag) { return Value{qint64{flag}}; }

}  // namespace datafile
