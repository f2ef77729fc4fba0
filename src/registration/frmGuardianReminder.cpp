#include "registration/frmGuardianReminder.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/settings/Settings.h"
#include "platform/widgets/FormLayout.h"

namespace {

constexpr char section[] = "WindowSettings\\frmRegister";
constexpr char key[] = "ShowGuardianMsg";

}  // namespace

bool frmGuardianReminder::isWanted(const Settings& settings) {
    return settings.read(QLatin1String(section), QLatin1String(key), QStringLiteral("True")) != u"False";
}

frmGuardianReminder::frmGuardianReminder(Settings& settings) {
    setObjectName(QStringLiteral("frmGuardianReminder"));
    setWindowTitle(tr("Parent Reminder"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::group, spacing::group, spacing::group, spacing::group);
    layout->setSpacing(spacing::group);
    layout->addWidget(new QLabel(tr("Don't forget to add Parent/Guardian information! \nClick OK to continue.")));
    auto* silence = new QCheckBox(tr("&Don't show this message again."));
    silence->setObjectName(QStringLiteral("chkDontShow"));
    connect(silence, &QCheckBox::toggled, this, [&settings](bool silent) {
        settings.write(QLatin1String(section), QLatin1String(key),
                       silent ? QStringLiteral("False") : QStringLiteral("True"));
    });
    layout->addWidget(silence);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("&OK"), QDialogButtonBox::AcceptRole)->setObjectName(QStringLiteral("cmdOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
    QApplication::beep();
}
