#include "sample_league/League.h"

namespace sample {

namespace {

/// What the shed holds. `each` are owned for every team, but at least `least`.
struct Item {
    const char* name;
    const char* description;
    const char* size;
    int cost;
    int each, least;
    const char* model;
};
constexpr Item items[] = {
    {"Team Bag", "Red, with wheels", "Large", 45, 1, 14, "TB-36"},
    {"Batting Helmet", "One size fits all", "Universal", 28, 6, 40, "BH-200"},
    {"Game Balls", "Dozen, leather", "9\"", 42, 2, 20, "GB-9"},
    {"Catcher's Gear", "Mask, chest and shin guards", "Youth", 120, 1, 10, "CG-Y"},
    {"Bat", "Aluminum, 29\" 19 oz.", "29\"", 65, 2, 20, "AL-2919"},
    {"First Aid Kit", "With cold packs", "", 18, 1, 14, ""},
    {"Score Book", "30 games", "", 8, 1, 14, ""},
    {"Batting Tee", "Rubber, height can be set", "", 32, 1, 12, "T-1"},
    {"Bases", "Set of three with plate", "", 95, 0, 12, "BS-3"},
    {"Pitching Machine", "Two wheels; see the manual before use", "", 1850, 0, 2, "PM-2W"},
    {"Umpire Gear", "Mask, chest protector, indicator", "Adult", 140, 0, 10, "UG-A"},
    {"Shed Key", "North shed", "", 4, 0, 25, ""},
    {"Jersey", "Loan jersey for tournaments", "Youth Large", 22, 0, 60, ""},
    {"Line Marker", "Dry chalk, 50 lbs.", "", 210, 0, 3, "LM-50"},
    {"Portable Public Address System for the Main Field.", "Two speakers, a microphone, cables in a gray case.", "",
     640, 0, 1, "PA-2"},
};
enum ItemPlace {
    TeamBag,
    Helmet,
    Balls,
    Gear,
    Bat,
    FirstAid,
    ScoreBook,
    Tee,
    Bases,
    Machine,
    UmpireGear,
    ShedKey,
    Jersey
};
constexpr int mostTeams = 1000;  ///< that draw from the shed: a quantity is a number of 16 bits

class EquipmentMaker {
public:
    explicit EquipmentMaker(League& league)
        : league_(league), chance_(league.options.seed, 5), assignments_(league.database, "tblEquipmentAssignment") {}

    void addVendors();
    void addItems();
    void addToTeams();
    void addToOthers();

private:
    struct Holder {
        int division = 0, team = 0, player = 0, volunteer = 0;
    };
    void assign(const Holder& holder, int item, int quantity, int returned = 0);

