#include "store/UpgradeSteps.h"

#include "store/BaseFile.h"
#include "store/UpgradeWork.h"

using datafile::Database;
using Kind = Change::Kind;

namespace {

constexpr char stampedTables[] =
    "tblAbilityRating tblCertifications tblDefaults tblDifficultyRating tblDivision tblEquipment "
    "tblEquipmentAssignment tblField "
    "tblFieldAvailability tblHatSize tblHowFeePaid tblInsurance tblOptions tblPantSize tblRating tblRegistration "
    "tblRegistrationVolunteer tblReports tblResults tblSchedule tblSchoolInfo tblShirtSize tblSocksSize tblSponsor "
    "tblSponsorPreviousPledge tblState tblTeam tblTeamField tblTeamVolunteer tblVendor tblVolToPosition tblVolunteer "
    "tblVolunteerCertifications tblVolunteerPositions";

QStringList words(const char* names) { return QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts); }

Change change(Kind kind, const char* table, const char* names) {
    return {kind, QString::fromLatin1(table), words(names)};
}
Change columns(const char* table, const char* names) { return change(Kind::AddColumns, table, names); }
Change drop(const char* table, const char* names) { return change(Kind::DropColumns, table, names); }
Change finalRules(const char* table, const char* names) { return change(Kind::FinalRules, table, names); }
Change create(const char* table) { return change(Kind::CreateTable, table, ""); }
Change dropTable(const char* table) { return change(Kind::DropTable, table, ""); }
Change indexes(const char* table, const char* names) { return change(Kind::AddIndexes, table, names); }
Change dropIndex(const char* table, const char* name) { return change(Kind::DropIndex, table, name); }
Change work(Change::Operation operation) { return {.kind = Kind::Work, .work = operation}; }

QList<Change> onStampedTables(const char* names) {
    QList<Change> changes;
    for (const QString& table : words(stampedTables)) changes << columns(table.toLatin1(), names);
    return changes;
}

/// Versions 1.0 to 1.13. The first step once deleted stored queries too; a data file of this engine holds none.
QList<UpgradeStep> firstSteps() {
    return {
        {"Update1_1",
         0,
         {columns("tblOptions", "CurrentSeasonYear"), columns("tblTempResults", "DivisionId"),
          indexes("tblTempResults", "DivisionName"), columns("tblTempResults", "DivisionName"),
          dropIndex("tblTempResults", "TeamName"), finalRules("tblTeam", "SponsorId")}},
        {"Update1_2", 1, {drop("tblSchedule", "HomeOrAway")}},
        {"Update1_3", 2, {drop("tblSchedule", "Field"), columns("tblSchedule", "Field")}},
        // Required until version 1.15; rows that were there before hold nothing, so that it was no rule of the file.
        {"Update1_4",
         3,
         {drop("tblSchedule", "Field VisitorsTeam HomeTeam"), columns("tblSchedule", "VisitorsTeam HomeTeam Field")}},
        {"Update1_5", 4, {dropTable("tblTeamField"), create("tblTeamField")}},
        {"Update1_6",
         6,
         {// no step raised 1.5 to 1.6
          create("tblSchoolInfo"), create("tblHatSize"),
          columns("tblRegistration",
                  "PlayerSchoolName PlayerGradeLevel PlayerEmergencyPhoneArea PlayerEmergencyPhone PlayerHatSize "
                  "PlayerBeltedPants PlayerSocksIssued"),
          columns("tblVolunteer", "VolOccupation")}},
        {"Update1_7",
         7,
         {create("tblSocksSize"),
          columns("tblRegistration", "PlayerSocksSize PlayerHospitalName PlayerOtherFees PlayerOtherFeesPaid"),
          columns("tblTeam", "TeamShirtColor TeamPantsColor TeamHatColor TeamSocksColor")}},
        {"Update1_8",
         8,
         {columns("tblRegistration", "PlayerAmountPaid"), indexes("tblVolToPosition", "VolunteerId"),
          work([](StoreContext&, const Database& database) {
              database.execute(QStringLiteral("UPDATE tblRegistration SET [PlayerAmountPaid] = [PlayerFeePaid]"));
          })}},
        {"Update1_9",
         9,
         {columns(
             "tblAbilityRating",
             "PositionPitcher PositionCatcher PositionFirstBase PositionSecondBase PositionShortStop PositionThirdBase "
             "PositionLeftField PositionCenterField PositionRightField PositionAllPositions")}},
        {"Update1_10", 10, {work([](StoreContext&, const Database& database) {
             database.execute(QStringLiteral(
                 "UPDATE tblRegistration SET [PlayerSchoolName] = \"\" WHERE [PlayerSchoolName] IS NULL"));
         })}},
        {"Update1_11", 11, {finalRules("tblSponsorPreviousPledge", "PreviousPledgeAmount PreviousPaidAmount")}},
        {"Update1_12", 12, {columns("tblTeamVolunteer", "VolShirtSize")}},
        {"Update1_13",
         13,
         {work([](StoreContext&, const Database& database) {  // what an empty box for a phone number once stored
             for (const char* phone : {"VolWorkPhone", "VolFaxPhone"})
                 database.execute(QStringLiteral("UPDATE tblVolunteer SET [%1] = \"\" WHERE [%1] = \"   -    \"")
                                      .arg(QLatin1String(phone)));
         })}},
    };
}

