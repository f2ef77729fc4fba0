#pragma once

#include "store/RecordClass.h"

/// One agency and the policy that it wrote. Row of tblInsurance, found again by the agency's name.
class clsInsurance final : public RecordClass {
public:
    explicit clsInsurance(StoreContext& context) : RecordClass(context) {
        open({.source = "tblInsurance",
              .tag = ".clsVendor",
              .noRecords = "Insurance Table.  ",
              .required = {{&InsAgencyName, "Missing the Insurancy Agency Name."}},
              .naturalKey = {&InsAgencyName},
              .loadsDeleted = false});
    }

    Key InsId{this, "InsId"};
    Text InsAgencyName{this, "InsAgencyName"};
    Text InsCompanyName{this, "InsCompanyName"};
    Text InsContactName{this, "InsContactName"};
    Text InsPolicyNumber{this, "InsPolicyNumber"};
    Text InsPhone{this, "InsPhone"};
    Text InsFax{this, "InsFax"};
    Text InsAddress1{this, "InsAddress1"};
    Text InsAddress2{this, "InsAddress2"};
    Text InsCity{this, "InsCity"};
    Text InsStateId{this, "InsStateId"};
    Text InsZipCode{this, "InsZipCode"};
    Text InsPostalCode{this, "InsPostalCode"};
    Text InsCountryCode{this, "InsCountryCode"};
    Text InsLiabilityLimit{this, "InsLiabilityLimit"};
    Text InsDeductibleAmt{this, "InsDeductibleAmt"};
    Text InsComments{this, "InsComments"};
    Stamps InsStamps{this};

    void InsMove(int code) { move(code); }
    void SaveInsRecord() { save(); }
    void SaveInsMergeRecord() { saveMerge(); }
    bool IsInsValid(bool showError) const { return isValid(showError); }
    void UndoInsRecord() { undo(); }
    void NewInsRecord() { newRecord(); }
    void DeleteInsRecord() { deleteRecord(); }
    void SetIsInsDirty(bool dirty) { setDirty(dirty); }
    void SetIsInsNew(bool isNew) { setNew(isNew); }
    bool FindInsRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindInsMergeRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    bool FindDeletedInsRecord(const QString& name) { return findDeletedByName(name); }
    bool FindInsRecordById(int id, bool show, bool load) { return findById(InsId, id, show, load); }
};
