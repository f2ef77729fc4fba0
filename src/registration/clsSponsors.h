#pragma once

#include "store/RecordClass.h"

/// One sponsor with its current pledge, and the pledges of earlier years. Row of tblSponsor, found again by its name.
class clsSponsors final : public RecordClass {
public:
    explicit clsSponsors(StoreContext& context);

    Key SponsorId{this, "SponsorId"};
    Text SponsorName{this, "SponsorName"};
    Text SponsorContactName{this, "SponsorContactName"};
    Text SponsorAddress1{this, "SponsorAddress1"};
    Text SponsorAddress2{this, "SponsorAddress2"};
    Text SponsorCity{this, "SponsorCity"};
    Text SponsorStateId{this, "SponsorStateId"};
    Text SponsorZipCode{this, "SponsorZipCode"};
    Text SponsorZipCode4{this, "SponsorZipCode4"};
    Text SponsorPostalCode{this, "SponsorPostalCode"};
    Text SponsorCountryCode{this, "SponsorCountryCode"};
    Text SponsorPhoneArea{this, "SponsorPhoneArea"};
    Text SponsorPhone{this, "SponsorPhone"};
    Text SponsorFaxPhoneArea{this, "SponsorFaxPhoneArea"};
    Text SponsorFaxPhone{this, "SponsorFaxPhone"};
    Text SponsorPledgeYear{this, "SponsorPledgeYear"};
    Text SponsorPledgeAmount{this, "SponsorPledgeAmount"};
    Text SponsorPaidAmount{this, "SponsorPaidAmount"};
    Text SponsorColorRequest{this, "SponsorColorRequest"};
    Text SponsorNbrOfTeams{this, "SponsorNbrOfTeams"};
    Text SponsorComments{this, "SponsorComments"};
    Day SponsorDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole SponsorTimeStamp{this, "TimeStamp", {.otherwise = 1}};
    Flag SponsorDeletedFlag{this, "DeletedFlag"};

    void SponsorMove(int code) { move(code); }
    /// A new sponsor without a pledge year takes this year.
    void SaveSponsorRecord();
    bool IsSponsorValid(bool showError) const { return isValid(showError); }
    void UndoSponsorRecord() { undo(); }
    /// Starts with a pledge of the season's year and of the default fee.
    void NewSponsorRecord() { newRecord(); }
    /// Nothing when there is no such live sponsor. Its earlier pledges stay.
    void DeleteSponsorRecord(const QString& name);
    bool IsSponsorDirty() const { return isDirty(); }
    bool IsSponsorNew() const { return isNew(); }
    void SetIsSponsorDirty(bool dirty) { setDirty(dirty); }
    void SetIsSponsorNew(bool isNew) { setNew(isNew); }

    /// Deleted rows too.
    bool FindSponsorRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    void FindDeletedSponsorRecord(const QString& name, bool show, bool load, bool& found);
    void FindSponsorById(int id, bool& found) { found = find(matches("SponsorId", id), true); }
    void CountSponsorRecords(int& count) { count = recordCount(); }

    /// Finds the pledge of the year: a live one if there is one, else a deleted one.
    void FindPreviousPledge(int sponsorId, const QString& year, bool& found);
    /// Archives a pledge, whatever is archived for the year, and clears the current pledge of the record in hand.
    void NewSponsorPledgeRecord(int sponsorId, const QString& year, const QString& amount, const QString& paid);
    /// Writes over the pledge found last; a deleted one comes back.
    void UpdatePreviousPledgeRecord(int sponsorId, const QString& year, const QString& amount, const QString& paid);
    /// Marks the first live pledge of the year as deleted; nothing when there is none.
    void DeletePreviousPledgeRecord(int sponsorId, const QString& year);
    bool IsPledgeNew() const { return pledgeNew_; }
    /// A pledge was archived and no undo came since.
    void SetIsPledgeNew(bool isNew) { pledgeNew_ = isNew; }

    void newRecord() override;
    void undo() override;

private:
    void writePledge(int sponsorId, const QString& year, const QString& amount, const QString& paid);

    datafile::Recordset pledges_;
    bool pledgeNew_ = false;
};
