#pragma once

#include "shell/RecordScreen.h"
#include "store/Housekeeping.h"

/// Players, volunteers and sponsors, each on a tab of its own.
class frmRegister final : public RecordScreen {
    Q_OBJECT

public:
    explicit frmRegister(Program& program);

private:
    struct Purge {
        const char* entry;
        QString caption;
        RecordKind kind;
        QString question;
        QString done;
        QString cancelled;
        RecordPane* pane;  ///< shows what is left; null: none does
    };
    void addFileEntries();
    void addPurge(const Purge& purge);
    void purge(const Purge& purge);
    void recalculatePlayerAges(RecordPane* players);
};
