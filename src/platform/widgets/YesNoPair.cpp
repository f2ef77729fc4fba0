#include "platform/widgets/YesNoPair.h"

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
    setYes(false);
    connect(yes_, &QRadioButton::toggled, this, [this](bool yes) {
        takeFocusAtAnswer();
        Q_EMIT edited(yes);
    });
}

void YesNoPair::setYes(bool yes) {
    const QSignalBlocker quiet(yes_);
    (yes ? yes_ : no_)->setChecked(true);
    takeFocusAtAnswer();
}

void YesNoPair::takeFocusAtAnswer() {
    yes_->setFocusPolicy(isYes() ? Qt::StrongFocus : Qt::ClickFocus);
    no_->setFocusPolicy(isYes() ? Qt::ClickFocus : Qt::StrongFocus);
    setFocusProxy(isYes() ? yes_ : no_);
}

bool YesNoPair::isYes() const { return yes_->isChecked(); }
