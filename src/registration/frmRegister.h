#pragma once

#include "shell/RecordScreen.h"

/// Players, volunteers and sponsors, each on a tab of its own.
class frmRegister final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmRegister(Program& program);
};