/// Versions 1.14 to 1.21: stamps, soft deletion, postal codes, custom fields, official divisions.
QList<UpgradeStep> middleSteps() {
    return {
        {"Update1_14", 14, onStampedTables("DateStamp TimeStamp")},
        {"Update1_15", 15, {finalRules("tblSchedule", "VisitorsTeam HomeTeam Field")}},
        {"Update1_16", 16, {create("tblTempFeeReport")}},
        {"Update1_17", 17,
         onStampedTables("DeletedFlag") +
             QList<Change>{
                 columns("tblDivision",
                         "DivRegistrationFee DivAgeCutOffMonth DivAgeCutOffDay"),  // the last two required until 1.30
                 columns("tblField", "FieldPostalCode FieldCountryCode"),
                 columns("tblInsurance", "InsPostalCode InsCountryCode"),
                 columns("tblOptions", "PostalCode CountryCode"),
                 columns("tblRegistration",
                         "PlayerPostalCode PlayerCountryCode PlayerMedicalComments PlayerJerseyNumber"),
                 columns("tblSponsor", "SponsorPostalCode SponsorCountryCode"),
                 columns("tblVendor", "VendorPostalCode VendorCountryCode"),
                 columns("tblVolunteer", "VolPostalCode VolCountryCode"),
                 work([](StoreContext&, const Database& database) {
                     database.execute(QStringLiteral(
                         "UPDATE tblDivision SET [DivAgeCutOffMonth] = \"1\", [DivAgeCutOffDay] = \"1\""));
                 }),
                 work(joinZipCodes), work(addCanadianStates)}},
        {"Update1_18", 18, {work([](StoreContext&, const Database& database) {
             database.execute(QStringLiteral("UPDATE tblState SET [StateId] = \"QC\" WHERE [StateName] = \"Quebec\""));
         })}},
        {"Update1_19",
         19,
         {columns("tblDefaults", "DefaultPostalCode"), work([](StoreContext&, const Database& database) {
              database.execute(QStringLiteral(
                  "UPDATE tblDefaults SET [DefaultPostalCode] = [DefaultZipCode], [DefaultZipCode] = \"\""));
          })}},
        {"Update1_20",
         20,
         {columns("tblRegistration",
                  "PlayerHandLeft PlayerHandRight PlayerBirthCertificateChecked PlayerLarkfoldMemberId "
                  "PlayerRegistrationNumber "
                  "PlayerGuardian1Relationship PlayerGuardian2Relationship PlayerEmergencyContactName "
                  "PlayerEmergencyContactRelationship PlayerCustomField1 PlayerCustomField2 PlayerCustomField3 "
                  "PlayerCustomField4"),
          columns("tblDefaults",
                  "RegCustomFieldLabel1 RegCustomFieldLabel2 RegCustomFieldLabel3 RegCustomFieldLabel4")}},
        {"Update1_21",
         21,
         {create("tblLarkfoldSync"), create("tblOfficialDivisionNames"), work(addFirstOfficialNames),
          columns("tblDivision", "OfficialDivName"), columns("tblOptions", "OrgAffiliation")}},
    };
}

