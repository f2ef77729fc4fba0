#include "reports/RegistrationForm.h"

using namespace report;

namespace {

/// A caption and the column that it stands for, or a rule where that holds nothing.
Column entry(const QString& caption, const Field& field, double share = 10) {
    return {.caption = caption, .field = field, .share = share, .bold = true, .fillIn = 1};
}

Column words(const QString& text, double share = 10, double larger = 0) {
    return {.field = fixed(text), .share = share, .larger = larger};
}

constexpr double lineHeight = 15;  // points: room for handwriting
constexpr double smallPrint = -1;  // points less than the form's size

}  // namespace

Line RegistrationForm::heading(const QString& text) { return Line{words(text)}.heading().spaced(4); }

RegistrationForm::Lines RegistrationForm::together(std::initializer_list<Lines> parts) {
    Lines lines;
    for (const Lines& part : parts) lines.insert(lines.end(), part.begin(), part.end());
    return lines;
}

RegistrationForm::Lines RegistrationForm::name() {
    return {Line{entry(tr("Player Name:"), firstLast("PlayerLastName", "PlayerFirstName"), 44),
                 entry(tr("Phone:"), phone("PlayerPhoneArea", "PlayerPhone"), 28),
                 entry(tr("Birth Date:"), date("PlayerBirthDate"), 28)}
                .high(lineHeight),
            Line{entry(tr("Address:"), joined({"PlayerAddress1", "PlayerAddress2"}))}.high(lineHeight),
            Line{entry(tr("City:"), column("PlayerCity"), 44), entry(tr("State/Prov."), column("PlayerStateId"), 22),
                 entry(tr("Postal Code"), column("PlayerPostalCode"), 34)}
                .high(lineHeight)};
}

RegistrationForm::Lines RegistrationForm::gender() {
    return {Line{words(tr("Gender"), 10),
                 {.field = box(tr("Male"), "PlayerGender", "Male"), .share = 12},
                 {.field = box(tr("Female"), "PlayerGender", "Female"), .share = 22},
                 entry(tr("Height"), column("PlayerHeight"), 28),
                 entry(tr("Weight"), column("palyerweight"), 28)}
                .high(lineHeight)};
}

RegistrationForm::Lines RegistrationForm::guardians() {
    const auto person = [](const QString& caption, const Field& name, const Field& phone, const QString& relationship) {
        return Line{entry(caption, name, 44), entry(tr("Phone:"), phone, 28),
                    entry(tr("Relationship:"), column(relationship), 28)}
            .high(lineHeight);
    };
    return {person(tr("Guardian Name:"), firstLast("PlayerDadLastName", "PlayerDadFirstName"),
                   phone("PlayerDadPhoneArea", "PlayerDadPhone"), "PlayerGuardian1Relationship"),
            person(tr("Guardian Name:"), firstLast("PlayerMomLastName", "PlayerMomFirstName"),
                   phone("PlayerMomPhoneArea", "PlayerMomPhone"), "PlayerGuardian2Relationship"),
            person(tr("Emergency Contact:"), column("PlayerEmergencyContactName"),
                   phone("PlayerEmergencyPhoneArea", "PlayerEmergencyPhone"), "PlayerEmergencyContactRelationship")};
}

RegistrationForm::Lines RegistrationForm::medical() {
    Column history = entry({}, column("PlayerMedicalComments"));
    history.fillIn = 2;
    return {heading(tr("Medical Information")),
            Line{entry(tr("Preferred Doctor Name:"), column("PlayerDoctorName"), 66),
                 entry(tr("Phone:"), phone("PlayerDoctorPhoneArea", "PlayerDoctorPhone"), 34)}
                .high(lineHeight),
            Line{entry(tr("Preferred Dentist Name:"), column("PlayerDentistName"), 66),
                 entry(tr("Phone:"), phone("PlayerDentistPhoneArea", "PlayerDentistPhone"), 34)}
                .high(lineHeight),
            Line{entry(tr("Preferred Hospital:"), column("PlayerHospitalName"))}.high(lineHeight),
            Line{entry(tr("Insurance Carrier:"), column("PlayerInsuranceCarrier"), 60),
                 entry(tr("Policy Number:"), column("PlayerInsPolicyNumber"), 40)}
                .high(lineHeight),
            Line{words(tr("Medical History: Allergies, Medications, Special Conditions, etc"))}.high(lineHeight),
            Line{history}};
}

