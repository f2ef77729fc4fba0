#include <gtest/gtest.h>

#include <algorithm>

#include "platform/report/FindText.h"
#include "platform/report/PagePainter.h"
#include "platform/report/Report.h"
#include "support/Printing.h"

using namespace report;

namespace {

/// Bands from memory; counts how many were taken.
class ListBands final : public BandSource {
public:
    explicit ListBands(std::vector<Band> bands, int* taken = nullptr) : bands_(std::move(bands)), taken_(taken) {}
    bool next(Band& band) override {
        if (at_ == bands_.size()) return false;
        band = bands_[at_++];
        if (taken_) ++*taken_;
        return true;
    }

private:
    std::vector<Band> bands_;
    int* taken_;
    size_t at_ = 0;
};

Band band(BandKind kind, int level, const QString& text) {
    Band result;
    result.kind = kind;
    result.level = level;
    result.keepWithPrevious = kind == BandKind::GroupFooter || kind == BandKind::Totals;
    result.cells = {{.text = text}};
    return result;
}

/// Two groups of rows with header, heads and footer each, and totals behind them.
std::vector<Band> twoGroups(int rowsOfFirst, int rowsOfSecond) {
    std::vector<Band> bands{band(BandKind::Title, -1, "title")};
    for (const auto& [name, rows] : {std::pair("first", rowsOfFirst), std::pair("second", rowsOfSecond)}) {
        bands.push_back(band(BandKind::GroupHeader, 0, QString(name) + " header"));
        bands.push_back(band(BandKind::ColumnHeads, 1, "heads"));
        for (int row = 0; row < rows; ++row) bands.push_back(band(BandKind::Detail, 2, QString(name) + " row"));
        bands.push_back(band(BandKind::GroupFooter, 2, QString(name) + " footer"));
    }
    bands.push_back(band(BandKind::Totals, 0, "totals"));
    return bands;
}

const QPageLayout letter = paperFor({});

Paginator paginator(std::vector<Band> bands, const QPageLayout& paper = letter) {
    return Paginator(std::make_unique<ListBands>(std::move(bands)), paper, "footer");
}

/// The texts of a page in reading order.
QStringList texts(const Page& page) {
    QStringList result;
    for (const TextItem& item : page.items) result << page.textOf(item).toString();
    return result;
}

std::vector<QStringList> allTexts(Paginator& pages) {
    std::vector<QStringList> result;
    for (int index = 0; const Page* page = pages.page(index); ++index) result.push_back(texts(*page));
    return result;
}

QString longText(int words) {
    QStringList all;
    for (int word = 0; word < words; ++word) all << QString("word%1").arg(word);
    return all.join(' ');
}

/// The bodies of two items of one page touch.
bool overlap(const Paginator& pages, const Page& page, const TextItem& left, const TextItem& right) {
    const auto area = [&](const TextItem& item) { return areasOf(pages, page, item.start, item.length).at(0); };
    return area(left).adjusted(1, 1, -1, -1).intersects(area(right).adjusted(1, 1, -1, -1));
}

}  // namespace

TEST(Paginator, KeepsHeadersAndFootersWithTheirRowsWhereverThePageEnds) {
    for (int rows = 1; rows < 130; ++rows) {
        Paginator pages = paginator(twoGroups(rows, 3));
        int rowsSeen = 0;
        QStringList named;
        for (const QStringList& page : allTexts(pages)) {
            const QString all = page.join(", ");
            ASSERT_EQ(page.first(), "title") << rows;
            ASSERT_FALSE(page.last().contains("header") || page.last() == "heads") << rows << all.toStdString();
            // Behind title, group header and heads, repeated where the group goes on, stands a row.
            ASSERT_TRUE(page.at(1).contains("header")) << rows << all.toStdString();
            ASSERT_EQ(page.at(2), "heads") << rows << all.toStdString();
            ASSERT_TRUE(page.at(3).endsWith("row")) << rows << all.toStdString();
            const bool isContinued = named.contains(page.at(1).section(' ', 0, 1));
            ASSERT_EQ(page.at(1).endsWith(" header (continued)"), isContinued) << rows << all.toStdString();
            for (const QString& text : page)
                if (text.contains("header")) named << text.section(' ', 0, 1);
            ASSERT_EQ(page.at(1).section(' ', 0, 0), page.at(3).section(' ', 0, 0)) << rows << all.toStdString();
            rowsSeen += int(page.count("first row") + page.count("second row"));
        }
        ASSERT_EQ(rowsSeen, rows + 3);
    }
}

