#include "sample_league/League.h"

namespace sample {

namespace {

/// What is known of a division before the season; `share` of every 50 teams play in it.
struct DivisionPlan {
    const char* name;
    const char* sport;
    const char* official;
    const char* gender;
    const char* difficulty;
    int leastAge, mostAge;
    const char* cutOffMonth;
    const char* cutOffDay;
    int fee;
    int umpires;
    int platePay, basePay;
    int share;
    int firstField;  ///< of the three that follow each other among the names
    const char* comments;
};

constexpr char both[] = "Male & Female";
constexpr DivisionPlan plans[] = {
    {"T-Ball", "Baseball", "T-Ball BB", both, "Instructional", 4, 6, "8", "1", 65, 0, 0, 0, 7, 9,
     "No scores are kept."},
    {"Coach Pitch", "Baseball", "Minor League BB", both, "Instructional", 7, 8, "8", "1", 85, 0, 0, 0, 7, 0, ""},
    {"Minors Baseball", "Baseball", "Minor League BB", both, "Recreational", 9, 10, "8", "1", 110, 1, 25, 0, 8, 2, ""},
    {"Majors Baseball", "Baseball", "Little League BB", both, "Competitive", 11, 12, "8", "1", 125, 2, 35, 25, 7, 4,
     "Draft after the tryouts in March."},
    {"Juniors Baseball", "Baseball", "Junior League BB", "Male", "Competitive", 13, 14, "8", "1", 140, 2, 45, 35, 4, 6,
     ""},
    {"Seniors Baseball", "Baseball", "Senior League BB", "Male", "Competitive", 15, 16, "8", "1", 150, 2, 50, 40, 3, 6,
     "Games at the high school begin at 6:30 PM."},
    {"Girls' Coach Pitch", "Softball", "T-Ball SB", "Female", "Instructional", 7, 8, "12", "31", 80, 0, 0, 0, 4, 10,
     ""},
    {"Minors Softball", "Softball", "Minor League SB", "Female", "Recreational", 9, 10, "12", "31", 105, 1, 25, 0, 4, 1,
     ""},
    {"Majors Softball", "Softball", "Little League SB", "Female", "Competitive", 11, 12, "12", "31", 120, 2, 30, 20, 3,
     3, ""},
    // Without a cut-off date of its own: the league's counts.
    {"Junior & Senior Girls Softball", "Softball", "Senior League SB", "Female", "Competitive", 13, 16, "", "", 130, 2,
     40, 30, 3, 5, "Plays some games against the neighboring leagues."},
};

Cells divisionCells(const DivisionPlan& plan) {
    return {{"DivName", plan.name},
            {"DivSport", plan.sport},
            {"OfficialDivName", plan.official},
            {"DivGender", plan.gender},
            {"DivDifficultyRating", plan.difficulty},
            {"DivMinAge", QString::number(plan.leastAge)},
            {"DivMaxAge", QString::number(plan.mostAge)},
            {"DivAgeCutOffMonth", plan.cutOffMonth},
            {"DivAgeCutOffDay", plan.cutOffDay},
            {"DivRegistrationFee", dollars(plan.fee)},
            {"DivNbrOfUmpsRequired", QString::number(plan.umpires)},
            {"DivCertUmpsRequired", plan.umpires > 1 ? 0 : 1},
            {"DivUmpPlatePay", dollars(plan.platePay)},
            {"DivUmpBasePay", dollars(plan.basePay)},
            {"DivComments", plan.comments}};
}

void addDivisions(League& league, Chance& chance) {
    Rows rows(league.database, "tblDivision");
    const QDate since = league.day(1, 3);
    for (const DivisionPlan& plan : plans) {
        const int id = rows.add(divisionCells(plan), league.saved(chance, since));
        league.divisions.append({.id = id,
                                 .name = plan.name,
                                 .gender = plan.gender,
                                 .leastAge = plan.leastAge,
                                 .mostAge = plan.mostAge,
                                 .fee = plan.fee,
                                 .keepsScore = plan.leastAge > 8,
                                 .cutOff = cutOffByPair({plan.cutOffMonth, plan.cutOffDay}, {"8", "1"})});
    }
    DivisionPlan cancelled = plans[2];
    cancelled.name = "Fall Ball";
    rows.add(divisionCells(cancelled), league.saved(chance, since, true));
}

void addFields(League& league, Chance& chance) {
    Rows rows(league.database, "tblField");
    QList<int> ids;
    QStringList names = league.names.fields;
    names << "Fern Hollow Elementary Upper 1"
          << "Old Mill Lot";
    for (const QString& name : names) {
        const bool deleted = name == names.last();
        const City& city = chance.oneOf(league.names.cities);
        ids << rows.add(
            {{"FieldName", name},
             {"FieldLeagueAssociation", chance.percent(60) ? "Kestrel Valley Youth Baseball" : "Parks and Recreation"},
             {"FieldStreet1", streetAddress(chance, league.names)},
             {"FieldCity", city.name},
             {"FieldStateId", city.state},
             {"FieldPostalCode", city.zip},
             {"FieldContactName", personName(chance, league.names.men, league.names.lastNames)},
             {"FieldContactPhoneArea", city.area},
             {"FieldContactPhone", phoneNumber(553, chance.below(10000))},
             {"FieldLights", name.startsWith("High School") ? 0 : 1},
             {"FieldMultiPurpose", chance.percent(30) ? 0 : 1},
             {"FieldDirections", "From " + chance.oneOf(league.names.streets) +
                                     " turn north at the light; parking is behind the backstop."},
             {"FieldComments", deleted              ? "Sold; no longer ours."
                               : chance.percent(25) ? "Bring your own bases."
                                                    : ""}},
            league.saved(chance, league.day(1, 4), deleted));
    }
    Rows uses(league.database, "tblTeamField");
    const int usable = static_cast<int>(names.size()) - 1;
    for (int place = 0; place < league.divisions.size(); ++place) {
        Division& division = league.divisions[place];
        for (int each = 0; each < 3; ++each) {
            const int field = (plans[place].firstField + each) % usable;
            division.fields << names[field];
            uses.add({{"FieldId", ids[field]}, {"DivisionId", division.id}}, league.saved(chance, league.day(2, 1)));
        }
    }
}

/// A name of its own for each team of a division, however many there are.
QString teamName(const Names& names, int number, int offset) {
    const int count = static_cast<int>(names.teams.size());
    const QString& name = names.teams[(number * 7 + offset) % count];
    const int round = number / count;
    if (round == 0) return name;
    const int colors = static_cast<int>(names.colors.size());
    const QString colored = names.colors[(round - 1) % colors] + ' ' + name;
    return round <= colors ? colored : QString(colored + ' ' + QString::number((round - 1) / colors + 1));
}

/// Each sponsor's key, as often as it sponsors a team.
QList<int> addSponsors(League& league, Chance& chance, int teams) {
    Rows sponsors(league.database, "tblSponsor");
    Rows pledges(league.database, "tblSponsorPreviousPledge");
    const Names& names = league.names;
    const int known = static_cast<int>(names.sponsors.size());
    const int count = std::clamp(teams * 3 / 5, 4, known * static_cast<int>(names.cities.size()));
    QList<int> sponsored;
    for (int number = 0; number < count + 1; ++number) {
        const bool deleted = number == count;
        const City& city = names.cities[number % names.cities.size()];
        QString name = names.sponsors[number % known];
        if (number == 2) name = "Brotherhood of Carpenters & Joiners, Local No. 153";
        if (number >= known) name += " of " + names.cities[number / known % names.cities.size()].name;
        if (deleted) name = "Bargain Barn";
        const int pledge = chance.oneOf({300, 300, 300, 450, 600});
        const int paid = chance.percent(70) ? pledge : chance.percent(50) ? pledge / 2 : 0;
        const int wanted = deleted ? 0 : pledge / 300 + (chance.percent(15) ? 1 : 0);
        const QDate since = league.upToToday(league.day(1, 15));
        QString request = chance.percent(55) ? chance.oneOf(names.colors) : QString();
        if (!request.isEmpty() && request != "White" && chance.percent(60)) request += " and White";
        const int id = sponsors.add(
            {{"SponsorName", name},
             {"SponsorContactName", personName(chance, names.women, names.lastNames)},
             {"SponsorAddress1", streetAddress(chance, names)},
             {"SponsorAddress2", chance.percent(20) ? "Suite " + QString::number(chance.between(1, 40)) : QString()},
             {"SponsorCity", city.name},
             {"SponsorStateId", city.state},
             {"SponsorPostalCode", city.zip},
             {"SponsorPhoneArea", city.area},
             {"SponsorPhone", phoneNumber(552, number)},
             {"SponsorFaxPhoneArea", city.area},
             {"SponsorFaxPhone", chance.percent(50) ? phoneNumber(551, number) : QString()},
             {"SponsorPledgeYear", QString::number(league.options.season)},
             {"SponsorPledgeAmount", dollars(pledge)},
             {"SponsorPaidAmount", paid == 0 ? QString() : dollars(paid)},
             {"SponsorColorRequest", request},
             {"SponsorNbrOfTeams", QString::number(wanted)},
             {"SponsorComments", chance.percent(12) ? "Wants a banner at Opening Day." : ""}},
            league.saved(chance, since, deleted));
        for (int each = 0; each < wanted; ++each) sponsored << id;
        const int years = !deleted && chance.percent(65) ? chance.between(1, 4) : 0;
        for (int year = 1; year <= years; ++year)
            pledges.add({{"SponsorId", id},
                         {"PreviousPledgeYear", QString::number(league.options.season - year)},
                         {"PreviousPledgeAmount", dollars(pledge - 25 * year)},
                         {"PreviousPaidAmount", dollars(chance.percent(90) ? pledge - 25 * year : 0)}},
                        league.saved(chance, league.day(1, 10).addYears(1 - year), chance.percent(4)));
    }
    return sponsored;
}

int addTeam(League& league, Chance& chance, Rows& rows, const Division& division, const QString& name, int sponsor,
            bool deleted) {
    const Names& names = league.names;
    const QString shirt = chance.oneOf(names.colors);
    return rows.add({{"DivisionId", division.id},
                     {"SponsorId", sponsor},
                     {"TeamName", name},
                     {"TeamGender", division.gender},
                     {"TeamLeagueName", "Kestrel Valley Youth Baseball"},
                     {"TeamColors", shirt == "White" ? shirt : QString(shirt + " and White")},
                     {"TeamShirtColor", shirt},
                     {"TeamPantsColor", chance.percent(60) ? "Gray" : "White"},
                     {"TeamHatColor", chance.percent(70) ? shirt : chance.oneOf(names.colors)},
                     {"TeamSocksColor", shirt},
                     {"TeamFeeAmount", dollars(150)},
                     {"TeamFeePaid", dollars(chance.percent(75)   ? 150
                                             : chance.percent(50) ? 75
                                                                  : 0)},
                     {"TeamComments", chance.percent(10) ? "Practices only on weekends." : ""}},
                    league.saved(chance, league.day(2, 20), deleted));
}

void addTeams(League& league, Chance& chance, int wanted, const QList<int>& sponsored) {
    Rows rows(league.database, "tblTeam");
    int done = 0;
    int share = 0;
    for (int place = 0; place < league.divisions.size(); ++place) {
        Division& division = league.divisions[place];
        share += plans[place].share;
        const int upTo = std::max(done + 1, wanted * share / 50);
        const int offset = chance.below(league.names.teams.size());
        for (int number = 0; done < upTo; ++number, ++done) {
            const bool isLong = place == 3 && number == 1;
            const QString name =
                isLong ? "Brightwater and Millbrook Grizzlies" : teamName(league.names, number, offset);
            const int sponsor = done < sponsored.size() && !chance.percent(10) ? sponsored[done] : 0;
            Team team{.division = place, .name = name};
            team.id = addTeam(league, chance, rows, division, team.name, sponsor, false);
            division.teams << static_cast<int>(league.teams.size());
            league.teams << team;
        }
    }
    addTeam(league, chance, rows, league.divisions[1], "Thunderbirds", 0, true);
}

}  // namespace

void makeStructure(League& league) {
    Chance chance(league.options.seed, 1);
    const int teams = std::max(static_cast<int>(std::size(plans)), (league.options.players + 6) / 12);
    addDivisions(league, chance);
    addFields(league, chance);
    const QList<int> sponsored = addSponsors(league, chance, teams);
    addTeams(league, chance, teams, sponsored);
}

}  // namespace sample
