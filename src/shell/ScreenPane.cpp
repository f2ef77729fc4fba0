#include "shell/ScreenPane.h"

ScreenPane::ScreenPane(Program& program, PaneText text, Orders orders)
    : program_(program), text_(std::move(text)), orders_(orders) {}

void ScreenPane::setEditing(bool editing) {
    editing_ = editing;
    Q_EMIT stateChanged();
}
