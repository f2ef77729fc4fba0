#include "platform/report/Totals.h"

#include <algorithm>

namespace report {

namespace {

constexpr Money one{100};

}  // namespace

Alignment alignmentOf(const Column& column) {
    if (column.alignment) return *column.alignment;
    const Format format = column.field.format;
    return format == Format::Money || format == Format::Number ? Alignment::Right : Alignment::Left;
}

Totals::Totals(const Line& columns, size_t groups)
    : columns_(columns),
      any_(std::any_of(columns.begin(), columns.end(),
                       [](const Column& column) { return column.total != Total::None; })),
      sums_(groups + 1, std::vector<Money>(columns.size())) {}

void Totals::add(const Band& band, size_t firstCell) {
    if (!any_) return;
    for (size_t index = 0; index < columns_.size(); ++index) {
        const Total total = columns_[index].total;
        if (total == Total::None) continue;
        const QVariant& value = band.cells[firstCell + index].value;
        const Money amount = total == Total::Count ? one : Money::orZero(value.toString());
        for (auto& sums : sums_) sums[index] += amount;
    }
}

void Totals::clear(size_t group) { std::fill(sums_[group].begin(), sums_[group].end(), Money{}); }

QString Totals::text(size_t group, size_t column) const {
    const Money sum = sums_[group][column];
    if (columns_[column].total == Total::Sum) {
        const Field& field = columns_[column].field;
        if (field.format == Format::Money) return sum.text();
        if (!field.pattern.isEmpty()) return sum.text(field.pattern);
    }
    return sum.text(sum.cents % one.cents == 0 ? QStringLiteral("0") : QStringLiteral("0.00"));
}

void Totals::fill(Band& band, size_t group, const QString& caption, const TextStyle& style) const {
    Cell lead{.text = caption, .share = 0, .columns = 0, .style = style};
    bool inLead = true;
    for (size_t index = 0; index < columns_.size(); ++index) {
        const Column& column = columns_[index];
        const bool hasTotal = column.total != Total::None;
        if (inLead && (!hasTotal || index == 0)) {
            lead.share += column.share;
            ++lead.columns;
            if (hasTotal) lead.text += QString(u' ' % text(group, index));
            continue;
        }
        if (inLead) band.cells.push_back(lead);
        inLead = false;
        Cell& cell = band.cells.emplace_back();
        cell.alignment = alignmentOf(column);
        cell.share = column.share;
        cell.style = style;
        cell.style.points += column.larger;
        if (!hasTotal) continue;
        cell.format = column.field.format;
        cell.value = double(sums_[group][index].cents) / one.cents;
        cell.text = text(group, index);
    }
    if (!inLead) return;
    lead.share = std::max(lead.share, 1.0);
    band.cells.push_back(lead);
}

}  // namespace report
