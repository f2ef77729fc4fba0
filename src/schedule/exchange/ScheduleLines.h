#pragma once

#include <QStringList>
#include <optional>

#include "schedule/Game.h"

// The file in which the outside scheduler hands back one division's games (.kmo): a line a game, seven columns cut at
// commas, without quoting.

enum class LineFault { None, Date, Day, Time };

/// The lines of a file, whatever ends them, in UTF-8 or UTF-16 by its mark, otherwise in UTF-8 where it is that and in
/// Latin-1 where it is not. Nothing when the bytes are no text.
std::optional<QStringList> linesOf(const QByteArray& bytes);

/// The column of that number, 1 to 7; the last one runs to the end of the line. Empty for another number and where
/// the line has fewer columns.
QString GetImportColumn(int column, QStringView line, QChar delimiter = u',');

/// The division of a line, cut to what a game holds.
QString divisionOf(QStringView line);

/// Reads a line into `game`; what is wrong with it otherwise. Names that are too long are cut.
LineFault readLine(QStringView line, Game& game);
