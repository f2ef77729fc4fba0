#pragma once

#include "store/RecordClass.h"

/// What a player's entry in a list says: last name, first name and birth date.
struct PlayerKey {
    QString lastName;
    QString firstName;
    QDate birthDate;

    /// Reads "Last, First - 4/2/2012"; names may hold hyphens. The date is invalid where the text ends in none.
    static PlayerKey parse(const QString& text);
    QString text() const;
};

/// A parent as a player's record names one.
struct ParentName {
    QString lastName;
    QString firstName;
    QString phone;
    QString phoneArea{};
};

/// One registered child. Row of tblRegistration, found again by last name, first name and birth date.
class clsRegistration final : public RecordClass {
public:
    explicit clsRegistration(StoreContext& context);

    static constexpr int zeroUnlessOne(int choice) { return choice == 1 ? 1 : 0; }

    Key PlayerId{this, "PlayerId"};
    Whole PlayerDivisionId{this, "PlayerDivisionId"};
    Whole PlayerTeamId{this, "PlayerTeamId"};

    // Name, address, phone
    Text PlayerLastName{this, "PlayerLastName"};
    Text PlayerFirstName{this, "PlayerFirstName"};
    Text PlayerMiddleInitial{this, "PlayerMiddleInitial"};
    Text PlayerAddress1{this, "PlayerAddress1"};
    Text PlayerAddress2{this, "PlayerAddress2"};
    Text PlayerCity{this, "PlayerCity"};
    Text PlayerStateId{this, "PlayerStateId"};
    Text PlayerZipCode{this, "PlayerZipCode"};
    Text PlayerZipCode4{this, "PlayerZipCode4"};
    Text PlayerPostalCode{this, "PlayerPostalCode"};
    Text PlayerCountryCode{this, "PlayerCountryCode"};
    Text PlayerPhoneArea{this, "PlayerPhoneArea"};
    Text PlayerPhone{this, "PlayerPhone"};
    Text PlayerEmailAddress{this, "PlayerEmailAddress"};

    // Person
    Text PlayerGender{this, "PlayerGender"};
    Day PlayerBirthDate{this, "PlayerBirthDate", NoDate::Today};
    Text PlayerAge{this, "PlayerAge"};
    Text PlayerHeight{this, "PlayerHeight"};
    Text PlayerWeight{this, "PlayerWeight"};
    Text PlayerYearsExperience{this, "PlayerYearsExperience", filledElse("0")};
    Flag PlayerHandLeft{this, "PlayerHandLeft"};
    Flag PlayerHandRight{this, "PlayerHandRight"};

    // League use
    Day PlayerRegistrationDate{this, "PlayerRegistrationDate", NoDate::Today};
    Flag PlayerActive{this, "PlayerActive"};
    Flag PlayerIdCheck{this, "PlayerIdCheck"};
    Flag PlayerIsUmpire{this, "PlayerIsUmpire"};
    Flag PlayerBirthCertificateChecked{this, "PlayerBirthCertificateChecked"};
    Text PlayerRegistrationNumber{this, "PlayerRegistrationNumber"};
    Text PlayerTryoutNumber{this, "PlayerTryoutNumber"};
    Text PlayerJerseyNumber{this, "PlayerJerseyNumber"};

    // Fees
    Text PlayerFeeAmount{this, "PlayerFeeAmount"};
    Text PlayerFeePaid{this, "PlayerFeePaid"};
    Text PlayerFundRaiserFee{this, "PlayerFundRaiserFee"};
    Flag PlayerFundRaiserFeePaid{this, "PlayerFundRaiserFeePaid"};
    Text PlayerOtherFees{this, "PlayerOtherFees"};
    Flag PlayerOtherFeesPaid{this, "PlayerOtherFeesPaid"};
    Text PlayerAmountPaid{this, "PlayerAmountPaid"};
    Text PlayerHowFeePaid{this, "PlayerHowFeePaid"};