TEST(Paginator, LaysOutNoMoreThanIsAskedFor) {
    int taken = 0;
    Paginator pages(std::make_unique<ListBands>(twoGroups(20000, 1), &taken), letter, "footer");
    ASSERT_TRUE(pages.page(1));
    EXPECT_LT(taken, 200);
    EXPECT_EQ(pages.pageCount(), 2);
    EXPECT_FALSE(pages.isComplete());
    const Page* second = pages.page(1);
    pages.layOutAll();
    EXPECT_TRUE(pages.isComplete());
    EXPECT_EQ(pages.page(1), second);
    EXPECT_EQ(pages.page(pages.pageCount()), nullptr);
}

TEST(Paginator, StartsAPageWhereABandAsksForOne) {
    std::vector<Band> bands{band(BandKind::Detail, 0, "a"), band(BandKind::Detail, 0, "b")};
    bands[0].startsPage = true;  // already at the start of one
    bands[1].startsPage = true;
    Paginator pages = paginator(bands);
    EXPECT_EQ(allTexts(pages), (std::vector<QStringList>{{"a"}, {"b"}}));
}

TEST(Paginator, PartsABlockOnlyWhereAPageCannotHoldIt) {
    for (const int rowsOfBlock : {20, 200}) {
        std::vector<Band> bands(30, band(BandKind::Detail, 0, "list"));
        for (int row = 0; row < rowsOfBlock; ++row) {
            bands.push_back(band(BandKind::Detail, 0, "block"));
            bands.back().sameBlock = row > 0;
        }
        Paginator pages = paginator(bands);
        const std::vector<QStringList> all = allTexts(pages);
        qsizetype seen = 0;
        for (const QStringList& page : all) seen += page.count("block");
        EXPECT_EQ(seen, rowsOfBlock);
        EXPECT_FALSE(all.at(0).contains("block"));
        EXPECT_EQ(all.size() == 2, rowsOfBlock == 20);
    }
}

TEST(Paginator, GivesAReportWithoutBandsOneEmptyPage) {
    Paginator pages = paginator({});
    ASSERT_TRUE(pages.page(0));
    EXPECT_TRUE(pages.page(0)->items.empty());
    EXPECT_EQ(pages.page(1), nullptr);
}

TEST(Paginator, WrapsLongTextInsideItsCell) {
    const QString samples[] = {longText(40), QString(300, 'W'), "one\ntwo\n\nfour", "漢字 محمد " + longText(30)};
    for (const QString& sample : samples) {
        Band row = band(BandKind::Detail, 0, sample);
        row.cells.push_back({.text = "neighbour", .alignment = Alignment::Right});
        Paginator pages = paginator({row, band(BandKind::Detail, 0, "below")});
        const Page& page = *pages.page(0);
        ASSERT_GT(page.items.size(), 4u);
        EXPECT_EQ(texts(page).join("").remove(' ').remove('\n'),
                  QString(sample + "neighbourbelow").remove(' ').remove('\n'));
        for (size_t left = 0; left < page.items.size(); ++left) {
            if (page.items[left].length == 0) continue;
            for (size_t right = 0; right < left; ++right) {
                if (page.items[right].length == 0) continue;
                EXPECT_FALSE(overlap(pages, page, page.items[left], page.items[right]));
            }
        }
    }
}

TEST(Paginator, GoesOnWithARowHigherThanAPage) {
    const QString text = longText(6000);
    std::vector<Band> bands = twoGroups(2, 1);
    bands.insert(bands.begin() + 4, band(BandKind::Detail, 2, text))->edges = TopEdge | SideEdges | BottomEdge;
    Paginator pages = paginator(bands);
    QStringList words;
    const auto all = allTexts(pages);
    EXPECT_GT(all.size(), 2u);
    for (const QStringList& page : all)
        for (const QString& line : page)
            if (line.startsWith("word")) words += line.split(' ', Qt::SkipEmptyParts);
    EXPECT_EQ(words, text.split(' '));
    EXPECT_EQ(all.back().last(), "totals");
    EXPECT_TRUE(all.at(0).contains("first row")) << "the row before it";
    for (int index = 0; index < pages.pageCount(); ++index) {
        const Page& page = *pages.page(index);
        for (const TextItem& item : page.items) {
            if (!page.textOf(item).startsWith(u"word")) continue;
            const auto besideLine = [&](const Rule& rule) {
                return rule.area.top() <= item.baseline && rule.area.bottom() >= item.baseline;
            };
            ASSERT_EQ(std::count_if(page.rules.begin(), page.rules.end(), besideLine), 2) << "page " << index;
        }
    }
}

