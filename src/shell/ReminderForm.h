#pragma once

#include <QDialog>

class QDialogButtonBox;
class Settings;

/// A message that beeps and that the user may silence for good with its check box. What the box says is stored at once.
class ReminderForm : public QDialog {
    Q_OBJECT

public:
    struct Message {
        QString objectName;
        QString title;
        QString text;
        QString section;  ///< where the settings keep whether it is wanted, True or False
        QString key;
        QString checkName = QStringLiteral("chkDontShow");
    };

    /// Whether the user still wants to see it.
    static bool isWanted(const Settings& settings, const QString& section, const QString& key);

    /// With a button OK.
    ReminderForm(Settings& settings, const Message& message);
    /// With buttons for going on and for staying.
    ReminderForm(Settings& settings, const Message& message, const QString& goOn, const QString& stay);

private:
    QDialogButtonBox* addParts(Settings& settings, const Message& message);
};
