#include "schedule/frmExport.h"

#include "platform/files/Files.h"
#include "platform/widgets/ChoiceBox.h"
#include "schedule/Instructions.h"
#include "schedule/exchange/SchedulerFile.h"
#include "shell/Choices.h"
#include "shell/Program.h"
#include "shell/ReminderForm.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr char section[] = "WindowSettings\\frmExport";
constexpr char key[] = "ShowExportMsgBox";

/// What stands on the screen for the user to read; two of the notes share a number.
QStringList notes() {
    return {frmExport::tr("1.  The export to Diamond Scheduler is accomplished a single division at a time.  You have "
                          "the option of selecting 'All Divisions', but you will be prompted for an output file name "
                          "for each division."),
            frmExport::tr("2.  For compatibility with Diamond Scheduler's 16 bit version, please use an 8.3 file name "
                          "standard.  For example: C:\\Divname1.kmi is a valid filename, C:\\This is an export "
                          "file.kmi - should not be used.  This will ease the import into Diamond Scheduler."),
            frmExport::tr("3.  After exporting from Kestrelmoor and importing into Diamond Scheduler, DO NOT CHANGE "
                          "the Division Names or Team Names.  If you do so, then export back to Kestrelmoor, the "
                          "schedule will not be displayed in the Schedule reports."),
            frmExport::tr("3.  Make sure you use a different file name for each division!")};
}

ReminderForm::Message exported(const QString& division) {
    return {.objectName = "frmExportStatus",
            .title = frmExport::tr("Export Status"),
            .text = frmExport::tr("The export for Division \"%1\"").arg(division) + '\n' +
                    frmExport::tr("is complete.") + '\n' + frmExport::tr("Press OK to continue."),
            .section = section,
            .key = key};
}

}  // namespace

frmExport::frmExport(Program& program)
    : program_(program), cboDivision_(new ChoiceBox), cmdExport_(new QPushButton(tr("&Export"))) {
    setObjectName("frmExport");
    setWindowTitle(tr("Export to Diamond Scheduler"));
    const QStringList divisions =
        listOf(program, "SELECT *, ([DivName]) as Name FROM tblDivision WHERE [DeletedFlag] = False ORDER BY [DivName]",
               "Name");
    if (!divisions.isEmpty()) cboDivision_->setEntries(QStringList(tr("All Divisions")) + divisions);
    cboDivision_->setObjectName("cboDivision");
    cmdExport_->setObjectName("cmdExport");
    cmdExport_->setEnabled(!divisions.isEmpty());
    connect(cmdExport_, &QPushButton::clicked, this, &frmExport::exportChosen);

    auto* caption = new QLabel(divisions.isEmpty() ? tr("There is no division yet.") : tr("Division &List"));
    caption->setBuddy(cboDivision_);
    cboDivision_->setVisible(!divisions.isEmpty());
    auto* choice = new QHBoxLayout;
    choice->setSpacing(spacing::label);
    choice->addWidget(caption);
    choice->addWidget(cboDivision_, 1);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdExport_, QDialogButtonBox::ActionRole);
    auto* close = buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
    close->setObjectName("cmdClose");
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    (divisions.isEmpty() ? close : cmdExport_)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addLayout(choice);
    layout->addWidget(instructions(tr("Export Instructions"), notes()), 1);
    layout->addWidget(buttons);
    cboDivision_->setFocus();
    resize(560, 440);
}

void frmExport::exportChosen() {
    const QString chosen = cboDivision_->text();
    if (chosen.isEmpty())
        return program_.dialogs().warning(tr("Invalid Division Name"), tr("Please select a valid Division") + '\n' +
                                                                           tr("Name to Continue with the Export."));
    if (cboDivision_->currentIndex() > 0) {
        ExportDivision(chosen);
        return;
    }
    // Deleted divisions get a file as well.
    for (const QString& division :
         listOf(program_, "SELECT *, ([DivName]) as Name FROM tblDivision ORDER BY [DivName]", "Name"))
        if (!ExportDivision(division)) return;
}

bool frmExport::ExportDivision(const QString& division) {
    Dialogs& dialogs = program_.dialogs();
    if (division.isEmpty()) {
        dialogs.warning(tr("Division Name Error"),
                        tr("The Division Name is Invalid.") + '\n' + tr("Please select a valid Division Name."));
        return false;
    }
    const std::optional<QString> path =
        dialogs.saveFile({.title = tr("Save Division \"%1\" As").arg(division),
                          .filters = tr("Diamond Scheduler File (*.shd)|*.shd|All Files(*.*)|*.*"),
                          .defaultSuffix = ".shd"});
    if (!path || path->isEmpty()) return false;
    try {
        files::writeWhole(*path, schedulerFile(program_.store, division));
    } catch (const std::exception& failure) {
        dialogs.error(tr("Export to Diamond Scheduler"), QString::fromUtf8(failure.what()));
        return false;
    }
    if (ReminderForm::isWanted(program_.settings, section, key)) {
        ReminderForm status(program_.settings, exported(division));
        dialogs.showModal(status);
    }
    return true;
}