    // Parent 1, whoever that is
    Text PlayerDadLastName{this, "PlayerDadLastName"};
    Text PlayerDadFirstName{this, "PlayerDadFirstName"};
    Text PlayerDadPhoneArea{this, "PlayerDadPhoneArea"};
    Text PlayerDadPhone{this, "PlayerDadPhone"};
    Text PlayerDadWorkPhoneArea{this, "PlayerDadWorkPhoneArea"};
    Text PlayerDadWorkPhone{this, "PlayerDadWorkPhone"};
    Text PlayerDadMobilePhoneArea{this, "PlayerDadMobilePhoneArea"};
    Text PlayerDadMobilePhone{this, "PlayerDadMobilePhone"};
    Text PlayerDadEmail{this, "PlayerDadEmail"};
    Text PlayerGuardian1Relationship{this, "PlayerGuardian1Relationship"};
    Whole PlayerDadVolunteer{this, "PlayerDadVolunteer", {.otherwise = 0, .blank = 1, .reading = zeroUnlessOne}};

    // Parent 2, whoever that is
    Text PlayerMomLastName{this, "PlayerMomLastName"};
    Text PlayerMomFirstName{this, "PlayerMomFirstName"};
    Text PlayerMomPhoneArea{this, "PlayerMomPhoneArea"};
    Text PlayerMomPhone{this, "PlayerMomPhone"};
    Text PlayerMomWorkPhoneArea{this, "PlayerMomWorkPhoneArea"};
    Text PlayerMomWorkPhone{this, "PlayerMomWorkPhone"};
    Text PlayerMomMobilePhoneArea{this, "PlayerMomMobilePhoneArea"};
    Text PlayerMomMobilePhone{this, "PlayerMomMobilePhone"};
    Text PlayerMomEmail{this, "PlayerMomEmail"};
    Text PlayerGuardian2Relationship{this, "PlayerGuardian2Relationship"};
    Whole PlayerMomVolunteer{this, "PlayerMomVolunteer", {.otherwise = 0, .blank = 1, .reading = zeroUnlessOne}};

    // Medical
    Text PlayerDoctorName{this, "PlayerDoctorName"};
    Text PlayerDoctorPhoneArea{this, "PlayerDoctorPhoneArea"};
    Text PlayerDoctorPhone{this, "PlayerDoctorPhone"};
    Text PlayerDentistName{this, "PlayerDentistName"};
    Text PlayerDentistPhoneArea{this, "PlayerDentistPhoneArea"};
    Text PlayerDentistPhone{this, "PlayerDentistPhone"};
    Text PlayerHospitalName{this, "PlayerHospitalName"};
    Flag PlayerMedicalForm{this, "PlayerMedicalForm"};
    Text PlayerMedicalComments{this, "PlayerMedicalComments"};
    Text PlayerEmergencyContactName{this, "PlayerEmergencyContactName"};
    Text PlayerEmergencyContactRelationship{this, "PlayerEmergencyContactRelationship"};
    Text PlayerEmergencyPhoneArea{this, "PlayerEmergencyPhoneArea"};
    Text PlayerEmergencyPhone{this, "PlayerEmergencyPhone"};
    Text PlayerInsuranceCarrier{this, "PlayerInsuranceCarrier"};
    Text PlayerInsPolicyNumber{this, "PlayerInsPolicyNumber"};

    // School and uniform
    Text PlayerSchoolName{this, "PlayerSchoolName"};
    Text PlayerGradeLevel{this, "PlayerGradeLevel"};
    Text PlayerShirtSize{this, "PlayerShirtSize"};
    Text PlayerPantSize{this, "PlayerPantSize"};
    Text PlayerHatSize{this, "PlayerHatSize"};
    Text PlayerSocksSize{this, "PlayerSocksSize"};
    Text PlayerShoeSize{this, "PlayerShoeSize"};
    Flag PlayerBeltedPants{this, "PlayerBeltedPants"};
    Flag PlayerSocksIssued{this, "PlayerSocksIssued"};

    // Free text
    Text PlayerComments{this, "PlayerComments"};
    Text PlayerCustomField1{this, "PlayerCustomField1"};
    Text PlayerCustomField2{this, "PlayerCustomField2"};
    Text PlayerCustomField3{this, "PlayerCustomField3"};
    Text PlayerCustomField4{this, "PlayerCustomField4"};
    Text PlayerCustomField5{this, "PlayerCustomField5"};
    Text PlayerCustomField6{this, "PlayerCustomField6"};

