#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

/// A small progress window for work of a known length.
class frmStatusBar final : public QDialog {
    Q_OBJECT

public:
    explicit frmStatusBar(QWidget* parent = nullptr);

    /// Shows the window with this title over its bar; the work runs from 0 to `maximum`.
    void Init(const QString& text, int maximum);
    /// Moves the bar; a text that is not empty takes the title's place. With `delay` the window stays so for a
    /// second. The window is painted, but takes no input.
    void Update(int position, const QString& text = {}, bool delay = false);
    /// Moves the bar and paints it, and handles no other event.
    void Paint(int position);
    void Done();

private:
    QLabel* fxAction_;
    QProgressBar* ctlStatusBar_;
};
