#include "shell/frmSplash.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/ProductHeading.h"
#include "shell/Version.h"

frmSplash::frmSplash(std::function<void()> stopShowing) : stopShowing_(std::move(stopShowing)) {
    setObjectName("frmSplash");
    setWindowTitle(tr("Kestrelmoor"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 24);
    column->setSpacing(28);
    column->addWidget(new ProductHeading(tr("Version %1").arg(programVersion().toString())));

    auto* bottom = new QHBoxLayout;
    chkSkipScreen_ = new QCheckBox(tr("&Show this screen at every start"));
    chkSkipScreen_->setObjectName("chkSkipScreen");
    chkSkipScreen_->setChecked(true);
    auto* ok = new QPushButton(tr("&OK"));
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &frmSplash::accept);
    bottom->addWidget(chkSkipScreen_);
    bottom->addStretch();
    bottom->addWidget(ok);
    column->addLayout(bottom);
    setFixedSize(sizeHint());
}

void frmSplash::accept() {
    if (chkSkipScreen_->isEnabled() && !chkSkipScreen_->isChecked()) stopShowing_();
    QDialog::accept();
}
