#include "reports/Reports.h"

using namespace report;

namespace {

QString columnsOfRecord() {
    QString columns =
        "PlayerEmailAddress, PlayerActive, PlayerGradeLevel, PlayerYearsExperience, PlayerHandLeft, PlayerHandRight, "
        "PlayerRegistrationDate, PlayerRegistrationNumber, PlayerTryoutNumber, PlayerHeight, PlayerWeight, "
        "PlayerIdCheck, PlayerBirthCertificateChecked, PlayerMedicalForm, PlayerIsUmpire, "
        "PlayerGuardian1Relationship, PlayerGuardian2Relationship, PlayerDadEmail, PlayerMomEmail, "
        "PlayerEmergencyContactName, PlayerEmergencyContactRelationship, PlayerEmergencyPhoneArea, "
        "PlayerEmergencyPhone, PlayerDoctorName, PlayerDoctorPhoneArea, PlayerDoctorPhone, PlayerDentistName, "
        "PlayerDentistPhoneArea, PlayerDentistPhone, PlayerHospitalName, PlayerInsuranceCarrier, "
        "PlayerInsPolicyNumber, PlayerMedicalComments, PlayerShirtSize, PlayerPantSize, PlayerHatSize, "
        "PlayerSocksSize, PlayerShoeSize, PlayerFeeAmount, PlayerFundRaiserFee, PlayerOtherFees, PlayerAmountPaid, "
        "PlayerHowFeePaid, PlayerComments";
    for (int field = 1; field <= 6; ++field)
        columns += QStringLiteral(", PlayerCustomField%1, (SELECT RegCustomFieldLabel%1 FROM tblDefaults) AS Label%1")
                       .arg(field);
    return columns;
}

/// "Position: Catcher" for each field that the league has named itself and that holds something.
Field customFields() {
    return computed([](const Row& row) {
        QStringList fields;
        for (int field = 1; field <= 6; ++field) {
            const QString value = row.text(QStringLiteral("PlayerCustomField%1").arg(field));
            QString label = row.text(QStringLiteral("Label%1").arg(field));
            if (value.isEmpty() || label.isEmpty()) continue;
            if (!label.endsWith(u':')) label += u':';
            fields << QString(label % u' ' % value);
        }
        return fields.join(QStringLiteral("   "));
    });
}

}  // namespace

