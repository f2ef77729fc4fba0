#pragma once

#include <QDateTime>
#include <QString>

/// A game to be played, in the words of the schedule's maker.
struct Game {
    QDate date{};
    QString day{};
    QTime time{};
    QString division{};
    QString visitorsTeam{};
    QString homeTeam{};
    QString field{};
};
