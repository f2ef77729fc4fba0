#include "platform/report/BandLayout.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

#include "platform/report/BandRules.h"

namespace report {

namespace {

constexpr double cellGap = 6 * unitsPerPoint;
constexpr double indentStep = 18 * unitsPerPoint;
constexpr double frameInset = 3.5 * unitsPerPoint;   ///< from a frame to the text inside
constexpr double labelGap = 3 * unitsPerPoint;       ///< between a label, a check box or a text and what follows it
constexpr double writingSpace = 17 * unitsPerPoint;  ///< between rules to write on
constexpr double boxSide = 0.78;                     ///< of a check box, in relation to the ascent of its text

/// Room around the text of a band, in points.
struct Spacing {
    double before;  ///< white space above
    double above;   ///< between the band's upper edge (rule, shade) and the text
    double below;
};

Spacing spacingOf(const Band& band) {
    switch (band.kind) {
        case BandKind::Title: return {0, 0, band.keepWithPrevious ? 8.0 : 1.0};
        case BandKind::GroupHeader: return {7, 2.5, 2.5};
        case BandKind::ColumnHeads: return {3, 2, 2.5};
        case BandKind::Detail: {
            const double space = band.space + (band.above == Separation::None ? 0 : 6);
            if (band.edges != NoEdge || band.shaded) return {space, 3, 3};
            return {space, band.above == Separation::Rule ? 4.0 : 2.0, 2};
        }
        case BandKind::GroupFooter: return {1.5, 2.5, 2};
        case BandKind::Totals: return {5, 3, 2};
    }
    return {};
}

struct TextLine {
    qsizetype start = 0;
    qsizetype length = 0;
    double width = 0;
    double ascent = 0;
    double descent = 0;
    bool plain = true;
};

void breakLines(const QString& text, const Face& face, double width, std::vector<TextLine>& lines) {
    QTextLayout layout(text, face.font());
    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const QStringView content = QStringView(text).mid(line.textStart(), line.textLength());
        qsizetype length = content.size();
        while (length > 0 && content[length - 1].isSpace()) --length;
        const double plain = face.plainWidth(content.left(length));
        lines.push_back({line.textStart(), length, plain >= 0 ? plain : line.naturalTextWidth(),
                         std::max(face.ascent(), line.ascent()), std::max(face.descent(), line.descent()), plain >= 0});
    }
    layout.endLayout();
}

void wrap(QStringView source, const Face& face, double width, std::vector<TextLine>& lines) {
    const double plainWidth = face.plainWidth(source);
    if (plainWidth >= 0 && plainWidth <= width) {
        lines.push_back({0, source.size(), plainWidth, face.ascent(), face.descent(), true});
        return;
    }
    QString text = source.toString();
    text.replace(u'\n', QChar::LineSeparator);
    // Shaped text is measured a little otherwise than glyph by glyph; no line may be too long in either way.
    for (double narrower = width; narrower > width / 2; narrower *= 0.985) {
        lines.clear();
        breakLines(text, face, narrower, lines);
        if (std::none_of(lines.begin(), lines.end(), [&](const TextLine& line) { return line.width > width + 1; }))
            return;
    }
}

double startOf(const TextLine& line, double left, double width, Alignment alignment) {
    switch (alignment) {
        case Alignment::Left: return left;
        case Alignment::Center: return left + (width - line.width) / 2;
        case Alignment::Right: return left + width - line.width;
    }
    return left;
}

struct MeasuredCell {
    quint8 font = 0;
    double left = 0;
    double width = 0;
    double textLeft = 0;  ///< behind label and check box
    double ascent = 0;    ///< of the first line
    bool plainLabel = true;
    std::vector<TextLine> lines{};
    QRectF frame{};  ///< its height is that of the band if none is said
};

TextStyle scaled(TextStyle style, double scale) {
    style.points *= scale;
    return style;
}

quint8 labelFont(const Cell& cell, FontBook& fonts, double fontScale) {
    TextStyle style = scaled(cell.style, fontScale);
    style.bold = false;
    return fonts.idOf(style);
}

/// Where a cell and its text lie between `left` and `right`.
MeasuredCell measureCell(const Cell& cell, double left, double right, FontBook& fonts, double fontScale) {
    MeasuredCell measured;
    measured.font = fonts.idOf(scaled(cell.style, fontScale));
    const Face& face = fonts.face(measured.font);
    measured.left = left;
    measured.width = right - left;
    double start = left;
    if (!cell.label.isEmpty()) {
        const Face& labelFace = fonts.face(labelFont(cell, fonts, fontScale));
        const double plain = labelFace.plainWidth(cell.label);
        measured.plainLabel = plain >= 0;
        start += labelGap + (plain >= 0 ? plain : QFontMetricsF(labelFace.font()).horizontalAdvance(cell.label));
    }
    if (cell.isCheckBox()) start += boxSide * face.ascent() + labelGap;
    measured.textLeft = std::min(start, right - 1);
    const QStringView words = cell.words();
    if (!words.isEmpty()) wrap(words, face, right - measured.textLeft, measured.lines);
    measured.ascent = measured.lines.empty() ? face.ascent() : measured.lines.front().ascent;
    return measured;
}

/// The cells of a band between `left` and `left + width`, each with the lines that its text takes.
std::vector<MeasuredCell> measure(const Band& band, double left, double width, FontBook& fonts, double fontScale) {
    const double bandLeft = left;
    double shares = 0;
    for (const Cell& cell : band.cells)
        if (!cell.at) shares += cell.share;
    std::vector<MeasuredCell> result;
    result.reserve(band.cells.size());
    for (const Cell& cell : band.cells) {
        const bool framed = cell.framed || (band.edges & CellEdges) != 0;
        QRectF area;
        if (cell.at) {
            area = QRectF(cell.at->topLeft() * unitsPerPoint, cell.at->size() * unitsPerPoint).translated(bandLeft, 0);
        } else {
            area = QRectF(left, 0, width * cell.share / shares, 0);
            left += area.width();
        }
        const bool last = &cell == &band.cells.back() || (&cell)[1].gap;
        const double before = framed ? frameInset : 0;
        const double behind = framed ? frameInset : last || cell.at ? 0 : cellGap;
        result.push_back(measureCell(cell, area.left() + before, area.right() - behind, fonts, fontScale));
        if (framed) {
            if (!(band.edges & CellEdges) && !last && !cell.at) area.adjust(0, 0, -cellGap, 0);
            result.back().frame = area;
        }
    }
    return result;
}

void addText(Page& piece, QStringView text, double x, double baseline, quint8 font, bool plain) {
    piece.items.push_back({.x = float(x),
                           .baseline = float(baseline),
                           .start = quint32(piece.text.size()),
                           .length = quint16(text.size()),
                           .font = font,
                           .plain = plain});
    piece.text += text;
    piece.text += u' ';
}

void addCheckBox(Page& piece, const Cell& cell, const MeasuredCell& measured, double baseline, FontBook& fonts,
                 double fontScale) {
    const double side = boxSide * fonts.face(measured.font).ascent();
    const QRectF square(measured.textLeft - labelGap - side, baseline - side, side, side);
    addFrame(piece, square);
    if (!cell.isChecked()) return;
    TextStyle style = scaled(cell.style, fontScale * 0.7);  // the box stays visible around it at any zoom
    style.bold = true;
    const quint8 font = fonts.idOf(style);
    const QString cross = QStringLiteral("X");
    const double x = square.center().x() - fonts.face(font).plainWidth(cross) / 2;
    addText(piece, cross, x, square.center().y() + fonts.face(font).capHeight() / 2, font, true);
}

/// Rules to write on, the first one behind the text. Returns the last one's lower edge.
double addWritingRules(Page& piece, const Cell& cell, const MeasuredCell& measured, double baseline) {
    const double right = measured.left + measured.width;
    double left = measured.textLeft;
    if (!measured.lines.empty()) left += measured.lines.back().width + labelGap;
    double y = baseline + 1.5 * unitsPerPoint;
    for (int rule = 0; rule < cell.fillIn; ++rule) {
        if (left < right) piece.rules.push_back({QRectF(left, y, right - left, ruleThickness), Ink::Dark});
        left = measured.left;
        if (rule + 1 < cell.fillIn) y += writingSpace;
    }
    return y + (cell.fillIn > 1 ? labelGap : ruleThickness);
}

/// Places the lines of a cell from `top` down and returns where they end.
double place(const Cell& cell, const MeasuredCell& measured, double top, Page& piece, FontBook& fonts,
             double fontScale) {
    double baseline = top + measured.ascent;
    if (!cell.label.isEmpty())
        addText(piece, cell.label, measured.left, baseline, labelFont(cell, fonts, fontScale), measured.plainLabel);
    if (cell.isCheckBox()) addCheckBox(piece, cell, measured, baseline, fonts, fontScale);
    const double right = measured.left + measured.width;
    const QStringView words = cell.words();
    for (const TextLine& line : measured.lines) {
        baseline = top + line.ascent;
        addText(piece, words.mid(line.start, line.length),
                startOf(line, measured.textLeft, right - measured.textLeft, cell.alignment), baseline, measured.font,
                line.plain);
        top += line.ascent + line.descent;
    }
    return cell.fillIn == 0 ? top : std::max(top, addWritingRules(piece, cell, measured, baseline));
}

}  // namespace

