#include "platform/report/Paginator.h"

#include <QCoreApplication>
#include <algorithm>

namespace report {

namespace {

constexpr double footHeight = 22 * unitsPerPoint;
constexpr double smallestLabelText = 0.5;
constexpr double labelLinesCloser = 3 * unitsPerPoint;  ///< than the rows of a list

QRectF inUnits(const QRectF& points) {
    return {points.x() * unitsPerPoint, points.y() * unitsPerPoint, points.width() * unitsPerPoint,
            points.height() * unitsPerPoint};
}

using Items = std::vector<TextItem>::iterator;

/// Some of a piece's items with the text that belongs to them, and its rules between two heights.
Page part(const Page& piece, Items from, Items to, double top, double bottom) {
    Page result;
    for (const Rule& rule : piece.rules) {
        const QRectF area = rule.area & QRectF(rule.area.left(), top, rule.area.width(), bottom - top);
        if (!area.isEmpty()) result.rules.push_back({area, rule.ink});
    }
    for (Items item = from; item != to; ++item) {
        TextItem moved = *item;
        moved.start = quint32(result.text.size());
        result.items.push_back(moved);
        result.text += piece.textOf(*item);
        result.text += u' ';
    }
    return result;
}

/// Headers stand at a lower level than what they head.
bool mayPart(const Band& above, const Band& below) {
    const bool belongs = below.keepWithPrevious || below.sameBlock;
    return below.startsPage || (!belongs && below.level <= above.level);
}

}  // namespace

Paginator::Paginator(std::unique_ptr<BandSource> bands, const QPageLayout& paper, QString footer,
                     std::optional<LabelSheet> labels)
    : bands_(std::move(bands)),
      paper_(paper),
      footer_(std::move(footer)),
      labels_(std::move(labels)),
      body_(inUnits(paper.paintRect(QPageLayout::Point)).adjusted(0, 0, 0, -footHeight)),
      footerFont_(fonts_.idOf(TextStyle{Typeface::Form, 8, false})),
      y_(body_.top()),
      freshY_(body_.top()) {
    if (labels_) slot_ = labels_->skip;
}

const Page* Paginator::page(int index) {
    while (index >= pageCount() && layOutMore()) {
    }
    return index < pageCount() ? pages_[size_t(index)].get() : nullptr;
}

void Paginator::layOutAll() {
    while (layOutMore()) {
    }
}

bool Paginator::layOutMore() {
    const int before = pageCount();
    while (!complete_ && pageCount() == before) {
        if (readBlock()) {
            if (labels_)
                placeLabel();
            else
                placeBlock();
        } else {
            if (!current_.items.empty() || pages_.empty()) finishPage();
            complete_ = true;
            bands_.reset();
        }
    }
    return pageCount() > before;
}

bool Paginator::readBlock() {
    block_.clear();
    if (ahead_) block_.push_back(std::move(*ahead_));
    ahead_.reset();
    Band band;
    while (bands_->next(band)) {
        if (!block_.empty() && mayPart(block_.back(), band)) {
            ahead_ = std::move(band);
            return true;
        }
        block_.push_back(std::move(band));
    }
    return !block_.empty();
}

void Paginator::placeBlock() {
    std::vector<LaidBand> laid;
    double height = 0;
    for (const Band& band : block_) {
        laid.push_back(laidOut(band));
        height += laid.back().height;
    }
    dropHeaders(block_.front().level);
    if (y_ > freshY_ && (block_.front().startsPage || y_ + height > body_.bottom())) startPage();
    for (size_t index = 0; index < laid.size(); ++index) place(std::move(laid[index]), block_[index]);
}

/// Appends one band at the foot of what the page holds, on a new page where it does not fit.
void Paginator::place(LaidBand laid, const Band& band) {
    dropHeaders(laid.level);
    if (y_ + laid.height > body_.bottom() && y_ > freshY_) startPage();
    if (y_ + laid.height > body_.bottom()) {
        placeSplit(std::move(laid));
        return;
    }
    append(current_, laid.piece, y_);
    y_ += laid.height;
    if (!laid.header) return;
    if (y_ - laid.height <= freshY_) freshY_ = y_;
    hold(std::move(laid), band);
}

void Paginator::hold(LaidBand laid, const Band& band) {
    headers_.push_back({std::move(laid), {}});
    if (band.kind != BandKind::GroupHeader) return;
    const auto named =
        std::find_if(band.cells.begin(), band.cells.end(), [](const Cell& cell) { return !cell.text.isEmpty(); });
    if (named == band.cells.end()) return;
    Band& continued = headers_.back().continued.emplace(band);
    QString& text = continued.cells[size_t(named - band.cells.begin())].text;
    text = QCoreApplication::translate("report", "%1 (continued)").arg(text);
}

const LaidBand& Paginator::repeated(Header& header) {
    if (header.continued) header.laid = laidOut(*header.continued);
    header.continued.reset();
    return header.laid;
}

/// A band higher than a page goes on from page to page, line by line.
void Paginator::placeSplit(LaidBand band) {
    std::vector<TextItem> rest = std::move(band.piece.items);
    double top = 0;
    for (;;) {
        const double space = body_.bottom() - y_;
        const auto bottomOf = [&](const TextItem& item) {
            return item.baseline + fonts_.face(item.font).descent() - top;
        };
        const auto topOf = [&](const TextItem& item) { return item.baseline - fonts_.face(item.font).ascent(); };
        auto fitting = std::stable_partition(rest.begin(), rest.end(),
                                             [&](const TextItem& item) { return bottomOf(item) <= space; });
        if (fitting == rest.begin() && !rest.empty()) ++fitting;  // a page lower than a line: better cut than endless
        double bottom = band.height;
        for (Items left = fitting; left != rest.end(); ++left) bottom = std::min(bottom, topOf(*left));
        append(current_, part(band.piece, rest.begin(), fitting, top, bottom), y_ - top);
        rest.erase(rest.begin(), fitting);
        if (rest.empty()) break;
        top = bottom;
        startPage();
    }
    y_ += band.height - top;
}

/// Shrinks the text until it fits its label.
void Paginator::placeLabel() {
    const LabelSheet& sheet = *labels_;
    const double height = sheet.down * unitsPerPoint;
    std::vector<LaidBand> laid;
    double used = 0;
    for (double scale = 1; scale >= smallestLabelText; scale -= 0.1) {
        laid.clear();
        used = 0;
        for (const Band& band : block_) {
            laid.push_back(layOut(band, 0, (sheet.width - 2 * sheet.inset) * unitsPerPoint, fonts_, scale));
            used += laid.back().height - labelLinesCloser;
        }
        if (used <= height) break;
    }
    if (slot_ >= sheet.columns * sheet.rows) {
        finishPage();
        slot_ = 0;
    }
    const double x = (sheet.left + sheet.inset + (slot_ % sheet.columns) * sheet.across) * unitsPerPoint;
    double y = sheet.top * unitsPerPoint + (slot_ / sheet.columns) * height + std::max(0.0, (height - used) / 2);
    for (LaidBand& band : laid) {
        for (TextItem& item : band.piece.items) item.x += float(x);
        append(current_, band.piece, y);
        y += band.height - labelLinesCloser;
    }
    ++slot_;
}

void Paginator::dropHeaders(int level) {
    while (!headers_.empty() && headers_.back().laid.level >= level) headers_.pop_back();
}

void Paginator::startPage() {
    finishPage();
    double height = 0;
    for (Header& header : headers_) height += repeated(header).height;
    if (height < body_.height() / 2) {  // else they would leave no room for what they head
        for (const Header& header : headers_) {
            append(current_, header.laid.piece, y_);
            y_ += header.laid.height;
        }
    }
    freshY_ = y_;
}

void Paginator::finishPage() {
    current_.text.squeeze();
    current_.items.shrink_to_fit();
    pages_.push_back(std::make_unique<Page>(std::move(current_)));
    current_ = Page();
    y_ = freshY_ = body_.top();
}

}  // namespace report
