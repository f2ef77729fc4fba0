#pragma once

#include "shell/RecordScreen.h"

/// The editor of the lookup tables, one a tab.
class frmSetup final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmSetup(Program& program);
};