LaidBand layOut(const Band& band, double left, double width, FontBook& fonts, double fontScale) {
    const Spacing spacing = spacingOf(band);
    left += band.indent * indentStep;
    width -= band.indent * indentStep;
    const bool framed = (band.edges & SideEdges) != 0;
    const double inset = (band.edges & CellEdges) != 0 ? 0 : band.shaded || framed ? cellGap / 2 + unitsPerPoint : 0;
    const auto cells = measure(band, left + inset, width - 2 * inset, fonts, fontScale);

    LaidBand laid{.level = band.level, .header = band.isHeader()};
    const double before = spacing.before * unitsPerPoint;
    double ascent = 0;  // all first lines stand on one base line; of column heads the last ones
    size_t mostLines = 1;
    bool toWriteOn = false;
    for (size_t index = 0; index < cells.size(); ++index) {
        if (!band.cells[index].at) ascent = std::max(ascent, cells[index].ascent);
        mostLines = std::max(mostLines, cells[index].lines.size());
        toWriteOn = toWriteOn || band.cells[index].fillIn == 1;
    }
    double top = before + spacing.above * unitsPerPoint;
    const double least = before + band.height * unitsPerPoint;
    if (toWriteOn) top = std::max(top, least - spacing.below * unitsPerPoint - 1.3 * ascent);
    double bottom = top;
    for (size_t index = 0; index < cells.size(); ++index) {
        const Cell& cell = band.cells[index];
        const double lineHeight = fonts.face(cells[index].font).lineHeight();
        double cellTop = cell.at ? before + cell.at->top() * unitsPerPoint + (cell.framed ? frameInset / 2 : 0)
                                 : top + ascent - cells[index].ascent;
        if (band.kind == BandKind::ColumnHeads && !cells[index].lines.empty())
            cellTop += double(mostLines - cells[index].lines.size()) * lineHeight;
        const double end = place(cell, cells[index], cellTop, laid.piece, fonts, fontScale);
        bottom = std::max({bottom, cellTop + lineHeight, end});
        if (cell.at) bottom = std::max(bottom, before + cell.at->bottom() * unitsPerPoint);
    }
    laid.height = std::max(least, bottom + spacing.below * unitsPerPoint);
    const QRectF area(left, before, width, laid.height - before);
    addBandRules(laid.piece, band, area);
    for (size_t index = 0; index < cells.size(); ++index)
        if (!cells[index].frame.isNull()) addCellFrame(laid.piece, band, index, cells[index].frame, area);
    return laid;
}

void append(Page& page, const Page& piece, double downBy) {
    const auto offset = quint32(page.text.size());
    page.text += piece.text;
    for (TextItem item : piece.items) {
        item.baseline += float(downBy);
        item.start += offset;
        page.items.push_back(item);
    }
    for (const Rule& rule : piece.rules) page.rules.push_back({rule.area.translated(0, downBy), rule.ink});
}

}  // namespace report
