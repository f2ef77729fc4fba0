#include "maintenance/BackupFlow.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "maintenance/BusyBar.h"
#include "maintenance/work/Backup.h"
#include "maintenance/work/Codes.h"
#include "shell/Program.h"
#include "shell/Screens.h"
#include "store/CorrectVersion.h"

namespace {

QString tr(const char* text) { return QCoreApplication::translate("Backup", text); }

QString archiveFilters() { return tr("Archive File (*.zip)|*.zip|All Files(*.*)|*.*"); }

}  // namespace

void BackupFlow::tell(const ResultBox& box) { program_.dialogs().box(box.kind, BoxButtons::Ok, box.title, box.text); }

void BackupFlow::prepareBackup() {
    if (!MakeSafetyCopy(program_.store)) return;
    QString failure;
    {
        BusyBar busy(tr("Compacting the data file..."));
        try {
            compactWithoutWorkTables(program_.store, busy.quietlyFrom(0));
        } catch (const datafile::Error& error) {
            failure = error.text();
        }
    }
    if (!failure.isEmpty())
        program_.dialogs().warning(tr("Compact Data"), tr("The data file could not be compacted.") + u'\n' + failure);
}

void BackupFlow::backUp() {
    if (!program_.screens.offerToSave()) return;
    prepareBackup();
    program_.screens.showAnew();
    const std::optional<QString> archive = program_.dialogs().saveFile({.title = tr("Backup Database As"),
                                                                        .filters = archiveFilters(),
                                                                        .defaultSuffix = ".zip",
                                                                        .fileName = "Kestrelmoor.zip"});
    if (!archive) return program_.dialogs().information(tr("Backup Cancelled"), tr("Backup Cancelled!"));
    int code = 0;
    {
        BusyBar busy(tr("Backing up the data file..."), 2 * BusyBar::whole);
        code = ::backUp(program_.store, *archive, busy.from(0),
                        busy.from(BusyBar::whole, tr("Comparing the backup with the data file...")));
    }
    tell(backupResult(code));
}

void BackupFlow::restore() {
    if (!program_.screens.offerToSave()) return;
    const std::optional<QString> archive =
        program_.dialogs().openFile({.title = tr("Restore Kestrelmoor Database..."),
                                     .filters = tr("Archive File (*.zip)|*.zip|All Files (*.*)|*.*"),
                                     .defaultSuffix = ".zip",
                                     .fileName = "*.zip"});
    if (!archive) return;
    if (!QFileInfo(*archive).isFile())
        return program_.dialogs().information(tr("File Not Found"),
                                              tr("The Archive file does not exist.\n\nRestore Cancelled."));
    int code = 0;
    {
        BusyBar busy(tr("Restoring the data file..."), 2 * BusyBar::whole);
        code =
            ::restore(program_.store, *archive, program_.homeFolder(), busy.from(0), busy.quietlyFrom(BusyBar::whole));
        program_.screens.showAnew();
    }
    tell(restoreResult(code));
}

void BackupFlow::merge() {
    if (program_.screens.offerToSave() && MakeSafetyCopy(program_.store)) program_.screens.show("frmMerge");
}

void BackupFlow::compact() {
    const QString title = tr("Delete Records");
    if (!program_.screens.offerToSave() || !MakeSafetyCopy(program_.store)) return;
    QStringList failures;
    {
        BusyBar busy(tr("Removing the records that are marked as deleted..."), 2 * BusyBar::whole);
        failures = purgeDeletedRows(program_.store, busy.from(0));
        busy.show(BusyBar::whole, tr("Compacting the data file..."));
        try {
            compactWithoutWorkTables(program_.store, busy.quietlyFrom(BusyBar::whole));
        } catch (const datafile::Error& error) {
            failures << error.text();
        }
        program_.screens.showAnew();
    }
    if (!failures.isEmpty()) return program_.dialogs().error(title, failures.join(u'\n'));
    program_.dialogs().information(title, tr("All Records Marked for Deletion \nhave been removed from Kestrelmoor."));
}
