#include <QSet>

#include "platform/text/Dates.h"
#include "sample_league/Fees.h"
#include "sample_league/PlayerColumns.h"
#include "sample_league/Volunteers.h"

namespace sample {

namespace {

/// Makes the families' rows one after the other.
class FamilyMaker {
public:
    explicit FamilyMaker(League& league)
        : league_(league),
          chance_(league.options.seed, 2),
          players_(league.database, "tblRegistration"),
          links_(league.database, "tblRegistrationVolunteer"),
          volunteers_(league),
          columns_(league),
          nextTeam_(league.divisions.size()) {}

    /// Adds a family of no more than `most` children; how many it had.
    int add(int most);

private:
    Child firstChild();
    void nameApart(const Family& family, Child& child);
    Child sibling(const Child& first);
    int divisionOf(QDate birth, bool isGirl);
    void enroll(Child& child, const QList<Child>& earlier);
    QList<int> addVolunteers(const Family& family, const QList<Child>& children);
    int addPlayer(const Family& family, const Child& child, bool isSibling);

    League& league_;
    Chance chance_;
    Rows players_;
    Rows links_;
    VolunteerRows volunteers_;
    PlayerColumns columns_;
    QList<int> nextTeam_;  ///< of each division, for even teams
    QSet<QString> keys_;   ///< names and birth dates: no two children are alike in all
    int families_ = 0;
};

int leagueAge(QDate birth, const CutOff& cutOff, int season) {
    return CalculateAge(shortDate(birth), cutOff.month, cutOff.day, QString::number(season));
}

Child FamilyMaker::firstChild() {
    const Team& place = chance_.oneOf(league_.teams);
    const Division& division = league_.divisions[place.division];
    Child child;
    child.division = place.division;
    child.isGirl =
        division.gender == "Female" || (division.gender != "Male" && chance_.percent(division.leastAge < 9 ? 35 : 6));
    const int age = chance_.between(division.leastAge, division.mostAge);
    const QDate youngest(league_.options.season - age, division.cutOff.month.toInt(), division.cutOff.day.toInt());
    child.birth = youngest.addDays(-chance_.below(365));
    return child;
}

Child FamilyMaker::sibling(const Child& first) {
    Child child;
    child.isGirl = chance_.percent(45);
    const bool isTwin = chance_.percent(8);
    const int apart = isTwin ? 0 : chance_.between(400, 1500);
    const int days = chance_.percent(50) ? apart : -apart;
    child.birth = first.birth.addDays(days);
    if (child.birth.year() > league_.options.season - 4) child.birth = first.birth.addDays(-days);
    child.division = divisionOf(child.birth, child.isGirl);
    return child;
}

/// -1 for a child who is too young or too old for every division.
int FamilyMaker::divisionOf(QDate birth, bool isGirl) {
    int found = -1;
    for (int place = 0; place < league_.divisions.size(); ++place) {
        const Division& division = league_.divisions[place];
        const int age = leagueAge(birth, division.cutOff, league_.options.season);
        const bool fits =
            age >= division.leastAge && age <= division.mostAge && division.gender != (isGirl ? "Male" : "Female");
        if (fits && (found < 0 || chance_.percent(85))) found = place;
    }
    return found;
}

/// Gives the child a first name such that no other has the same name and birth date.
void FamilyMaker::nameApart(const Family& family, Child& child) {
    QString key;
    do {
        child.firstName = chance_.oneOf(child.isGirl ? league_.names.girls : league_.names.boys);
        if (family.isLong) child.firstName = filled(child.firstName + "-Marie Gabriel", 30);
        key = family.lastName + '/' + child.firstName + '/' + child.birth.toString(Qt::ISODate);
    } while (keys_.contains(key));
    keys_.insert(key);
}

/// Decides whether the child plays, and where.
void FamilyMaker::enroll(Child& child, const QList<Child>& earlier) {
    const int state = chance_.weighted({93, 5, 2});
    child.active = state == 0;
    child.deleted = state == 2;
    const Division* division = child.division < 0 ? nullptr : &league_.divisions[child.division];
    child.age = leagueAge(child.birth, division ? division->cutOff : CutOff{"8", "1"}, league_.options.season);
    child.isUmpire = child.active && child.age >= 13 && chance_.percent(20);
    child.hasTryout = division && division->keepsScore;
    const int late = chance_.percent(5) ? 40 : 0;
    child.registered = league_.upToToday(league_.day(1, 10).addDays(late + chance_.below(70)));
    if (!child.active || !division || chance_.percent(3)) return;
    for (const Child& other : earlier)
        if (other.division == child.division) child.team = other.team;
    if (child.team < 0) child.team = division->teams[nextTeam_[child.division]++ % division->teams.size()];
    child.jersey = 1 + (child.team * 5 + league_.teams[child.team].players++ * 7) % 99;
}

/// Whoever has two children on the team is there once.
void addParent(Team& team, const TeamParent& parent) {
    for (const TeamParent& other : team.parents)
        if (other.volunteer == parent.volunteer) return;
    team.parents << parent;
}

int FamilyMaker::add(int most) {
    const Family family = makeFamily(league_.names, chance_, families_++);
    const int count = std::min(most, 1 + chance_.weighted({52, 36, 12}));
    QList<Child> children;
    for (int i = 0; i < count; ++i) {
        Child child = i == 0 ? firstChild() : sibling(children[0]);
        nameApart(family, child);
        enroll(child, children);
        children << child;
    }
    const QList<int> volunteers = addVolunteers(family, children);
    for (int i = 0; i < count; ++i) {
        const Child& child = children[i];
        const int playerId = addPlayer(family, child, i > 0);
        if (!child.active) continue;
        for (int parent = 0; parent < family.parents.size(); ++parent) {
            const int volunteer = volunteers[parent];
            if (volunteer < 0) continue;
            Volunteer& person = league_.volunteers[volunteer];
            links_.add({{"VolId", person.id}, {"PlayerId", playerId}, {"VolGender", parent == 0 ? "Dad" : "Mom"}},
                       league_.saved(chance_, child.registered));
            if (person.playerId == 0) person.playerId = playerId;
            if (child.team >= 0) addParent(league_.teams[child.team], {volunteer, playerId});
        }
    }
    return count;
}

/// For each parent the place of the volunteer they are, -1 for none.
QList<int> FamilyMaker::addVolunteers(const Family& family, const QList<Child>& children) {
    QList<int> places(family.parents.size(), -1);
    const auto playing =
        std::find_if(children.begin(), children.end(), [](const Child& child) { return child.active; });
    if (playing == children.end()) return places;
    for (int i = 0; i < family.parents.size(); ++i) {
        if (!family.parents[i].volunteers) continue;
        places[i] = static_cast<int>(league_.volunteers.size());
        const int id = volunteers_.add(chance_, family, family.parents[i], playing->registered, true, false);
        league_.volunteers << Volunteer{.id = id};
    }
    return places;
}

int FamilyMaker::addPlayer(const Family& family, const Child& child, bool isSibling) {
    const Division* division = child.division < 0 ? nullptr : &league_.divisions[child.division];
    Cells cells = columns_.all(chance_, family, child, static_cast<int>(keys_.size()));
    append(cells, {{"PlayerDivisionId", division ? division->id : 0},
                   {"PlayerTeamId", child.team < 0 ? 0 : league_.teams[child.team].id},
                   {"PlayerIsUmpire", child.isUmpire},
                   {"PlayerActive", child.active}});
    append(cells, feeCells(chance_, division ? division->fee : 110, isSibling));
    const int id = players_.add(cells, league_.saved(chance_, child.registered, child.deleted));
    if (child.active)
        league_.players.append({.id = id,
                                .age = child.age,
                                .team = child.team,
                                .keepsScore = child.hasTryout,
                                .isUmpire = child.isUmpire});
    return id;
}

}  // namespace

void makeFamilies(League& league) {
    FamilyMaker maker(league);
    for (int made = 0; made < league.options.players;) made += maker.add(league.options.players - made);
}

}  // namespace sample
