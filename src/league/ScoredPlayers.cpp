#include "league/ScoredPlayers.h"

#include <QHash>
#include <QStringList>

#include "platform/datafile/Database.h"
#include "platform/text/Collation.h"
#include "platform/text/Numbers.h"

namespace {

constexpr char scoreEnd[] = ") ";
constexpr QChar beforeScore(u'\x1f');  // no name holds it

/// "sum/count" of a player's skills above 0; nothing without a row of ratings.
QString ratingQuery() {
    QStringList values;
    QStringList rated;
    for (const char* skill :
         {"Batting", "Catcher", "Knowledge", "Outfield", "Pitcher", "Running", "Throwing", "Infield"}) {
        const QString column = QStringLiteral("[%1Rating]").arg(QLatin1String(skill));
        values << QStringLiteral("IIF(%1 > 0, %1, 0)").arg(column);
        rated << QStringLiteral("IIF(%1 > 0, 1, 0)").arg(column);
    }
    return QStringLiteral(
               "SELECT ((%1) & \"/\" & (%2)) FROM tblAbilityRating "
               "WHERE tblAbilityRating![PlayerId] = tblRegistration![PlayerId] LIMIT 1")
        .arg(values.join(QStringLiteral(" + ")), rated.join(QStringLiteral(" + ")));
}

QString prefixOf(const QString& rating) {
    const double count = rating.section(u'/', 1).toDouble();
    const double score = count > 0 ? rating.section(u'/', 0, 0).toDouble() / count : 0;
    return u'(' + formatNumber(score, QStringLiteral("0.00")) + QLatin1String(scoreEnd);
}

}  // namespace

std::vector<QString> scoredPlayers(const datafile::Database& database, const QString& condition) {
    const QString query =
        QStringLiteral(
            "SELECT ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate] & \"%1\" & "
            "(%2)) as Name FROM tblRegistration WHERE %3 AND [PlayerActive] = True AND [DeletedFlag] = False "
            "ORDER BY [PlayerLastName], [PlayerFirstName], [PlayerBirthDate]")
            .arg(beforeScore)
            .arg(ratingQuery(), condition);
    std::vector<QString> players = database.readList(query, QStringLiteral("Name"));
    QHash<QString, QString> prefixes;  // few players differ in sum and count
    QHash<QString, QString> scores;
    for (QString& player : players) {
        const qsizetype end = player.indexOf(beforeScore);
        const QString rating = player.mid(end + 1);
        player.truncate(end);
        QString& prefix = prefixes[rating];
        if (prefix.isEmpty()) prefix = prefixOf(rating);
        scores.insert(player, prefix);
    }
    placeAccented(players);
    for (QString& player : players) player.prepend(scores.value(player));
    return players;
}

QString playerOf(const QString& entry) {
    const qsizetype end = entry.indexOf(QLatin1String(scoreEnd));
    return end < 0 ? QString() : entry.mid(end + 2);
}

bool playerLess(const QString& left, const QString& right) { return listLess(playerOf(left), playerOf(right)); }

QString averageScore(const std::vector<QString>& entries) {
    constexpr int readCharacters = 4;
    double sum = 0;
    for (const QString& entry : entries) sum += toNumber(entry.mid(1, readCharacters)).value_or(0);
    return formatNumber(entries.empty() ? 0 : sum / static_cast<double>(entries.size()), QStringLiteral("#0.00"));
}