/// Versions 1.22 to 1.38.
QList<UpgradeStep> lastSteps() {
    return {
        {"Update1_22",
         22,
         {columns("tblRegistration", "PlayerCustomField5 PlayerCustomField6"),
          columns("tblVolunteer",
                  "VolCustomField1 VolCustomField2 VolCustomField3 VolCustomField4 VolCustomField5 VolCustomField6"),
          columns("tblDefaults",
                  "RegCustomFieldLabel5 RegCustomFieldLabel6 VolCustomFieldLabel1 VolCustomFieldLabel2 "
                  "VolCustomFieldLabel3 VolCustomFieldLabel4 VolCustomFieldLabel5 VolCustomFieldLabel6")}},
        {"Update1_23", 23, {columns("tblRegistration", "PlayerInsuranceCarrier PlayerInsPolicyNumber")}},
        {"Update1_24",
         24,
         {columns(
              "tblRegistration",
              "PlayerLarkfoldKey PlayerShoeSize PlayerSendInvitation PlayerParentApproval PlayerPhotoOptIn "
              "PlayerGuardian1Key "
              "PlayerGuardian2Key PlayerDadEmail PlayerMomEmail PlayerDadLarkfoldMemberID PlayerMomLarkfoldMemberID "
              "PlayerDadSendInvitation PlayerMomSendInvitation PlayerDadPhotoOptIn PlayerMomPhotoOptIn"),
          columns("tblDivision", "DivLarkfoldKey DivSport"), columns("tblTeam", "TeamLarkfoldKey DivLarkfoldKey"),
          columns("tblVolunteer",
                  "VolLarkfoldKey VolLarkfoldMemberId VolSendInvitation VolParentApproval VolPhotoOptIn")}},
        {"Update1_25", 25, {create("tblShoeSize")}},
        {"Update1_26", 26, {create("tblSport"), work([](StoreContext&, const Database& database) {
                                addBaseRows(database, QStringLiteral("tblSport"));
                            })}},
        {"Update1_27", 27, {columns("tblShoeSize", "DeletedFlag")}},  // missed two steps before
        {"Update1_28",
         28,
         {indexes("tblDivision", "DivisionName OfficialDivName LarkfoldKey"),
          indexes("tblTeam", "TeamName LarkfoldKey DivLarkfoldKey"),
          indexes("tblRegistration", "idxSearchList2 LarkfoldKey"),
          indexes("tblVolunteer", "idxSearchList LarkfoldKey")}},
        {"Update1_29", 29, {columns("tblLarkfoldSync", "LarkfoldURL"), work(addLastOfficialName)}},
        {"Update1_30",
         30,
         {columns("tblRegistration", "PlayerAge"), finalRules("tblDivision", "DivAgeCutOffMonth DivAgeCutOffDay"),
          work(computeAges)}},
        {"Update1_31", 31, {work([](StoreContext&, const Database& database) {
             database.execute(
                 QStringLiteral("UPDATE tblRegistration SET [PlayerGender] = IIF([PlayerGender] = \"m\", \"Male\", "
                                "IIF([PlayerGender] = \"f\", \"Female\", \"\")) "
                                "WHERE [PlayerGender] NOT IN (\"Male\", \"Female\", \"\")"));
         })}},
        {"Update1_32", 32, {create("tblTempFamilyLabels")}},
        {"Update1_33", 33, {work(computeAges)}},
        {"Update1_34", 34, {dropIndex("tblTeamVolunteer", "PrimaryKey"), indexes("tblTeamVolunteer", "PrimaryKey")}},
        {"Update1_35", 35, {create("tblEquipmentAvailable"), columns("tblEquipment", "Size")}},
        {"Update1_36", 36, {columns("tblDefaults", "DefaultDateFormat")}},
        {"Update1_37",
         37,
         {columns("tblRegistration",
                  "PlayerDadWorkPhoneArea PlayerDadWorkPhone PlayerDadMobilePhoneArea PlayerDadMobilePhone "
                  "PlayerMomWorkPhoneArea PlayerMomWorkPhone PlayerMomMobilePhoneArea PlayerMomMobilePhone")}},
        {"Update1_38", 38, {columns("tblDefaults", "DefaultAreaCode")}},
    };
}

/// A table comes without the columns that later steps bring.
void leaveOutLaterColumns(QList<UpgradeStep>& steps) {
    QHash<QString, QStringList> later;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        for (auto each = step->changes.rbegin(); each != step->changes.rend(); ++each) {
            if (each->kind == Kind::AddColumns) later[each->table] << each->names;
            if (each->kind == Kind::CreateTable) each->names = later.value(each->table);
        }
}

}  // namespace

QList<UpgradeStep> upgradeSteps() {
    QList<UpgradeStep> steps = firstSteps() + middleSteps() + lastSteps();
    leaveOutLaterColumns(steps);
    return steps;
}
