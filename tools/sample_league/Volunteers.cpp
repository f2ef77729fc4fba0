#include "sample_league/Volunteers.h"

namespace sample {

int VolunteerRows::add(Chance& chance, const Family& family, const Parent& person, QDate registered, bool active,
                       bool deleted) {
    const Names& names = league_.names;
    const QDate birth = QDate(league_.options.season - 28, 12, 28).addDays(-chance.below(25 * 365));
    const QString comments = family.isLong        ? filled("Knows everybody and says so;", 255)
                             : chance.percent(10) ? QString("Prefers the younger divisions.")
                                                  : QString();
    return rows_.add(
        {{"VolLastName", person.lastName},
         {"VolFirstName", person.firstName},
         {"VolAddress1", family.address1},
         {"VolAddress2", family.address2},
         {"VolCity", family.city.name},
         {"VolStateId", family.city.state},
         {"VolPostalCode", family.postalCode},
         {"VolCountryCode", family.country},
         {"VolEmailAddress", person.email},
         {"VolHomePhoneArea", person.phoneArea},
         {"VolHomePhone", person.phone},
         {"VolWorkPhoneArea", person.workPhone.isEmpty() ? QString() : person.workArea},
         {"VolWorkPhone", person.workPhone},
         {"VolFaxPhoneArea", person.mobilePhone.isEmpty() ? QString() : person.mobileArea},
         {"VolFaxPhone", person.mobilePhone},
         {"VolGender", person.isWoman ? "Female" : "Male"},
         {"VolActive", active && !deleted},
         {"VolBirthDate", birth},
         {"VolRegistrationDate", registered},
         {"VolOccupation", family.isLong ? filled("Teacher of History", 50) : chance.oneOf(names.occupations)},
         {"VolComments", comments},
         {"VolCustomField1", chance.percent(70) ? registered.toString("M/d/yyyy") : QString()},
         {"VolCustomField2", chance.percent(10) ? QString::number(chance.between(1, 60)) : QString()},
         {"VolCustomField3", QString::number(chance.below(9))},
         {"VolCustomField5", chance.percent(15) ? "English, Spanish" : ""}},
        league_.saved(chance, registered, deleted));
}

namespace {

constexpr const char* roles[] = {"HeadCoach", "FirstAssistant", "SecondAssistant", "TeamParent", "TeamParent2"};
constexpr const char* positionOfRole[] = {"Manager", "Coach", "Coach", "Team Parent", "Team Parent"};

class StaffMaker {
public:
    explicit StaffMaker(League& league)
        : league_(league),
          chance_(league.options.seed, 3),
          staff_(league.database, "tblTeamVolunteer"),
          positions_(league.database, "tblVolToPosition"),
          certifications_(league.database, "tblVolunteerCertifications") {
        for (const char* position : positionOfRole) positionIds_ << positionId(position);
    }

    void addOthers();
    void addStaff(Team& team);
    void addPositions();
    void addCertifications();

private:
    int positionId(const char* name) { return league_.idOf("tblVolunteerPositions", "VolPosId", "VolPosName", name); }
    int certificationId(const char* name) {
        return league_.idOf("tblCertifications", "CertificationId", "CertificationName", name);
    }
    void addPosition(int volId, int playerId, int positionId) {
        positions_.add({{"VolId", volId}, {"PlayerId", playerId}, {"VolPosId", positionId}},
                       league_.saved(chance_, since()));
    }
    QDate since() const { return league_.upToToday(league_.day(3, 1)); }

    League& league_;
    Chance chance_;
    Rows staff_;
    Rows positions_;
    Rows certifications_;
    QList<int> positionIds_;  ///< as positionOfRole
};

/// Umpires, board members, grandparents: people without a child in the league, some of them no longer with it.
void StaffMaker::addOthers() {
    VolunteerRows rows(league_);
    Rows links(league_.database, "tblRegistrationVolunteer");
    const int umpire = positionId("Umpire");
    const int boardMember = positionId("Board Member");
    const int count = std::max(4, league_.options.players / 25);
    for (int number = 0; number < count; ++number) {
        const Family home = makeFamily(league_.names, chance_, number + 200000);
        const bool deleted = number % 13 == 3;
        const bool active = !deleted && number % 9 != 2;
        const int id = rows.add(chance_, home, home.parents[0], league_.upToToday(league_.day(1, 8)), active, deleted);
        if (!active) continue;
        const bool isUmpire = chance_.percent(60);
        league_.volunteers.append({.id = id, .onStaff = true, .isUmpire = isUmpire});
        addPosition(id, 0, isUmpire ? umpire : boardMember);
        if (league_.players.isEmpty() || !chance_.percent(30)) continue;
        const Player& grandchild = chance_.oneOf(league_.players);
        links.add({{"VolId", id}, {"PlayerId", grandchild.id}, {"VolGender", "Other"}},
                  league_.saved(chance_, since(), chance_.percent(15)));
    }
}

/// From the parents who volunteer: one role each as long as there are parents; a lone parent may do two things.
void StaffMaker::addStaff(Team& team) {
    if (team.parents.isEmpty()) return;
    chance_.shuffle(team.parents);
    static constexpr const char* shirts[] = {"Adult Medium", "Adult Large", "Adult X-Large", "Adult XX-Large"};
    for (int role = 0; role < 5; ++role) {
        const bool isAlsoCoach = role == 3 && role >= team.parents.size() && chance_.percent(40);
        if (role >= team.parents.size() && !isAlsoCoach) continue;
        const TeamParent& parent = team.parents[isAlsoCoach ? 0 : role];
        const bool hasLeft = role == 2 && chance_.percent(15);
        Volunteer& person = league_.volunteers[parent.volunteer];
        staff_.add({{"VolId", person.id},
                    {"DivisionId", league_.divisions[team.division].id},
                    {"TeamId", team.id},
                    {"VolPosName", roles[role]},
                    {"VolShirtSize", chance_.oneOf(shirts)}},
                   league_.saved(chance_, since(), hasLeft));
        if (hasLeft) continue;
        person.onStaff = true;
        addPosition(person.id, parent.playerId, positionIds_[role]);
    }
}

/// Of the parents who are on no team's staff.
void StaffMaker::addPositions() {
    QList<int> ids;
    for (const char* position :
         {"Scorekeeper", "Equipment Manager", "Field Maintenance", "Concessions", "Fund Raising", "Announcer"})
        ids << positionId(position);
    for (const Volunteer& person : league_.volunteers)
        if (!person.onStaff && chance_.percent(70)) addPosition(person.id, person.playerId, chance_.oneOf(ids));
}

void StaffMaker::addCertifications() {
    const int check = certificationId("Background Check");
    const QList<int> ofCoaches{certificationId("Coaching Clinic"), certificationId("Concussion Awareness"),
                               certificationId("First Aid"), certificationId("CPR")};
    const int ofUmpires = certificationId("Umpire Clinic");
    for (const Volunteer& person : league_.volunteers) {
        QList<int> held;
        if (chance_.percent(85)) held << check;
        if (person.isUmpire) held << ofUmpires;
        for (const int certification : ofCoaches)
            if (person.onStaff && !person.isUmpire && chance_.percent(45)) held << certification;
        for (const int certification : held)
            certifications_.add({{"VolId", person.id}, {"CertificationId", certification}},
                                league_.saved(chance_, since(), chance_.percent(2)));
    }
}

}  // namespace

void makeStaff(League& league) {
    StaffMaker maker(league);
    for (Team& team : league.teams) maker.addStaff(team);
    maker.addOthers();
    maker.addPositions();
    maker.addCertifications();
}

}  // namespace sample
