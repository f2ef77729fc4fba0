#include "registration/clsRegistration.h"

#include "platform/text/Dates.h"
#include "store/AgeRule.h"
#include "store/LeagueAges.h"
#include "store/Lookup.h"

namespace {

QString criteriaOf(const PlayerKey& key) {
    QString criteria = matches({{"PlayerLastName", key.lastName}, {"PlayerFirstName", key.firstName}});
    if (key.birthDate.isValid())
        criteria += QStringLiteral(" AND PlayerBirthDate = ") + datafile::quoted(key.birthDate);
    return criteria;
}

}  // namespace

PlayerKey PlayerKey::parse(const QString& text) {
    const qsizetype comma = text.indexOf(u',');
    if (comma < 0) return {text, {}, {}};
    for (qsizetype dash = text.indexOf(u'-', comma); dash >= 0; dash = text.indexOf(u'-', dash + 1)) {
        if (dash + 2 >= text.size() || !text[dash + 2].isDigit() || text[dash - 1] != u' ') continue;
        if (const auto date = parseDate(text.mid(dash + 2)))
            return {text.left(comma), text.mid(comma + 2, dash - 1 - (comma + 2)), *date};
    }
    return {text.left(comma), text.mid(comma + 2), {}};
}

QString PlayerKey::text() const {
    return lastName + QStringLiteral(", ") + firstName + QStringLiteral(" - ") + shortDate(birthDate);
}

clsRegistration::clsRegistration(StoreContext& context) : RecordClass(context) {
    open({.source = "tblRegistration",
          .tag = ".clsPlayer",
          .noRecords = "Player Registration Table.  ",
          .required = {{&PlayerLastName, "Missing the Player Last Name."},
                       {&PlayerFirstName, "Missing the Player First Name."},
                       {&PlayerMiddleInitial, "Missing the Player Middle Initial.", false},
                       {&PlayerBirthDate, "Missing the Player Birth Date."}}});
    datafile::Recordset defaults = database().openRecordset("tblDefaults");
    if (defaults.eof()) return;
    defaultFee_ = defaults.text("DefaultPlayerFee");
    defaultCity_ = defaults.text("DefaultCity");
    defaultStateId_ = defaults.text("DefaultStateId");
    defaultZipCode_ = defaults.text("DefaultZipCode");
    defaultSponsorFee_ = defaults.text("DefaultSponsorFee");
    defaultAgeCutoffMonth_ = defaults.text("DefaultAgeCutoffMonth");
    defaultAgeCutoffDay_ = defaults.text("DefaultAgeCutoffDay");
}

void clsRegistration::newRecord() {
    const std::vector<Text*> kept{&PlayerCity,       &PlayerStateId,   &PlayerZipCode,
                                  &PlayerPostalCode, &PlayerFeeAmount, &PlayerFundRaiserFee};
    std::vector<QString> held;
    for (const Text* text : kept) held.push_back(*text);
    RecordClass::newRecord();
    for (size_t i = 0; i < kept.size(); ++i) *kept[i] = held[i];
    setFlagsOfNewRecord();
    setDirty(false);
}

void clsRegistration::setFlagsOfNewRecord() {
    for (Flag* flag : {&PlayerActive, &PlayerIdCheck, &PlayerBirthCertificateChecked}) *flag = true;
    for (Flag* flag :
         {&PlayerIsUmpire, &PlayerFundRaiserFeePaid, &PlayerOtherFeesPaid, &PlayerDeletedFlag, &PlayerHandLeft,
          &PlayerHandRight, &PlayerSendInvitation, &PlayerParentApproval, &PlayerPhotoOptIn, &PlayerDadSendInvitation,
          &PlayerMomSendInvitation, &PlayerDadPhotoOptIn, &PlayerMomPhotoOptIn})
        *flag = false;
    PlayerDadVolunteer = 1;
    PlayerMomVolunteer = 1;
}

void clsRegistration::NewSiblingPlayerRecord() {
    for (Text* text : {&PlayerFirstName,
                       &PlayerMiddleInitial,
                       &PlayerGender,
                       &PlayerEmailAddress,
                       &PlayerShirtSize,
                       &PlayerPantSize,
                       &PlayerHatSize,
                       &PlayerSocksSize,
                       &PlayerShoeSize,
                       &PlayerHeight,
                       &PlayerWeight,
                       &PlayerTryoutNumber,
                       &PlayerFeePaid,
                       &PlayerAmountPaid,
                       &PlayerHowFeePaid,
                       &PlayerComments,
                       &PlayerSchoolName,
                       &PlayerGradeLevel,
                       &PlayerOtherFees,
                       &PlayerMedicalComments,
                       &PlayerJerseyNumber,
                       &PlayerLarkfoldMemberId,
                       &PlayerDadLarkfoldMemberID,
                       &PlayerMomLarkfoldMemberID,
                       &PlayerRegistrationNumber,
                       &PlayerCustomField1,
                       &PlayerCustomField2,
                       &PlayerCustomField3,
                       &PlayerCustomField4,
                       &PlayerCustomField5,
                       &PlayerCustomField6,
                       &PlayerGuardian1Key,
                       &PlayerGuardian2Key,
                       &PlayerAge})
        *text = QString();
    PlayerRegistrationDate = context().clock.today();
    PlayerFundRaiserFee = "0";
    setFlagsOfNewRecord();
    setDirty(false);
    setNew(true);
}

