#include "platform/text/Dates.h"

#include <QLocale>
#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace {

/// 1 to 12 for an English month name, whole or its first three letters; 0 for anything else.
int monthByName(QStringView name) {
    if (name.size() < 3) return 0;
    const QLocale english = QLocale::c();
    for (int month = 1; month <= 12; ++month) {
        const QString full = english.monthName(month);
        if (name.compare(full, Qt::CaseInsensitive) == 0 || name.compare(full.left(3), Qt::CaseInsensitive) == 0)
            return month;
    }
    return 0;
}

/// The number in a text of one up to `most` digits; nothing for anything else.
std::optional<int> digits(QStringView text, int most) {
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (text.isEmpty() || text.size() > most || !std::all_of(text.begin(), text.end(), isDigit)) return {};
    return text.toInt();
}

/// The three parts of a date, or none.
std::optional<std::array<QStringView, 3>> splitDate(QStringView text) {
    const auto isSeparator = [](QChar character) { return QStringView(u"-/., ").contains(character); };
    std::array<QStringView, 3> parts;
    auto position = text.begin();
    for (QStringView& part : parts) {
        const auto begin = std::find_if_not(position, text.end(), isSeparator);
        const QStringView separator = QStringView(position, begin).trimmed();
        const bool isFirst = position == text.begin();
        if (separator.size() > 1 || isFirst != (position == begin)) return {};
        position = std::find_if(begin, text.end(), isSeparator);
        part = QStringView(begin, position);
        if (part.isEmpty()) return {};
    }
    return position == text.end() ? std::optional(parts) : std::nullopt;
}

std::optional<QDate> dateOf(QStringView year, QStringView month, QStringView day) {
    const auto yearNumber = digits(year, 4);
    const auto dayNumber = digits(day, 2);
    const auto monthNumber = digits(month, 2);
    if (!yearNumber || !dayNumber || year.size() == 3) return {};
    const int century = year.size() == 4 ? 0 : *yearNumber >= 30 ? 1900 : 2000;
    const QDate date(*yearNumber + century, monthNumber.value_or(monthByName(month)), *dayNumber);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

}  // namespace

QString formatDate(QDate date, const QString& format) {
    QString pattern = format.toLower();
    return date.toString(pattern.replace(u'm', u'M'));
}

QString shortDate(QDate date) { return formatDate(date, QStringLiteral("M/d/yyyy")); }

QString stampDate(QDate date) { return formatDate(date, QStringLiteral("MM/dd/yy")); }

std::optional<QDate> parseDate(const QString& text, const QString& format) {
    const auto parts = splitDate(QStringView(text).trimmed());
    if (!parts) return {};
    const auto [first, second, third] = *parts;
    if (second.front().isLetter()) return dateOf(third, second, first);
    const bool yearFirst = first.size() == 4 || (third.size() < 4 && format.startsWith(u'y', Qt::CaseInsensitive));
    return yearFirst && first.front().isDigit() ? dateOf(first, second, third) : dateOf(third, first, second);
}

QString formatTime(QTime time, const QString& format) {
    QString pattern = format.toLower();
    pattern.replace(QStringLiteral("am/pm"), QStringLiteral("AP"))
        .replace(QStringLiteral("ampm"), QStringLiteral("AP"));
    return time.toString(pattern.replace(u'n', u'm'));
}

std::optional<QTime> parseTime(const QString& text) {
    QStringView rest = QStringView(text).trimmed();
    if (rest.size() > 1 && rest.back().toLower() == u'm') rest.chop(1);
    const QChar half = rest.isEmpty() ? QChar() : rest.back().toLower();
    const bool halves = half == u'a' || half == u'p';
    if (halves)
        rest = rest.chopped(1).trimmed();
    else
        rest = QStringView(text).trimmed();
    const auto parts = rest.split(u':');
    if (parts.size() > 3 || (!halves && parts.size() < 2)) return {};
    int numbers[3] = {};
    for (qsizetype part = 0; part < parts.size(); ++part) {
        const auto number = digits(parts[part], 2);
        if (!number) return {};
        numbers[part] = *number;
    }
    int& hour = numbers[0];
    if (halves) {
        if (hour < 1 || hour > 12) return {};
        hour = hour % 12 + (half == u'p' ? 12 : 0);
    }
    const QTime time(hour, numbers[1], numbers[2]);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

QString NormalizeShortDate(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,2})/([0-9]{1,2})/([0-9]{1,2})$"));
    const auto match = form.match(text);
    if (!match.hasMatch()) return text;
    const auto twoDigits = [&](int part) { return match.captured(part).rightJustified(2, u'0'); };
    const QString century = match.captured(3).toInt() > 30 ? QStringLiteral("19") : QStringLiteral("20");
    return twoDigits(1) + u'/' + twoDigits(2) + u'/' + century + twoDigits(3);
}
