#pragma once

#include <QString>
#include <vector>

namespace datafile {
class Database;
}

// Players in a list, each behind the average of the skills that were rated above 0: "(3.25) Smith, Ann - 4/2/2012".
// Without such a skill the score is 0.00.

/// The active players that meet the condition on tblRegistration, by name. One query, however many they are.
std::vector<QString> scoredPlayers(const datafile::Database& database, const QString& condition);
/// The player behind the score.
QString playerOf(const QString& entry);
/// By player; the score does not count.
bool playerLess(const QString& left, const QString& right);
/// The average of the scores as the first four characters of each say it, unrated players included.
QString averageScore(const std::vector<QString>& entries);
