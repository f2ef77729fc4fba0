#pragma once

#include "store/RecordClass.h"

/// One division: an age band, a gender, a fee. Row of tblDivision, found again by its name.
class clsDivision final : public RecordClass {
public:
    explicit clsDivision(StoreContext& context);

    Key DivId{this, "DivisionId"};
    Text DivName{this, "DivName"};
    Text OfficialDivisionName{this, "OfficialDivName"};
    Text DivAgeCutOffMonth{this, "DivAgeCutOffMonth", numericElse("1")};
    Text DivAgeCutOffDay{this, "DivAgeCutOffDay", numericElse("1")};
    Flag DivDeletedFlag{this, "DeletedFlag"};
    Text DivLarkfoldKey{this, "DivLarkfoldKey"};
    Text DivSport{this, "DivSport"};
    Text DivRegistrationFee{this, "DivRegistrationFee"};
    Day DivDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole DivTimeStamp{this, "TimeStamp", {.otherwise = 1}};
    Text DivDifficultyRating{this, "DivDifficultyRating"};
    Text DivGender{this, "DivGender"};
    Text DivMinAge{this, "DivMinAge"};
    Text DivMaxAge{this, "DivMaxAge"};
    Text DivUmpPlatePay{this, "DivUmpPlatePay"};
    Text DivUmpBasePay{this, "DivUmpBasePay"};
    Text DivNbrOfUmpsRequired{this, "DivNbrOfUmpsRequired"};
    Whole DivCertUmpsRequired{this, "DivCertUmpsRequired"};
    Text DivComments{this, "DivComments"};

    // The row that the cursor on teams or on difficulty ratings stood on last; never written from here.
    QDate TeamDateStamp;
    int TeamTimeStamp = 1;
    bool TeamDeletedFlag = false;
    QString Rating;
    QString RatingComments;
    QDate RatingDateStamp;
    int RatingTimeStamp = 1;
    bool RatingDeletedFlag = false;

    void DivMove(int code) { move(code); }
    void SaveDivRecord() { save(); }
    void SaveMergeDivRecord() { saveMerge(); }
    bool IsDivValid(bool showError) const { return isValid(showError); }
    void UndoDivRecord() { undo(); }
    void NewDivRecord() { newRecord(); }
    void ResetDivRecord() { blank(); }
    void DeleteDivRecord() { deleteRecord(); }
    bool IsDivDirty() const { return isDirty(); }
    bool IsDivNew() const { return isNew(); }
    void SetIsDivDirty(bool dirty) { setDirty(dirty); }
    void SetIsDivNew(bool isNew) { setNew(isNew); }

    bool FindDivRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    void FindDivisionRecord(const QString& name, bool show, bool load, bool& found);
    /// Deleted rows too.
    void FindDivisionMergeRecord(const QString& name, bool show, bool load, bool& found);
    void FindDivisionRecordById(int id, bool show, bool load, bool& found);
    void FindDupDivRecord(const QString& name, bool show, bool load, bool& found) {
        found = findByName(name, show, load);
    }

    /// Whether a live team belongs to the division.
    bool TeamsAssignedToDivision(int divisionId);
    void AddNewDifficultyRating(const QString& rating, const QString& comments);
    bool FindDeletedRatingRecord(const QString& rating);

    void DivisionRequery() { requery(); }
    void TeamRequery() { teams_.requery(); }
    void DifficultyRatingRequery() { ratings_.requery(); }

private:
    void loadRating();

    datafile::Recordset teams_;
    datafile::Recordset ratings_;
};
