#include "registration/clsVolunteer.h"

namespace {

QString criteriaOf(const VolunteerKey& key) {
    return matches({{"VolLastName", key.lastName}, {"VolFirstName", key.firstName}, {"VolHomePhone", key.phone}});
}

}  // namespace

VolunteerKey VolunteerKey::parse(const QString& text) {
    const qsizetype comma = text.indexOf(u',');
    if (comma < 0) return {text, {}, {}};
    const qsizetype dash = text.lastIndexOf(QStringLiteral(" - "));
    if (dash < comma) return {text.left(comma), text.mid(comma + 2), {}};
    return {text.left(comma), text.mid(comma + 2, dash - comma - 2), text.mid(dash + 3)};
}

QString VolunteerKey::text() const {
    return lastName + QStringLiteral(", ") + firstName + QStringLiteral(" - ") + phone;
}

clsVolunteer::clsVolunteer(StoreContext& context)
    : RecordClass(context),
      links_(database().openRecordset("tblRegistrationVolunteer")),
      positions_(database().openRecordset("tblVolToPosition")),
      divisions_(database().openRecordset("tblDivision")) {
    open({.source = "tblVolunteer",
          .tag = ".clsVol",
          .noRecords = "Volunteer Registration Table.  ",
          .required = {{&VolLastName, "Missing the Volunteer Last Name."},
                       {&VolFirstName, "Missing the VolunteerFirst Name."},
                       {},
                       {&VolHomePhone, "Missing the Volunteer Home Phone."}},
          .naturalKey = {&VolLastName, &VolFirstName, &VolHomePhone}});
}

void clsVolunteer::NewSiblingVolRecord() {
    for (Text* text :
         {&VolFirstName, &VolEmailAddress, &VolWorkPhoneArea, &VolWorkPhone, &VolFaxPhoneArea, &VolFaxPhone, &VolGender,
          &VolOccupation, &VolComments, &VolCustomField1, &VolCustomField2, &VolCustomField3, &VolCustomField4,
          &VolCustomField5, &VolCustomField6, &VolLarkfoldKey, &VolLarkfoldMemberID})
        *text = QString();
    for (Flag* flag : {&VolDeletedFlag, &VolSendInvitation, &VolParentApproval, &VolPhotoOptIn}) *flag = false;
    VolRegistrationDate = context().clock.today();
    setDirty(false);
    setNew(true);
}

void clsVolunteer::whileDeleting(datafile::Recordset& row) { row.set(QStringLiteral("VolActive"), false); }

bool clsVolunteer::findOrSay(const QString& criteria, const VolunteerKey& key, bool show, bool load) {
    if (recordCount() == 0) return false;
    if (find(criteria, load)) return true;
    if (show)
        context().dialogs.information({},
                                      QStringLiteral("No Records found for %1, %2.").arg(key.lastName, key.firstName));
    return false;
}

bool clsVolunteer::FindVolRecord(const QString& key, bool show, bool load) {
    const VolunteerKey wanted = VolunteerKey::parse(key);
    return findOrSay(criteriaOf(wanted), wanted, show, load);
}

void clsVolunteer::FindDeletedVolRecord(const QString& key, bool show, bool load, bool& found) {
    const VolunteerKey wanted = VolunteerKey::parse(key);
    found = findOrSay(deleted(criteriaOf(wanted)), wanted, show, load);
}

void clsVolunteer::FindVolRecord2(const QString& last, const QString& first, const QString& phone, bool load,
                                  bool& found) {
    found = find(criteriaOf({last, first, phone}), load);
}

void clsVolunteer::FindActiveVolunteer(const QString& last, const QString& first, const QString& phone, bool& found) {
    found = find(QStringLiteral("VolActive = True AND ") + criteriaOf({last, first, phone}), false);
}

bool clsVolunteer::takeLink(datafile::Recordset& rows, bool found) {
    link_ = found ? &rows : nullptr;
    RegVolVolId = found ? static_cast<int>(rows.number("VolId")) : 0;
    RegVolPlayerId = found ? static_cast<int>(rows.number("PlayerId")) : 0;
    RegVolRole = found ? rows.text("VolGender") : QString();
    return found;
}

void clsVolunteer::FindRegVolRecord(int playerId, int volunteerId, bool& found) {
    found = takeLink(links_, standOn(links_, live(matches({{"PlayerId", playerId}, {"VolId", volunteerId}}))));
}

