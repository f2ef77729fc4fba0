#include "shell/Screen.h"

#include <QCloseEvent>

#include "shell/Program.h"
#include "shell/Screens.h"

Screen::Screen(Program& program, const QString& name) : program_(program) {
    setObjectName(name);
    setWindowTitle(caption());
}

QString Screen::caption() const { return tr("Kestrelmoor - %1").arg(program_.store.dataFilePath); }

void Screen::unload() {
    offered_ = true;
    close();
    offered_ = false;
}

void Screen::closeEvent(QCloseEvent* event) {
    event->ignore();
    try {
        if (!offered_ && !offerToSave()) return;
        leaving();
        event->accept();
        program_.screens.ended(*this);
    } catch (const std::exception& failure) {  // a close event that threw would leave a window that cannot be closed
        program_.dialogs().error(tr("Kestrelmoor"), QString::fromUtf8(failure.what()));
    }
}

bool Screen::event(QEvent* event) {
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate && program_.screens.takeFront(*this)) cameForward();
    return handled;
}
