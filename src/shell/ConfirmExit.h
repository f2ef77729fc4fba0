#pragma once

#include <QCoreApplication>

#include "platform/dialogs/Dialogs.h"

/// The question before the program ends; true for Yes.
inline bool ConfirmExit(Dialogs& dialogs) {
    return dialogs.ask(QCoreApplication::translate("ConfirmExit", "Exit..."),
                       QCoreApplication::translate("ConfirmExit", "Exit Kestrelmoor?"));
}
