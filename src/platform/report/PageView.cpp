#include "platform/report/PageView.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace report {

namespace {

constexpr int cachedKilobytes = 16 * 1024;
constexpr int largestPixmapKilobytes = 6 * 1024;  // larger pages are drawn straight, as far as they are in view
constexpr double wheelStep = 1.1;
const QColor markColor(255, 226, 90);

}  // namespace

PageView::PageView(Paginator& pages, Use use, QWidget* parent)
    : QAbstractScrollArea(parent),
      pages_(pages),
      pagePainter_(pages),
      use_(use),
      gap_(use == Use::Reading ? 14 : fontMetrics().height() + 12),
      pixmaps_(cachedKilobytes) {
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(use == Use::Reading ? QPalette::Mid : QPalette::Window);
    setFocusPolicy(use == Use::Reading ? Qt::StrongFocus : Qt::NoFocus);
    // A bar that comes and goes would change the width that the page is fitted to.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
    horizontalScrollBar()->setSingleStep(fontMetrics().height() * 2);
}

QSizeF PageView::paperSize() const { return pages_.paper().fullRect(QPageLayout::Point).size() * unitsPerPoint; }

double PageView::scale() const { return zoom_ * logicalDpiX() / unitsPerInch; }

QSize PageView::pageSize() const { return (paperSize() * scale()).toSize(); }

/// In the coordinates of the viewport.
QRect PageView::pageRect(int page) const {
    const QSize size = pageSize();
    const int x = std::max(gap_, (viewport()->width() - size.width()) / 2) - horizontalScrollBar()->value();
    return {QPoint(x, gap_ + page * pitch() - verticalScrollBar()->value()), size};
}

int PageView::pageAt(int y) const {
    return std::clamp((y + verticalScrollBar()->value() - gap_) / pitch(), 0, std::max(0, pages_.pageCount() - 1));
}

int PageView::currentPage() const { return pageAt(viewport()->height() / 2); }

double PageView::fittingZoom() const {
    const QSizeF inch = paperSize() / unitsPerInch * logicalDpiX();
    const double byWidth = (viewport()->width() - 2 * gap_) / inch.width();
    const double byHeight = (viewport()->height() - 2 * gap_) / inch.height();
    if (use_ == Use::Thumbnails) return std::max(0.02, byWidth);
    return std::clamp(fit_ == Fit::Page ? std::min(byWidth, byHeight) : byWidth, 0.1, largestZoom);
}

void PageView::setZoom(double zoom) {
    fit_ = Fit::Zoom;
    zoomTo(std::clamp(zoom, smallestZoom, largestZoom));
}

void PageView::setFit(Fit fit) {
    fit_ = fit;
    if (fit != Fit::Zoom) zoomTo(fittingZoom());
}

/// Keeps the middle of the view where it is.
void PageView::zoomTo(double zoom) {
    if (!qFuzzyCompare(zoom, zoom_)) {
        const int middle = viewport()->height() / 2;
        const int page = currentPage();
        const double part = double(middle - pageRect(page).top()) / pageSize().height();
        const bool atTop = verticalScrollBar()->value() == 0;
        zoom_ = zoom;
        pixmaps_.clear();
        updateBars();
        if (!atTop)
            verticalScrollBar()->setValue(gap_ + page * pitch() + int(std::lround(part * pageSize().height())) -
                                          middle);
        horizontalScrollBar()->setValue((horizontalScrollBar()->maximum() + 1) / 2);
        viewport()->update();
    }
    Q_EMIT zoomChanged();
}

void PageView::goTo(int page) {
    if (!pages_.page(page)) page = pages_.pageCount() - 1;
    updateBars();
    verticalScrollBar()->setValue(page * pitch() + gap_ / 2);
}

void PageView::setSelected(int page) {
    if (page == selected_) return;
    selected_ = page;
    updateBars();
    const QRect area = pageRect(page);
    QScrollBar* bar = verticalScrollBar();
    if (area.top() < 0) bar->setValue(bar->value() + area.top() - gap_);
    if (area.bottom() > viewport()->height()) bar->setValue(bar->value() + area.bottom() - viewport()->height() + gap_);
    viewport()->update();
}

