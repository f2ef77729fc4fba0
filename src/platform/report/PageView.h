#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

#include "platform/report/PagePainter.h"

namespace report {

/// The pages of a report one under the other, of which only those in view are drawn. As a strip of thumbnails it
/// shows them at its own width, each with its number, and tells which one was clicked.
class PageView final : public QAbstractScrollArea {
    Q_OBJECT
public:
    enum class Use { Reading, Thumbnails };
    enum class Fit { Zoom, Width, Page };
    static constexpr double smallestZoom = 0.5;
    static constexpr double largestZoom = 4;

    /// The pages must outlive the view.
    PageView(Paginator& pages, Use use, QWidget* parent = nullptr);

    /// 1 is the size on paper.
    double zoom() const { return zoom_; }
    Fit fit() const { return fit_; }
    void setZoom(double zoom);
    void setFit(Fit fit);
    /// The page in the middle of the view, from 0.
    int currentPage() const;
    /// Brings a page's upper edge into view, after laying out the pages up to it.
    void goTo(int page);
    /// Frames a thumbnail and keeps it in view.
    void setSelected(int page);
    /// Marks a part of a page and brings it into view; no areas for no mark.
    void setMark(int page, std::vector<QRectF> areas);
    /// To be called when the paginator has laid out more.
    void pagesAdded();

Q_SIGNALS:
    void currentPageChanged(int page);
    void zoomChanged();
    void pageClicked(int page);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QSizeF paperSize() const;
    QSize pageSize() const;
    int pitch() const { return pageSize().height() + gap_; }
    QRect pageRect(int page) const;
    int pageAt(int y) const;
    double scale() const;
    double fittingZoom() const;
    void zoomTo(double zoom);
    void updateBars();
    void paintPage(QPainter& painter, int page, const QRect& area);
    QPixmap rendered(int page);
    void render(QPainter& painter, int page, const QRectF& exposed);

    Paginator& pages_;
    PagePainter pagePainter_;
    Use use_;
    Fit fit_ = Fit::Width;
    int gap_;
    double zoom_ = 1;
    int lastCurrent_ = 0;
    int selected_ = -1;
    int markedPage_ = -1;
    std::vector<QRectF> marks_;
    QCache<int, QPixmap> pixmaps_;  ///< cost in kilobytes
};

}  // namespace report
