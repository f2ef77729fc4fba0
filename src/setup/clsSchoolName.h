#pragma once

#include "store/RecordClass.h"

/// One school of the players. Row of tblSchoolInfo, found again by its name.
class clsSchoolName final : public RecordClass {
public:
    explicit clsSchoolName(StoreContext& context) : RecordClass(context) {
        open({.source = "tblSchoolInfo",
              .tag = ".clsSchoolName",
              .noRecords = "School Information Table.  ",
              .required = {{&SchoolName, "Missing the School Name."}},
              .naturalKey = {&SchoolName},
              .loadsDeleted = false});
    }

    Key SchoolId{this, "SchoolId"};
    Text SchoolName{this, "SchoolName"};
    Text SchoolComments{this, "SchoolComments"};
    Stamps SchoolStamps{this};

    void SchoolMove(int code) { move(code); }
    void SaveSchoolRecord() { save(); }
    void SaveSchoolMergeRecord() { saveMerge(); }
    bool IsSchoolValid(bool showError) const { return isValid(showError); }
    void UndoSchoolRecord() { undo(); }
    void NewSchoolRecord() { newRecord(); }
    void DeleteSchoolRecord() { deleteRecord(); }
    void SetIsSchoolDirty(bool dirty) { setDirty(dirty); }
    void SetIsSchoolNew(bool isNew) { setNew(isNew); }
    bool FindSchoolRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindSchoolMergeRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    bool FindDeletedSchoolRecord(const QString& name) { return findDeletedByName(name); }
    bool FindSchoolRecordById(int id, bool show, bool load) { return findById(SchoolId, id, show, load); }
};
