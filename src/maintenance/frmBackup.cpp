#include "maintenance/frmBackup.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "maintenance/BackupFlow.h"
#include "platform/widgets/ButtonRow.h"
#include "platform/widgets/FormLayout.h"
#include "shell/Program.h"

namespace {

struct Option {
    const char* label;
    const char* order;          ///< what the OK button reads then
    void (BackupFlow::*run)();  ///< none: a new season begins in the Tools menu of a main screen
};

constexpr Option options[] = {
    {QT_TRANSLATE_NOOP("frmBackup", "Backup Kestrelmoor Data"), QT_TRANSLATE_NOOP("frmBackup", "&Backup"),
     &BackupFlow::backUp},
    {QT_TRANSLATE_NOOP("frmBackup", "Restore Kestrelmoor Data from a Backup"),
     QT_TRANSLATE_NOOP("frmBackup", "&Restore"), &BackupFlow::restore},
    {QT_TRANSLATE_NOOP("frmBackup", "Merge another Kestrelmoor Data file into your Local Kestrelmoor Data file"),
     QT_TRANSLATE_NOOP("frmBackup", "&Merge"), &BackupFlow::merge},
    {QT_TRANSLATE_NOOP("frmBackup", "Compact Data - Remove All Records that are Marked As Deleted."),
     QT_TRANSLATE_NOOP("frmBackup", "&Delete"), &BackupFlow::compact},
    {QT_TRANSLATE_NOOP("frmBackup", "New Season - Perform New Season Functions"),
     QT_TRANSLATE_NOOP("frmBackup", "&New Season"), nullptr},
};

}  // namespace

frmBackup::frmBackup(Program& program) : program_(program) {
    setObjectName(QStringLiteral("frmBackup"));
    setWindowTitle(tr("Backup, Restore, and Merge"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin * 2, spacing::margin * 2, spacing::margin * 2, spacing::margin * 2);
    layout->setSpacing(spacing::group);
    layout->addWidget(optionFrame());
    layout->addStretch(1);
    auto* buttons = new ButtonRow(this);
    ok_ = buttons->add("cmdOk", tr("&Ok"), [this] { run(); });
    ok_->setDefault(true);
    buttons->add("cmdCancel", tr("&Cancel"), [this] { reject(); });
    buttons->add("cmdExit", tr("E&xit"), [this] { reject(); });
    layout->addWidget(buttons);
    connect(optType_, &QButtonGroup::idToggled, this, [this](int option, bool chosen) {
        if (chosen) showOption(option);
    });
    optType_->button(0)->setChecked(true);
    optType_->button(0)->setFocus();
}

QWidget* frmBackup::optionFrame() {
    auto* frame = new QGroupBox(tr("What would you like to do?"));
    frame->setObjectName(QStringLiteral("frameBackup"));
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(spacing::group, spacing::margin, spacing::group, spacing::margin);
    column->setSpacing(spacing::margin);
    optType_ = new QButtonGroup(this);
    optType_->setObjectName(QStringLiteral("optType"));
    int index = 0;
    for (const Option& option : options) {
        auto* choice = new QRadioButton(tr(option.label));
        choice->setObjectName(QStringLiteral("optType%1").arg(index));
        optType_->addButton(choice, index++);
        column->addWidget(choice);
    }
    return frame;
}

void frmBackup::showOption(int option) { ok_->setText(tr(options[option].order)); }

void frmBackup::run() {
    accept();
    BackupFlow flow(program_);
    if (const auto chosen = options[optType_->checkedId()].run) (flow.*chosen)();
}
