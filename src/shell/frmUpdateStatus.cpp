#include "shell/frmUpdateStatus.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

void paintNow() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

}  // namespace

frmUpdateStatus::frmUpdateStatus(const QString& caption, QWidget* parent)
    : QDialog(parent),
      lblStatusText_(new QLabel),
      prgStatusBar_(new QProgressBar),
      cmdClose_(new QPushButton(tr("&Close"))) {
    setObjectName("frmUpdateStatus");
    setWindowTitle(caption);
    lblStatusText_->setObjectName("lblStatusText");
    lblStatusText_->setTextFormat(Qt::PlainText);
    lblStatusText_->setBuddy(prgStatusBar_);
    prgStatusBar_->setObjectName("prgStatusBar");
    prgStatusBar_->setRange(0, 100);
    cmdClose_->setObjectName("cmdClose");
    connect(cmdClose_, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(12);
    column->addWidget(lblStatusText_);
    column->addWidget(prgStatusBar_);
    column->addWidget(cmdClose_, 0, Qt::AlignRight);
    setMinimumWidth(460);
}

void frmUpdateStatus::begin() {
    cmdClose_->setEnabled(false);
    lblStatusText_->clear();
    prgStatusBar_->setValue(0);
    show();
    paintNow();
}

void frmUpdateStatus::showStep(const QString& text) {
    if (!text.isEmpty()) lblStatusText_->setText(text);
    paintNow();
}

void frmUpdateStatus::showPart(const QString& text) {
    lblStatusText_->setText(text);
    lblStatusText_->repaint();
}

void frmUpdateStatus::showPart(int percent) {
    if (percent == prgStatusBar_->value()) return;
    prgStatusBar_->setValue(percent);
    prgStatusBar_->repaint();
}

void frmUpdateStatus::showProgress(int percent) {
    prgStatusBar_->setValue(percent);
    paintNow();
}

void frmUpdateStatus::finish(const QString& text) {
    prgStatusBar_->setValue(100);
    lblStatusText_->setText(text);
    cmdClose_->setEnabled(true);
}

void frmUpdateStatus::reject() {
    if (cmdClose_->isEnabled()) QDialog::reject();
}
