#include "platform/widgets/FormLayout.h"

ColumnRow::ColumnRow(QWidget* parent) : QWidget(parent), layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    layout_->setContentsMargins({});
    layout_->setSpacing(spacing::group);
    layout_->setSizeConstraint(QLayout::SetNoConstraint);
}

void ColumnRow::addColumn(QWidget* column, int weight) { layout_->addWidget(column, weight); }

void ColumnRow::setWeight(QWidget* column, int weight) { layout_->setStretchFactor(column, weight); }

int ColumnRow::widthSideBySide() const {
    int width = layout_->spacing() * std::max(0, layout_->count() - 1);
    for (int index = 0; index < layout_->count(); ++index) width += layout_->itemAt(index)->minimumSize().width();
    return width;
}

QSize ColumnRow::minimumSizeHint() const {
    int widest = 0;
    for (int index = 0; index < layout_->count(); ++index)
        widest = std::max(widest, layout_->itemAt(index)->minimumSize().width());
    return {widest, layout_->minimumSize().height()};
}

void ColumnRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const auto direction = width() < widthSideBySide() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (direction == layout_->direction()) return;
    layout_->setDirection(direction);
    updateGeometry();
}
