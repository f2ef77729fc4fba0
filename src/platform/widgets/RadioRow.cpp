#include "platform/widgets/RadioRow.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

RadioRow::RadioRow(const QString& objectName, const QString& accessibleName, const QStringList& answers,
                   QWidget* parent)
    : QWidget(parent), buttons_(new QButtonGroup(this)) {
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    for (const QString& answer : answers) {
        auto* button = new QRadioButton(answer, this);
        const int index = static_cast<int>(buttons_->buttons().size());
        button->setObjectName(objectName + QString::number(index));
        button->setAccessibleName(QString(accessibleName + u": " + answer));
        layout->addWidget(button);
        buttons_->addButton(button, index);
    }
    layout->addStretch();
    takeFocusAtAnswer();
    connect(buttons_, &QButtonGroup::idToggled, this, [this](int index, bool chosen) {
        if (!chosen) return;
        takeFocusAtAnswer();
        Q_EMIT edited(index);
    });
}

void RadioRow::setIndex(int index) {
    const QSignalBlocker quiet(buttons_);
    if (auto* button = buttons_->button(index)) {
        button->setChecked(true);
    } else if (buttons_->checkedButton()) {
        buttons_->setExclusive(false);
        buttons_->checkedButton()->setChecked(false);
        buttons_->setExclusive(true);
    }
    takeFocusAtAnswer();
}

int RadioRow::index() const { return buttons_->checkedId(); }

void RadioRow::takeFocusAtAnswer() {
    QAbstractButton* present = buttons_->checkedButton() ? buttons_->checkedButton() : buttons_->button(0);
    for (QAbstractButton* button : buttons_->buttons())
        button->setFocusPolicy(button == present ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(present);
}
