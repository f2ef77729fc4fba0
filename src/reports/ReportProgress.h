#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

/// Shows how far a report has come once it takes longer than a moment, and lets the user cancel it.
class ReportProgress final : public QProgressDialog {
    Q_OBJECT

public:
    /// What is counted: "Page %1". The window shows after so many milliseconds.
    ReportProgress(const QString& title, QString counted, QWidget* parent, int patience = 400);
    ~ReportProgress() override;

    /// Called as the work goes on. False when the user has cancelled.
    bool advance(int done);

private:
    QString counted_;
    int patience_;
    QElapsedTimer sinceStart_;
    QElapsedTimer sincePaint_;
};
