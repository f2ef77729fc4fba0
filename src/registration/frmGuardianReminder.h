#pragma once

#include "shell/ReminderForm.h"

/// Reminds of the parents of a child that is saved without any, until the user does not want to hear it again.
class frmGuardianReminder final : public ReminderForm {
    Q_OBJECT

public:
    explicit frmGuardianReminder(Settings& settings);
    /// Whether the user still wants the reminder.
    static bool isWanted(const Settings& settings);
};
