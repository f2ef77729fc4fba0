#include "platform/text/KeyFilters.h"
#include "platform/widgets/FormBuilder.h"
#include "registration/PlayerPane.h"
#include "shell/Bound.h"
#include "shell/Choices.h"

// The player form behind its first tab.

namespace {

/// Yes is choice 0 in the row; what is shown follows from the volunteers and not from there.
FlagBinding volunteers(bool& shown, Whole& choice) {
    return {[&shown] { return shown; },
            [&shown, &choice](bool yes) {
                shown = yes;
                choice = yes ? 0 : 1;
            }};
}

/// A grade is kept in two letters: "PK", "Co", "K", "7".
QString shownGrade(const QString& kept) {
    if (kept == u"PK") return QStringLiteral("Pre-K");
    if (kept == u"CO" || kept == u"Co") return QStringLiteral("College");
    return kept;
}

QString keptGrade(const QString& shown) { return shown == u"Pre-K" ? QStringLiteral("PK") : shown.left(2); }

QStringList grades() {
    QStringList list{QStringLiteral("Pre-K"), QStringLiteral("K")};
    for (int grade = 1; grade <= 12; ++grade) list << QString::number(grade);
    return list << QStringLiteral("College");
}

struct ParentFields {
    const char* who;  ///< in the names of boxes
    const char* relationshipBox;
    Text& relationship;
    Text& lastName;
    Text& firstName;
    Text& phoneArea;
    Text& phone;
    Text& workArea;
    Text& work;
    Text& mobileArea;
    Text& mobile;
    Text& email;
    Whole& volunteer;
    bool& volunteers;
};

}  // namespace

QStringList PlayerPane::liveNames(const char* table, const char* column) {
    return listOf(program(),
                  QStringLiteral("SELECT [%2] FROM %1 WHERE [DeletedFlag] = False ORDER BY [%2]")
                      .arg(QLatin1String(table), QLatin1String(column)),
                  QLatin1String(column));
}

/// The lists that other screens keep.
void PlayerPane::readChoices() {
    const struct {
        const char* box;
        const char* table;
        const char* column;
    } lists[] = {{"cboPlayerDivision", "tblDivision", "DivName"},
                 {"cboPlayerHowFeePaid", "tblHowFeePaid", "HowFeePaidText"},
                 {"cboPlayerSchoolName", "tblSchoolInfo", "SchoolName"},
                 {"cboPlayerShirtSize", "tblShirtSize", "ShirtSizeText"},
                 {"cboPlayerPantSize", "tblPantSize", "PantSizeText"},
                 {"cboPlayerHatSize", "tblHatSize", "HatSizeText"},
                 {"cboPlayerShoeSize", "tblShoeSize", "ShoeSizeText"},
                 {"cboPlayerInsuranceCarrier", "tblInsurance", "InsCompanyName"}};
    for (const auto& list : lists)
        form().findChild<ChoiceBox*>(QLatin1String(list.box))->setEntries(liveNames(list.table, list.column));
}

void PlayerPane::addParentsTab(FormBuilder& builder) {
    clsRegistration& p = player_;
    const ParentFields parents[] = {
        {"Dad", "cboPlayerGuardian1Relationship", p.PlayerGuardian1Relationship, p.PlayerDadLastName,
         p.PlayerDadFirstName, p.PlayerDadPhoneArea, p.PlayerDadPhone, p.PlayerDadWorkPhoneArea, p.PlayerDadWorkPhone,
         p.PlayerDadMobilePhoneArea, p.PlayerDadMobilePhone, p.PlayerDadEmail, p.PlayerDadVolunteer, dadVolunteers_},
        {"Mom", "cboPlayerGuardian2Relationship", p.PlayerGuardian2Relationship, p.PlayerMomLastName,
         p.PlayerMomFirstName, p.PlayerMomPhoneArea, p.PlayerMomPhone, p.PlayerMomWorkPhoneArea, p.PlayerMomWorkPhone,
         p.PlayerMomMobilePhoneArea, p.PlayerMomMobilePhone, p.PlayerMomEmail, p.PlayerMomVolunteer, momVolunteers_}};
    builder.tab(tr("Parent Info."));
    int number = 0;
    for (const ParentFields& parent : parents) {
        const auto named = [&parent](const char* pattern) {
            return QString::fromLatin1(pattern).arg(QLatin1String(parent.who));
        };
        builder.column()
            .frame(tr("Parent %1").arg(++number), 1)
            .choice(parent.relationshipBox, tr("Relationship"), parent.relationship,
                    {"Mother", "Father", "Legal Guardian"})
            .text(named("txtPlayer%1LastName"), tr("Last Name"), parent.lastName, FilterTextFull)
            .text(named("txtPlayer%1FirstName"), tr("First Name"), parent.firstName, FilterTextFull)
            .phone(named("mskedPlayer%1PhoneArea"), named("mskedPlayer%1Phone"), tr("Home Phone"), parent.phoneArea,
                   parent.phone)
            .phone(named("mskedPlayer%1WorkPhoneArea"), named("mskedPlayer%1WorkPhone"), tr("Work Phone"),
                   parent.workArea, parent.work)
            .phone(named("mskedPlayer%1MobilePhoneArea"), named("mskedPlayer%1MobilePhone"), tr("Mobile Phone"),
                   parent.mobileArea, parent.mobile)
            .text(named("txtPlayer%1Email"), tr("Email Address"), parent.email, FilterTextFull)
            .yesNo(named("optPlayer%1Volunteer"), tr("Volunteer?"), volunteers(parent.volunteers, parent.volunteer));
    }
}

