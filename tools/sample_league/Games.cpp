#include <QSet>

#include "sample_league/League.h"

namespace sample {

namespace {

constexpr int rounds = 10;
struct Slot {
    int day;  ///< of the week that begins on Monday
    int hour;
    int minute;
};
constexpr Slot slots[] = {{0, 17, 30}, {1, 17, 30}, {2, 17, 30}, {3, 17, 30}, {4, 17, 30}, {5, 9, 0},   {5, 11, 0},
                          {5, 13, 0},  {5, 15, 0},  {0, 19, 30}, {1, 19, 30}, {2, 19, 30}, {3, 19, 30}, {5, 17, 0}};
constexpr const char* weekDays[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

class GameMaker {
public:
    explicit GameMaker(League& league)
        : league_(league),
          chance_(league.options.seed, 6),
          schedule_(league.database, "tblSchedule"),
          results_(league.database, "tblResults"),
          firstMonday_(league.day(4, 5).addDays(8 - league.day(4, 5).dayOfWeek())) {}

    void addDivision(const Division& division);

private:
    struct Game {
        QDate date;
        QTime time;
        QString field;
    };
    void addGame(const Division& division, int round, int home, int visitors);
    Game place(const Division& division, int round);
    void addResult(const Division& division, const Team& home, const Team& visitors, const Game& game);

    League& league_;
    Chance chance_;
    Rows schedule_;
    Rows results_;
    QDate firstMonday_;
    QSet<QString> taken_;  ///< field, date and time
};

/// Every team plays once a week. All but one team move a place on each round, so that new pairs meet.
void GameMaker::addDivision(const Division& division) {
    QList<int> circle = division.teams;
    if (circle.size() % 2 == 1) circle << -1;  // its partner has no game
    const qsizetype count = circle.size();
    for (int round = 0; round < rounds; ++round) {
        for (qsizetype i = 0; i < count / 2; ++i) {
            const int one = circle[i];
            const int other = circle[count - 1 - i];
            if (one >= 0 && other >= 0) addGame(division, round, round % 2 ? one : other, round % 2 ? other : one);
        }
        circle.insert(1, circle.takeLast());
    }
}

/// A free hour on one of the division's fields; without one the field is left open.
GameMaker::Game GameMaker::place(const Division& division, int round) {
    const QDate monday = firstMonday_.addDays(7 * round);
    const int turn = chance_.below(std::size(slots));
    Game game;
    for (size_t i = 0; i < std::size(slots); ++i) {
        const Slot& slot = slots[(i + static_cast<size_t>(turn)) % std::size(slots)];
        game = {monday.addDays(slot.day), QTime(slot.hour, slot.minute), QString()};
        for (const QString& field : division.fields) {
            const QString key = field + game.date.toString(Qt::ISODate) + game.time.toString(Qt::ISODate);
            if (taken_.contains(key)) continue;
            taken_.insert(key);
            game.field = field;
            return game;
        }
    }
    game.field = "To be announced";
    return game;
}

void GameMaker::addGame(const Division& division, int round, int home, int visitors) {
    const Game game = place(division, round);
    const QDate planned = league_.upToToday(league_.day(3, 22));
    const Team& homeTeam = league_.teams[home];
    const Team& visitorTeam = league_.teams[visitors];
    const auto add = [&](const Game& each, bool deleted) {
        schedule_.add({{"Date", each.date},
                       {"Day", weekDays[each.date.dayOfWeek() - 1]},
                       {"Time", each.time},
                       {"division", division.name},
                       {"VisitorsTeam", visitorTeam.name},
                       {"HomeTeam", homeTeam.name},
                       {"Field", each.field}},
                      league_.saved(chance_, planned, deleted));
    };
    const bool movedHere = chance_.percent(2);
    if (movedHere) add({game.date.addDays(-7), game.time, game.field}, true);
    add(game, false);
    if (division.keepsScore && game.date < league_.options.today && !chance_.percent(4))
        addResult(division, homeTeam, visitorTeam, game);
}

void GameMaker::addResult(const Division& division, const Team& home, const Team& visitors, const Game& game) {
    const int homeScore = chance_.below(7) + chance_.below(6);
    const bool isTie = chance_.percent(5);
    int visitorScore = isTie ? homeScore : chance_.below(7) + chance_.below(6);
    if (!isTie && visitorScore == homeScore) ++visitorScore;
    const int kind = chance_.below(20);
    results_.add({{"DivisionId", division.id},
                  {"HomeTeamId", home.id},
                  {"VisitorTeamId", visitors.id},
                  {"GameDate", game.date},
                  {"GameTime", game.time},
                  {"HomeTeamScore", homeScore},
                  {"VisitorTeamScore", visitorScore},
                  {"Comments", kind == 0   ? "Called after five innings (rain)."
                               : kind == 1 ? "Extra inning."
                                           : ""}},
                 league_.saved(chance_, game.date));
}

}  // namespace

void makeGames(League& league) {
    GameMaker maker(league);
    for (const Division& division : league.divisions) maker.addDivision(division);
}

}  // namespace sample
