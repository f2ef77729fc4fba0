#include "schedule/frmImport.h"

#include "schedule/Instructions.h"
#include "schedule/exchange/SchedulerImport.h"
#include "shell/Program.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>

namespace {

constexpr qint64 mostBytes = 64 << 20;  ///< a schedule of a million games

QStringList notes() {
    return {
        frmImport::tr("1.  The import from Diamond Scheduler is accomplished a single division at a time.  Please make "
                      "sure that you export only one Division at a time from Diamond Scheduler.  Also, make sure you "
                      "use different file names for each Division."),
        frmImport::tr("2.  When you click on the Import button, you will be prompted for an input file  name.  Select "
                      "a file that has been exported from Diamond Scheduler using the Kestrelmoor format."),
        frmImport::tr(
            "3.  If you select the same file more than once, or if a schedule already exists for the Division "
            "selected, you will be prompted to delete the current schedule information from the Kestrelmoor database.  "
            "If you do not wish to delete the current schedule information from the Kestrelmoor database, press the "
            "'No' button and the schedule information for the Division will not be deleted (Please Note:  The "
            "information in the input file will not be imported either).  If you select 'Yes', the schedule "
            "information in the Kestrelmoor database will be deleted and the new information from the Diamond "
            "Scheduler file will take its place.")};
}

}  // namespace

frmImport::frmImport(Program& program) : program_(program) {
    setObjectName("frmImport");
    setWindowTitle(tr("Import from Diamond Scheduler"));
    auto* buttons = new QDialogButtonBox;
    auto* start = buttons->addButton(tr("&Import"), QDialogButtonBox::ActionRole);
    start->setObjectName("cmdImport");
    start->setDefault(true);
    start->setFocus();
    connect(start, &QPushButton::clicked, this, &frmImport::importFile);
    auto* close = buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
    close->setObjectName("cmdClose");
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addWidget(instructions(tr("Import Instructions"), notes()), 1);
    layout->addWidget(buttons);
    resize(560, 440);
}

void frmImport::importFile() {
    Dialogs& dialogs = program_.dialogs();
    const std::optional<QString> path =
        dialogs.openFile({.title = tr("Import Schedule File from Diamond Scheduler..."),
                          .filters = tr("DS Schedule File (*.kmo)|*.kmo|All Files (*.*)|*.*"),
                          .defaultSuffix = ".kmo"});
    if (!path || path->isEmpty()) return;
    const QString caption = tr("Import from Diamond Scheduler");
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        return dialogs.error(caption, tr("The file %1 could not be read.").arg(*path) + '\n' + file.errorString());
    const QByteArray bytes = file.read(mostBytes + 1);
    const std::optional<QStringList> lines = bytes.size() > mostBytes ? std::nullopt : linesOf(bytes);
    if (file.error() != QFile::NoError || !lines)
        return dialogs.error(caption, tr("The file %1 is no schedule file. Nothing was imported.").arg(*path));
    try {
        SchedulerImport(program_.store).ImportScheduleFile(*lines);
    } catch (const std::exception& failure) {
        dialogs.error(caption, tr("Nothing was imported.") + '\n' + QString::fromUtf8(failure.what()));
    }
}
