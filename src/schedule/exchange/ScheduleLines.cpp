#include "schedule/exchange/ScheduleLines.h"

#include "platform/text/Dates.h"

#include <QStringDecoder>

namespace {

constexpr int lastColumn = 7;
constexpr int nameWidth = 30;
constexpr int teamWidth = 35;
constexpr int dayWidth = 10;
constexpr int longestDate = 40;  ///< no date or time is as long

QString decoded(const QByteArray& bytes) {
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    return decoder.hasError() && !marked ? QString::fromLatin1(bytes) : text;
}

std::optional<QDate> dateOf(const QString& text) { return text.size() > longestDate ? std::nullopt : parseDate(text); }
std::optional<QTime> timeOf(const QString& text) { return text.size() > longestDate ? std::nullopt : parseTime(text); }

}  // namespace

std::optional<QStringList> linesOf(const QByteArray& bytes) {
    QString text = decoded(bytes);
    if (text.contains(QChar::Null)) return {};
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (text.isEmpty()) return QStringList();
    if (text.endsWith(u'\n')) text.chop(1);
    return text.split(u'\n');
}

QString GetImportColumn(int column, QStringView line, QChar delimiter) {
    if (column < 1 || column > lastColumn) return {};
    for (int i = 1; i < column; ++i) {
        const qsizetype comma = line.indexOf(delimiter);
        if (comma < 0) return {};
        line = line.mid(comma + 1);
    }
    const qsizetype end = column == lastColumn ? -1 : line.indexOf(delimiter);
    return (end < 0 ? line : line.left(end)).toString();
}

QString divisionOf(QStringView line) { return GetImportColumn(4, line).left(nameWidth); }

LineFault readLine(QStringView line, Game& game) {
    const std::optional<QDate> date = dateOf(GetImportColumn(1, line));
    if (!date) return LineFault::Date;
    game.day = GetImportColumn(2, line);
    if (game.day.size() > dayWidth) return LineFault::Day;
    const std::optional<QTime> time = timeOf(GetImportColumn(3, line));
    if (!time) return LineFault::Time;
    game.date = *date;
    game.time = *time;
    game.division = divisionOf(line);
    const QString visitors = GetImportColumn(5, line);
    game.visitorsTeam = visitors.size() > teamWidth ? visitors.left(nameWidth) : visitors;
    game.homeTeam = GetImportColumn(6, line).left(teamWidth);
    game.field = GetImportColumn(7, line).left(nameWidth);
    return LineFault::None;
}
