#include "maintenance/BusyBar.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QWindow>

BusyBar::BusyBar(const QString& text, int maximum) {
    constexpr int mostMilliseconds = 200;  // that a desktop may take to bring up a window
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    bar_.setModal(true);
    bar_.Init(text, maximum);
    // What follows may take a while before it shows anything: the bar is to be seen by then.
    for (const QDeadlineTimer patience(mostMilliseconds); !patience.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        if (bar_.windowHandle() && bar_.windowHandle()->isExposed()) break;
    }
    bar_.repaint();
}

BusyBar::~BusyBar() {
    bar_.Done();
    QGuiApplication::restoreOverrideCursor();
}
