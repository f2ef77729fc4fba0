#include "platform/report/ReportFiller.h"

#include <QCoreApplication>
#include <algorithm>

#include "platform/report/ReportError.h"

namespace report {

namespace {

constexpr Money one{100};

Alignment alignmentOf(const Column& column) {
    if (column.alignment) return *column.alignment;
    return column.field.format == Format::Money ? Alignment::Right : Alignment::Left;
}

QString totalText(const Column& column, Money sum) {
    if (column.total == Total::Sum && column.field.format == Format::Money) return sum.text();
    return sum.text(sum.cents % one.cents == 0 ? QStringLiteral("0") : QStringLiteral("0.00"));
}

}  // namespace

ReportFiller::ReportFiller(ReportDefinition definition, RowSourceFactory rows)
    : ReportFiller(std::make_shared<const ReportDefinition>(std::move(definition)), std::move(rows), Place{}) {}

ReportFiller::ReportFiller(std::shared_ptr<const ReportDefinition> definition, RowSourceFactory rows,
                           const Place& place)
    : definition_(std::move(definition)),
      open_(std::move(rows)),
      place_(place),
      detailLevel_(place.level + int(definition_->groups.size()) + 1),
      source_(open_(Query{definition_->query.text, definition_->query.values + place.values})) {
    bind();
    onRow_ = hasRows_ = source_->next();
    if (hasRows_ || place_.indent == 0) addTitle();
}

ReportFiller::~ReportFiller() = default;

void ReportFiller::bind() {
    columns_ = bound(definition_->columns);
    for (const Line& line : definition_->lines) lines_.push_back(bound(line));
    for (const Group& group : definition_->groups)
        groups_.push_back(GroupState{BoundField(column(group.key), *source_), {}, bound(group.header), {}});
    for (const ReportDefinition& part : definition_->subReports) {
        std::vector<BoundField> keys;
        for (const QString& name : part.boundTo) keys.emplace_back(column(name), *source_);
        subReportKeys_.push_back(std::move(keys));
    }
    sums_.assign(groups_.size() + 1, Sums(columns_.size()));
}

ReportFiller::BoundLine ReportFiller::bound(const Line& line) const {
    BoundLine result;
    for (const Column& column : line) result.push_back({&column, BoundField(column.field, *source_)});
    return result;
}

bool ReportFiller::next(Band& band) {
    while (ready_.empty()) {
        if (!subReports_.empty()) {
            if (subReports_.front()->next(band)) return true;
            subReports_.pop_front();
        } else if (onRow_) {
            fillRow();
        } else if (!closed_) {
            close();
        } else {
            return false;
        }
    }
    band = std::move(ready_.front());
    ready_.pop_front();
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
    addDetail();
    if (!firstRow_ && start < ready_.size()) ready_[start].startsPage = startsPage(changed);
    firstRow_ = false;
    openSubReports();
    onRow_ = source_->next();
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
              sums_.back());
}

/// The outermost group whose key differs from the row before, or the number of groups. Takes the new keys over.
size_t ReportFiller::firstChangedGroup() {
    size_t changed = groups_.size();
    for (size_t group = groups_.size(); group-- > 0;) {
        QVariant value = groups_[group].key.stored(*source_);
        if (firstRow_ || value != groups_[group].value) changed = group;
        groups_[group].value = std::move(value);
    }
    return changed;
}

Band& ReportFiller::add(BandKind kind, int level) {
    Band& band = ready_.emplace_back();
    band.kind = kind;
    band.level = level;
    band.indent = place_.indent;
    return band;
}

TextStyle ReportFiller::style(bool bold, double larger) const {
    return {definition_->typeface, definition_->points + larger, bold};
}

void ReportFiller::addTitle() {
    if (definition_->title.isEmpty()) return;
    if (place_.indent > 0) {
        add(BandKind::GroupHeader, place_.level).cells = {{.text = definition_->title, .style = style(true)}};
        return;
    }
    add(BandKind::Title, -2).cells = {
        {.text = definition_->organization, .alignment = Alignment::Center, .style = style(true, 3)}};
    Band& band = add(BandKind::Title, -1);
    band.keepWithPrevious = true;
    const QString asOf = definition_->asOf.isEmpty()
                             ? QString()
                             : QString(QCoreApplication::translate("report", "As Of:") % u' ' % definition_->asOf);
    band.cells = {{.share = 1, .style = style(false)},
                  {.text = definition_->title, .alignment = Alignment::Center, .share = 3, .style = style(true, 7)},
                  {.text = asOf, .alignment = Alignment::Right, .share = 1, .style = style(false)}};
}

