#pragma once

#include <QDate>
#include <QString>

/// What a made-up league is to be like. The same options give the same file, byte for byte.
struct SampleOptions {
    int players = 600;  ///< rows of tblRegistration
    quint32 seed = 1;   ///< another seed, another league
    int season = 2026;  ///< year of the season, 1950 to 2033 (league ages know two digits of a birth year)
    QDate today{};      ///< the last day on which anything was saved or played; May 16 of the season when not given
};

inline constexpr int mostSamplePlayers = 500000;

/// Makes a data file with a whole season of a made-up league: families, volunteers, divisions, teams, staff, fields,
/// sponsors, equipment, ratings, a schedule and results. Written under another name and renamed when whole. Raises
/// datafile::Error; an existing file of that name, and options out of range, are errors too.
void makeSampleLeague(const QString& path, const SampleOptions& options = {});
