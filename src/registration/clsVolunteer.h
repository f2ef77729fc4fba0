#pragma once

#include "store/RecordClass.h"

/// What a volunteer's entry in a list says: last name, first name and home phone.
struct VolunteerKey {
    QString lastName;
    QString firstName;
    QString phone;

    /// Reads "Last, First - 555-1234"; the phone is what stands behind the last " - ".
    static VolunteerKey parse(const QString& text);
    QString text() const;
};

/// One adult who works for the league, with the links that say whose parent the volunteer is and which positions the
/// volunteer fills. Row of tblVolunteer, found again by last name, first name and home phone.
class clsVolunteer final : public RecordClass {
public:
    explicit clsVolunteer(StoreContext& context);

    Key VolId{this, "VolId"};
    Text VolLastName{this, "VolLastName"};
    Text VolFirstName{this, "VolFirstName"};
    Text VolAddress1{this, "VolAddress1"};
    Text VolAddress2{this, "VolAddress2"};
    Text VolCity{this, "VolCity"};
    Text VolStateId{this, "VolStateId"};
    Text VolZipCode{this, "VolZipCode"};
    Text VolZipCode4{this, "VolZipCode4"};
    Text VolPostalCode{this, "VolPostalCode"};
    Text VolCountryCode{this, "VolCountryCode"};
    Text VolEmailAddress{this, "VolEmailAddress"};
    Text VolHomePhoneArea{this, "VolHomePhoneArea"};
    Text VolHomePhone{this, "VolHomePhone"};
    Text VolWorkPhoneArea{this, "VolWorkPhoneArea"};
    Text VolWorkPhone{this, "VolWorkPhone"};
    Text VolFaxPhoneArea{this, "VolFaxPhoneArea"};  ///< of a parent: the mobile phone
    Text VolFaxPhone{this, "VolFaxPhone"};
    Text VolGender{this, "VolGender"};
    Day VolBirthDate{this, "VolBirthDate", NoDate::Today};
    Day VolRegistrationDate{this, "VolRegistrationDate", NoDate::Today};
    Text VolOccupation{this, "VolOccupation"};
    Text VolComments{this, "VolComments"};
    Flag VolActive{this, "VolActive"};
    Text VolCustomField1{this, "VolCustomField1"};
    Text VolCustomField2{this, "VolCustomField2"};
    Text VolCustomField3{this, "VolCustomField3"};
    Text VolCustomField4{this, "VolCustomField4"};
    Text VolCustomField5{this, "VolCustomField5"};
    Text VolCustomField6{this, "VolCustomField6"};
    Text VolLarkfoldKey{this, "VolLarkfoldKey"};
    Text VolLarkfoldMemberID{this, "VolLarkfoldMemberId"};
    Flag VolSendInvitation{this, "VolSendInvitation"};
    Flag VolParentApproval{this, "VolParentApproval"};
    Flag VolPhotoOptIn{this, "VolPhotoOptIn"};
    Day VolDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole VolTimeStamp{this, "TimeStamp", {.otherwise = 1}};
    Flag VolDeletedFlag{this, "DeletedFlag"};

    void VolMove(int code) { move(code); }
    void SaveVolRecord() { save(); }
    void SaveVolMergeRecord() { saveMerge(); }
    bool IsVolValid(bool showError) const { return isValid(showError); }
    void UndoVolRecord() { undo(); }
    void NewVolRecord() { newRecord(); }
    /// Another adult of the same family: last name, address and home phone stay.
    void NewSiblingVolRecord();
    void DeleteVolRecord() { deleteRecord(); }
    bool IsVolDirty() const { return isDirty(); }
    bool IsVolNew() const { return isNew(); }
    void SetIsVolDirty(bool dirty) { setDirty(dirty); }
    void SetIsVolNew(bool isNew) { setNew(isNew); }

    /// By the text of a list entry; deleted volunteers too. Without `load` the cursor moves and the properties stay.
    bool FindVolRecord(const QString& key, bool show, bool load);
    void FindDeletedVolRecord(const QString& key, bool show, bool load, bool& found);
    void FindVolRecord2(const QString& last, const QString& first, const QString& phone, bool load, bool& found);
    /// Does not load.
    void FindActiveVolunteer(const QString& last, const QString& first, const QString& phone, bool& found);
    void GetVolRecord(const QString& key, bool show, bool& found) { found = FindVolRecord(key, show, true); }
    void GetVolId(const QString& key, bool& found) { found = FindVolRecord(key, false, true); }
    void GetVolIdWithPhone(const QString& key, bool& found) { found = FindVolRecord(key, false, true); }
    /// The record just saved.
    void FindNewVolRecord(const QString& key, bool& found) { found = FindVolRecord(key, true, true); }
    void FindVolRecordByVolId(int id, bool& found) { found = find(live(matches("VolId", id)), true); }

    // Links with players, in the role "Dad", "Mom" or "Other" (rows of tblRegistrationVolunteer). A find or an addition
    // fills these three from its link, which deleting and updating then mean; 0 and "" when it found none.
    int RegVolVolId = 0;
    int RegVolPlayerId = 0;
    QString RegVolRole;

    /// A live link in any role.
    void FindRegVolRecord(int playerId, int volunteerId, bool& found);
    void FindDeletedRegVolRecord(int playerId, int volunteerId, const QString& role, bool& found);
    /// The player's first live link in the role.
    void FindVolIdInRegVol(int playerId, const QString& role, bool& found);
    /// Links of the volunteer in the role one after the other, removed ones too.
    void FindFirstPlayerIdInRegVol(int volunteerId, const QString& role, bool& found);
    void FindNextPlayerIdInRegVol(bool& found);
    /// A link that was removed comes back; one that is there stays alone.
    void AddRegVolRecord(int playerId, int volunteerId, const QString& role);
    void DeleteRegVolRecord();
    /// The current link passes to another volunteer.
    void UpdateRegVolRecord(int volunteerId);
    /// Live links in all roles.
    void CountRegVolRecords(int volunteerId, int& count);

    // Positions that the volunteer fills for a player's family, or for none with player 0 (rows of tblVolToPosition).
    /// A position that was removed comes back; one that is there stays alone.
    void AddVolToPositionRecord(int volunteerId, int playerId, int positionId);
    /// Says so when there is none.
    void DeleteVolToPositionRecord(int volunteerId, int playerId, int positionId);
    void DeleteAllVolToPositionRecords(int volunteerId, int playerId);

    // The division that was looked up last; never written from here.
    int DivisionId = 0;
    QDate DivDateStamp;
    int DivTimeStamp = 1;
    bool DivDeletedFlag = false;
    QString DivRegistrationFee;
    QString DivAgeCutOffMonth;
    QString DivAgeCutOffDay;

    void FindDivisionRecord(const QString& name, bool& found) { found = loadDivision(matches("DivName", name)); }
    void FindDivisionRecordById(int id, QString& name, bool& found);

private:
    void whileDeleting(datafile::Recordset& row) override;
    bool findOrSay(const QString& criteria, const VolunteerKey& key, bool show, bool load);
    bool takeLink(datafile::Recordset& rows, bool found);
    bool loadDivision(const QString& criteria);

    datafile::Recordset links_;
    datafile::Recordset positions_;
    datafile::Recordset divisions_;
    std::optional<datafile::Recordset> walk_;  ///< the links of FindFirstPlayerIdInRegVol
    datafile::Recordset* link_ = nullptr;      ///< stands on the current link; null: there is none
};
