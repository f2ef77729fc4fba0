#include "schedule/exchange/ScheduleLines.h"

#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

/// Whatever a file holds: a line is refused, or a game comes out that its table takes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto lines = linesOf(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!lines) return 0;
    for (const QString& line : *lines) {
        require(!line.contains(u'\n') && !line.contains(u'\r'));
        Game game;
        if (readLine(line, game) != LineFault::None) continue;
        require(game.date.isValid() && game.time.isValid());
        require(game.division == divisionOf(line));
        require(game.day.size() <= 10 && game.division.size() <= 30 && game.visitorsTeam.size() <= 35 &&
                game.homeTeam.size() <= 35 && game.field.size() <= 30);
        QString pieces = GetImportColumn(1, line);
        for (int column = 2; column <= 7; ++column) pieces += u',' + GetImportColumn(column, line);
        require(pieces.startsWith(line));  // what lacks at the end is commas
    }
    return 0;
}