void PageView::setMark(int page, std::vector<QRectF> areas) {
    markedPage_ = page;
    marks_ = std::move(areas);
    viewport()->update();
    if (marks_.empty()) return;
    updateBars();
    const QRectF mark(marks_.front().topLeft() * scale(), marks_.front().size() * scale());
    const QRectF inView = mark.translated(pageRect(page).topLeft());
    const QRectF view = QRectF(viewport()->rect()).adjusted(gap_, gap_, -gap_, -gap_);
    if (inView.top() < view.top() || inView.bottom() > view.bottom())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + int(inView.center().y() - view.center().y()));
    if (inView.left() < view.left() || inView.right() > view.right())
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + int(inView.center().x() - view.center().x()));
}

void PageView::pagesAdded() {
    updateBars();
    if (pages_.isComplete()) pixmaps_.clear();  // the foot of a page now tells the number of pages
    viewport()->update();
}

void PageView::updateBars() {
    const QSize whole(pageSize().width() + 2 * gap_, gap_ + pages_.pageCount() * pitch());
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, whole.height() - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, whole.width() - viewport()->width()));
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRect exposed = event->rect();
    for (int page = pageAt(exposed.top()); page < pages_.pageCount(); ++page) {
        const QRect area = pageRect(page);
        if (area.top() > exposed.bottom()) break;
        paintPage(painter, page, area);
    }
}

void PageView::paintPage(QPainter& painter, int page, const QRect& area) {
    const double ratio = devicePixelRatioF();
    const double kilobytes = area.width() * ratio * area.height() * ratio * 4 / 1024;
    if (kilobytes <= largestPixmapKilobytes) {
        painter.drawPixmap(area.topLeft(), rendered(page));
    } else {
        painter.fillRect(area, Qt::white);
        painter.save();
        painter.translate(area.topLeft());
        render(painter, page, QRectF(viewport()->rect().intersected(area).translated(-area.topLeft())));
        painter.restore();
    }
    if (page == markedPage_) {
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);  // the text stays black
        for (const QRectF& mark : marks_)
            painter.fillRect(QRectF(mark.topLeft() * scale(), mark.size() * scale()).translated(area.topLeft()),
                             markColor);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    const bool selected = page == selected_;
    painter.setPen(QPen(palette().color(selected ? QPalette::Highlight : QPalette::Dark), selected ? 3 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(selected ? area.adjusted(-2, -2, 1, 1) : area.adjusted(0, 0, -1, -1));
    if (use_ != Use::Thumbnails) return;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(area.left(), area.bottom() + 3, area.width(), gap_ - 4), Qt::AlignHCenter | Qt::AlignTop,
                     QString::number(page + 1));
}

QPixmap PageView::rendered(int page) {
    if (const QPixmap* cached = pixmaps_.object(page)) return *cached;
    const double ratio = devicePixelRatioF();
    QPixmap pixmap((QSizeF(pageSize()) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    render(painter, page, QRectF(QPointF(), pageSize()));
    painter.end();
    const int cost = int(pixmap.width() * qsizetype(pixmap.height()) * 4 / 1024) + 1;
    pixmaps_.insert(page, new QPixmap(pixmap), cost);
    return pixmap;
}

void PageView::render(QPainter& painter, int page, const QRectF& exposed) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(exposed);
    painter.scale(scale(), scale());
    pagePainter_.paint(painter, *pages_.page(page), exposed.top() / scale(), exposed.bottom() / scale());
    pagePainter_.paintFoot(painter, page);
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    if (fit_ != Fit::Zoom) zoomTo(fittingZoom());
    updateBars();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (use_ == Use::Reading && event->modifiers().testFlag(Qt::ControlModifier)) {
        setZoom(zoom_ * std::pow(wheelStep, event->angleDelta().y() / 120.0));
        event->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int page = pageAt(int(event->position().y()));
    if (page < pages_.pageCount()) Q_EMIT pageClicked(page);
}

void PageView::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy);
    const int current = currentPage();
    if (current == lastCurrent_) return;
    lastCurrent_ = current;
    Q_EMIT currentPageChanged(current);
}

}  // namespace report
