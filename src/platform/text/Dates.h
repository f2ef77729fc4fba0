#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// Dates and times as texts. Month names are English in every locale, since they are stored and compared.

/// A date in a format of "d", "dd", "m", "mm", "mmm", "yy", "yyyy" in any case, such as "MM/dd/yyyy" or "dd MMM yy".
/// Empty for an invalid date.
QString formatDate(QDate date, const QString& format);
/// As "M/d/yyyy", the form of a date inside other texts.
QString shortDate(QDate date);
/// As "MM/dd/yy", the form of every date stamp.
QString stampDate(QDate date);

/// The date in a text: month, day and year in this order or the year first when it has four digits; "/", "-", "."
/// or a blank between them; the month also by its English name ("12-Apr-26", "Apr 12 2026"). Years of two digits
/// from 30 on are 19yy, below it 20yy. A text in `format` is understood too where its order differs ("yy/MM/dd").
/// Nothing for anything else.
std::optional<QDate> parseDate(const QString& text, const QString& format = {});

/// A time in a format of "h", "hh", "n", "nn" or "mm", "ss" and "AM/PM" or "AMPM". Empty for an invalid time.
QString formatTime(QTime time, const QString& format = QStringLiteral("h:Nn AM/PM"));
/// The time in a text such as "6:30 PM", "6:30p", "6 PM", "18:30" or "18:30:00"; nothing for anything else.
std::optional<QTime> parseTime(const QString& text);

/// The date "M/D/YY" as "MM/DD/YYYY": years above 30 are 19yy, others 20yy. Any other text comes back as it is.
QString NormalizeShortDate(const QString& text);
