#include <array>

#include "sample_league/League.h"

namespace sample {

namespace {

constexpr const char* skills[] = {"PitcherRating",  "CatcherRating", "InfieldRating", "OutfieldRating",
                                  "ThrowingRating", "RunningRating", "BattingRating", "KnowledgeRating"};
constexpr const char* umpireSkills[] = {"UmpireHomePlateRating", "UmpireFieldRating", "UmpireKnowledgeRating"};
constexpr const char* coachSkills[] = {"CoachAbilityRating", "CoachAttitudeRating", "CoachKnowledgeRating"};
constexpr const char* positions[] = {"PositionPitcher",    "PositionCatcher",     "PositionFirstBase",
                                     "PositionSecondBase", "PositionShortStop",   "PositionThirdBase",
                                     "PositionLeftField",  "PositionCenterField", "PositionRightField"};
enum CoachReturn { Yes, No, Maybe };

/// Around the person's own level, on the scale of 1 to 5.
template <size_t Count>
Cells graded(Chance& chance, const char* const (&names)[Count], int level) {
    Cells cells;
    for (const char* name : names) cells.emplace_back(name, std::clamp(level + chance.below(3) - 1, 1, 5));
    return cells;
}

/// A row states every grade; 0 is not rated.
template <size_t Count>
Cells notGraded(const char* const (&names)[Count]) {
    Cells cells;
    for (const char* name : names) cells.emplace_back(name, 0);
    return cells;
}

Cells playerCells(Chance& chance, const Player& player) {
    const int level = chance.between(1, 5);
    Cells cells{{"PlayerId", player.id}, {"VolId", 0}, {"CoachReturn", Yes}};
    append(cells, graded(chance, skills, level));
    if (chance.percent(60)) cells[3].value = qint64{0};  // never pitched
    append(cells, player.isUmpire ? graded(chance, umpireSkills, level) : notGraded(umpireSkills));
    append(cells, notGraded(coachSkills));
    const bool all = chance.percent(5);
    for (const char* position : positions) cells.emplace_back(position, all || chance.percent(25));
    cells.emplace_back("PositionAllPositions", all);
    return cells;
}

Cells volunteerCells(Chance& chance, const Volunteer& person) {
    const int level = chance.between(2, 5);
    Cells cells{{"PlayerId", 0}, {"VolId", person.id}};
    append(cells, notGraded(skills));
    append(cells, person.isUmpire ? graded(chance, umpireSkills, level) : notGraded(umpireSkills));
    append(cells, person.isUmpire ? notGraded(coachSkills) : graded(chance, coachSkills, level));
    cells.emplace_back("CoachReturn", level > 3 ? Yes : chance.percent(40) ? No : Maybe);
    return cells;
}

}  // namespace

void makeRatings(League& league) {
    Chance chance(league.options.seed, 4);
    Rows ratings(league.database, "tblAbilityRating");
    const QDate since = league.upToToday(league.day(3, 14));
    for (const Player& player : league.players)
        if ((player.keepsScore || player.isUmpire) && chance.percent(90))
            ratings.add(playerCells(chance, player), league.saved(chance, since, chance.percent(1)));
    for (const Volunteer& person : league.volunteers)
        if (person.onStaff && chance.percent(60))
            ratings.add(volunteerCells(chance, person), league.saved(chance, since));
}

}  // namespace sample
