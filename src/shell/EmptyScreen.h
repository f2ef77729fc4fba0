#pragma once

#include "shell/MainScreen.h"

/// A main screen that has nothing to show yet, but from which one can go everywhere.
class EmptyScreen final : public MainScreen {
    Q_OBJECT

public:
    EmptyScreen(Program& program, const QString& name);
};
