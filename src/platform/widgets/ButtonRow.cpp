#include "platform/widgets/ButtonRow.h"

#include <QHBoxLayout>
#include <QPushButton>

ButtonRow::ButtonRow(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addStretch(1);
}

QPushButton* ButtonRow::add(const char* name, const QString& caption, const std::function<void()>& press) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, press);
    layout()->addWidget(button);
    return button;
}
