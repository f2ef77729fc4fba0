#include "reports/ReportProgress.h"

#include <QGuiApplication>

ReportProgress::ReportProgress(const QString& title, QString counted, QWidget* parent, int patience)
    : QProgressDialog(parent), counted_(std::move(counted)), patience_(patience) {
    setObjectName("frmReportProgress");
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(std::numeric_limits<int>::max());  // shown below: how long it takes is not known
    setAutoReset(false);
    setRange(0, 0);
    setCancelButtonText(tr("&Cancel"));
    setLabelText(counted_.arg(1));
    setMinimumWidth(320);
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    sinceStart_.start();
    sincePaint_.start();
}

ReportProgress::~ReportProgress() { QGuiApplication::restoreOverrideCursor(); }

bool ReportProgress::advance(int done) {
    constexpr qint64 betweenPaints = 50;  // milliseconds
    const bool showsNow = !isVisible() && sinceStart_.elapsed() >= patience_;
    if (showsNow) show();
    if (showsNow || (isVisible() && sincePaint_.hasExpired(betweenPaints))) {
        setLabelText(counted_.arg(done));
        QCoreApplication::processEvents();
        sincePaint_.start();
    }
    return !wasCanceled();
}
