#include "reports/ReportProgress.h"

#include <QGuiApplication>

namespace {

constexpr qint64 moment = 400;  // milliseconds
constexpr qint64 betweenPaints = 50;

}  // namespace

ReportProgress::ReportProgress(const QString& title, QString counted, QWidget* parent)
    : QProgressDialog(parent), counted_(std::move(counted)) {
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
    if (!isVisible() && sinceStart_.hasExpired(moment)) show();
    if (isVisible() && sincePaint_.hasExpired(betweenPaints)) {
        setLabelText(counted_.arg(done));
        QCoreApplication::processEvents();
        sincePaint_.start();
    }
    return !wasCanceled();
}
