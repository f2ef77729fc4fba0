#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

/// Shows how far a long run over the data file has come. It cannot be closed while the run lasts.
class frmUpdateStatus final : public QDialog {
    Q_OBJECT

public:
    explicit frmUpdateStatus(const QString& caption, QWidget* parent = nullptr);

    /// Shows the window with an empty text and the bar at 0, and holds it open.
    void begin();
    /// Names the step that starts, or leaves the text standing when it is empty. The window is painted.
    void showStep(const QString& text);
    /// Names a part of the step. Painted at once and without the event loop, so that it may stand in a transaction.
    void showPart(const QString& text);
    /// The same with how far the work has come, 0 to 100.
    void showPart(int percent);
    /// 0 to 100. The window is painted.
    void showProgress(int percent);
    /// Bar at 100, closing text, and the window may be closed.
    void finish(const QString& text);

    void reject() override;

private:
    QLabel* lblStatusText_;
    QProgressBar* prgStatusBar_;
    QPushButton* cmdClose_;
};
