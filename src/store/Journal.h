#pragma once

#include <QString>

class Clock;
class Dialogs;

/// Appends one line to "Journal.Dat" in the current directory: date, time, module and procedure in columns of 25,
/// message. Then shows the message in an error box, which also says so when the line could not be written.
void WriteJournal(const Clock& clock, Dialogs& dialogs, const QString& module, const QString& procedure,
                  const QString& message);
