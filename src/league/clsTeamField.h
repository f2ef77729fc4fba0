#pragma once

#include "store/RecordClass.h"

/// One field that a division may use. Row of tblTeamField, which is there or not: nothing is marked as deleted here.
class clsTeamField final : public RecordClass {
public:
    explicit clsTeamField(StoreContext& context) : RecordClass(context) {
        open({.source = "SELECT [FieldId], [DivisionId] FROM tblTeamField ORDER BY [FieldId]",
              .tag = ".clsTeamField",
              .noRecords = "Division Table.  ",
              .required = {{&FieldFieldId, "Missing the Team Name."}}});
    }

    Whole FieldFieldId{this, "FieldId"};
    Whole FieldDivisionId{this, "DivisionId"};

    void TeamFieldMove(int code) { move(code); }
    void SaveTeamFieldRecord() { save(); }
    void SaveTeamFieldMergeRecord() { saveMerge(); }
    bool IsTeamFieldValid(bool showError) const { return isValid(showError); }
    void UndoTeamFieldRecord() { undo(); }
    bool IsTeamFieldDirty() const { return isDirty(); }
    bool IsTeamFieldNew() const { return isNew(); }
    void SetIsTeamFieldDirty(bool dirty) { setDirty(dirty); }
    void SetIsTeamFieldNew(bool isNew) { setNew(isNew); }

    bool FindTeamFieldMergeRecord(int fieldId, int divisionId, bool load) {
        return find(pair(fieldId, divisionId), load);
    }
    /// Adds the pair that the properties hold; one that is there already stays alone. A field or division that does
    /// not exist raises datafile::Error.
    void AddNewTeamFieldRecord() {
        setNew(true);
        save();
    }
    /// Writes the properties over the row in hand.
    void UpdateTeamFieldRecord() {
        setNew(false);
        save();
    }
    /// Removes the pair that the properties hold, for good; says so when there is none.
    void RemoveTeamFieldRecord() {
        if (!find(pair(FieldFieldId, FieldDivisionId), false))
            return context().dialogs.information({}, QStringLiteral("No Records found."));
        main().remove();
        main().moveFirst();
        blank();
        undo();
    }

private:
    static QString pair(int fieldId, int divisionId) {
        return matches({{"FieldId", fieldId}, {"DivisionId", divisionId}});
    }
    QString twinCriteria() const override { return pair(FieldFieldId, FieldDivisionId); }
};
