#include "reports/MailingLabels.h"

#include <QDialog>

#include "reports/frmLabelStart.h"
#include "reports/frmMailingLabelOptions.h"
#include "shell/Program.h"
#include "shell/ReminderForm.h"

namespace {

constexpr char section[] = "WindowSettings\\frmReports";
constexpr char key[] = "ShowLabelMsgBox";

}  // namespace

void MailingLabels::choose(int people) {
    LabelOptions& held = chosen_[size_t(people)];
    frmMailingLabelOptions form(people, held, program_.dialogs());
    if (program_.dialogs().showModal(form) == QDialog::Accepted) held = form.options();
}

std::optional<LabelOptions> MailingLabels::begin(int people) {
    if (ReminderForm::isWanted(program_.settings, section, key)) {
        ReminderForm loaded(program_.settings,
                            {.objectName = "frmLabelMsgBox",
                             .title = tr("Label Type"),
                             .text = tr("Kestrelmoor is optimized for Avery 5160 (LaserJet Labels)") + '\n' +
                                     tr("or Avery 8160 (InkJet Labels).  To print mailing labels") + '\n' +
                                     tr("please load your printer with Avery 5160 or 8160 labels.") + '\n' +
                                     tr("Do you want to continue?"),
                             .section = section,
                             .key = key,
                             .checkName = "chkNoShow"},
                            tr("&Yes"), tr("&No"));
        if (program_.dialogs().showModal(loaded) != QDialog::Accepted) return {};
    }
    frmLabelStart start;
    if (program_.dialogs().showModal(start) != QDialog::Accepted) return {};
    LabelOptions options = chosen_[size_t(people)];
    options.skip = start.skipped();
    return options;
}
