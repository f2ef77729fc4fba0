#pragma once

#include <QList>

#include "platform/datafile/Database.h"
#include "sample_league/Chance.h"
#include "sample_league/Names.h"
#include "sample_league/Rows.h"
#include "sample_league/SampleLeague.h"
#include "store/AgeRule.h"

namespace sample {

// What the subjects hand on to each other while a league is made. People, teams and divisions refer to each other by
// their places in these lists, -1 for none; `id` is the key of the row.

struct Division {
    int id = 0;
    QString name;
    QString gender;
    int leastAge = 0;
    int mostAge = 0;
    int fee = 0;  ///< dollars
    bool keepsScore = false;
    CutOff cutOff{};
    QList<int> teams{};
    QStringList fields{};
};

/// A volunteer who has a child on a team.
struct TeamParent {
    int volunteer = -1;
    int playerId = 0;
};

struct Team {
    int id = 0;
    int division = -1;
    QString name;
    int players = 0;
    QList<TeamParent> parents{};
};

/// A player who is in the league now.
struct Player {
    int id = 0;
    int age = 0;
    int team = -1;
    bool keepsScore = false;  ///< plays where ability counts
    bool isUmpire = false;
};

/// A volunteer who serves now.
struct Volunteer {
    int id = 0;
    int playerId = 0;  ///< a child of theirs, 0 for none
    bool onStaff = false;
    bool isUmpire = false;
};

struct League {
    SampleOptions options;
    Names names;
    datafile::Database database;
    QList<Division> divisions{};
    QList<Team> teams{};
    QList<Player> players{};
    QList<Volunteer> volunteers{};

    QDate day(int month, int dayOfMonth) const { return {options.season, month, dayOfMonth}; }
    QDate upToToday(QDate date) const { return std::min(date, options.today); }
    /// A save on some day of the weeks after `since`, in office hours or in the evening.
    Saved saved(Chance& chance, QDate since, bool deleted = false) const;
    /// A lookup's texts, in the order in which the rows were made.
    QStringList texts(const char* table, const char* column) const;
    /// The key of a lookup's row.
    int idOf(const char* table, const char* key, const char* column, const char* text) const;
};

// The subjects, in the order in which they build on each other. Each draws from its own chance.
void makeOrganisation(League& league);
void makeStructure(League& league);  ///< divisions, fields, sponsors, teams
void makeFamilies(League& league);   ///< players, and parents who volunteer
void makeStaff(League& league);      ///< further volunteers, coaching staff, positions, certifications
void makeRatings(League& league);
void makeEquipment(League& league);
void makeGames(League& league);

/// "$45.00".
QString dollars(int amount);
/// "555-0142".
QString phoneNumber(int exchange, int line);
/// The text as long as a column is wide.
QString filled(const QString& text, int width);

}  // namespace sample
