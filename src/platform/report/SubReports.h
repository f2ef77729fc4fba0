#pragma once

#include <QHash>
#include <map>

#include "platform/report/Band.h"

namespace report {

/// The rows of sub-reports that run once for the whole report, found by the values of their key columns.
class KeyedRows {
public:
    /// Reads the whole query on the first call for this sub-report.
    std::unique_ptr<RowSource> rowsOf(const ReportDefinition& part, const QVariantList& values,
                                      const RowSourceFactory& open);

private:
    using Row = std::vector<QVariant>;
    struct Table {
        std::unique_ptr<RowSource> source;  ///< read to its end; knows the columns
        QHash<QString, std::vector<Row>> rows{};
    };
    class Rows;

    std::map<const ReportDefinition*, Table> tables_;
};

/// Several reports side by side: heads level with heads, rows with rows, totals with totals.
class BesideSource final : public BandSource {
public:
    /// Those that go on stay on the page of the reports above them where it holds both.
    explicit BesideSource(bool goesOn) : begun_(goesOn) {}
    void add(std::unique_ptr<BandSource> source, const ReportDefinition& part);
    bool next(Band& band) override;

private:
    struct Side {
        std::unique_ptr<BandSource> source;
        double share;
        int columns;
        Band ahead{};
        bool waits = false;  ///< `ahead` holds a band
    };

    std::vector<Side> sides_;
    bool begun_;
};

/// The white between two reports that stand side by side.
Cell gapCell(double share);

/// One row in which every column is empty.
std::unique_ptr<RowSource> blankRow();

}  // namespace report
