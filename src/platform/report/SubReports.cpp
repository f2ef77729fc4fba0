#include "platform/report/SubReports.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/report/Field.h"

namespace report {

namespace {

constexpr double gapShare = 0.04;  ///< of the width of all sides

QString keyOf(const QVariantList& values) {
    QString key;
    for (const QVariant& value : values) key += value.toString().toCaseFolded() % QChar(0x1f);
    return key;
}

class BlankRow final : public RowSource {
public:
    int column(const QString&) const override { return 0; }
    int columnCount() const override { return 1; }
    bool next() override { return std::exchange(first_, false); }
    QVariant value(int) const override { return {}; }

private:
    bool first_ = true;
};

}  // namespace

class KeyedRows::Rows final : public RowSource {
public:
    Rows(const RowSource& columns, const std::vector<Row>* rows) : columns_(columns), rows_(rows) {}
    int column(const QString& name) const override { return columns_.column(name); }
    int columnCount() const override { return columns_.columnCount(); }
    bool next() override { return rows_ && ++row_ <= rows_->size(); }
    QVariant value(int column) const override { return (*rows_)[row_ - 1][size_t(column)]; }

private:
    const RowSource& columns_;
    const std::vector<Row>* rows_;
    size_t row_ = 0;
};

std::unique_ptr<RowSource> KeyedRows::rowsOf(const ReportDefinition& part, const QVariantList& values,
                                             const RowSourceFactory& open) {
    auto found = tables_.find(&part);
    if (found == tables_.end()) {
        found = tables_.emplace(&part, Table{open(part.query)}).first;
        Table& table = found->second;
        std::vector<BoundField> keys;
        std::vector<Field> fields;
        for (const QString& name : part.keys) fields.push_back(column(name));
        for (const Field& field : fields) keys.emplace_back(field, *table.source);
        while (table.source->next()) {
            QVariantList own;
            for (const BoundField& key : keys) own.push_back(key.stored(*table.source));
            Row row;
            for (int index = 0; index < table.source->columnCount(); ++index) row.push_back(table.source->value(index));
            table.rows[keyOf(own)].push_back(std::move(row));
        }
    }
    const Table& table = found->second;
    const auto rows = table.rows.constFind(keyOf(values));
    return std::make_unique<Rows>(*table.source, rows == table.rows.constEnd() ? nullptr : &*rows);
}

void BesideSource::add(std::unique_ptr<BandSource> source, const ReportDefinition& part) {
    sides_.push_back({std::move(source), part.share, std::max(1, int(part.columns.size()))});
    Side& side = sides_.back();
    side.waits = side.source->next(side.ahead);
}

bool BesideSource::next(Band& band) {
    const Band* first = nullptr;
    double shares = 0;
    for (const Side& side : sides_) {
        shares += side.share;
        if (side.waits && (!first || side.ahead.kind < first->kind)) first = &side.ahead;
    }
    if (!first) return false;
    const BandKind kind = first->kind;
    band.reset();
    band.kind = kind;
    band.level = first->level;
    band.indent = first->indent;
    band.keepWithPrevious = first->keepWithPrevious;
    band.shaded = first->shaded;
    band.sameBlock = std::exchange(begun_, true);
    for (Side& side : sides_) {
        if (!band.cells.empty()) band.cells.push_back(gapCell(shares * gapShare));
        if (!side.waits || side.ahead.kind != kind) {
            band.cells.push_back({.share = side.share, .columns = side.columns});
            continue;
        }
        const auto& cells = side.ahead.cells;
        const double own = std::accumulate(cells.begin(), cells.end(), 0.0,
                                           [](double sum, const Cell& cell) { return sum + cell.share; });
        for (Cell cell : cells) {
            cell.share *= side.share / own;
            if (cells.size() == 1) cell.columns = side.columns;
            band.cells.push_back(std::move(cell));
        }
        side.waits = side.source->next(side.ahead);
    }
    return true;
}

Cell gapCell(double share) { return {.share = share, .gap = true}; }

std::unique_ptr<RowSource> blankRow() { return std::make_unique<BlankRow>(); }

}  // namespace report
