#pragma once

#include "platform/archive/Archive.h"
#include "platform/datafile/Error.h"
#include "platform/dialogs/Dialogs.h"

// The numbers under which a user may report a failed backup or restore, and the boxes that tell of them.

struct ResultBox {
    BoxKind kind;
    QString title;
    QString text;
};

int backupCode(archive::Fault fault);
int restoreCode(archive::Fault fault);
int restoreCode(const datafile::Error& error);
inline constexpr int wrongContentCode = 44;  ///< of a restore: what was unpacked is no data file of a league

/// For 0 they tell of the success.
ResultBox backupResult(int code);
ResultBox restoreResult(int code);
