#pragma once

#include "platform/report/Band.h"
#include "platform/text/Money.h"

namespace report {

/// Where the texts of a column stand.
Alignment alignmentOf(const Column& column);

/// Exact sums and counts of the columns of a list, for each of its groups. The columns must outlive it.
class Totals {
public:
    /// The whole report counts as the last group.
    Totals(const Line& columns, size_t groups);
    /// Takes in the cells of a row, which stand in the band from `firstCell` on.
    void add(const Band& band, size_t firstCell);
    /// Fills a band with a group's totals. The caption spans the columns before the first total; a total in the first
    /// column follows its caption.
    void fill(Band& band, size_t group, const QString& caption, const TextStyle& style) const;
    void clear(size_t group);

private:
    QString text(size_t group, size_t column) const;

    const Line& columns_;
    bool any_;
    std::vector<std::vector<Money>> sums_;  ///< group after group; counts are whole dollars
};

}  // namespace report