void clsVolunteer::FindDeletedRegVolRecord(int playerId, int volunteerId, const QString& role, bool& found) {
    found = takeLink(
        links_,
        standOn(links_, deleted(matches({{"PlayerId", playerId}, {"VolId", volunteerId}, {"VolGender", role}}))));
}

void clsVolunteer::FindVolIdInRegVol(int playerId, const QString& role, bool& found) {
    found = takeLink(links_, standOn(links_, live(matches({{"PlayerId", playerId}, {"VolGender", role}}))));
}

void clsVolunteer::FindFirstPlayerIdInRegVol(int volunteerId, const QString& role, bool& found) {
    walk_.emplace(database().openRecordset("SELECT * FROM tblRegistrationVolunteer WHERE " +
                                           matches({{"VolId", volunteerId}, {"VolGender", role}})));
    found = takeLink(*walk_, !walk_->eof());
}

void clsVolunteer::FindNextPlayerIdInRegVol(bool& found) {
    found = false;
    if (!walk_ || walk_->eof()) return;
    walk_->moveNext();
    found = takeLink(*walk_, !walk_->eof());
}

void clsVolunteer::AddRegVolRecord(int playerId, int volunteerId, const QString& role) {
    addOrRevive(links_, context().clock, {{"PlayerId", playerId}, {"VolId", volunteerId}, {"VolGender", role}});
    takeLink(links_, true);
}

void clsVolunteer::DeleteRegVolRecord() {
    if (link_) softDelete(*link_, context().clock);
}

void clsVolunteer::UpdateRegVolRecord(int volunteerId) {
    if (!link_) return;
    const bool wasDeleted = link_->flag("DeletedFlag");
    link_->edit();
    link_->set("VolId", volunteerId);
    updateStamped(*link_, context().clock, wasDeleted);
    takeLink(*link_, true);
}

void clsVolunteer::CountRegVolRecords(int volunteerId, int& count) {
    datafile::Recordset links = database().openRecordset(
        "SELECT COUNT(*) as RegVolCount FROM tblRegistrationVolunteer WHERE [VolId] = " + QString::number(volunteerId) +
        "  AND [DeletedFlag] = False");
    count = static_cast<int>(links.number("RegVolCount"));
}

void clsVolunteer::AddVolToPositionRecord(int volunteerId, int playerId, int positionId) {
    addOrRevive(positions_, context().clock,
                {{"VolId", volunteerId}, {"PlayerId", playerId}, {"VolPosId", positionId}});
}

void clsVolunteer::DeleteVolToPositionRecord(int volunteerId, int playerId, int positionId) {
    if (standOn(positions_, live(matches({{"VolId", volunteerId}, {"PlayerId", playerId}, {"VolPosId", positionId}}))))
        softDelete(positions_, context().clock);
    else
        context().dialogs.warning(QStringLiteral("Record Not Found"),
                                  QStringLiteral("Volunteer Position Record NOT found."));
}

void clsVolunteer::DeleteAllVolToPositionRecords(int volunteerId, int playerId) {
    database().execute(QStringLiteral("UPDATE tblVolToPosition SET [DeletedFlag] = True, ") +
                       freshStamps(context().clock) + QStringLiteral(" WHERE ") +
                       matches({{"VolId", volunteerId}, {"PlayerId", playerId}}));
}

bool clsVolunteer::loadDivision(const QString& criteria) {
    if (!standOn(divisions_, criteria)) return false;
    DivisionId = static_cast<int>(divisions_.number("DivisionId"));
    DivDateStamp = divisions_.date("DateStamp");
    DivTimeStamp = static_cast<int>(divisions_.number("TimeStamp", 1));
    DivDeletedFlag = divisions_.flag("DeletedFlag");
    DivRegistrationFee = divisions_.text("DivRegistrationFee");
    DivAgeCutOffMonth = divisions_.text("DivAgeCutOffMonth");
    DivAgeCutOffDay = divisions_.text("DivAgeCutOffDay");
    return true;
}

void clsVolunteer::FindDivisionRecordById(int id, QString& name, bool& found) {
    found = loadDivision(matches("DivisionId", id));
    name = found ? divisions_.text("DivName") : QString();
}
