#include "registration/frmGuardianReminder.h"

namespace {

constexpr char section[] = "WindowSettings\\frmRegister";
constexpr char key[] = "ShowGuardianMsg";

}  // namespace

bool frmGuardianReminder::isWanted(const Settings& settings) { return ReminderForm::isWanted(settings, section, key); }

frmGuardianReminder::frmGuardianReminder(Settings& settings)
    : ReminderForm(settings, {.objectName = "frmGuardianReminder",
                              .title = tr("Parent Reminder"),
                              .text = tr("Don't forget to add Parent/Guardian information! \nClick OK to continue."),
                              .section = section,
                              .key = key}) {}
