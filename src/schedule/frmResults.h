#pragma once

#include "shell/RecordScreen.h"

/// The season's games: the schedule of each division, what was played, and the standings that follow from it.
class frmResults final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmResults(Program& program);
};
