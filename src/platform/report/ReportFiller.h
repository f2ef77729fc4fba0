#pragma once

#include <deque>
#include <memory>

#include "platform/report/Band.h"
#include "platform/text/Money.h"

namespace report {

/// Fills a definition with the rows of its query and hands out the bands as they are asked for. Reads one row ahead;
/// holds no more than the bands of one row.
class ReportFiller final : public BandSource {
public:
    /// Opens the query. The filler keeps its own copy of the definition.
    ReportFiller(ReportDefinition definition, RowSourceFactory rows);
    ~ReportFiller() override;
    /// Whether the query has any row at all.
    bool hasRows() const { return hasRows_; }
    bool next(Band& band) override;

private:
    /// Where a sub-report stands: its levels follow its parent's, its query takes values of the parent's row.
    struct Place {
        int level = 0;
        int indent = 0;
        QVariantList values{};
    };
    struct BoundColumn {
        const Column* column;
        BoundField field;
    };
    using BoundLine = std::vector<BoundColumn>;
    struct GroupState {
        BoundField key;
        QVariant value;
        BoundLine header;
        QString footer;  ///< its caption, taken from the group's first row
    };
    using Sums = std::vector<Money>;  ///< one a column; counts are whole dollars

    ReportFiller(std::shared_ptr<const ReportDefinition> definition, RowSourceFactory rows, const Place& place);
    void bind();
    BoundLine bound(const Line& line) const;
    void fillRow();
    void close();
    size_t firstChangedGroup();
    bool startsPage(size_t fromGroup) const;
    Separation separation() const;
    void addTitle();
    void addGroupHeaders(size_t fromGroup);
    void addColumnHeads();
    void addDetail();
    void openSubReports();
    void addFooters(size_t fromGroup);
    void addTotals(BandKind kind, int level, const QString& caption, const Sums& sums);
    Band& add(BandKind kind, int level);
    void addCells(Band& band, const BoundLine& line, bool bold, double larger = 0) const;
    TextStyle style(bool bold, double larger = 0) const;

    std::shared_ptr<const ReportDefinition> definition_;
    RowSourceFactory open_;
    Place place_;
    int detailLevel_;
    std::unique_ptr<RowSource> source_;
    std::vector<GroupState> groups_;
    BoundLine columns_;
    std::vector<BoundLine> lines_;
    std::vector<std::vector<BoundField>> subReportKeys_;
    std::vector<Sums> sums_;  ///< group after group, the whole report last
    std::deque<Band> ready_;
    std::deque<std::unique_ptr<ReportFiller>> subReports_;  ///< those of the row filled last that are still to come
    bool hasRows_ = false;
    bool onRow_ = false;  ///< the source stands on a row that is still to be filled
    bool firstRow_ = true;
    bool closed_ = false;
};

}  // namespace report