RegistrationForm::Lines RegistrationForm::authorization(const QString& organization) {
    const auto bold = [](const QString& text) {
        return Line{{.field = fixed(text), .bold = true, .larger = smallPrint}};
    };
    const auto print = [](const QString& text) { return Line{words(text, 10, smallPrint)}; };
    const Line signature =
        Line{entry(tr("Signature of Parent or Guardian:"), fixed({}), 70), entry(tr("Date:"), fixed({}), 30)}.high(
            lineHeight + 2);
    return {heading(tr("Medical Authorization")),
            Line{entry(tr("Participant Name:"), firstLast("PlayerLastName", "PlayerFirstName"))}.high(lineHeight),
            bold(tr("PART I  GRANT OF CONSENT")),
            print(tr("In the event reasonable attempts to contact the parents or guardians have been unsuccessful, I "
                     "hereby give my consent for (1) the administration of any treatment deemed necessary by preferred "
                     "Dr.(2), or preferred Dentists or in the event designated Dr. or Dentist is not available, by "
                     "another licensed physician or dentist; and (2) the transfer of the child to preferred hospital "
                     "or any hospital reasonably accessible.")),
            print(tr("NOTE:  This authorization does not cover major surgery unless the medical options of two other "
                     "licensed physicians or dentists, concurring in necessity for such surgery are obtained BEFORE "
                     "the surgery IS PERFORMED.")),
            signature,
            bold(tr("PART II  REFUSAL OF CONSENT    (Do not complete if Part I has been completed)")).spaced(4),
            print(tr("I do NOT give consent for emergency medical treatment ") +
                  tr("of my child.  In the event of illness or injury requiring emergency treatment, ") +
                  tr("I wish that ") + organization + u' ' + tr("to take no action, ") +
                  tr("or perform the following actions:")),
            Line{{.field = fixed({}), .fillIn = 1}}.high(lineHeight),
            signature};
}

RegistrationForm::Lines RegistrationForm::uniform() {
    const QStringList sizes{tr("Youth Small"),   tr("Youth Medium"),  tr("Youth Large"),
                            tr("Youth X-Large"), tr("Adult Small"),   tr("Adult Medium"),
                            tr("Adult Large"),   tr("Adult X-Large"), tr("Adult XX-Large")};
    const auto boxes = [&](const QString& caption, const QString& name) {
        constexpr int inLine = 5;
        const auto isOther = [name, sizes](const Row& row) {
            const QString size = row.text(name);
            return !size.isEmpty() && !sizes.contains(size, Qt::CaseInsensitive);
        };
        Lines lines(2);
        for (int index = 0; index < 2 * inLine; ++index) {
            Line& line = lines[size_t(index / inLine)];
            if (line.empty()) line.push_back(words(index == 0 ? caption : QString(), 11));
            const bool isSize = index < sizes.size();
            line.push_back(
                {.field = isSize ? box(sizes[index], name, sizes[index]) : box(tr("Other ______________"), isOther),
                 .share = index % inLine == inLine - 1 ? 22.0 : 16.0});
        }
        return lines;
    };
    return together({{heading(tr("Uniform"))},
                     boxes(tr("Shirt Size"), "PlayerShirtSize"),
                     boxes(tr("Pants Size"), "PlayerPantSize"),
                     {Line{entry(tr("Hat Size:"), column("PlayerHatSize"), 30),
                           entry(tr("Shoe Size:"), column("PlayerShoeSize"), 30),
                           entry(tr("Jersey Number Preference"), column("PlayerJerseyNumber"), 40)}
                          .high(lineHeight)}});
}

RegistrationForm::Lines RegistrationForm::email() {
    const QString approval = tr("Parent Approval to Contact Participant via Email (for children under the age of 13)");
    return {Line{entry(tr("Email Address:"), column("PlayerEmailAddress"))}.high(lineHeight),
            Line{{.field = box(approval, [](const Row& row) { return row["PlayerParentApproval"].toBool(); })}}};
}

ReportDefinition RegistrationForm::divisions() {
    ReportDefinition list;
    list.typeface = Typeface::Form;
    list.points = 8;
    list.across = 3;
    list.query.text =
        "SELECT 1 AS League, DivName, DivMinAge, DivMaxAge FROM tblDivision WHERE DeletedFlag = False ORDER BY DivName "
        "COLLATE Names";
    list.columns = {{tr("Division"), column("DivName"), 22},
                    {tr("Ages"), joined({"DivMinAge", "DivMaxAge"}, QStringLiteral(" - ")), 8}};
    return list;
}
