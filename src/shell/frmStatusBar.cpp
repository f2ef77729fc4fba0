#include "shell/frmStatusBar.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

frmStatusBar::frmStatusBar(QWidget* parent) : QDialog(parent), fxAction_(new QLabel), ctlStatusBar_(new QProgressBar) {
    setObjectName("frmStatusBar");
    setWindowTitle(tr("Kestrelmoor"));
    fxAction_->setObjectName("fxAction");
    fxAction_->setTextFormat(Qt::PlainText);
    fxAction_->setBuddy(ctlStatusBar_);
    ctlStatusBar_->setObjectName("ctlStatusBar");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(12);
    column->addWidget(fxAction_);
    column->addWidget(ctlStatusBar_);
    setMinimumWidth(420);
}

void frmStatusBar::Init(const QString& text, int maximum) {
    fxAction_->setText(text);
    ctlStatusBar_->setRange(0, maximum);
    ctlStatusBar_->setValue(0);
    show();
    Update(0);
}

void frmStatusBar::Update(int position, const QString& text, bool delay) {
    ctlStatusBar_->setValue(position);
    if (!text.isEmpty()) fxAction_->setText(text);
    if (delay) {
        QEventLoop loop;
        QTimer::singleShot(1000, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    } else {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

void frmStatusBar::Paint(int position) {
    if (position == ctlStatusBar_->value()) return;
    ctlStatusBar_->setValue(position);
    ctlStatusBar_->repaint();
}

void frmStatusBar::Done() { close(); }