    League& league_;
    Chance chance_;
    Rows assignments_;
    QList<int> vendors_, insurances_, items_;
};

void EquipmentMaker::addVendors() {
    const Names& names = league_.names;
    const QDate since = league_.day(1, 6);
    Rows vendors(league_.database, "tblVendor");
    for (const char* name : {"Summit Sports", "Diamond Supply Co.", "O'Malley Team Outfitters", "Bargain Barn"})
        vendors_ << vendors.add({{"VendorName", name},
                                 {"VendorContactName", personName(chance_, names.men, names.lastNames)},
                                 {"VendorContactPhone", "(503) " + phoneNumber(549, chance_.below(10000))},
                                 {"VendorAddress1", streetAddress(chance_, names)},
                                 {"VendorCity", names.cities[0].name},
                                 {"VendorStateId", names.cities[0].state},
                                 {"VendorPostalCode", names.cities[0].zip},
                                 {"VendorCreditLimit", dollars(500 * chance_.between(1, 6))},
                                 {"VendorComments", "Net 30 days"}},
                                league_.saved(chance_, since, vendors_.size() == 3));
    Rows insurances(league_.database, "tblInsurance");
    for (const char* name : {"O'Brien Insurance", "Lakeshore Agency"})
        insurances_ << insurances.add({{"InsAgencyName", name},
                                       {"InsCompanyName", "Evergreen Mutual"},
                                       {"InsContactName", personName(chance_, names.women, names.lastNames)},
                                       {"InsPolicyNumber", "EM-" + QString::number(chance_.between(10000, 99999))},
                                       {"InsPhone", "(971) " + phoneNumber(548, chance_.below(10000))},
                                       {"InsAddress1", streetAddress(chance_, names)},
                                       {"InsCity", names.cities[1].name},
                                       {"InsStateId", names.cities[1].state},
                                       {"InsPostalCode", names.cities[1].zip},
                                       {"InsLiabilityLimit", "$1,000,000.00"},
                                       {"InsDeductibleAmt", dollars(500)}},
                                      league_.saved(chance_, since));
}

void EquipmentMaker::addItems() {
    Rows rows(league_.database, "tblEquipment");
    const int teams = static_cast<int>(std::min<qsizetype>(league_.teams.size(), mostTeams));
    static constexpr const char* conditions[] = {"New", "Good", "Good", "Fair"};
    const auto add = [&](const Item& item, bool deleted) {
        const QDate year = league_.day(2, 1).addYears(-chance_.below(4));
        const QDate bought = league_.upToToday(year.addDays(chance_.below(40)));
        const bool insured = item.cost > 500;
        return rows.add({{"ItemName", item.name},
                         {"Description", item.description},
                         {"NbrItems", std::max(item.least, teams * item.each)},
                         {"VendorId", vendors_[chance_.below(3)]},
                         {"InsuranceId", insured ? insurances_[0] : 0},
                         {"Insured", insured ? 0 : 1},  // the place of the answer: yes, no
                         {"Cost", dollars(item.cost)},
                         {"Size", item.size},
                         {"PurchaseDate", bought},
                         {"WarrantyExpiration", bought.addYears(1)},
                         {"ModelNumber", item.model},
                         {"SerialNumber", insured ? QString("S%1").arg(chance_.between(100000, 999999)) : QString()},
                         {"Condition", chance_.oneOf(conditions)},
                         {"Comments", insured ? "Back to the shed after every game." : ""}},
                        league_.saved(chance_, bought, deleted));
    };
    for (const Item& item : items) items_ << add(item, false);
    add({"Wooden Bleachers", "Five rows", "", 900, 0, 2, ""}, true);
}

void EquipmentMaker::assign(const Holder& holder, int item, int quantity, int returned) {
    const QDate given = league_.upToToday(league_.day(3, 20).addDays(chance_.below(12)));
    const QDate back = returned > 0 ? league_.upToToday(given.addDays(20 + chance_.below(25))) : QDate();
    assignments_.add({{"DivisionId", holder.division},
                      {"TeamId", holder.team},
                      {"PlayerId", holder.player},
                      {"VolId", holder.volunteer},
                      {"EquipmentId", items_[item]},
                      {"DistributionQuantity", QString::number(quantity)},
                      {"DistributionDate", given},
                      {"ReturnQuantity", QString::number(returned)},
                      {"ReturnDate", back}},
                     league_.saved(chance_, given, chance_.percent(2)));
}

void EquipmentMaker::addToTeams() {
    for (const Team& team : league_.teams.first(std::min<qsizetype>(league_.teams.size(), mostTeams))) {
        const Division& division = league_.divisions[team.division];
        const Holder holder{.division = division.id, .team = team.id};
        assign(holder, TeamBag, 1);
        assign(holder, Helmet, 6, chance_.percent(12) ? 1 : 0);
        assign(holder, Balls, 2);
        assign(holder, FirstAid, 1);
        if (division.keepsScore) {
            assign(holder, Gear, 1, chance_.percent(8) ? 1 : 0);
            assign(holder, Bat, 2, chance_.percent(10) ? 2 : 0);
            assign(holder, ScoreBook, 1);
        } else {
            assign(holder, Tee, 1);
        }
    }
}

void EquipmentMaker::addToOthers() {
    for (const Division& division : league_.divisions) assign({.division = division.id}, Bases, 1);
    assign({.division = league_.divisions[1].id}, Machine, 2, 1);
    int keys = 25;
    int gear = 12;  // two more than there are
    for (const Volunteer& person : league_.volunteers) {
        if (person.isUmpire && gear-- > 0) assign({.volunteer = person.id}, UmpireGear, 1);
        if (person.onStaff && !person.isUmpire && chance_.percent(25) && keys-- > 0)
            assign({.volunteer = person.id}, ShedKey, 1);
    }
    int jerseys = 40;
    for (const Player& player : league_.players)
        if (player.keepsScore && chance_.percent(10) && jerseys-- > 0)
            assign({.player = player.id}, Jersey, 1, chance_.percent(30) ? 1 : 0);
}

}  // namespace

void makeEquipment(League& league) {
    EquipmentMaker maker(league);
    maker.addVendors();
    maker.addItems();
    maker.addToTeams();
    maker.addToOthers();
}

}  // namespace sample
