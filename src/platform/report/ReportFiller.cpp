#include "platform/report/ReportFiller.h"

#include <QCoreApplication>
#include <algorithm>
#include <numeric>

#include "platform/report/ReportError.h"
#include "platform/report/SubReports.h"

namespace report {

namespace {

constexpr double gapShare = 0.03;  ///< of the width of a row, between rows that stand side by side

QString tr(const char* text) { return QCoreApplication::translate("report", text); }

bool sameKey(const QVariant& left, const QVariant& right) {
    if (left.typeId() == QMetaType::QString && right.typeId() == QMetaType::QString)
        return left.toString().compare(right.toString(), Qt::CaseInsensitive) == 0;
    return left == right;
}

}  // namespace

ReportFiller::ReportFiller(ReportDefinition definition, RowSourceFactory rows)
    : ReportFiller(std::make_shared<const ReportDefinition>(std::move(definition)), std::move(rows),
                   Place{.keyed = std::make_shared<KeyedRows>()}) {}

ReportFiller::ReportFiller(std::shared_ptr<const ReportDefinition> definition, RowSourceFactory rows, Place place)
    : definition_(std::move(definition)),
      open_(std::move(rows)),
      place_(std::move(place)),
      totals_(definition_->columns, definition_->groups.size()),
      detailLevel_(place_.level + 2 * int(definition_->groups.size()) + 1),
      source_(openRows()) {
    bind();
    onRow_ = hasRows_ = source_->next();
    if (place_.indent == 0) {
        addTitle();
    } else if (hasRows_ || !definition_->whenEmpty.isEmpty()) {
        if (!definition_->title.isEmpty()) addSubTitle(definition_->title);
        if (!hasRows_)
            add(BandKind::Detail, detailLevel_).cells = {
                {.text = definition_->whenEmpty, .style = style(false, 0, true)}};
    }
}

ReportFiller::~ReportFiller() = default;

std::unique_ptr<RowSource> ReportFiller::openRows() const {
    if (definition_->query.text.isEmpty()) return blankRow();
    if (!definition_->keys.isEmpty()) return place_.keyed->rowsOf(*definition_, place_.values, open_);
    return open_(Query{definition_->query.text, definition_->query.values + place_.values});
}

void ReportFiller::bind() {
    columns_ = bound(definition_->columns);
    lines_ = bound(definition_->lines);
    parts_ = bound(definition_->subReports);
    for (const Group& group : definition_->groups)
        groups_.push_back(GroupState{BoundField(column(group.key), *source_), bound(group.header), bound(group.lines),
                                     bound(group.parts), bound(group.footerParts)});
}

ReportFiller::BoundLine ReportFiller::bound(const Line& line) const {
    BoundLine result{&line, {}};
    for (const Column& column : line) result.cells.push_back({&column, BoundField(column.field, *source_)});
    return result;
}

std::vector<ReportFiller::BoundLine> ReportFiller::bound(const std::vector<Line>& lines) const {
    std::vector<BoundLine> result;
    for (const Line& line : lines) result.push_back(bound(line));
    return result;
}

ReportFiller::BoundParts ReportFiller::bound(const std::vector<ReportDefinition>& parts) const {
    BoundParts result{&parts, {}};
    for (const ReportDefinition& part : parts) {
        auto& keys = result.keys.emplace_back();
        for (const QString& name : part.boundTo) keys.emplace_back(column(name), *source_);
    }
    return result;
}

bool ReportFiller::next(Band& band) {
    while (!ready_.take(band)) {
        if (onRow_)
            fillRow();
        else if (!closed_)
            close();
        else
            return false;
    }
    return true;
}

/// Everything of one row, after the footers of the groups that ended before it.
void ReportFiller::fillRow() {
    const size_t changed = firstChangedGroup();
    if (!firstRow_) addFooters(changed);
    const size_t start = ready_.size();
    if (firstRow_ || changed < groups_.size()) {
        addGroupHeaders(changed);
        addColumnHeads();
    }
    const size_t row = ready_.size();
    addDetail();
    if (!firstRow_ && start < ready_.size()) ready_[start].startsPage = startsPage(changed);
    firstRow_ = false;
    takeValues(parts_);
    addParts(parts_);
    onRow_ = source_->next();
    if (definition_->across > 1 && !columns_.cells.empty()) addRowsAcross(row);
}

bool ReportFiller::startsPage(size_t fromGroup) const {
    const auto& groups = definition_->groups;
    return definition_->rowStartsPage || std::any_of(groups.begin() + std::ptrdiff_t(fromGroup), groups.end(),
                                                     [](const Group& group) { return group.startsPage; });
}

void ReportFiller::close() {
    closed_ = true;
    if (!hasRows_) return;
    addFooters(0);
    if (!definition_->totals) return;
    QVariant value;
    addTotals(BandKind::Totals, place_.level, BoundField(*definition_->totals, *source_).evaluate(*source_, value),
              groups_.size());
}

/// The outermost group whose key differs from the row before, or the number of groups.
size_t ReportFiller::firstChangedGroup() const {
    for (size_t group = 0; group < groups_.size(); ++group)
        if (firstRow_ || !sameKey(groups_[group].key.stored(*source_), groups_[group].value)) return group;
    return groups_.size();
}

Band& ReportFiller::add(BandKind kind, int level) {
    Band& band = ready_.add();
    band.kind = kind;
    band.level = level;
    band.indent = place_.indent;
    return band;
}

TextStyle ReportFiller::style(bool bold, double larger, bool italic) const {
    return {definition_->typeface, definition_->points + larger, bold, italic};
}

void ReportFiller::addTitle() {
    if (definition_->title.isEmpty() || definition_->labels) return;
    add(BandKind::Title, -2).cells = {
        {.text = definition_->organization, .alignment = Alignment::Center, .style = style(true, 3)}};
    Band& band = add(BandKind::Title, -1);
    band.keepWithPrevious = true;
    const QString asOf = definition_->asOf.isEmpty() ? QString() : QString(tr("As Of:") % u' ' % definition_->asOf);
    band.cells = {{.share = 1, .style = style(false)},
                  {.text = definition_->title, .alignment = Alignment::Center, .share = 4, .style = style(true, 6)},
                  {.text = asOf, .alignment = Alignment::Right, .share = 1, .style = style(false)}};
}

void ReportFiller::addSubTitle(const QString& title) {
    const int columns = std::max(1, int(definition_->columns.size()));
    add(BandKind::GroupHeader, place_.level).cells = {{.text = title, .columns = columns, .style = style(true)}};
}

void ReportFiller::fillCell(Cell& cell, const BoundColumn& bound, bool bold, double larger) const {
    const Column& column = *bound.column;
    cell.text = bound.field.evaluate(*source_, cell.value);
    cell.format = column.field.format;
    cell.alignment = alignmentOf(column);
    cell.share = column.share;
    cell.style = style(bold || column.bold, larger + column.larger, column.italic);
    cell.framed = column.framed;
    if (column.at) cell.at = column.at;
    if (column.fillIn == 0 || !cell.value.toString().isEmpty()) return;
    cell.fillIn = column.fillIn;
    if (column.field.format == Format::Phone) cell.text += QLatin1String("(    ) ");
    cell.text += blankRule;
}

void ReportFiller::addCells(Band& band, const BoundLine& line, bool bold, double larger) const {
    band.cells.reserve(line.cells.size());
    for (const BoundColumn& column : line.cells) fillCell(band.cells.emplace_back(), column, bold, larger);
}

void ReportFiller::addGroupHeaders(size_t fromGroup) {
    for (size_t group = fromGroup; group < groups_.size(); ++group) {
        GroupState& state = groups_[group];
        const Group& definition = definition_->groups[group];
        const int level = place_.level + 2 * int(group);
        state.value = state.key.stored(*source_);
        if (definition.footer) {
            QVariant value;
            state.footer = BoundField(*definition.footer, *source_).evaluate(*source_, value);
        }
        takeValues(state.parts);
        takeValues(state.footerParts);
        if (!definition.header.empty()) {
            Band& band = add(BandKind::GroupHeader, level);
            band.shaded = level == 0;
            addCells(band, state.header, true, 1);
        }
        addLines(state.lines, level + 1);
        addParts(state.parts);
    }
}

/// The white between rows side by side, as a share beside those of the columns.
double ReportFiller::gapBetweenRows() const {
    const Line& line = definition_->columns;
    return gapShare * std::accumulate(line.begin(), line.end(), 0.0,
                                      [](double sum, const Column& column) { return sum + column.share; });
}

void ReportFiller::addColumnHeads() {
    const auto hasCaption = [](const Column& column) { return !column.caption.isEmpty(); };
    if (std::none_of(definition_->columns.begin(), definition_->columns.end(), hasCaption)) return;
    Band& band = add(BandKind::ColumnHeads, detailLevel_ - 1);
    for (int row = 0; row < definition_->across; ++row) {
        if (row > 0) band.cells.push_back(gapCell(gapBetweenRows()));
        for (const Column& column : definition_->columns)
            band.cells.push_back({.text = column.caption,
                                  .alignment = alignmentOf(column),
                                  .share = column.share,
                                  .style = style(true, column.larger)});
    }
}

Separation ReportFiller::separation() const {
    if (definition_->labels || definition_->rowStartsPage || definition_->query.text.isEmpty()) return Separation::None;
    if (columns_.cells.empty()) return lines_.size() > 1 ? Separation::Rule : Separation::None;
    return definition_->subReports.empty() ? Separation::None : Separation::Space;
}

void ReportFiller::addDetail() {
    const size_t start = ready_.size();
    if (!columns_.cells.empty()) {
        Band& band = add(BandKind::Detail, detailLevel_);
        addCells(band, columns_, false);
        totals_.add(band, 0);
    }
    addLines(lines_, detailLevel_);
    for (size_t index = start; index < ready_.size(); ++index) ready_[index].keepWithPrevious = index > start;
    if (start < ready_.size()) ready_[start].above = separation();
}

/// Puts the rows that follow in the same group beside the one that the band holds.
void ReportFiller::addRowsAcross(size_t band) {
    for (int row = 1; row < definition_->across; ++row) {
        std::vector<Cell>& cells = ready_[band].cells;
        cells.push_back(gapCell(gapBetweenRows()));
        const size_t start = cells.size();
        const bool goesOn = onRow_ && firstChangedGroup() == groups_.size();
        if (goesOn) {
            addCells(ready_[band], columns_, false);
            totals_.add(ready_[band], start);
            onRow_ = source_->next();
        } else {
            for (const Column& column : definition_->columns) cells.push_back({.share = column.share});
        }
    }
}

void ReportFiller::addLines(const std::vector<BoundLine>& lines, int level) {
    bool belowBox = false;
    for (const BoundLine& line : lines)
        if (addLine(line, level, belowBox)) belowBox = line.line->frame == Line::Frame::Box;
}

/// False when the line was left out.
bool ReportFiller::addLine(const BoundLine& line, int level, bool belowBox) {
    const Line& look = *line.line;
    const bool heading = look.frame == Line::Frame::Heading;
    Band& band = add(BandKind::Detail, level);
    bool filled = false;
    band.cells.reserve(line.cells.size());
    for (const BoundColumn& column : line.cells) {
        Cell& cell = band.cells.emplace_back();
        fillCell(cell, column, heading, 0);
        cell.label = column.column->caption;
        filled = filled || (column.field.hasValue() && !cell.value.toString().isEmpty());
    }
    if (look.onlyFilled && !filled) {
        ready_.dropLast();
        return false;
    }
    band.keepWithPrevious = true;
    band.space = look.space;
    band.height = look.height;
    band.shaded = heading;
    if (look.rule) band.edges |= TopEdge;
    if (look.frame == Line::Frame::Grid) band.edges |= TopEdge | BottomEdge | SideEdges | CellEdges;
    if (look.frame == Line::Frame::Box) {
        const bool joins = belowBox && look.space == 0;
        band.edges |= joins ? BottomEdge | SideEdges : TopEdge | BottomEdge | SideEdges;
        if (joins) ready_[ready_.size() - 2].edges &= ~BottomEdge;
    }
    return true;
}

/// The values that choose the rows of sub-reports, from the current row.
void ReportFiller::takeValues(BoundParts& parts) const {
    parts.values.clear();
    for (const auto& keys : parts.keys) {
        QVariantList& values = parts.values.emplace_back();
        for (const BoundField& key : keys) values.push_back(key.stored(*source_));
    }
}

void ReportFiller::addParts(const BoundParts& parts) {
    const size_t across = size_t(definition_->subReportsAcross);
    std::unique_ptr<BesideSource> beside;
    for (size_t index = 0; index < parts.values.size(); ++index) {
        std::shared_ptr<const ReportDefinition> part(definition_, &(*parts.parts)[index]);
        std::unique_ptr<BandSource> source(new ReportFiller(
            part, open_, Place{detailLevel_ + 1, place_.indent + 1, parts.values[index], place_.keyed}));
        if (across == 1) {
            ready_.add(std::move(source));
            continue;
        }
        if (!beside) beside = std::make_unique<BesideSource>(index > 0);
        beside->add(std::move(source), *part);
        if ((index + 1) % across == 0) ready_.add(std::move(beside));
    }
    if (beside) ready_.add(std::move(beside));
}

void ReportFiller::addFooters(size_t fromGroup) {
    for (size_t group = groups_.size(); group-- > fromGroup;) {
        addParts(groups_[group].footerParts);
        if (definition_->groups[group].footer)
            addTotals(BandKind::GroupFooter, detailLevel_, groups_[group].footer, group);
        totals_.clear(group);
    }
}

void ReportFiller::addTotals(BandKind kind, int level, const QString& caption, size_t group) {
    Band& band = add(kind, level);
    band.keepWithPrevious = true;
    totals_.fill(band, group, caption, style(true));
}

}  // namespace report