LeagueReport Reports::rptPlayerReport1(const ReportInput& input) {
    ReportDefinition record = headed(input, tr("Player Report"));
    QueryText one = players(Needs::Nothing, columnsOfRecord());
    record.query = wherePlayer(one, input.lists[0]).orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate");
    const auto guardian = [](const QString& which, const QString& relationship) {
        return Line{{tr("Guardian:"), firstLast(which + "LastName", which + "FirstName"), 34},
                    {.field = column(relationship), .share = 12},
                    {.field = allPhones(which), .share = 54}}
            .ifFilled();
    };
    const Field throws = computed([](const Row& row) {
        const bool left = row["PlayerHandLeft"].toBool();
        const bool right = row["PlayerHandRight"].toBool();
        return left && right ? tr("both") : left ? tr("left") : right ? tr("right") : QString();
    });
    record.lines = {
        Line{{.field = lastFirst("PlayerLastName", "PlayerFirstName"), .share = 46, .bold = true, .larger = 2},
             {.field = column("DivName").orElse(tr("Not Assigned to a Division")), .share = 27},
             {.field = column("TeamName").orElse(tr("Not Assigned to a Team")), .share = 27}},
        Line{{tr("Birth Date:"), date("PlayerBirthDate"), 23},
             {tr("Age:"), playerAge(input), 23},
             {tr("Gender:"), column("PlayerGender"), 27},
             {tr("Active:"), yesNo("PlayerActive"), 27}},
        Line{{tr("Phone:"), phone("PlayerPhoneArea", "PlayerPhone"), 23},
             {.field = joined({"PlayerAddress1", "PlayerAddress2"}), .share = 50},
             {.field = playerCity(), .share = 27}},
        Line{{tr("Email:"), column("PlayerEmailAddress")}}.ifFilled(),
        Line{{tr("School:"), column("PlayerSchoolName"), 46},
             {tr("Grade:"), column("PlayerGradeLevel"), 14},
             {tr("Years Played:"), column("PlayerYearsExperience"), 20},
             {tr("Throws:"), throws, 20}},
        Line{{tr("Height:"), column("PlayerHeight"), 23},
             {tr("Weight:"), column("PlayerWeight"), 23},
             {tr("Jersey:"), column("PlayerJerseyNumber"), 27},
             {tr("Umpire:"), yesNo("PlayerIsUmpire"), 27}},
        Line{{tr("Registered:"), date("PlayerRegistrationDate"), 23},
             {tr("Tryout No.:"), column("PlayerTryoutNumber"), 23},
             {tr("Registration No.:"), column("PlayerRegistrationNumber"), 54}},
        Line{{tr("ID Checked:"), yesNo("PlayerIdCheck"), 23},
             {tr("Birth Certificate:"), yesNo("PlayerBirthCertificateChecked"), 23},
             {tr("Medical Form:"), yesNo("PlayerMedicalForm"), 54}},
        guardian("PlayerDad", "PlayerGuardian1Relationship").spaced(3),
        Line{{tr("Email:"), column("PlayerDadEmail")}}.ifFilled(),
        guardian("PlayerMom", "PlayerGuardian2Relationship"),
        Line{{tr("Email:"), column("PlayerMomEmail")}}.ifFilled(),
        Line{{tr("Emergency:"), column("PlayerEmergencyContactName"), 46},
             {.field = column("PlayerEmergencyContactRelationship"), .share = 27},
             {.field = phone("PlayerEmergencyPhoneArea", "PlayerEmergencyPhone"), .share = 27}}
            .ifFilled(),
        Line{{tr("Doctor:"), column("PlayerDoctorName"), 46},
             {.field = phone("PlayerDoctorPhoneArea", "PlayerDoctorPhone"), .share = 16},
             {tr("Hospital:"), column("PlayerHospitalName"), 38}}
            .spaced(3)
            .ifFilled(),
        Line{{tr("Dentist:"), column("PlayerDentistName"), 46},
             {.field = phone("PlayerDentistPhoneArea", "PlayerDentistPhone"), .share = 54}}
            .ifFilled(),
        Line{{tr("Insurance:"), column("PlayerInsuranceCarrier"), 46},
             {tr("Policy No.:"), column("PlayerInsPolicyNumber"), 54}}
            .ifFilled(),
        Line{{tr("Medical Notes:"), column("PlayerMedicalComments")}}.ifFilled(),
        Line{{tr("Shirt:"), column("PlayerShirtSize"), 20},
             {tr("Pants:"), column("PlayerPantSize"), 20},
             {tr("Hat:"), column("PlayerHatSize"), 22},
             {tr("Socks:"), column("PlayerSocksSize"), 22},
             {tr("Shoes:"), column("PlayerShoeSize"), 16}}
            .spaced(3)
            .ifFilled(),
        Line{{tr("Fee:"), money("PlayerFeeAmount"), 17, Alignment::Left},
             {tr("Fund Raiser:"), money("PlayerFundRaiserFee"), 22, Alignment::Left},
             {tr("Other Fees:"), money("PlayerOtherFees"), 20, Alignment::Left},
             {tr("Paid:"), money("PlayerAmountPaid"), 18, Alignment::Left},
             {tr("By:"), column("PlayerHowFeePaid"), 23}}
            .ifFilled(),
        Line{{.field = customFields()}}.spaced(3).ifFilled(),
        Line{{tr("Comments:"), column("PlayerComments")}}.ifFilled(),
    };
    return record;
}
