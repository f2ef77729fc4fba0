#pragma once

#include "shell/RecordScreen.h"

/// The league's structure: divisions, and what belongs to them.
class frmTeams final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmTeams(Program& program);
};
