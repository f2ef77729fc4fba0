#pragma once

#include "store/RecordClass.h"

/// One way to pay a fee. Row of tblHowFeePaid, found again by its text.
class clsHowFeePaid final : public RecordClass {
public:
    explicit clsHowFeePaid(StoreContext& context) : RecordClass(context) {
        open({.source = "tblHowFeePaid",
              .tag = ".clsHowFeePaid",
              .noRecords = "How Fee Paid Table.  ",
              .required = {{&HowFeePaidText, "Missing the How Fee Paid Text."}},
              .naturalKey = {&HowFeePaidText},
              .loadsDeleted = false});
    }

    Text HowFeePaidText{this, "HowFeePaidText"};
    Stamps HowFeePaidStamps{this};

    void SaveHowFeePaidRecord() { save(); }
    void NewHowFeePaidRecord() { newRecord(); }
    bool FindHowFeePaidRecord(const QString& text, bool show, bool load) { return findByName(text, show, load); }
};