QString clsRegistration::ComputePlayerAge() const {
    StoreContext& store = context();
    CutOff division;
    if (PlayerDivisionId != 0) {
        const QString query = QStringLiteral("SELECT * FROM tblDivision");
        const QString criterion = matches("DivisionId", PlayerDivisionId);
        division = {ReadFieldValue(store, store.dataFilePath, QStringLiteral("DivAgeCutOffMonth"), query, criterion),
                    ReadFieldValue(store, store.dataFilePath, QStringLiteral("DivAgeCutoffDay"), query, criterion)};
    }
    const CutOff cutOff = cutOffByPair(division, {defaultAgeCutoffMonth_, defaultAgeCutoffDay_});
    return QString::number(
        CalculateAge(shortDate(PlayerBirthDate), cutOff.month, cutOff.day, store.globals.currentSeasonYear));
}

void clsRegistration::beforeWrite(bool adding, StampSource stamps) {
    PlayerAge = ComputePlayerAge();
    if (adding && stamps == StampSource::Fresh) PlayerTeamId = 0;
}

/// A player with the same names and birth date, deleted or not, is written over: the screen has asked before.
QString clsRegistration::twinCriteria() const { return criteriaOf({PlayerLastName, PlayerFirstName, PlayerBirthDate}); }

void clsRegistration::whileDeleting(datafile::Recordset& row) { row.set(QStringLiteral("PlayerActive"), false); }

bool clsRegistration::FindPlayerRecord(const QString& key, bool show, bool load) {
    const PlayerKey wanted = PlayerKey::parse(key);
    if (find(criteriaOf(wanted), load)) return true;
    if (show && recordCount() > 0)
        context().dialogs.information(
            {}, QStringLiteral("No Records found for %1, %2.").arg(wanted.lastName, wanted.firstName));
    return false;
}

void clsRegistration::FindExactPlayerRecord(const QString& lastName, const QString& firstName, QDate birthDate,
                                            bool& found, bool load) {
    found = birthDate.isValid() && find(criteriaOf({lastName, firstName, birthDate}), load);
}

void clsRegistration::FindPlayerAssignments(int divisionId, int teamId, bool& found) {
    found = find(matches({{"PlayerDivisionId", divisionId}, {"PlayerTeamId", teamId}}), false);
}

void clsRegistration::UpdateOldVolInfo(const QString& parent, const ParentName& old, const ParentName& now,
                                       bool& found) {
    const auto column = [&parent](const char* name) {
        return QString(QStringLiteral("[Player") + parent + QLatin1String(name) + u']');
    };
    const auto equals = [&column](const char* name, const QString& value) {
        return QString(column(name) + QStringLiteral(" = ") + datafile::quoted(value));
    };
    const QStringList values{equals("LastName", now.lastName), equals("FirstName", now.firstName),
                             equals("PhoneArea", now.phoneArea), equals("Phone", now.phone),
                             freshStamps(context().clock)};
    const QStringList criteria{equals("LastName", old.lastName), equals("FirstName", old.firstName),
                               equals("Phone", old.phone)};
    found = database().execute(QStringLiteral("UPDATE tblRegistration SET ") + values.join(QStringLiteral(", ")) +
                               QStringLiteral(" WHERE ") + criteria.join(QStringLiteral(" AND "))) > 0;
}

void clsRegistration::RecalculatePlayerAges(StoreContext& context) {
    recalculateLeagueAges(context, context.database());
}

void clsRegistration::RemovePlayerAssignments(int divisionId, int teamId) {
    database().execute(QStringLiteral("UPDATE tblRegistration SET [PlayerTeamId] = 0, ") +
                       freshStamps(context().clock) + QStringLiteral(" WHERE ") +
                       matches({{"PlayerDivisionId", divisionId}, {"PlayerTeamId", teamId}}));
}

void clsRegistration::CountPlayers(int kind, int& count) {
    QString query = QStringLiteral("SELECT Count(*) as PlayerCount from tblRegistration ");
    switch (kind) {
        case 1: query += QStringLiteral("WHERE tblRegistration![DeletedFlag] = FALSE"); break;
        case 2:
            query += QStringLiteral(
                "WHERE tblRegistration![PlayerActive] = TRUE   AND tblRegistration![DeletedFlag] = FALSE");
            break;
        case 3:
            query += QStringLiteral(
                "WHERE tblRegistration![PlayerActive] = FALSE   AND tblRegistration![DeletedFlag] = FALSE");
            break;
        default: query += QStringLiteral("WHERE tblRegistration![DeletedFlag] = TRUE"); break;
    }
    count = static_cast<int>(database().openRecordset(query).number("PlayerCount"));
}