void ReportFiller::addCells(Band& band, const BoundLine& line, bool bold, double larger) const {
    band.cells.reserve(line.size());
    for (const BoundColumn& column : line) {
        Cell& cell = band.cells.emplace_back();
        cell.text = column.field.evaluate(*source_, cell.value);
        cell.format = column.column->field.format;
        cell.alignment = alignmentOf(*column.column);
        cell.share = column.column->share;
        cell.style = style(bold || column.column->bold, larger);
    }
}

void ReportFiller::addGroupHeaders(size_t fromGroup) {
    for (size_t group = fromGroup; group < groups_.size(); ++group) {
        const Group& definition = definition_->groups[group];
        if (definition.footer) {
            QVariant value;
            groups_[group].footer = BoundField(*definition.footer, *source_).evaluate(*source_, value);
        }
        if (groups_[group].header.empty()) continue;
        addCells(add(BandKind::GroupHeader, place_.level + int(group)), groups_[group].header, true, 1);
    }
}

void ReportFiller::addColumnHeads() {
    const auto hasCaption = [](const Column& column) { return !column.caption.isEmpty(); };
    if (std::none_of(definition_->columns.begin(), definition_->columns.end(), hasCaption)) return;
    Band& band = add(BandKind::ColumnHeads, detailLevel_ - 1);
    for (const Column& column : definition_->columns)
        band.cells.push_back(
            {.text = column.caption, .alignment = alignmentOf(column), .share = column.share, .style = style(true)});
}

Separation ReportFiller::separation() const {
    if (definition_->labels) return Separation::None;
    if (columns_.empty()) return lines_.size() > 1 ? Separation::Rule : Separation::None;
    return definition_->subReports.empty() ? Separation::None : Separation::Space;
}

void ReportFiller::addDetail() {
    bool first = true;
    const auto addLine = [&](const BoundLine& line) {
        Band& band = add(BandKind::Detail, detailLevel_);
        band.keepWithPrevious = !first;
        if (first) band.above = separation();
        addCells(band, line, false);
        first = false;
    };
    if (!columns_.empty()) addLine(columns_);
    for (size_t index = 0; index < columns_.size(); ++index) {
        const Total total = columns_[index].column->total;
        if (total == Total::None) continue;
        const Money amount = total == Total::Count ? one : Money::orZero(ready_.back().cells[index].value.toString());
        for (Sums& sums : sums_) sums[index] += amount;
    }
    for (const BoundLine& line : lines_) addLine(line);
}

void ReportFiller::openSubReports() {
    for (size_t index = 0; index < subReportKeys_.size(); ++index) {
        Place place{detailLevel_ + 1, place_.indent + 1, {}};
        for (const BoundField& key : subReportKeys_[index]) place.values.push_back(key.stored(*source_));
        std::shared_ptr<const ReportDefinition> part(definition_, &definition_->subReports[index]);
        subReports_.emplace_back(new ReportFiller(std::move(part), open_, place));
    }
}

void ReportFiller::addFooters(size_t fromGroup) {
    for (size_t group = groups_.size(); group-- > fromGroup;) {
        if (definition_->groups[group].footer)
            addTotals(BandKind::GroupFooter, detailLevel_, groups_[group].footer, sums_[group]);
        std::fill(sums_[group].begin(), sums_[group].end(), Money{});
    }
}

/// The caption spans the columns before the first total; a total in the first column follows its caption.
void ReportFiller::addTotals(BandKind kind, int level, const QString& caption, const Sums& sums) {
    Band& band = add(kind, level);
    band.keepWithPrevious = true;
    Cell lead{.text = caption, .share = 0, .columns = 0, .style = style(true)};
    bool inLead = true;
    for (size_t index = 0; index < columns_.size(); ++index) {
        const Column& column = *columns_[index].column;
        const bool hasTotal = column.total != Total::None;
        if (inLead && (!hasTotal || index == 0)) {
            lead.share += column.share;
            ++lead.columns;
            if (hasTotal) lead.text += QString(u' ' % totalText(column, sums[index]));
            continue;
        }
        if (inLead) band.cells.push_back(lead);
        inLead = false;
        Cell& cell = band.cells.emplace_back();
        cell.alignment = alignmentOf(column);
        cell.share = column.share;
        cell.style = style(true);
        if (!hasTotal) continue;
        cell.format = column.field.format;
        cell.value = double(sums[index].cents) / one.cents;
        cell.text = totalText(column, sums[index]);
    }
    if (inLead) {
        lead.share = std::max(lead.share, 1.0);
        band.cells.push_back(lead);
    }
}

}  // namespace report
