#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

namespace report {

/// Tells how far a run is, in a small window that comes up when it takes longer than a moment, and lets the user
/// cancel it. Nothing else of the program takes input meanwhile. Handed to a run as std::ref(progress).
class RunProgress {
public:
    enum class Counts { Pages, Rows };

    RunProgress(QWidget* parent, const QString& title, Counts counts);
    /// Paints the window now and then. False when the user has cancelled.
    bool operator()(int done);

private:
    QProgressDialog window_;
    Counts counts_;
    QElapsedTimer sinceStart_;
    qint64 lastShown_ = 0;
};

}  // namespace report
