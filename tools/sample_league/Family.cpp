#include "sample_league/Family.h"

namespace sample {

namespace {

struct Office {
    const char* name;
    const char* phone;
};
constexpr Office doctors[] = {{"Dr. Alma Reyes", "550-0101"},
                              {"Dr. P. O'Shea", "550-0102"},
                              {"Dr. Hiroshi Tanaka", "550-0103"},
                              {"Brightwater Pediatrics", "550-0104"},
                              {"Dr. Ingrid Søndergaard", "550-0105"}};
constexpr Office dentists[] = {
    {"Cedar Ridge Dental", "550-0121"}, {"Dr. Malik Warner", "550-0122"}, {"Smiles & Co.", "550-0123"}};
constexpr const char* hospitals[] = {"Valley General", "St. Luke's", "Kestrel Moor Community Hospital"};
constexpr const char* carriers[] = {"Cascade Health", "Evergreen Mutual", "First Harbor", "State Plan",
                                    "United Growers Trust"};

Parent makeParent(const Names& names, Chance& chance, const Family& family, bool isWoman) {
    Parent parent;
    parent.lastName = family.lastName;
    parent.firstName = chance.oneOf(isWoman ? names.women : names.men);
    if (isWoman && chance.percent(15)) parent.lastName = chance.oneOf(names.lastNames);
    parent.isWoman = isWoman;
    parent.relationship = isWoman ? "Mother" : "Father";
    parent.phoneArea = parent.workArea = parent.mobileArea = family.city.area;
    parent.phone = family.phone;
    if (chance.percent(60)) parent.workPhone = phoneNumber(564, chance.below(10000));
    if (chance.percent(85)) parent.mobilePhone = phoneNumber(568, chance.below(10000));
    if (chance.percent(80)) parent.email = emailOf(parent.firstName, parent.lastName, chance, 35);
    parent.volunteers = chance.percent(30);
    return parent;
}

void addParents(Family& family, const Names& names, Chance& chance) {
    switch (chance.weighted({76, 10, 5, 4, 3, 2})) {
        case 0:
            family.parents = {makeParent(names, chance, family, false), makeParent(names, chance, family, true)};
            break;
        case 1: family.parents = {makeParent(names, chance, family, true)}; break;
        case 2: family.parents = {makeParent(names, chance, family, false)}; break;
        case 3:  // the mother first
            family.parents = {makeParent(names, chance, family, true), makeParent(names, chance, family, false)};
            break;
        case 4:
            family.parents = {makeParent(names, chance, family, true)};
            family.parents[0].relationship = "Legal Guardian";
            break;
        default:
            family.parents = {makeParent(names, chance, family, true), makeParent(names, chance, family, true)};
            if (family.parents[0].firstName == family.parents[1].firstName) family.parents[1].firstName += " Lee";
    }
    if (family.parents.size() == 2 && chance.percent(10))  // lives elsewhere
        family.parents[1].phone = phoneNumber(577, chance.below(10000));
}

/// Every text of the family as long as its column.
void lengthen(Family& family, const Names& names, Chance& chance) {
    family.isLong = true;
    family.lastName = "Featherstonehaugh-Cholmondeley";
    family.address1 = "12480 North Old Kestrel Moor Valley Schoolhouse Rd";
    family.address2 = "Building 14, Apartment 1207C, Second Rear Entrance";
    family.city.name = "Saint-Aimé on the Granite Bay.";
    family.hospital = filled("Sisters of Mercy", 50);
    family.parents = {makeParent(names, chance, family, false), makeParent(names, chance, family, true)};
    family.parents[0].firstName = "Bartholomew-Christopher Samuel";
    for (Parent& parent : family.parents) {
        parent.email = emailOf(parent.firstName, family.lastName, chance, 35);
        parent.volunteers = true;
    }
}

}  // namespace

QString emailOf(const QString& first, const QString& last, Chance& chance, int width) {
    QString plain;
    for (const QChar letter : QString(first + '.' + last).normalized(QString::NormalizationForm_D).toLower())
        if (letter == '.' || (letter >= 'a' && letter <= 'z')) plain += letter;
    static constexpr const char* hosts[] = {"@mail.example", "@home.example", "@valley.example"};
    const QString host = chance.oneOf(hosts);
    return plain.left(width - host.size()) + host;
}

Family makeFamily(const Names& names, Chance& chance, int number) {
    Family family;
    family.lastName = chance.oneOf(names.lastNames);
    family.city = chance.oneOf(names.cities);
    family.address1 = streetAddress(chance, names);
    if (chance.percent(15)) family.address2 = QString("Apt %1").arg(chance.between(1, 130));
    family.postalCode = family.city.zip;
    if (chance.percent(30)) family.postalCode += QString("-%1").arg(chance.between(1000, 9999));
    if (chance.percent(30)) family.country = "USA";
    family.phone = phoneNumber(580 + number / 10000, number % 10000 * 7919 % 10000);
    addParents(family, names, chance);

    const Office& doctor = chance.oneOf(doctors);
    family.doctor = QString::fromUtf8(doctor.name);
    family.doctorPhone = doctor.phone;
    if (chance.percent(75)) {
        const Office& dentist = chance.oneOf(dentists);
        family.dentist = dentist.name;
        family.dentistPhone = dentist.phone;
    }
    family.hospital = chance.oneOf(hospitals);
    family.insurance = chance.oneOf(carriers);
    family.policy = QString("KV-%1").arg(chance.between(100000, 999999));
    const bool isGrandmother = chance.percent(50);
    family.emergencyName = personName(chance, isGrandmother ? names.women : names.men, names.lastNames);
    family.emergencyRelationship = isGrandmother ? "Grandmother" : chance.percent(50) ? "Uncle" : "Neighbor";
    family.emergencyPhone = phoneNumber(578, chance.below(10000));
    if (number == 4) lengthen(family, names, chance);
    return family;
}

}  // namespace sample
