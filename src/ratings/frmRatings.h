#pragma once

#include "shell/RecordScreen.h"

/// What players, coaches and umpires are graded.
class frmRatings final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmRatings(Program& program);

private:
    void showClear();

    QPushButton* clear_;
};
