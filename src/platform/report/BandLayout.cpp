#include "platform/report/BandLayout.h"

#include <QTextLayout>
#include <algorithm>

namespace report {

namespace {

constexpr double cellGap = 6 * unitsPerPoint;
constexpr double indentStep = 18 * unitsPerPoint;
constexpr double ruleThickness = 0.6 * unitsPerPoint;

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
        case BandKind::Detail:
            if (band.above == Separation::None) return {0, 2, 2};
            return {6, band.above == Separation::Rule ? 4.0 : 2.0, 2};
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

void wrap(const QString& source, const Face& face, double width, std::vector<TextLine>& lines) {
    const double plainWidth = face.plainWidth(source);
    if (plainWidth >= 0 && plainWidth <= width) {
        lines.push_back({0, source.size(), plainWidth, face.ascent(), face.descent(), true});
        return;
    }
    QString text = source;
    text.replace(u'\n', QChar::LineSeparator);
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
    double ascent = 0;  ///< of the first line
    std::vector<TextLine> lines{};
};

/// The cells of a band between `left` and `left + width`, each with the lines that its text takes.
std::vector<MeasuredCell> measure(const Band& band, double left, double width, FontBook& fonts, double fontScale) {
    double shares = 0;
    for (const Cell& cell : band.cells) shares += cell.share;
    std::vector<MeasuredCell> result(band.cells.size());
    for (size_t index = 0; index < result.size(); ++index) {
        const Cell& cell = band.cells[index];
        MeasuredCell& measured = result[index];
        TextStyle style = cell.style;
        style.points *= fontScale;
        measured.font = fonts.idOf(style);
        const Face& face = fonts.face(measured.font);
        const double cellWidth = width * cell.share / shares;
        measured.left = left;
        measured.width = index + 1 == result.size() ? cellWidth : cellWidth - cellGap;
        if (!cell.text.isEmpty()) wrap(cell.text, face, measured.width, measured.lines);
        measured.ascent = measured.lines.empty() ? face.ascent() : measured.lines.front().ascent;
        left += cellWidth;
    }
    return result;
}

/// Places the lines of a cell from `top` down and returns where they end.
double place(const Cell& cell, const MeasuredCell& measured, double top, Page& piece) {
    for (const TextLine& line : measured.lines) {
        piece.items.push_back({.x = float(startOf(line, measured.left, measured.width, cell.alignment)),
                               .baseline = float(top + line.ascent),
                               .start = quint32(piece.text.size()),
                               .length = quint16(line.length),
                               .font = measured.font,
                               .plain = line.plain});
        piece.text += QStringView(cell.text).mid(line.start, line.length);
        piece.text += u' ';
        top += line.ascent + line.descent;
    }
    return top;
}

void addRules(const Band& band, const Spacing& spacing, double left, double width, LaidBand& laid) {
    const double before = spacing.before * unitsPerPoint;
    if (band.kind == BandKind::GroupHeader && band.level == 0)
        laid.piece.rules.push_back({QRectF(left, before, width, laid.height - before), Ink::Light});
    if (band.kind == BandKind::ColumnHeads)
        laid.piece.rules.push_back({QRectF(left, laid.height - ruleThickness, width, ruleThickness), Ink::Dark});
    if (band.above == Separation::Rule || band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals) {
        const double thickness = band.kind == BandKind::Totals ? 2 * ruleThickness : ruleThickness;
        laid.piece.rules.push_back({QRectF(left, before, width, thickness), Ink::Dark});
    }
}

}  // namespace

LaidBand layOut(const Band& band, double left, double width, FontBook& fonts, double fontScale) {
    const Spacing spacing = spacingOf(band);
    left += band.indent * indentStep;
    width -= band.indent * indentStep;
    const bool shaded = band.kind == BandKind::GroupHeader && band.level == 0;
    const double inset = shaded ? cellGap / 2 : 0;
    const auto cells = measure(band, left + inset, width - 2 * inset, fonts, fontScale);

    LaidBand laid{.level = band.level, .header = band.isHeader()};
    const double top = (spacing.before + spacing.above) * unitsPerPoint;
    double ascent = 0;  // all first lines stand on one base line
    for (const MeasuredCell& cell : cells) ascent = std::max(ascent, cell.ascent);
    double bottom = top;
    for (size_t index = 0; index < cells.size(); ++index) {
        const double cellTop = top + ascent - cells[index].ascent;
        bottom = std::max({bottom, cellTop + fonts.face(cells[index].font).lineHeight(),
                           place(band.cells[index], cells[index], cellTop, laid.piece)});
    }
    laid.height = bottom + spacing.below * unitsPerPoint;
    addRules(band, spacing, left, width, laid);
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