    // Kept for an outside team web service
    Text PlayerLarkfoldMemberId{this, "PlayerLarkfoldMemberId"};
    Text PlayerLarkfoldKey{this, "PlayerLarkfoldKey"};
    Text PlayerGuardian1Key{this, "PlayerGuardian1Key"};
    Text PlayerGuardian2Key{this, "PlayerGuardian2Key"};
    Text PlayerDadLarkfoldMemberID{this, "PlayerDadLarkfoldMemberID"};
    Text PlayerMomLarkfoldMemberID{this, "PlayerMomLarkfoldMemberID"};
    Flag PlayerSendInvitation{this, "PlayerSendInvitation"};
    Flag PlayerParentApproval{this, "PlayerParentApproval"};
    Flag PlayerPhotoOptIn{this, "PlayerPhotoOptIn"};
    Flag PlayerDadSendInvitation{this, "PlayerDadSendInvitation"};
    Flag PlayerMomSendInvitation{this, "PlayerMomSendInvitation"};
    Flag PlayerDadPhotoOptIn{this, "PlayerDadPhotoOptIn"};
    Flag PlayerMomPhotoOptIn{this, "PlayerMomPhotoOptIn"};

    Day PlayerDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole PlayerTimeStamp{this, "TimeStamp"};
    Flag PlayerDeletedFlag{this, "DeletedFlag"};

    // The league's defaults, read once.
    const QString& DefaultFee() const { return defaultFee_; }
    const QString& DefaultCity() const { return defaultCity_; }
    const QString& DefaultStateId() const { return defaultStateId_; }
    const QString& DefaultZipCode() const { return defaultZipCode_; }
    const QString& DefaultSponsorFee() const { return defaultSponsorFee_; }
    const QString& DefaultAgeCutoffMonth() const { return defaultAgeCutoffMonth_; }
    const QString& DefaultAgeCutoffDay() const { return defaultAgeCutoffDay_; }

    void PlayerMove(int code) { move(code); }
    void SavePlayerRecord() { save(); }
    /// Unlike the plain save, an add keeps the team.
    void SavePlayerMergeRecord() { saveMerge(); }
    bool IsPlayerValid(bool showError) const { return isValid(showError); }
    void UndoPlayerRecord() { undo(); }
    void NewPlayerRecord() { newRecord(); }
    /// A brother or sister of the player at hand: what belongs to the family stays.
    void NewSiblingPlayerRecord();
    void DeletePlayerRecord() { deleteRecord(); }
    bool IsPlayerDirty() const { return isDirty(); }
    bool IsPlayerNew() const { return isNew(); }
    void SetIsPlayerDirty(bool dirty) { setDirty(dirty); }
    void SetIsPlayerNew(bool isNew) { setNew(isNew); }

    /// By the text of a list entry; deleted players too. Without `load` the cursor moves and the properties stay.
    bool FindPlayerRecord(const QString& key, bool show, bool load);
    void FindPlayerRecord2(const QString& key, bool show, bool load, bool& found) {
        found = FindPlayerRecord(key, show, load);
    }
    /// By the values themselves, whatever the names hold; deleted players too.
    void FindExactPlayerRecord(const QString& lastName, const QString& firstName, QDate birthDate, bool& found,
                               bool load);
    void FindPlayerAssignments(int divisionId, int teamId, bool& found);
    void FindPlayerRecordByPlayerId(int id, bool& found) { found = find(matches("PlayerId", id), true); }
    void CountPlayerRegistrations(int& count) { count = recordCount(); }
    /// Every player with the parent (`parent` is "Dad" or "Mom") of that name and phone takes the new names, phone and
    /// area, in one statement. `found` tells whether there was one.
    void UpdateOldVolInfo(const QString& parent, const ParentName& old, const ParentName& now, bool& found);
    /// Gives every player, deleted or not, the age that division and season make today. No stamps.
    static void RecalculatePlayerAges(StoreContext& context);
    /// Leaves all players of the team without one, deleted players too; they stay in the division.
    void RemovePlayerAssignments(int divisionId, int teamId);
    /// Kinds: 1 not deleted, 2 active, 3 inactive, 4 deleted.
    void CountPlayers(int kind, int& count);

    void newRecord() override;

private:
    void beforeWrite(bool adding, StampSource stamps) override;
    void whileDeleting(datafile::Recordset& row) override;
    QString twinCriteria() const override;
    void setFlagsOfNewRecord();
    QString ComputePlayerAge() const;

    QString defaultFee_;
    QString defaultCity_;
    QString defaultStateId_;
    QString defaultZipCode_;
    QString defaultSponsorFee_;
    QString defaultAgeCutoffMonth_;
    QString defaultAgeCutoffDay_;
};
