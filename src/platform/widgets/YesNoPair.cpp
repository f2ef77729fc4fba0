#include "YesNoPair.h"

#include <QHBoxLayout>
#include <QRadioButton>

YesNoPair::YesNoPair(const QString& objectName, const QString& accessibleName, QWidget* parent)
    : QWidget(parent), yes_(new QRadioButton(tr("Yes"), this)), no_(new QRadioButton(tr("No"), this)) {
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    int index = 0;
    for (QRadioButton* button : {yes_, no_}) {
        button->setObjectName(objectName + QString::number(index++));
        button->setAccessibleName(QString(accessibleName + u": " + button->text()));
        layout->addWidget(button);
    }
    layout->addStretch();
    no_->setChecked(true);
    setFocusProxy(yes_);
    connect(yes_, &QRadioButton::toggled, this, &YesNoPair::edited);
}

void YesNoPair::setYes(bool yes) {
    const QSignalBlocker quiet(yes_);
    (yes ? yes_ : no_)->setChecked(true);
}

bool YesNoPair::isYes() const { return yes_->isChecked(); }
