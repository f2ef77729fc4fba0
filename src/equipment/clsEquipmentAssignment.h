#pragma once

#include "store/RecordClass.h"

/// Who holds equipment: a division or a player or a volunteer by its own id, a team by its division's and its own. Ids
/// that do not apply are 0, so a division and each of its teams are different holders.
struct EquipmentHolder {
    int divisionId = 0;
    int teamId = 0;
    int playerId = 0;
    int volId = 0;
};

/// What one holder has of one item: how many went out and came back, and when. Row of tblEquipmentAssignment, found
/// again by the holder and the item.
class clsEquipmentAssignment final : public RecordClass {
public:
    explicit clsEquipmentAssignment(StoreContext& context);

    Key AssignmentId{this, "AssignmentId"};
    Whole DivisionId{this, "DivisionId"};
    Whole TeamId{this, "TeamId"};
    Whole PlayerId{this, "PlayerId"};
    Whole VolId{this, "VolId"};
    Whole EquipmentId{this, "EquipmentId"};
    Text DistributionQuantity{this, "DistributionQuantity", numericElse("0")};
    Day DistributionDate{this, "DistributionDate", NoDate::Today};
    Text ReturnQuantity{this, "ReturnQuantity", numericElse("0")};
    Day ReturnDate{this, "ReturnDate", NoDate::Today};
    Text Comments{this, "Comments"};
    Stamps AssignmentStamps{this};

    void EquipmentMove(int code) { move(code); }
    void SaveAssignmentRecord() { save(); }
    void SaveAssignmentMergeRecord() { saveMerge(); }
    bool IsAssignmentValid(bool showError) const { return isValid(showError); }
    void UndoAssignmentRecord() { undo(); }
    void NewAssignmentRecord() { newRecord(); }
    void DeleteAssignmentRecord() { deleteRecord(); }
    bool IsAssignmentDirty() const { return isDirty(); }
    bool IsAssignmentNew() const { return isNew(); }
    void SetIsAssignmentDirty(bool dirty) { setDirty(dirty); }
    void SetIsAssignmentNew(bool isNew) { setNew(isNew); }

    bool FindAssignmentRecord(const EquipmentHolder& holder, int equipmentId, bool show, bool load);
    /// Deleted rows too.
    bool FindAssignmentMergeRecord(const EquipmentHolder& holder, int equipmentId, bool show, bool load);
    /// Whether the holder has anything at all.
    bool FindEquipmentAssignment(const EquipmentHolder& holder, bool show, bool load);

    /// How many of each item that is not deleted are owned, out and left: tblEquipmentAvailable, made anew.
    void RebuildEquipmentAvailable();
    struct Available {
        int total = 0;         ///< owned
        int toDistribute = 0;  ///< left; never below 0
    };
    /// As of the last rebuild.
    Available FindEquipmentAvailable(int equipmentId) const;

private:
    QString twinCriteria() const override;
    bool findAssignment(const QString& criteria, bool show, bool load);
};
