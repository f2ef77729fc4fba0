#include "platform/report/BandRules.h"

namespace report {

namespace {

void addRule(Page& piece, double left, double top, double width, double height = ruleThickness) {
    piece.rules.push_back({QRectF(left, top, width, height), Ink::Dark});
}

/// A rule over the width of the band, interrupted between reports that stand side by side.
void addAcross(Page& piece, const Band& band, const QRectF& area, double y, double thickness) {
    double shares = 0;
    for (const Cell& cell : band.cells) shares += cell.share;
    double start = area.left();
    double at = start;
    for (const Cell& cell : band.cells) {
        const double next = at + area.width() * cell.share / shares;
        if (cell.gap) {
            addRule(piece, start, y, at - start, thickness);
            start = next;
        }
        at = next;
    }
    addRule(piece, start, y, area.right() - start, thickness);
}

}  // namespace

void addFrame(Page& piece, const QRectF& area) {
    addRule(piece, area.left(), area.top(), area.width());
    addRule(piece, area.left(), area.bottom() - ruleThickness, area.width());
    addRule(piece, area.left(), area.top(), ruleThickness, area.height());
    addRule(piece, area.right() - ruleThickness, area.top(), ruleThickness, area.height());
}

void addBandRules(Page& piece, const Band& band, const QRectF& area) {
    if (band.shaded) piece.rules.insert(piece.rules.begin(), {area, Ink::Light});
    if (band.kind == BandKind::ColumnHeads) addAcross(piece, band, area, area.bottom() - ruleThickness, ruleThickness);
    if (band.kind == BandKind::GroupFooter) addAcross(piece, band, area, area.top(), ruleThickness);
    if (band.kind == BandKind::Totals) addAcross(piece, band, area, area.top(), 2 * ruleThickness);
    if (band.above == Separation::Rule || band.edges & TopEdge) addRule(piece, area.left(), area.top(), area.width());
    if (band.edges & BottomEdge) addRule(piece, area.left(), area.bottom() - ruleThickness, area.width());
    if (!(band.edges & SideEdges)) return;
    addRule(piece, area.left(), area.top(), ruleThickness, area.height());
    addRule(piece, area.right() - ruleThickness, area.top(), ruleThickness, area.height());
}

void addCellFrame(Page& piece, const Band& band, size_t cell, QRectF frame, const QRectF& area) {
    if (band.cells[cell].at) return addFrame(piece, frame.translated(0, area.top()));
    frame.setTop(area.top());
    frame.setBottom(area.bottom());
    if (!(band.edges & CellEdges)) return addFrame(piece, frame);
    if (cell > 0) addRule(piece, frame.left() - ruleThickness / 2, frame.top(), ruleThickness, frame.height());
}

}  // namespace report
