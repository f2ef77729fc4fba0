#pragma once

#include "store/RecordClass.h"

/// One field where games are played. Row of tblField, found again by its name.
class clsFieldInfo final : public RecordClass {
public:
    explicit clsFieldInfo(StoreContext& context) : RecordClass(context) {
        open({.source = "tblField",
              .tag = ".clsField",
              .noRecords = "Fields Table.  ",
              .required = {{&FieldName, "Missing the Certification Name."}},
              .naturalKey = {&FieldName}});
    }

    Key FieldId{this, "FieldId"};
    Text FieldName{this, "FieldName"};
    Text FieldLeagueAssociation{this, "FieldLeagueAssociation"};
    Text FieldStreet1{this, "FieldStreet1"};
    Text FieldStreet2{this, "FieldStreet2"};
    Text FieldCity{this, "FieldCity"};
    Text FieldStateId{this, "FieldStateId"};
    Text FieldZipCode{this, "FieldZipCode"};
    Text FieldZipCode4{this, "FieldZipCode4"};
    Text FieldContactName{this, "FieldContactName"};
    Text FieldContactPhoneArea{this, "FieldContactPhoneArea"};
    Text FieldContactPhone{this, "FieldContactPhone"};
    Whole FieldLights{this, "FieldLights"};
    Whole FieldMultiPurpose{this, "FieldMultiPurpose"};
    Text FieldDirections{this, "FieldDirections"};
    Text FieldComments{this, "FieldComments"};
    Text FieldPostalCode{this, "FieldPostalCode"};
    Text FieldCountryCode{this, "FieldCountryCode"};
    Day FieldDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole FieldTimeStamp{this, "TimeStamp", {.otherwise = 1}};
    Flag FieldDeletedFlag{this, "DeletedFlag"};

    void FieldMove(int code) { move(code); }
    void SaveFieldRecord() { save(); }
    void SaveFieldMergeRecord() { saveMerge(); }
    bool IsFieldValid(bool showError) const { return isValid(showError); }
    void UndoFieldRecord() { undo(); }
    void NewFieldRecord() { newRecord(); }
    void ResetFieldRecord() { blank(); }
    void DeleteFieldRecord() { deleteRecord(); }
    bool IsFieldDirty() const { return isDirty(); }
    bool IsFieldNew() const { return isNew(); }
    void SetIsFieldDirty(bool dirty) { setDirty(dirty); }
    void SetIsFieldNew(bool isNew) { setNew(isNew); }

    bool FindFieldRecord(const QString& name, bool show, bool load) {
        return findInWords(live(matches("FieldName", name)), name, show, load);
    }
    bool FindDeletedFieldRecord(const QString& name, bool show, bool load) {
        return findInWords(deleted(matches("FieldName", name)), name, show, load);
    }
    /// Deleted rows too.
    bool FindFieldMergeRecord(const QString& name, bool show, bool load) {
        return findInWords(matches("FieldName", name), name, show, load);
    }
    bool FindFieldRecordById(int id, bool show, bool load) { return findById(FieldId, id, show, load); }

private:
    bool findInWords(const QString& criteria, const QString& name, bool show, bool load) {
        return findOrTell(criteria, name, show, load,
                          {"Record Not Found...", "No Records found for %1", "No Records found for %1"});
    }
};
