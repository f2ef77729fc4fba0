#pragma once

#include <QRect>
#include <QString>

class QWidget;
class Settings;

/// Where a window stood when it was last closed, in the user's settings: `State` (0 normal, 1 minimised,
/// 2 maximised) and `Left`, `Top`, `Width`, `Height` in device-independent pixels.
class WindowPlacement {
public:
    /// The section of a screen of that name.
    WindowPlacement(Settings& settings, const QString& screenName);

    /// Places a window that is not shown yet. Without a stored position it gets the design size in the middle of
    /// the first monitor. A window that would lie out of reach comes back into view; one that was minimised starts
    /// as normal. `minimum` is the smallest size it is given.
    void restore(QWidget& window, QSize designSize, QSize minimum) const;
    /// Keeps the state, and the position too unless the window is minimised.
    void save(const QWidget& window) const;

private:
    double number(const char* key, double otherwise) const;

    Settings& settings_;
    QString section_;
};

/// The wanted rectangle, shrunk and moved so far that all of it lies within the area.
QRect broughtIntoView(QRect wanted, const QRect& area);
