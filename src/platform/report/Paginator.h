#pragma once

#include <QPageLayout>
#include <optional>

#include "platform/report/Band.h"
#include "platform/report/BandLayout.h"

namespace report {

/// Turns bands into pages of one paper. Pages are laid out in order as they are asked for and kept; a report of
/// 100,000 lines takes some 30 MB. What the bands raise goes through.
///
/// A page break repeats the headers that still hold, those of groups marked as continued. A header stays with the first
/// row under it, a footer with the row above it, the lines of one row together, as far as one page can hold them.
class Paginator {
public:
    Paginator(std::unique_ptr<BandSource> bands, const QPageLayout& paper, QString footer,
              std::optional<LabelSheet> labels = {});

    /// The page with that index, counted from 0, or nullptr behind the last. Valid until the paginator ends. A report
    /// without any band has one empty page.
    const Page* page(int index);
    /// Lays out at least one page more. False when all pages are there.
    bool layOutMore();
    void layOutAll();
    int pageCount() const { return int(pages_.size()); }
    /// Whether pageCount() is the whole report's.
    bool isComplete() const { return complete_; }

    const QPageLayout& paper() const { return paper_; }
    /// A sheet of labels has no foot.
    bool hasFoot() const { return !labels_; }
    const QString& footer() const { return footer_; }
    const FontBook& fonts() const { return fonts_; }
    quint8 footerFont() const { return footerFont_; }

private:
    bool readBlock();
    void placeBlock();
    void placeLabel();
    void place(LaidBand laid, const Band& band);
    void placeSplit(LaidBand band);
    void dropHeaders(int level);
    void startPage();
    void finishPage();
    /// A header that holds, with what stands on the pages that its rows go on to.
    struct Header {
        LaidBand laid;
        std::optional<Band> continued;  ///< laid out when it is first needed
    };
    void hold(LaidBand laid, const Band& band);
    const LaidBand& repeated(Header& header);
    LaidBand laidOut(const Band& band) { return layOut(band, body_.left(), body_.width(), fonts_); }

    std::unique_ptr<BandSource> bands_;
    QPageLayout paper_;
    QString footer_;
    std::optional<LabelSheet> labels_;
    QRectF body_;  ///< where bands go; the foot of the page is below it
    FontBook fonts_;
    quint8 footerFont_;

    std::vector<std::unique_ptr<Page>> pages_;
    Page current_;
    double y_;
    double freshY_;            ///< y_ of a page that holds nothing but repeated headers
    int slot_ = 0;             ///< the next label of the sheet
    std::vector<Band> block_;  ///< bands that no page break may part
    std::optional<Band> ahead_;
    std::vector<Header> headers_;  ///< those that hold, outermost first
    bool complete_ = false;
};

}  // namespace report
