#pragma once

#include "shell/RecordScreen.h"

/// The league's structure: divisions, their teams with staff and players, and the fields they play on.
class frmTeams final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmTeams(Program& program);
};
