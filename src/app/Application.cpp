#include "app/Application.h"

#include <QKeyEvent>

#include "platform/dialogs/Dialogs.h"
#include "shell/Icons.h"

namespace {

/// Alt and a letter that no button or menu answered to: a disabled button's does not type into the box in focus.
bool isUnansweredAccess(const QEvent& event) {
    if (event.type() != QEvent::KeyPress || QApplication::activePopupWidget()) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    const auto modifiers = key.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    return modifiers == Qt::AltModifier && !key.text().isEmpty() && key.text().front().isPrint();
}

}  // namespace

Application::Application(int& argumentCount, char** arguments, Dialogs& dialogs)
    : QApplication(argumentCount, arguments), dialogs_(dialogs) {
    setApplicationName("Kestrelmoor");
    setApplicationVersion(KESTRELMOOR_VERSION);
    setDesktopFileName("kestrelmoor");
    setWindowIcon(shellIcon("kestrelmoor"));
    setQuitOnLastWindowClosed(false);  // the register of screens ends the program
    QColor faint = palette().color(QPalette::Text);  // not every dark desktop has a colour of its own for hints
    faint.setAlphaF(0.5F);
    QPalette hints;
    hints.setColor(QPalette::PlaceholderText, faint);
    setPalette(hints);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    if (isUnansweredAccess(*event)) return true;
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        dialogs_.error(tr("Kestrelmoor"), QString::fromUtf8(failure.what()));
    }
    return false;
}
