#pragma once

#include "store/RecordClass.h"

/// One shop that the league buys from. Row of tblVendor, found again by its name.
class clsVendor final : public RecordClass {
public:
    explicit clsVendor(StoreContext& context) : RecordClass(context) {
        open({.source = "tblVendor",
              .tag = ".clsVendor",
              .noRecords = "Vendor Table.  ",
              .required = {{&VendorName, "Missing the Vendor Name."}},
              .naturalKey = {&VendorName},
              .loadsDeleted = false});
    }

    Key VendorId{this, "VendorId"};
    Text VendorName{this, "VendorName"};
    Text VendorContactName{this, "VendorContactName"};
    Text VendorContactPhone{this, "VendorContactPhone"};
    Text VendorAddress1{this, "VendorAddress1"};
    Text VendorAddress2{this, "VendorAddress2"};
    Text VendorCity{this, "VendorCity"};
    Text VendorStateId{this, "VendorStateId"};
    Text VendorZipCode{this, "VendorZipCode"};
    Text VendorPostalCode{this, "VendorPostalCode"};
    Text VendorCountryCode{this, "VendorCountryCode"};
    Text VendorCreditLimit{this, "VendorCreditLimit"};
    Text VendorComments{this, "VendorComments"};
    Stamps VendorStamps{this};

    void VendorMove(int code) { move(code); }
    void SaveVendorRecord() { save(); }
    void SaveVendorMergeRecord() { saveMerge(); }
    bool IsVendorValid(bool showError) const { return isValid(showError); }
    void UndoVendorRecord() { undo(); }
    void NewVendorRecord() { newRecord(); }
    void DeleteVendorRecord() { deleteRecord(); }
    void SetIsVendorDirty(bool dirty) { setDirty(dirty); }
    void SetIsVendorNew(bool isNew) { setNew(isNew); }
    bool FindVendorRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindVendorMergeRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    bool FindDeletedVendorRecord(const QString& name) { return findDeletedByName(name); }
    bool FindVendorRecordById(int id, bool show, bool load) { return findById(VendorId, id, show, load); }
};
