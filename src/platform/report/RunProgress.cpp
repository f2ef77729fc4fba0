#include "platform/report/RunProgress.h"

#include <QApplication>
#include <QLocale>

namespace report {

namespace {

constexpr qint64 patience = 400;  // milliseconds
constexpr qint64 interval = 50;

}  // namespace

RunProgress::RunProgress(QWidget* parent, const QString& title, Counts counts) : window_(parent), counts_(counts) {
    window_.setObjectName("runProgress");
    window_.setWindowTitle(title);
    window_.setWindowModality(Qt::ApplicationModal);
    window_.setRange(0, 0);  // nobody knows how much is to come
    window_.setCancelButtonText(QProgressDialog::tr("&Cancel"));
    window_.setAutoClose(false);
    window_.setMinimumWidth(window_.fontMetrics().averageCharWidth() * 48);
    window_.reset();
    sinceStart_.start();
}

bool RunProgress::operator()(int done) {
    const qint64 now = sinceStart_.elapsed();
    if (now < patience || now - lastShown_ < interval) return !window_.wasCanceled();
    lastShown_ = now;
    const QString count = QLocale().toString(done);
    window_.setLabelText(counts_ == Counts::Pages ? QProgressDialog::tr("Page %1").arg(count)
                                                  : QProgressDialog::tr("Row %1").arg(count));
    window_.show();
    QApplication::processEvents();
    return !window_.wasCanceled();
}

}  // namespace report
