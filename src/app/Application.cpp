#include "app/Application.h"

#include "platform/dialogs/Dialogs.h"
#include "shell/Icons.h"

Application::Application(int& argumentCount, char** arguments, Dialogs& dialogs)
    : QApplication(argumentCount, arguments), dialogs_(dialogs) {
    setApplicationName("Kestrelmoor");
    setApplicationVersion(KESTRELMOOR_VERSION);
    setDesktopFileName("kestrelmoor");
    setWindowIcon(shellIcon("kestrelmoor"));
    setQuitOnLastWindowClosed(false);  // the register of screens ends the program
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        dialogs_.error(tr("Kestrelmoor"), QString::fromUtf8(failure.what()));
    }
    return false;
}
