#include "shell/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "platform/settings/Settings.h"

namespace {

enum State { Normal = 0, Minimised = 1, Maximised = 2 };

constexpr int grip = 48;        ///< of the title bar, so much must be in reach for the window to stay where it was
constexpr int frameAbove = 30;  ///< what stands above the window's own area, on the desktops that we know

/// The area of the monitor on which the window can be seen and taken hold of, if there is one.
QRect areaAround(const QRect& wanted) {
    const QRect titleBar(wanted.topLeft(), QSize(wanted.width(), grip));
    for (const QScreen* monitor : QGuiApplication::screens()) {
        const QRect seen = monitor->availableGeometry().intersected(titleBar);
        if (seen.width() >= grip && seen.height() >= grip / 2) return monitor->availableGeometry();
    }
    return {};
}

}  // namespace

QRect broughtIntoView(QRect wanted, const QRect& area) {
    wanted.setSize(wanted.size().boundedTo(area.size()));
    wanted.moveLeft(std::clamp(wanted.left(), area.left(), area.right() - wanted.width() + 1));
    wanted.moveTop(std::clamp(wanted.top(), area.top(), area.bottom() - wanted.height() + 1));
    return wanted;
}

WindowPlacement::WindowPlacement(Settings& settings, const QString& screenName)
    : settings_(settings), section_("WindowSettings\\" + screenName) {}

void WindowPlacement::restore(QWidget& window, QSize designSize, QSize minimum) const {
    const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
    minimum = minimum.boundedTo(desktop.size());
    window.setMinimumSize(minimum);
    QRect design(QPoint(), designSize);
    design.moveCenter(desktop.center());
    design = broughtIntoView(design, desktop.adjusted(0, frameAbove, 0, 0));
    QRect wanted(qRound(number("Left", design.left())), qRound(number("Top", design.top())),
                 qRound(number("Width", design.width())), qRound(number("Height", design.height())));
    wanted.setSize(wanted.size().expandedTo(minimum));
    if (areaAround(wanted).isNull()) wanted = broughtIntoView(wanted, desktop);
    window.setGeometry(wanted);
    if (settings_.read(section_, "State", "0").toInt() == Maximised) window.setWindowState(Qt::WindowMaximized);
}

void WindowPlacement::save(const QWidget& window) const {
    const State state = window.isMinimized() ? Minimised : window.isMaximized() ? Maximised : Normal;
    settings_.write(section_, "State", QString::number(state));
    if (state == Minimised) return;
    const QRect place = window.normalGeometry();
    settings_.write(section_, "Left", QString::number(place.left()));
    settings_.write(section_, "Top", QString::number(place.top()));
    settings_.write(section_, "Width", QString::number(place.width()));
    settings_.write(section_, "Height", QString::number(place.height()));
}

double WindowPlacement::number(const char* key, double otherwise) const {
    bool numeric = false;
    const double value = settings_.read(section_, QString::fromLatin1(key)).toDouble(&numeric);
    return numeric && std::abs(value) < 100'000 ? value : otherwise;
}
