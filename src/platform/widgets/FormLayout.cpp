#include "platform/widgets/FormLayout.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <numeric>

namespace {

constexpr int pairIndent = spacing::group - spacing::label;  ///< before the second pair of a line and those after it

/// The least width of a caption or field wherever it stands: without the indent of its present place. What the lines
/// need must not depend on how they are broken now, or a scroll bar that comes and goes would break them for ever.
int leastWidthOf(QWidget* widget) {
    const bool countsIndent = widget->layout() || qobject_cast<QLabel*>(widget);
    return QWidgetItem(widget).minimumSize().width() - (countsIndent ? widget->contentsMargins().left() : 0);
}

/// The least width for a frame's content: its own, or that of its lines with all their pairs.
int fullWidthOf(const QWidget& column) {
    int width = column.minimumSizeHint().width();
    for (const auto* grid : column.findChildren<PairGrid*>()) {
        const QWidget* frame = grid->parentWidget();
        const int edges = frame->minimumSizeHint().width() - grid->minimumSizeHint().width();
        width = std::max(width, edges + grid->fullWidth());
    }
    return width;
}

}  // namespace

PairGrid::PairGrid(int pairs, QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)), pairs_(pairs) {
    grid_->setContentsMargins({});
    grid_->setHorizontalSpacing(spacing::label);
    grid_->setVerticalSpacing(spacing::line);
}

void PairGrid::add(QLabel* caption, QWidget* field, int span, bool beginsLine) {
    items_.push_back({caption, field, span, beginsLine});
    lay(pairs_);
}

std::vector<PairGrid::Place> PairGrid::placesFor(int pairs) const {
    std::vector<Place> places;
    int line = 0;
    int pair = 0;
    for (const Item& item : items_) {
        const int span = std::min(item.span, pairs);
        if (pair > 0 && (item.beginsLine || pair + span > pairs)) {
            ++line;
            pair = 0;
        }
        places.push_back({line, pair, span});
        pair += span;
    }
    return places;
}

int PairGrid::widthOf(int pairs) const {
    std::vector<int> columns(static_cast<size_t>(2 * pairs), 0);
    const auto places = placesFor(pairs);
    const auto widthFrom = [&](int first, int end) {
        return std::accumulate(columns.begin() + first, columns.begin() + end, spacing::label * (end - first - 1));
    };
    // The narrow cells decide first; a wide one then takes what its last column lacks.
    for (const bool wide : {false, true})
        for (size_t index = 0; index < items_.size(); ++index) {
            const auto [line, pair, span] = places[index];
            const Item& item = items_[index];
            const int indent = pair > 0 ? pairIndent : 0;
            const int first = 2 * pair + (item.caption ? 1 : 0);
            const int end = 2 * (pair + span);
            if (wide != (end - first > 1)) continue;
            if (item.caption) {
                int& column = columns[static_cast<size_t>(first - 1)];
                column = std::max(column, indent + leastWidthOf(item.caption));
            }
            const int needed = leastWidthOf(item.field) + (item.caption ? 0 : indent);
            columns[static_cast<size_t>(end - 1)] += std::max(0, needed - widthFrom(first, end));
        }
    return widthFrom(0, 2 * pairs);
}

void PairGrid::lay(int pairs) {
    while (QLayoutItem* item = grid_->takeAt(0)) delete item;
    for (int pair = 0; pair < pairs_; ++pair) grid_->setColumnStretch(2 * pair + 1, pair < pairs ? 1 : 0);
    const auto places = placesFor(pairs);
    for (size_t index = 0; index < items_.size(); ++index) {
        const auto [line, pair, span] = places[index];
        const auto [caption, field, wanted, beginsLine] = items_[index];
        const int indent = pair > 0 ? pairIndent : 0;
        if (caption) {
            QMargins margins = caption->contentsMargins();
            margins.setLeft(indent);
            caption->setContentsMargins(margins);
            grid_->addWidget(caption, line, 2 * pair);
        } else {
            field->setContentsMargins(indent, 0, 0, 0);
        }
        const int first = 2 * pair + (caption ? 1 : 0);
        const bool keepsWidth = field->sizePolicy().horizontalPolicy() == QSizePolicy::Maximum;
        grid_->addWidget(field, line, first, 1, 2 * (pair + span) - first,
                         keepsWidth ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment());
    }
    laid_ = pairs;
}

QSize PairGrid::minimumSizeHint() const { return {widthOf(1), grid_->minimumSize().height()}; }

void PairGrid::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    int pairs = pairs_;
    while (pairs > 1 && widthOf(pairs) > width()) --pairs;
    if (pairs == laid_) return;
    lay(pairs);
    updateGeometry();
}

ColumnRow::ColumnRow(QWidget* parent) : QWidget(parent), layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    layout_->setContentsMargins({});
    layout_->setSpacing(spacing::group);
    layout_->setSizeConstraint(QLayout::SetNoConstraint);
}

void ColumnRow::addColumn(QWidget* column, int weight) {
    columns_.push_back(column);
    layout_->addWidget(column, weight);
}

QSize ColumnRow::minimumSizeHint() const {
    int widest = 0;
    for (const QWidget* column : columns_) widest = std::max(widest, column->minimumSizeHint().width());
    return {widest, layout_->minimumSize().height()};
}

void ColumnRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    std::vector<int> fullWidths;
    for (const QWidget* column : columns_) fullWidths.push_back(fullWidthOf(*column));
    const int gaps = spacing::group * std::max(0, static_cast<int>(columns_.size()) - 1);
    const bool sideBySide = std::accumulate(fullWidths.begin(), fullWidths.end(), gaps) <= width();
    for (size_t index = 0; index < columns_.size(); ++index)
        columns_[index]->setMinimumWidth(sideBySide ? fullWidths[index] : 0);
    layout_->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    updateGeometry();
}
