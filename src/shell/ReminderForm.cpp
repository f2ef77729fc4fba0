#include "shell/ReminderForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/settings/Settings.h"
#include "platform/widgets/FormLayout.h"

bool ReminderForm::isWanted(const Settings& settings, const QString& section, const QString& key) {
    return settings.read(section, key, QStringLiteral("True")) != u"False";
}

ReminderForm::ReminderForm(Settings& settings, const Message& message) {
    addParts(settings, message)->addButton(tr("&OK"), QDialogButtonBox::AcceptRole)->setObjectName("cmdOK");
}

ReminderForm::ReminderForm(Settings& settings, const Message& message, const QString& goOn, const QString& stay) {
    QDialogButtonBox* buttons = addParts(settings, message);
    buttons->addButton(goOn, QDialogButtonBox::AcceptRole)->setObjectName("cmdButton1");
    buttons->addButton(stay, QDialogButtonBox::RejectRole)->setObjectName("cmdButton2");
}

QDialogButtonBox* ReminderForm::addParts(Settings& settings, const Message& message) {
    setObjectName(message.objectName);
    setWindowTitle(message.title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::group, spacing::group, spacing::group, spacing::group);
    layout->setSpacing(spacing::group);
    auto* text = new QLabel(message.text);
    text->setObjectName("lblMessage");
    text->setTextFormat(Qt::PlainText);
    layout->addWidget(text);
    auto* silence = new QCheckBox(tr("&Don't show this message again."));
    silence->setObjectName(message.checkName);
    connect(silence, &QCheckBox::toggled, this, [&settings, section = message.section, key = message.key](bool silent) {
        settings.write(section, key, silent ? QStringLiteral("False") : QStringLiteral("True"));
    });
    layout->addWidget(silence);
    auto* buttons = new QDialogButtonBox;
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    QApplication::beep();
    return buttons;
}
