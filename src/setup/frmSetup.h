#pragma once

#include "shell/RecordScreen.h"

/// The editor of the lookup tables, one a tab.
class frmSetup final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmSetup(Program& program);

private:
    void addCertifications(Program& program);
    void addPositions(Program& program);
    void addRatings(Program& program);
    void addVendors(Program& program);
    void addInsurance(Program& program);
    void addSchools(Program& program);
    void addDifficultyRatings(Program& program);
    void addWaysToPay(Program& program);
    /// Of the boxes that say what an entry lacks.
    static QString checkTitle();
};
