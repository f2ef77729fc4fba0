#pragma once

#include "store/RecordClass.h"

/// One kind of item that the league owns, and how many of it. Row of tblEquipment, found again by item name and
/// description.
class clsEquip final : public RecordClass {
public:
    explicit clsEquip(StoreContext& context);

    Key EquipmentId{this, "EquipId"};
    Text EquipmentName{this, "ItemName"};
    Text EquipmentDescription{this, "Description"};
    Whole EquipmentNbrItems{this, "NbrItems", {.blank = 1}};
    Whole EquipmentVendor{this, "VendorId"};  ///< 0 for none
    Text EquipmentSerialNumber{this, "SerialNumber"};
    Text EquipmentModelNumber{this, "ModelNumber"};
    Text EquipmentSize{this, "Size"};
    Text EquipmentCost{this, "Cost"};
    Day EquipmentPurchaseDate{this, "PurchaseDate", NoDate::Today};
    Day EquipmentWarrantyExpiration{this, "WarrantyExpiration", NoDate::Today};
    Whole EquipmentInsured{this, "Insured", {.otherwise = 1, .blank = 1}};  ///< 0 yes, 1 no
    Whole EquipmentInsuredBy{this, "InsuranceId"};                          ///< 0 for none
    Text EquipmentCondition{this, "Condition"};
    Text EquipmentComments{this, "Comments"};
    Day EquipmentDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole EquipmentTimeStamp{this, "TimeStamp", {.otherwise = 1}};
    Flag EquipmentDeletedFlag{this, "DeletedFlag"};

    void EquipmentMove(int code) { move(code); }
    void SaveEquipmentRecord() { save(); }
    void SaveEquipmentMergeRecord() { saveMerge(); }
    bool IsEquipmentValid(bool showError) const { return isValid(showError); }
    void UndoEquipmentRecord() { undo(); }
    void NewEquipmentRecord() { newRecord(); }
    void DeleteEquipmentRecord() { deleteRecord(); }
    bool IsEquipmentDirty() const { return isDirty(); }
    bool IsEquipmentNew() const { return isNew(); }
    void SetIsEquipmentDirty(bool dirty) { setDirty(dirty); }
    void SetIsEquipmentNew(bool isNew) { setNew(isNew); }

    /// By the text of a list entry, "Bat - Aluminum". The first hyphen ends the item name, so an item with one in its
    /// name is not found.
    bool FindEquipmentRecord(const QString& entry, bool show, bool load);
    /// Deleted rows too, and items with a hyphen in the name: a merge that missed them would add them again and again.
    bool FindEquipmentMergeRecord(const QString& entry, bool show, bool load);
    bool FindEquipmentRecordById(int id, bool show, bool load) { return findById(EquipmentId, id, show, load); }

private:
    bool findEntry(const QString& criteria, const QString& entry, bool show, bool load);
};