TEST(Paginator, KeepsInsideTheMarginsOfEveryPaper) {
    for (const auto size : {QPageSize::Letter, QPageSize::A4, QPageSize::A6}) {
        for (const bool landscape : {false, true}) {
            ReportDefinition definition;
            definition.landscape = landscape;
            Paginator pages = paginator(twoGroups(200, 1), paperFor(definition, QPageSize(size)));
            const QRectF body = pages.paper().paintRect(QPageLayout::Point);
            pages.layOutAll();
            for (int index = 0; index < pages.pageCount(); ++index) {
                const Page& page = *pages.page(index);
                for (const TextItem& item : page.items) {
                    const QRectF area = areasOf(pages, page, item.start, item.length).at(0);
                    const QRectF points(area.topLeft() / unitsPerPoint, area.size() / unitsPerPoint);
                    ASSERT_TRUE(body.adjusted(-1, -1, 1, 1).contains(points)) << size << landscape;
                }
            }
        }
    }
}

TEST(Paginator, DoesNotRepeatHeadersThatWouldFillThePage) {
    std::vector<Band> bands = twoGroups(100, 1);
    bands[0].cells[0].text = longText(900);
    Paginator pages = paginator(bands);
    pages.layOutAll();
    EXPECT_LT(pages.pageCount(), 10);
    EXPECT_FALSE(texts(*pages.page(pages.pageCount() - 1)).join(' ').contains("word1 "));
}

TEST(Paginator, KeepsAGroupsLinesAndSubReportsWithTheirHeads) {
    for (int rows = 30; rows < 60; ++rows) {
        std::vector<Band> bands;
        for (int row = 0; row < rows; ++row) bands.push_back(band(BandKind::Detail, 3, "row"));
        bands.push_back(band(BandKind::GroupHeader, 0, "group header"));
        bands.push_back(band(BandKind::Detail, 1, "line"));
        bands.back().keepWithPrevious = true;
        bands.push_back(band(BandKind::GroupHeader, 4, "sub-report"));
        bands.push_back(band(BandKind::ColumnHeads, 5, "heads"));
        for (int row = 0; row < 90; ++row) bands.push_back(band(BandKind::Detail, 6, "sub-row"));
        bands.push_back(band(BandKind::Detail, 3, "last"));
        Paginator pages = paginator(bands);
        const auto all = allTexts(pages);
        const QStringList together{"group header", "line", "sub-report", "heads", "sub-row"};
        const auto page =
            std::find_if(all.begin(), all.end(), [](const auto& texts) { return texts.contains("line"); });
        ASSERT_NE(page, all.end());
        EXPECT_EQ(page->mid(page->indexOf("group header"), 5), together) << rows;
        ASSERT_NE(page + 1, all.end());
        EXPECT_EQ((page + 1)->mid(0, 4),
                  (QStringList{"group header (continued)", "sub-report (continued)", "heads", "sub-row"}))
            << rows;
    }
}