void PlayerPane::addSchoolTab(FormBuilder& builder) {
    clsRegistration& p = player_;
    builder.tab(tr("School/Uniform"))
        .column()
        .frame(tr("School Information"), 1)
        .choice("cboPlayerSchoolName", tr("School"), p.PlayerSchoolName, liveNames("tblSchoolInfo", "SchoolName"),
                ChoiceBox::FreeText | ChoiceBox::EmptyFirst, FilterTextFull)
        .choice("cboPlayerGradeLevel", tr("Grade:"),
                Binding([&p] { return shownGrade(p.PlayerGradeLevel); },
                        [&p](const QString& grade) { p.PlayerGradeLevel = keptGrade(grade); }, 7),
                grades())
        .frame({}, 1)
        .comments("txtPlayerComments", tr("Comments"), p.PlayerComments, FilterTextWide)
        .column()
        .frame(tr("Uniform Information"), 1)
        .choice("cboPlayerShirtSize", tr("Shirt Size"), p.PlayerShirtSize, liveNames("tblShirtSize", "ShirtSizeText"))
        .choice("cboPlayerPantSize", tr("Pants Size"), p.PlayerPantSize, liveNames("tblPantSize", "PantSizeText"))
        .choice("cboPlayerHatSize", tr("Hat Size"), p.PlayerHatSize, liveNames("tblHatSize", "HatSizeText"))
        .choice("cboPlayerShoeSize", tr("Shoe Size"), p.PlayerShoeSize, liveNames("tblShoeSize", "ShoeSizeText"))
        .text("txtPlayerJerseyNumber", tr("Jersey Number:"), p.PlayerJerseyNumber, FilterTextFull)
        .check("chkPlayerBeltedPants", tr("Pants include Belt?"), p.PlayerBeltedPants);
}

void PlayerPane::addMedicalTab(FormBuilder& builder) {
    clsRegistration& p = player_;
    builder.tab(tr("Medical"))
        .column()
        .frame(tr("Doctor and Hospital"), 1)
        .text("txtPlayerDoctorName", tr("Doctor's Name"), p.PlayerDoctorName, FilterTextFull)
        .phone("mskedPlayerDoctorPhoneArea", "mskedPlayerDoctorPhone", tr("Doctor's Phone"), p.PlayerDoctorPhoneArea,
               p.PlayerDoctorPhone)
        .text("txtPlayerDentistName", tr("Dentist's Name"), p.PlayerDentistName, FilterTextFull)
        .phone("mskedPlayerDentistPhoneArea", "mskedPlayerDentistPhone", tr("Dentist's Phone"),
               p.PlayerDentistPhoneArea, p.PlayerDentistPhone)
        .text("txtPlayerHospitalName", tr("Hospital Preference"), p.PlayerHospitalName, FilterTextFull)
        .column()
        .frame(tr("Emergency and Insurance"), 1)
        .text("txtPlayerEmergencyContactName", tr("Emergency Contact Name"), p.PlayerEmergencyContactName,
              FilterTextFull)
        .text("txtPlayerEmergencyContactRelationship", tr("Emergency Contact Relationship"),
              p.PlayerEmergencyContactRelationship, FilterTextFull)
        .phone("mskedPlayerEmergencyPhoneArea", "mskedPlayerEmergencyPhone", tr("Emergency Contact Phone"),
               p.PlayerEmergencyPhoneArea, p.PlayerEmergencyPhone)
        .choice("cboPlayerInsuranceCarrier", tr("Insurance Carrier"), p.PlayerInsuranceCarrier,
                liveNames("tblInsurance", "InsCompanyName"), ChoiceBox::FreeText | ChoiceBox::EmptyFirst,
                FilterTextFull)
        .text("txtPlayerInsPolicyNumber", tr("Insurance Policy Number"), p.PlayerInsPolicyNumber, FilterTextFull)
        .check("chkPlayerMedicalForm", tr("Emergency Medical Authorization form signed?"), p.PlayerMedicalForm)
        .below()
        .frame(tr("Comments: allergies, medications, special conditions, etc"), 1)
        .comments("txtPlayerMedicalComments", {}, p.PlayerMedicalComments, FilterTextWide);
}

void PlayerPane::addOutsideFrame(FormBuilder& builder) {
    clsRegistration& p = player_;
    builder.column(2)
        .frame(tr("With Respect to the Player..."), 1)
        .check("chkPlayerSendInvitation", tr("Send Invitation to the Team Web Site?"), p.PlayerSendInvitation)
        .check("chkPlayerParentApproval", tr("Parent Approval for the Team Web Site?"), p.PlayerParentApproval)
        .check("chkPlayerPhotoOptIn", tr("Photo Opt In?"), p.PlayerPhotoOptIn)
        .text("txtPlayerLarkfoldMemberId", tr("Member Id"), p.PlayerLarkfoldMemberId, FilterTextFull);
}
