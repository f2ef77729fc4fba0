#include "store/Schema.h"

using datafile::ColumnType;
using datafile::FieldDef;
using datafile::IndexDef;
using datafile::TableDef;

QString GetCurrentDBVersion() { return QString::fromLatin1(schema::currentVersion); }

namespace schema {

namespace {

using Fields = QList<FieldDef>;
using Indexes = QList<IndexDef>;

constexpr int plainWidth = 50;
constexpr int commentWidth = 255;
constexpr int emailWidth = 100;
constexpr int keyWidth = 255;

Fields each(const char* names, const FieldDef& like) {
    Fields fields;
    for (const QString& name : QString::fromLatin1(names).split(u' ')) {
        fields << like;
        fields.last().name = name;
    }
    return fields;
}

/// Columns of one kind; their names stand apart by blanks.
Fields text(const char* names, int size = plainWidth) {
    return each(names, {.name = {}, .type = ColumnType::Text, .size = size, .hasDefault = true});
}
Fields number(const char* names) { return each(names, {.name = {}, .type = ColumnType::Long}); }
Fields small(const char* names) { return each(names, {.name = {}, .type = ColumnType::Integer}); }
Fields flag(const char* names) { return each(names, {.name = {}, .type = ColumnType::Boolean}); }
Fields date(const char* names) { return each(names, {.name = {}, .type = ColumnType::Date}); }
Fields real(const char* names) { return each(names, {.name = {}, .type = ColumnType::Double}); }
Fields key(const char* name) { return each(name, {.name = {}, .type = ColumnType::AutoKey}); }

Fields required(Fields fields) {
    for (FieldDef& field : fields) field.required = true, field.hasDefault = false;
    return fields;
}
Fields notEmpty(Fields fields) {
    for (FieldDef& field : fields) field.allowZeroLength = false;
    return fields;
}
Fields defaulting(const char* value, Fields fields) {
    for (FieldDef& field : fields) field.hasDefault = true, field.defaultValue = QString::fromLatin1(value);
    return fields;
}
/// An area text and a number text for each name; the area's column has "Area" behind the name.
Fields phone(const char* names) {
    Fields fields;
    for (const QString& name : QString::fromLatin1(names).split(u' '))
        fields << text(QString(name + QStringLiteral("Area")).toLatin1(), 3) << text(name.toLatin1(), 8);
    return fields;
}
/// The address columns that end with the postal code, under a prefix.
Fields address(const char* prefix, const char* lines = "Address1 Address2") {
    const QString p = QString::fromLatin1(prefix);
    const auto named = [&p](const char* name) { return QString(p + QLatin1String(name)).toLatin1(); };
    Fields fields;
    for (const QString& line : QString::fromLatin1(lines).split(u' ')) fields << text(QString(p + line).toLatin1());
    return fields << text(named("City"), 30) << text(named("StateId"), 2) << text(named("ZipCode"), 10)
                  << text(named("ZipCode4"), 4) << text(named("PostalCode"), 15) << text(named("CountryCode"), 30);
}

IndexDef index(const char* name, const char* fields) {
    return {QString::fromLatin1(name), QString::fromLatin1(fields).split(u' '), false, false};
}
IndexDef primary(const char* fields) {
    return {QStringLiteral("PrimaryKey"), QString::fromLatin1(fields).split(u' '), true, true};
}

/// A table whose rows carry the day and time of their last save and the mark of a soft delete.
TableDef stamped(const char* name, Fields fields, Indexes indexes = {}) {
    fields << defaulting("1899-12-30", date("DateStamp")) << defaulting("0", number("TimeStamp"))
           << flag("DeletedFlag");
    return {QString::fromLatin1(name), fields, indexes, {}};
}
TableDef plain(const char* name, Fields fields, Indexes indexes = {}) {
    return {QString::fromLatin1(name), fields, indexes, {}};
}

QList<TableDef> people() {
    const auto guardian = [](const char* who, const char* number) {
        const QString w = QStringLiteral("Player") + QLatin1String(who);
        const QString g = QStringLiteral("PlayerGuardian") + QLatin1String(number);
        return text(QString(w + QStringLiteral("LastName ") + w + QStringLiteral("FirstName")).toLatin1(), 30) +
               phone(QString(w + QStringLiteral("Phone ") + w + QStringLiteral("WorkPhone ") + w +
                             QStringLiteral("MobilePhone"))
                         .toLatin1()) +
               text(QString(w + QStringLiteral("Email")).toLatin1(), 35) +
               small(QString(w + QStringLiteral("Volunteer")).toLatin1()) +
               text(QString(g + QStringLiteral("Relationship")).toLatin1(), 20) +
               text(QString(g + QStringLiteral("Key")).toLatin1(), keyWidth) +
               text(QString(w + QStringLiteral("LarkfoldMemberID")).toLatin1(), 20) +
               flag(QString(w + QStringLiteral("SendInvitation ") + w + QStringLiteral("PhotoOptIn")).toLatin1());
    };
    return {
        stamped(
            "tblRegistration",
            key("PlayerId") + number("PlayerDivisionId PlayerTeamId") +
                required(text("PlayerLastName PlayerFirstName", 30)) + text("PlayerMiddleInitial", 5) +
                address("Player") + phone("PlayerPhone") + text("PlayerGender", 10) +
                text("PlayerEmailAddress", emailWidth) + required(date("PlayerBirthDate")) +
                defaulting("0", small("PlayerAge")) + text("PlayerYearsExperience", 4) +
                date("PlayerRegistrationDate") +
                flag("PlayerActive PlayerIdCheck PlayerBirthCertificateChecked PlayerIsUmpire PlayerHandLeft "
                     "PlayerHandRight") +
                guardian("Dad", "1") + guardian("Mom", "2") +
                text("PlayerEmergencyContactName PlayerEmergencyContactRelationship", 30) +
                phone("PlayerEmergencyPhone") + text("PlayerDoctorName") + phone("PlayerDoctorPhone") +
                text("PlayerDentistName") + phone("PlayerDentistPhone") + text("PlayerHospitalName") +
                text("PlayerInsuranceCarrier", 30) + text("PlayerInsPolicyNumber", 20) + flag("PlayerMedicalForm") +
                text("PlayerMedicalComments", commentWidth) + text("PlayerSchoolName") + text("PlayerGradeLevel", 2) +
                text("PlayerShirtSize PlayerPantSize PlayerHatSize PlayerSocksSize", 20) + text("PlayerShoeSize", 15) +
                flag("PlayerBeltedPants PlayerSocksIssued") + text("PlayerHeight PlayerWeight", 4) +
                text("PlayerJerseyNumber", 3) + text("PlayerTryoutNumber", 4) + text("PlayerRegistrationNumber", 20) +
                text("PlayerFeeAmount PlayerFundRaiserFee", 9) + flag("PlayerFundRaiserFeePaid") +
                text("PlayerOtherFees", 9) + flag("PlayerOtherFeesPaid") + text("PlayerFeePaid", 9) +
                defaulting("0", text("PlayerAmountPaid", 9)) + text("PlayerHowFeePaid") +
                text("PlayerComments", commentWidth) +
                text("PlayerCustomField1 PlayerCustomField2 PlayerCustomField3 PlayerCustomField4 PlayerCustomField5 "
                     "PlayerCustomField6") +
                text("PlayerLarkfoldKey", keyWidth) + text("PlayerLarkfoldMemberId", 20) +
                flag("PlayerSendInvitation PlayerParentApproval PlayerPhotoOptIn"),
            {index("idxSearchList2", "PlayerLastName PlayerFirstName PlayerBirthDate PlayerPhone"),
             index("LarkfoldKey", "PlayerLarkfoldKey"),
             index("idxList", "PlayerLastName PlayerFirstName PlayerBirthDate DeletedFlag"),
             index("idxTeam", "PlayerDivisionId PlayerTeamId"),
             index("idxDad", "PlayerDadLastName PlayerDadFirstName PlayerDadPhone"),
             index("idxMom", "PlayerMomLastName PlayerMomFirstName PlayerMomPhone")}),
        stamped(
            "tblVolunteer",
            key("VolId") + text("VolLastName VolFirstName", 30) + address("Vol") + text("VolEmailAddress", emailWidth) +
                phone("VolHomePhone VolWorkPhone VolFaxPhone") + text("VolGender", 10) + flag("VolActive") +
                date("VolBirthDate VolRegistrationDate") + text("VolOccupation") + text("VolComments", commentWidth) +
                text(
                    "VolCustomField1 VolCustomField2 VolCustomField3 VolCustomField4 VolCustomField5 VolCustomField6") +
                text("VolLarkfoldKey", keyWidth) + text("VolLarkfoldMemberId", 20) +
                flag("VolSendInvitation VolParentApproval VolPhotoOptIn"),
            {index("idxSearchList", "VolFirstName VolLastName VolBirthDate VolHomePhone"),
             index("LarkfoldKey", "VolLarkfoldKey"),
             index("idxList", "VolLastName VolFirstName VolHomePhone DeletedFlag")}),
        stamped("tblRegistrationVolunteer", number("VolId PlayerId") + text("VolGender", 10),
                {index("idxVolunteer", "VolId PlayerId"), index("idxPlayer", "PlayerId VolGender")}),
        stamped("tblVolToPosition", number("VolId PlayerId VolPosId"),
                {index("VolunteerId", "VolId"), index("idxPlayer", "PlayerId VolId"),
                 index("idxPosition", "VolPosId VolId PlayerId")}),
        stamped("tblVolunteerCertifications", number("VolId CertificationId"),
                {index("idxVolunteer", "VolId CertificationId"), index("idxCertification", "CertificationId")}),
        stamped("tblSponsor",
                key("SponsorId") + text("SponsorName SponsorContactName") + address("Sponsor") +
                    phone("SponsorPhone SponsorFaxPhone") + text("SponsorPledgeYear", 4) +
                    text("SponsorPledgeAmount SponsorPaidAmount", 12) + text("SponsorColorRequest") +
                    text("SponsorNbrOfTeams", 3) + text("SponsorComments", commentWidth),
                {index("idxName", "SponsorName DeletedFlag")}),
        stamped("tblSponsorPreviousPledge",
                number("SponsorId") + text("PreviousPledgeYear", 4) +
                    defaulting("$0.00", text("PreviousPledgeAmount PreviousPaidAmount", 12)),
                {index("idxSponsor", "SponsorId PreviousPledgeYear")}),
    };
}

QList<TableDef> structure() {
    QList<TableDef> tables{
        stamped("tblDivision",
                key("DivisionId") + required(text("DivName", 30)) + text("DivDifficultyRating") +
                    text("DivGender", 20) + text("DivMinAge DivMaxAge", 3) + text("DivUmpPlatePay DivUmpBasePay", 12) +
                    text("DivNbrOfUmpsRequired", 2) + small("DivCertUmpsRequired") + text("DivComments", commentWidth) +
                    defaulting("$0.00", text("DivRegistrationFee", 12)) +
                    defaulting("1", text("DivAgeCutOffMonth DivAgeCutOffDay", 2)) + text("OfficialDivName") +
                    text("DivSport", 20) + text("DivLarkfoldKey", keyWidth),
                {index("DivisionName", "DivName"), index("OfficialDivName", "OfficialDivName"),
                 index("LarkfoldKey", "DivLarkfoldKey")}),
        stamped("tblTeam",
                key("TeamId") + number("DivisionId") + defaulting("0", number("SponsorId")) + text("TeamName", 35) +
                    text("TeamGender", 20) + text("TeamLeagueName TeamColors") + text("TeamFeeAmount TeamFeePaid", 12) +
                    text("TeamComments", commentWidth) +
                    text("TeamShirtColor TeamPantsColor TeamHatColor TeamSocksColor", 30) +
                    text("TeamLarkfoldKey DivLarkfoldKey", keyWidth),
                {index("TeamName", "TeamName"), index("LarkfoldKey", "TeamLarkfoldKey"),
                 index("DivLarkfoldKey", "DivLarkfoldKey"), index("idxDivision", "DivisionId TeamName DeletedFlag"),
                 index("idxSponsor", "SponsorId")}),
        stamped(
            "tblTeamVolunteer",
            required(number("VolId DivisionId TeamId")) + required(text("VolPosName", 30)) + text("VolShirtSize", 15),
            {primary("VolId DivisionId TeamId VolPosName"), index("idxTeam", "TeamId VolPosName")}),
        stamped("tblField",
                key("FieldId") + text("FieldName", 30) + text("FieldLeagueAssociation") +
                    address("Field", "Street1 Street2") + text("FieldContactName") + phone("FieldContactPhone") +
                    small("FieldLights FieldMultiPurpose") + text("FieldDirections FieldComments", commentWidth),
                {index("idxName", "FieldName DeletedFlag")}),
        stamped("tblTeamField", required(number("FieldId DivisionId")),
                {index("idxField", "FieldId"), index("idxDivision", "DivisionId FieldId")}),
        stamped("tblFieldAvailability", {}),
        stamped("tblAbilityRating",
                number("PlayerId VolId") +
                    small("PitcherRating CatcherRating InfieldRating OutfieldRating ThrowingRating RunningRating "
                          "BattingRating KnowledgeRating "
                          "UmpireHomePlateRating UmpireFieldRating UmpireKnowledgeRating "
                          "CoachAbilityRating CoachAttitudeRating CoachKnowledgeRating CoachReturn") +
                    text("PlayerComments VolunteerComments", commentWidth) +
                    flag("PositionPitcher PositionCatcher PositionFirstBase PositionSecondBase PositionShortStop "
                         "PositionThirdBase "
                         "PositionLeftField PositionCenterField PositionRightField PositionAllPositions"),
                {index("idxPlayer", "PlayerId"), index("idxVolunteer", "VolId")}),
        stamped("tblEquipment",
                key("EquipId") + text("ItemName") + small("NbrItems") + number("VendorId InsuranceId") +
                    text("Description") + text("Cost", 12) + text("Size", 20) +
                    date("PurchaseDate WarrantyExpiration") + text("ModelNumber SerialNumber") + small("Insured") +
                    text("Condition") + text("Comments", commentWidth),
                {index("idxName", "ItemName Description DeletedFlag")}),
        stamped("tblEquipmentAssignment",
                key("AssignmentId") + number("DivisionId TeamId PlayerId VolId EquipmentId") +
                    text("DistributionQuantity", 6) + date("DistributionDate") + text("ReturnQuantity", 6) +
                    date("ReturnDate") + text("Comments", commentWidth),
                {index("idxHolder", "DivisionId TeamId PlayerId VolId"), index("idxEquipment", "EquipmentId"),
                 index("idxTeam", "TeamId"), index("idxPlayer", "PlayerId"), index("idxVolunteer", "VolId")}),
        stamped("tblSchedule",
                key("ScheduleId") + date("Date") + text("Day", 10) + date("Time") + text("division", 30) +
                    text("VisitorsTeam HomeTeam", 35) + text("Field", 30),
                {index("idxDivision", "division Date Time")}),
        stamped("tblResults",
                key("GameId") + number("DivisionId HomeTeamId VisitorTeamId") + date("GameDate GameTime") +
                    small("HomeTeamScore VisitorTeamScore") + text("Comments", commentWidth),
                {index("idxDivision", "DivisionId GameDate GameTime"), index("idxHome", "HomeTeamId"),
                 index("idxVisitor", "VisitorTeamId")}),
    };
    for (TableDef& table : tables)
        if (table.name == QLatin1String("tblTeamField"))
            table.relations = {{QStringLiteral("FieldCheck"), QStringLiteral("tblField"), QStringLiteral("FieldId"),
                                table.name, QStringLiteral("FieldId")},
                               {QStringLiteral("DivisionCheck"), QStringLiteral("tblDivision"),
                                QStringLiteral("DivisionId"), table.name, QStringLiteral("DivisionId")}};
    return tables;
}

QList<TableDef> organisation() {
    return {
        plain("tblVersion", text("DBVersion")),
        stamped("tblOptions",
                number("OptionId") + text("OrganizationName OrgAffiliation Address1 Address2") + text("City", 30) +
                    text("StateId", 2) + text("ZipCode", 10) + text("PostalCode", 15) + text("CountryCode", 30) +
                    text("DaytimePhone EveningPhone", 14) + text("EmailAddress", emailWidth) +
                    date("LastBackupDate LastCompactDate") + text("CurrentSeasonYear", 4) + flag("ShowSplashScreen"),
                {primary("OptionId")}),
        stamped("tblDefaults",
                number("DefaultsId") + text("DefaultFilePath DefaultDatabasePath", 255) +
                    text("DefaultPlayerFee DefaultSponsorFee DefaultFundRaiserFee DefaultTeamFee", 12) +
                    text("DefaultCity", 30) + text("DefaultStateId", 2) + text("DefaultZipCode", 10) +
                    text("DefaultPostalCode", 15) + text("DefaultAreaCode", 3) +
                    defaulting("MM/dd/yy", text("DefaultDateFormat", 12)) +
                    text("DefaultAgeCutoffMonth DefaultAgeCutoffDay", 2) +
                    text("RegCustomFieldLabel1 RegCustomFieldLabel2 RegCustomFieldLabel3 RegCustomFieldLabel4 "
                         "RegCustomFieldLabel5 RegCustomFieldLabel6 "
                         "VolCustomFieldLabel1 VolCustomFieldLabel2 VolCustomFieldLabel3 VolCustomFieldLabel4 "
                         "VolCustomFieldLabel5 VolCustomFieldLabel6",
                         25),
                {primary("DefaultsId")}),
        plain("tblLarkfoldSync", text("LarkfoldUserId", 20) + text("LarkfoldKey", keyWidth) +
                                     defaulting("1899-12-30", date("LastUploadDate")) +
                                     defaulting("0", number("LastUploadTime")) +
                                     defaulting("1899-12-30", date("LastDownloadDate")) +
                                     defaulting("0", number("LastDownloadTime")) + text("LarkfoldURL", 255)),
    };
}

QList<TableDef> lookups() {
    const auto sizes = [](const char* table, const char* name, bool base) {
        const QString n = QString::fromLatin1(name);
        const Fields fields = text(n.toLatin1(), 5) + text(QString(n + QStringLiteral("Text")).toLatin1(), 20);
        return stamped(table, base ? fields : notEmpty(required(fields)),
                       {index("idxText", QString(n + QStringLiteral("Text DeletedFlag")).toLatin1())});
    };
    return {
        stamped("tblState", text("StateId", 2) + text("StateName"), {primary("StateId")}),
        plain("tblSport", required(text("SportName", 20))),
        plain("tblOfficialDivisionNames", text("OrganizationName OfficialDivisionName")),
        stamped("tblHowFeePaid", text("HowFeePaidText"), {index("idxText", "HowFeePaidText DeletedFlag")}),
        stamped("tblReports", {}),
        stamped("tblCertifications",
                key("CertificationId") + text("CertificationName CertifyingOrganization") +
                    text("CertificationComments", commentWidth),
                {index("idxName", "CertificationName DeletedFlag")}),
        stamped("tblVolunteerPositions",
                key("VolPosId") + text("VolPosName", 30) + text("VolPosResponsibility VolPosComments", commentWidth),
                {index("idxName", "VolPosName DeletedFlag")}),
        stamped("tblRating",
                key("RatingId") + text("RatingText") + text("RatingValue", 4) + text("RatingComments", commentWidth),
                {index("idxText", "RatingText DeletedFlag")}),
        stamped("tblDifficultyRating",
                key("DifficultyRatingId") + text("DifficultyRatingText") + text("Comments", commentWidth),
                {index("idxText", "DifficultyRatingText DeletedFlag")}),
        stamped("tblSchoolInfo", key("SchoolId") + required(text("SchoolName")) + text("SchoolComments", 255),
                {index("idxName", "SchoolName DeletedFlag")}),
        stamped("tblVendor",
                key("VendorId") + text("VendorName VendorContactName") + text("VendorContactPhone", 14) +
                    text("VendorAddress1 VendorAddress2") + text("VendorCity", 30) + text("VendorStateId", 2) +
                    text("VendorZipCode", 10) + text("VendorCreditLimit", 12) + text("VendorComments", commentWidth) +
                    text("VendorPostalCode", 15) + text("VendorCountryCode", 30),
                {index("idxName", "VendorName DeletedFlag")}),
        stamped("tblInsurance",
                key("InsId") + text("InsAgencyName InsCompanyName InsContactName") + text("InsPolicyNumber", 20) +
                    text("InsPhone InsFax", 14) + text("InsAddress1 InsAddress2") + text("InsCity", 30) +
                    text("InsStateId", 2) + text("InsZipCode", 10) + text("InsLiabilityLimit InsDeductibleAmt", 15) +
                    text("InsComments", commentWidth) + text("InsPostalCode", 15) + text("InsCountryCode", 30),
                {index("idxName", "InsAgencyName DeletedFlag")}),
        sizes("tblPantSize", "PantSize", true),
        sizes("tblShirtSize", "ShirtSize", true),
        sizes("tblHatSize", "HatSize", false),
        sizes("tblSocksSize", "SocksSize", false),
        sizes("tblShoeSize", "ShoeSize", false),
    };
}

/// Tables that carry data from a computation to a screen or report and mean nothing between uses.
QList<TableDef> workTables() {
    return {
        plain("tblTempSearchList", number("PlayerId VolId") + text("FirstName", 30) + text("MiddleInitial", 5) +
                                       text("LastName", 30) + date("BirthDate") + text("HomePhone", 8)),
        plain("tblTempResults",
              number("TeamId") + text("TeamName", 35) + number("SponsorId") + text("SponsorName") +
                  defaulting("0", number("DivisionId")) + text("DivisionName", 30) + number("Wins Losses Ties") +
                  real("WinPercentage"),
              {index("DivisionName", "DivisionId"), index("idxTeam", "TeamId")}),
        plain("tblTempFeeReport", required(text("PlayerLastName PlayerFirstName", 30)) +
                                      required(date("PlayerBirthDate")) + text("PlayerAddress1 PlayerAddress2") +
                                      text("PlayerCity", 30) + text("PlayerState", 2) + text("PlayerPostalCode", 15) +
                                      text("PlayerCountryCode", 30) + phone("PlayerPhone") +
                                      defaulting("0", number("PlayerDivisionId")) + text("DivisionName", 30) +
                                      defaulting("0", number("PlayerTeamId")) + text("TeamName", 35) +
                                      text("PlayerFeeAmount PlayerFundRaiserFee PlayerOtherFees PlayerFeePaid", 9) +
                                      defaulting("0", real("TotalFeeAmount BalanceCalculation"))),
        plain("tblTempFamilyLabels", text("LastName", 30) + text("Address1 Address2") + text("City", 30) +
                                         text("State", 2) + text("PostalCode", 15) + text("CountryCode", 30)),
        plain("tblEquipmentAvailable",
              required(number("EquipmentId TotalAvailable TotalDistributed QuantityAvailable")),
              {index("idxEquipment", "EquipmentId")}),
    };
}

}  // namespace

QList<TableDef> tables() { return people() + structure() + organisation() + lookups() + workTables(); }

}  // namespace schema
