#pragma once

#include "store/RecordClass.h"

/// One position that volunteers can fill. Row of tblVolunteerPositions, found again by its name.
class ClsVolPos final : public RecordClass {
public:
    explicit ClsVolPos(StoreContext& context) : RecordClass(context) {
        open({.source = "tblVolunteerPositions",
              .tag = ".clsVolPos",
              .noRecords = "Volunteer Positions Table.  ",
              .required = {{&VolPosName, "Missing the Volunteer Position Name."}},
              .naturalKey = {&VolPosName},
              .loadsDeleted = false});
    }

    Key VolPosId{this, "VolPosId"};
    Text VolPosName{this, "VolPosName"};
    Text VolPosResponsibility{this, "VolPosResponsibility"};
    Text VolPosComments{this, "VolPosComments"};
    Stamps VolPosStamps{this};

    void VolPosMove(int code) { move(code); }
    void SaveVolPosRecord() { save(); }
    void SaveVolPosMergeRecord() { saveMerge(); }
    bool IsVolPosValid(bool showError) const { return isValid(showError); }
    void UndoVolPosRecord() { undo(); }
    void NewVolPosRecord() { newRecord(); }
    void DeleteVolPosRecord() { deleteRecord(); }
    void SetIsVolPosDirty(bool dirty) { setDirty(dirty); }
    void SetIsVolPosNew(bool isNew) { setNew(isNew); }
    bool FindVolPosRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindVolPosMergeRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    bool FindDeletedVolPosRecord(const QString& name) { return findDeletedByName(name); }
    bool FindVolPosRecordById(int id, bool show, bool load) { return findById(VolPosId, id, show, load); }

    /// Soft-deletes every volunteer's link to the position, in one transaction.
    void DeleteAllVolToPositionRecords(int positionId) {
        softDeleteRows("SELECT * from tblVolToPosition WHERE tblVolToPosition![VolPosId] = " +
                       QString::number(positionId));
    }
};
