#include "sample_league/PlayerColumns.h"

namespace sample {

namespace {

constexpr const char* medicalNotes[] = {"Allergic to peanuts; carries an EpiPen.",
                                        "Mild asthma, inhaler in the bag.",
                                        "Allergic to bee stings.",
                                        "Type 1 diabetes: ask the parents before the first practice.",
                                        "Wears glasses; needs sports frames.",
                                        "No penicillin."};
constexpr const char* comments[] = {"Please place with a brother or sister.",
                                    "Can't play on Wednesdays.",
                                    "Goes by \"Skip\" on the field.",
                                    "New in town; first season in our league.",
                                    "Parents share rides: see the carpool list.",
                                    "Played up a division last year."};

Cells person(Chance& chance, const Family& family, const Child& child) {
    const bool isLeft = chance.percent(12);
    const QString email = family.isLong    ? emailOf(QString(90, 'x'), family.lastName, chance, 100)
                          : child.age > 11 ? emailOf(child.firstName, family.lastName, chance, 100)
                                           : QString();
    return {{"PlayerLastName", family.lastName},
            {"PlayerFirstName", child.firstName},
            {"PlayerMiddleInitial", chance.percent(85) ? QString(QChar('A' + chance.below(26))) : QString()},
            {"PlayerAddress1", family.address1},
            {"PlayerAddress2", family.address2},
            {"PlayerCity", family.city.name},
            {"PlayerStateId", family.city.state},
            {"PlayerPostalCode", family.postalCode},
            {"PlayerCountryCode", family.country},
            {"PlayerPhoneArea", family.city.area},
            {"PlayerPhone", family.phone},
            {"PlayerGender", child.isGirl ? "Female" : "Male"},
            {"PlayerEmailAddress", email},
            {"PlayerBirthDate", child.birth},
            {"PlayerAge", child.age},
            {"PlayerYearsExperience", QString::number(std::max(0, std::min(child.age - 4, chance.below(8))))},
            {"PlayerRegistrationDate", child.registered},
            {"PlayerIdCheck", chance.percent(90)},
            {"PlayerBirthCertificateChecked", chance.percent(85)},
            {"PlayerHandLeft", isLeft},
            {"PlayerHandRight", !isLeft || chance.percent(10)}};
}

Cells guardian(const QString& column, const QString& relation, const Parent& parent) {
    return {{column + "LastName", parent.lastName},
            {column + "FirstName", parent.firstName},
            {column + "PhoneArea", parent.phoneArea},
            {column + "Phone", parent.phone},
            {column + "WorkPhoneArea", parent.workPhone.isEmpty() ? QString() : parent.workArea},
            {column + "WorkPhone", parent.workPhone},
            {column + "MobilePhoneArea", parent.mobilePhone.isEmpty() ? QString() : parent.mobileArea},
            {column + "MobilePhone", parent.mobilePhone},
            {column + "Email", parent.email},
            {column + "Volunteer", parent.volunteers ? 0 : 1},  // the place of the answer: yes, no
            {relation + "Relationship", parent.relationship}};
}

Cells medical(Chance& chance, const Family& family) {
    const QString note = family.isLong        ? filled("Allergic to cats, dust and early mornings;", 255)
                         : chance.percent(18) ? QString(chance.oneOf(medicalNotes))
                                              : QString();
    return {{"PlayerEmergencyContactName", family.emergencyName.left(30)},
            {"PlayerEmergencyContactRelationship", family.emergencyRelationship},
            {"PlayerEmergencyPhoneArea", family.city.area},
            {"PlayerEmergencyPhone", family.emergencyPhone},
            {"PlayerDoctorName", family.doctor},
            {"PlayerDoctorPhoneArea", "503"},
            {"PlayerDoctorPhone", family.doctorPhone},
            {"PlayerDentistName", family.dentist},
            {"PlayerDentistPhoneArea", family.dentist.isEmpty() ? "" : "503"},
            {"PlayerDentistPhone", family.dentistPhone},
            {"PlayerHospitalName", family.hospital},
            {"PlayerInsuranceCarrier", family.insurance},
            {"PlayerInsPolicyNumber", family.policy},
            {"PlayerMedicalForm", chance.percent(88)},
            {"PlayerMedicalComments", note}};
}

}  // namespace

PlayerColumns::PlayerColumns(const League& league)
    : league_(league),
      shirts_(league.texts("tblShirtSize", "ShirtSizeText")),
      pants_(league.texts("tblPantSize", "PantSizeText")),
      hats_(league.texts("tblHatSize", "HatSizeText")),
      socks_(league.texts("tblSocksSize", "SocksSizeText")),
      shoes_(league.texts("tblShoeSize", "ShoeSizeText")) {}

Cells PlayerColumns::all(Chance& chance, const Family& family, const Child& child, int number) const {
    Cells cells = person(chance, family, child);
    append(cells, guardian("PlayerDad", "PlayerGuardian1", family.parents[0]));
    append(cells, guardian("PlayerMom", "PlayerGuardian2", family.parents.value(1)));
    append(cells, medical(chance, family));
    append(cells, uniform(chance, child));
    append(cells, school(chance, child));
    append(cells, other(chance, family, number));
    return cells;
}

Cells PlayerColumns::uniform(Chance& chance, const Child& child) const {
    const auto bySize = [age = child.age](const QStringList& sizes, int from, int years) {
        return sizes[std::clamp<qsizetype>((age - from) / years, 0, sizes.size() - 1)];
    };
    return {{"PlayerShirtSize", bySize(shirts_, 4, 2)},
            {"PlayerPantSize", bySize(pants_, 5, 2)},
            {"PlayerHatSize", bySize(hats_, 5, 3)},
            {"PlayerSocksSize", bySize(socks_, 5, 3)},
            {"PlayerShoeSize", bySize(shoes_, 4, 1)},
            {"PlayerBeltedPants", child.age > 8},
            {"PlayerSocksIssued", chance.percent(70)},
            {"PlayerHeight", QString::number(30 + child.age * 5 / 2 + chance.below(6))},
            {"PlayerWeight", QString::number(20 + child.age * 7 + chance.below(20))},
            {"PlayerJerseyNumber", child.jersey > 0 ? QString::number(child.jersey) : QString()},
            {"PlayerTryoutNumber",
             child.hasTryout && chance.percent(85) ? QString::number(chance.between(1, 9999)) : QString()}};
}

Cells PlayerColumns::school(Chance& chance, const Child& child) const {
    const int grade = child.age - 6;
    const QString level = grade < 0 ? "PK" : grade == 0 ? "K" : QString::number(std::min(grade, 12));
    const QStringList& schools = league_.names.schools;
    const QStringList fitting = schools.filter(grade < 6 ? "Elementary" : grade < 9 ? "Middle" : "High");
    return {{"PlayerSchoolName", chance.oneOf(chance.percent(85) ? fitting : schools)}, {"PlayerGradeLevel", level}};
}

Cells PlayerColumns::other(Chance& chance, const Family& family, int number) const {
    const Names& names = league_.names;
    const QString text = family.isLong        ? filled("Ask for the long version of this comment;", 255)
                         : chance.percent(15) ? QString(chance.oneOf(comments))
                                              : QString();
    return {{"PlayerRegistrationNumber", QString("%1-%2").arg(league_.options.season).arg(number, 5, 10, QChar('0'))},
            {"PlayerComments", text},
            {"PlayerCustomField1", chance.percent(10) ? personName(chance, names.boys, names.lastNames) : QString()},
            {"PlayerCustomField2", chance.percent(30) ? chance.oneOf(names.cities).name : QString()},
            {"PlayerCustomField3", chance.percent(50) ? QString(QChar('A' + chance.below(4))) : QString()},
            {"PlayerCustomField4", chance.oneOf({"R", "R", "R", "L", "Switch"})},
            {"PlayerCustomField5", chance.percent(60) ? chance.oneOf(names.teams) : QString()},
            {"PlayerCustomField6", family.isLong        ? filled("Yes, if Grandmother can drive;", 50)
                                   : chance.percent(40) ? QString("Yes")
                                                        : QString()},
            {"PlayerPhotoOptIn", chance.percent(80)},
            {"PlayerParentApproval", chance.percent(80)}};
}

}  // namespace sample
