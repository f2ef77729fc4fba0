#pragma once

#include <QGlyphRun>
#include <QPainter>

#include "platform/report/Paginator.h"

namespace report {

/// Draws pages in the painter's coordinates as they are, one layout unit (1/720 inch) to one of the painter's: scale
/// the painter first. Keep one for many pages.
class PagePainter {
public:
    explicit PagePainter(const Paginator& pages) : pages_(pages) {}
    /// Draws what lies between `top` and `bottom`; by default the whole page.
    void paint(QPainter& painter, const Page& page, double top = 0, double bottom = 1e9);
    /// Draws the foot of the page with the given index. The number of pages is told once it is known.
    void paintFoot(QPainter& painter, int index);

private:
    void paintItem(QPainter& painter, QStringView text, const TextItem& item);
    void flush(QPainter& painter);

    const Paginator& pages_;
    QVector<quint32> glyphs_;
    QVector<QPointF> pens_;
    quint8 font_ = 0;  ///< of the glyphs that wait to be drawn
};

/// The rectangles that a part of the page's text covers, for marking what was found.
std::vector<QRectF> areasOf(const Paginator& pages, const Page& page, qsizetype start, qsizetype length);

}  // namespace report
