#pragma once

#include "shell/RecordScreen.h"

/// The equipment of the league: what there is, and who holds what.
class frmEquipment final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmEquipment(Program& program);
};
