#include "platform/report/PagePainter.h"

#include <QCoreApplication>
#include <QTextLayout>
#include <algorithm>

namespace report {

namespace {

const QColor lineColor(0x80, 0x86, 0x8e);
const QColor shadeColor(0xe9, 0xed, 0xf2);
const QColor textColor(Qt::black);

/// Lays a single line out at its natural width.
void layOutLine(QTextLayout& layout) {
    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

/// Where the cursor stands before the character at `index`, counted from the left edge of the item.
double cursorX(const Face& face, QStringView text, bool plain, qsizetype index) {
    if (plain) return face.plainWidth(text.left(index));
    QTextLayout layout(text.toString(), face.font());
    layOutLine(layout);
    return layout.lineAt(0).cursorToX(int(index));
}

}  // namespace

void PagePainter::paint(QPainter& painter, const Page& page, double top, double bottom) {
    for (const Rule& rule : page.rules) painter.fillRect(rule.area, rule.ink == Ink::Dark ? lineColor : shadeColor);
    painter.setPen(textColor);
    for (const TextItem& item : page.items) {
        const Face& face = pages_.fonts().face(item.font);
        if (item.baseline + face.descent() < top || item.baseline - face.ascent() > bottom) continue;
        paintItem(painter, page.textOf(item), item);
    }
    flush(painter);
}

void PagePainter::paintFoot(QPainter& painter, int index) {
    if (!pages_.hasFoot()) return;
    const QRectF area = pages_.paper().paintRect(QPageLayout::Point);
    const Face& face = pages_.fonts().face(pages_.footerFont());
    const double baseline = area.bottom() * unitsPerPoint - face.descent();
    const QString number = QString::number(index + 1);
    const QString page =
        pages_.isComplete() ? QCoreApplication::translate("report", "Page %1 of %2").arg(number).arg(pages_.pageCount())
                            : QCoreApplication::translate("report", "Page %1").arg(number);
    const auto draw = [&](const QString& text, bool right) {
        const double width = face.plainWidth(text);
        const double left = area.left() * unitsPerPoint;
        const double x = right ? area.right() * unitsPerPoint - width : left;
        paintItem(painter, text,
                  {.x = float(x), .baseline = float(baseline), .font = pages_.footerFont(), .plain = width >= 0});
    };
    painter.setPen(textColor);
    draw(pages_.footer(), false);
    draw(page, true);
    flush(painter);
}

void PagePainter::paintItem(QPainter& painter, QStringView text, const TextItem& item) {
    const Face& face = pages_.fonts().face(item.font);
    if (!item.plain || item.font != font_) flush(painter);
    font_ = item.font;
    if (item.plain) {
        face.appendPlain(text, item.x, qRound(item.baseline), glyphs_, pens_);
        return;
    }
    QTextLayout layout(text.toString(), face.font());
    layOutLine(layout);
    layout.draw(&painter, QPointF(item.x, item.baseline - layout.lineAt(0).ascent()));
}

void PagePainter::flush(QPainter& painter) {
    if (glyphs_.isEmpty()) return;
    QGlyphRun run;
    run.setRawFont(pages_.fonts().face(font_).rawFont());
    run.setRawData(glyphs_.constData(), pens_.constData(), int(glyphs_.size()));
    painter.drawGlyphRun(QPointF(), run);
    glyphs_.clear();
    pens_.clear();
}

std::vector<QRectF> areasOf(const Paginator& pages, const Page& page, qsizetype start, qsizetype length) {
    std::vector<QRectF> areas;
    for (const TextItem& item : page.items) {
        const qsizetype from = std::max<qsizetype>(start, item.start);
        const qsizetype to = std::min<qsizetype>(start + length, item.start + item.length);
        if (from >= to) continue;
        const Face& face = pages.fonts().face(item.font);
        const double left = cursorX(face, page.textOf(item), item.plain, from - item.start);
        const double right = cursorX(face, page.textOf(item), item.plain, to - item.start);
        areas.emplace_back(
            QRectF(item.x + left, item.baseline - face.ascent(), right - left, face.lineHeight()).normalized());
    }
    return areas;
}

}  // namespace report
