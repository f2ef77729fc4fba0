#include "store/Journal.h"

#include <QCoreApplication>
#include <QFile>

#include "platform/dialogs/Dialogs.h"
#include "platform/text/Clock.h"

namespace {

constexpr int column = 25;

bool append(const QString& line) {
    QFile journal("Journal.Dat");
    if (!journal.open(QIODevice::Append)) return false;
    const QByteArray bytes = line.toUtf8();
    return journal.write(bytes) == bytes.size() && journal.flush();
}

}  // namespace

void WriteJournal(const Clock& clock, Dialogs& dialogs, const QString& module, const QString& procedure,
                  const QString& message) {
    const QString line = clock.now().toString("M/d/yyyy h:mm:ss AP") + ' ' + module.leftJustified(column) + ' ' +
                         procedure.leftJustified(column) + ' ' + message + '\n';
    const bool written = append(line);
    const auto translated = [](const char* text) { return QCoreApplication::translate("Journal", text); };
    dialogs.error(translated("Kestrelmoor"),
                  written ? message : message + '\n' + translated("The journal could not be written."));
}
