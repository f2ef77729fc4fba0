#pragma once

#include <QDialog>

class Settings;

/// Reminds of the parents of a child that is saved without any, until the user does not want to hear it again.
class frmGuardianReminder final : public QDialog {
    Q_OBJECT

public:
    explicit frmGuardianReminder(Settings& settings);
    /// Whether the user still wants the reminder.
    static bool isWanted(const Settings& settings);
};
