#pragma once

#include <QGuiApplication>
#include <vector>

/// The wait cursor for the length of a work. A box that opens meanwhile has the usual one.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

/// The usual cursor while the user is asked something in the midst of a work.
class UsualCursor {
public:
    UsualCursor() {
        while (const QCursor* cursor = QGuiApplication::overrideCursor()) {
            covered_.push_back(*cursor);
            QGuiApplication::restoreOverrideCursor();
        }
    }
    ~UsualCursor() {
        for (auto cursor = covered_.rbegin(); cursor != covered_.rend(); ++cursor)
            QGuiApplication::setOverrideCursor(*cursor);
    }
    UsualCursor(const UsualCursor&) = delete;
    UsualCursor& operator=(const UsualCursor&) = delete;

private:
    std::vector<QCursor> covered_;
};
