#pragma once

#include "platform/report/BandQueue.h"
#include "platform/report/Totals.h"

namespace report {

class KeyedRows;

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
    /// Where a sub-report stands: its levels follow its parent's, its rows are chosen by values of the parent's row.
    struct Place {
        int level = 0;
        int indent = 0;
        QVariantList values{};
        std::shared_ptr<KeyedRows> keyed{};  ///< of the whole report
    };
    struct BoundColumn {
        const Column* column;
        BoundField field;
    };
    struct BoundLine {
        const Line* line;
        std::vector<BoundColumn> cells;
    };
    /// Sub-reports that stand together, with the values that choose their rows.
    struct BoundParts {
        const std::vector<ReportDefinition>* parts;
        std::vector<std::vector<BoundField>> keys;
        std::vector<QVariantList> values{};
    };
    struct GroupState {
        BoundField key;
        BoundLine header;
        std::vector<BoundLine> lines;
        BoundParts parts;
        BoundParts footerParts;
        QVariant value{};
        QString footer{};  ///< its caption, taken from the group's first row
    };

    ReportFiller(std::shared_ptr<const ReportDefinition> definition, RowSourceFactory rows, Place place);
    std::unique_ptr<RowSource> openRows() const;
    void bind();
    BoundLine bound(const Line& line) const;
    std::vector<BoundLine> bound(const std::vector<Line>& lines) const;
    BoundParts bound(const std::vector<ReportDefinition>& parts) const;
    void fillRow();
    void close();
    size_t firstChangedGroup() const;
    bool startsPage(size_t fromGroup) const;
    Separation separation() const;
    void addTitle();
    void addSubTitle(const QString& title);
    void addGroupHeaders(size_t fromGroup);
    void addColumnHeads();
    void addDetail();
    void addRowsAcross(size_t band);
    void takeValues(BoundParts& parts) const;
    void addParts(const BoundParts& parts);
    void addFooters(size_t fromGroup);
    void addTotals(BandKind kind, int level, const QString& caption, size_t group);
    Band& add(BandKind kind, int level);
    void addCells(Band& band, const BoundLine& line, bool bold, double larger = 0) const;
    void fillCell(Cell& cell, const BoundColumn& column, bool bold, double larger) const;
    void addLines(const std::vector<BoundLine>& lines, int level);
    bool addLine(const BoundLine& line, int level, bool belowBox);
    TextStyle style(bool bold, double larger = 0, bool italic = false) const;
    double gapBetweenRows() const;

    std::shared_ptr<const ReportDefinition> definition_;
    RowSourceFactory open_;
    Place place_;
    Totals totals_;  ///< of the groups, and of the whole report as one more group
    int detailLevel_;
    std::unique_ptr<RowSource> source_;
    std::vector<GroupState> groups_;
    BoundLine columns_;
    std::vector<BoundLine> lines_;
    BoundParts parts_;
    BandQueue ready_;
    bool hasRows_ = false;
    bool onRow_ = false;  ///< the source stands on a row that is still to be filled
    bool firstRow_ = true;
    bool closed_ = false;
};

}  // namespace report