TEST(Paginator, DrawsFormsInsideTheirBoxes) {
    Band form = band(BandKind::Detail, 0, "[x] " + longText(30));
    form.edges = TopEdge | BottomEdge | SideEdges | CellEdges;
    form.cells[0].format = Format::Box;
    form.cells[0].label = "Label:";
    form.cells.push_back({.text = longText(20), .share = 2});
    form.cells.push_back({.label = "Write:", .text = blankRule, .fillIn = 3});
    form.cells.push_back({.text = "placed", .framed = true, .at = QRectF(100, 120, 90, 40)});
    Paginator pages = paginator({form});
    const Page& page = *pages.page(0);
    EXPECT_TRUE(texts(page).contains("X")) << "the cross in the box";
    EXPECT_FALSE(page.text.contains('_')) << "rules are drawn";
    const double left = 36 * unitsPerPoint;
    const double width = pages.paper().paintRect(QPageLayout::Point).width() * unitsPerPoint;
    const double borders[] = {left, left + width / 4, left + width * 3 / 4, left + width};
    double bottom = 0;
    int writingRules = 0;
    for (const Rule& rule : page.rules) {
        bottom = std::max(bottom, rule.area.bottom());
        writingRules += rule.area.left() > borders[2] + 10 && rule.area.width() > width / 9 && rule.area.height() < 10;
        EXPECT_TRUE(rule.area.left() >= left - 1 && rule.area.right() <= borders[3] + 1);
    }
    EXPECT_EQ(writingRules, 3);
    EXPECT_GE(bottom, (36 + 160) * unitsPerPoint) << "around what is placed freely too";
    for (const TextItem& item : page.items) {
        const QRectF area = areasOf(pages, page, item.start, item.length).at(0);
        EXPECT_LT(area.bottom(), bottom);
        if (page.textOf(item) == u"placed") {
            EXPECT_TRUE(QRectF(1360, 1560, 900, 400).contains(area));
            continue;
        }
        const auto cell = std::upper_bound(std::begin(borders), std::end(borders), area.left());
        EXPECT_LT(area.right(), *cell) << page.textOf(item).toString().toStdString();
    }
    for (size_t one = 0; one < page.items.size(); ++one) {
        if (page.textOf(page.items[one]) == u"placed") continue;
        for (size_t other = 0; other < one; ++other)
            EXPECT_FALSE(overlap(pages, page, page.items[one], page.items[other]));
    }
}

TEST(Paginator, FillsLabelsFromTheFirstFreeOneOn) {
    const auto label = [](const QString& name) {
        Band last = band(BandKind::Detail, 1, "Town");
        last.keepWithPrevious = true;
        return std::vector<Band>{band(BandKind::Detail, 1, name), last};
    };
    std::vector<Band> bands;
    for (const QString& name : {QString("Ann"), longText(60), QString("Cid")})
        for (const Band& line : label(name)) bands.push_back(line);
    Paginator pages(std::make_unique<ListBands>(bands), letter, "", LabelSheet{.skip = 28});
    const auto all = allTexts(pages);
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].first(), "Ann");
    EXPECT_EQ(all[1], (QStringList{"Cid", "Town"}));

    const LabelSheet sheet;
    const Page& first = *pages.page(0);
    const QRectF labels[] = {{sheet.left + sheet.across, sheet.top + 9 * sheet.down, sheet.width, sheet.down},
                             {sheet.left + 2 * sheet.across, sheet.top + 9 * sheet.down, sheet.width, sheet.down}};
    for (size_t index = 0; index < first.items.size(); ++index) {
        const TextItem& item = first.items[index];
        const QRectF& place = labels[index < 2 ? 0 : 1];
        EXPECT_TRUE(place.contains(item.x / unitsPerPoint, item.baseline / unitsPerPoint)) << index;
    }
}

TEST(FindText, GoesRoundInBothDirectionsAndLooksNoFurtherThanNeeded) {
    std::vector<Band> bands;
    for (int row = 0; row < 500; ++row) bands.push_back(band(BandKind::Detail, 0, row % 200 == 100 ? "Peña" : "row"));
    Paginator pages = paginator(bands);
    const auto first = findText(pages, "PEÑA", {});
    ASSERT_TRUE(first);
    EXPECT_FALSE(pages.isComplete());
    const auto second = findText(pages, "peña", *first);
    ASSERT_TRUE(second);
    EXPECT_GT(second->page, first->page);
    EXPECT_EQ(findText(pages, "peña", *second)->page, first->page);
    EXPECT_EQ(findText(pages, "peña", *first, true)->page, second->page);
    EXPECT_EQ(findText(pages, "peña", *second, true)->page, first->page);
    EXPECT_FALSE(findText(pages, "nobody", *first));
    EXPECT_FALSE(findText(pages, "", *first));
    EXPECT_EQ(pages.page(first->page)->text.mid(first->start, first->length), "Peña");
}
