#include <QCoreApplication>
#include <algorithm>

#include "platform/report/BandWriter.h"
#include "platform/report/FontBook.h"
#include "platform/report/TextOut.h"

namespace report {

namespace {

constexpr int twipsPerPoint = 20;
constexpr int cellPadding = 3 * twipsPerPoint;
constexpr int indentStep = 18 * twipsPerPoint;
constexpr char line[] = "\\brdrs\\brdrw10\\brdrcf2";

/// Text with the characters that mean something in rich text, and those beyond ASCII, written as rich text has them.
void addEscaped(QByteArray& out, QStringView text) {
    char16_t before = 0;
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code == u'\\' || code == u'{' || code == u'}') {
            out += '\\';
            out += char(code);
        } else if (code == u'\n') {
            out += "\\line ";
        } else if (code == u'\t') {
            out += "\\tab ";
        } else if (code == u' ' && before == u' ') {
            out += "\\~";
        } else if (code < 0x80) {
            if (code >= 0x20) out += char(code);
        } else {
            out += "\\u" + QByteArray::number(qint16(code)) + '?';
        }
        before = code;
    }
}

QByteArray escaped(const QString& text) {
    QByteArray out;
    addEscaped(out, text);
    return out;
}

int twips(double points) { return qRound(points * twipsPerPoint); }

const char* alignmentWord(Alignment alignment) {
    switch (alignment) {
        case Alignment::Left: return "\\ql";
        case Alignment::Center: return "\\qc";
        case Alignment::Right: return "\\qr";
    }
    return "";
}

class RtfWriter final : public BandWriter {
public:
    RtfWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper)
        : out_(file), definition_(definition), body_(paper.paintRect(QPageLayout::Point)) {
        const QSizeF size = paper.fullRect(QPageLayout::Point).size();
        if (definition.labels) {
            const LabelSheet& sheet = *definition.labels;
            body_ = QRectF(sheet.left, sheet.top, sheet.columns * sheet.across, 0);
        }
        out_ << "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl";
        int number = 0;
        for (const Typeface typeface : {Typeface::List, Typeface::Form, Typeface::Label})
            out_ << "{\\f" << number++ << "\\fnil{\\*\\falt " << families(typeface).at(1).toUtf8() << "}"
                 << families(typeface).at(0).toUtf8() << ";}";
        out_ << "}{\\colortbl;\\red233\\green237\\blue242;\\red128\\green134\\blue142;}\n{\\info{\\title "
             << escaped(definition.title) << "}}\n\\paperw" << twips(size.width()) << "\\paperh" << twips(size.height())
             << "\\margl" << twips(body_.left()) << "\\margr" << std::max(0, twips(size.width() - body_.right()))
             << "\\margt" << twips(body_.top()) << "\\margb" << twips(definition.labels ? 0 : 36)
             << "\\headery360\\footery360" << (definition.landscape ? "\\landscape" : "") << "\\viewkind1\n";
        cellStart_ = "\\sb20\\sa20";
        if (definition.labels) cellStart_ = "\\li" + QByteArray::number(twips(definition.labels->inset));
        if (!definition.labels) writeFooter();
    }

    void write(const Band& band) override {
        if (band.kind == BandKind::Title) return writeTitle(band);
        closeHeader();
        if (band.startsPage) endTable("\\page");
        if (band.kind == BandKind::GroupHeader && band.cells.size() == 1) return writeHeading(band);
        if (inTable_ && (band.kind == BandKind::ColumnHeads || band.space > 0)) endTable("");
        inTable_ = true;
        writeRow(band);
    }

    void finish() override {
        closeHeader();
        out_ << "\\pard\\fs2\\par}\n";
        out_.flush();
    }

private:
    void writeFooter() {
        out_ << "{\\footer\\pard\\f1\\fs16\\tqr\\tx" << twips(body_.width()) << ' ' << escaped(definition_.footer)
             << "\\tab "
             << escaped(QCoreApplication::translate("report", "Page %1 of %2"))
                    .replace("%1", "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}")
                    .replace("%2", "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}")
             << "\\par}\n";
    }

    /// The titles stand in the header of every page.
    void writeTitle(const Band& band) {
        if (!inHeader_) out_ << "{\\header\n";
        inHeader_ = true;
        if (band.cells.size() == 1) {
            out_ << "\\pard\\qc";
            writeText(band.cells[0]);
        } else {
            out_ << "\\pard\\ql\\tqc\\tx" << twips(body_.width() / 2) << "\\tqr\\tx" << twips(body_.width());
            for (const Cell& cell : band.cells) {
                if (&cell != &band.cells.front()) out_ << "\\tab";
                writeText(cell);
            }
        }
        out_ << "\\par\n";
    }

    void closeHeader() {
        if (inHeader_) out_ << "\\pard\\fs8\\par}\n";
        inHeader_ = false;
    }

    /// Parts the rows above from those below, which may have other columns and heads of their own.
    void endTable(const char* first) {
        out_ << "\\pard" << first << "\\fs4\\par\n";
        inTable_ = false;
    }

    void writeHeading(const Band& band) {
        inTable_ = false;
        out_ << "\\pard\\keepn\\sb140\\sa40\\li" << band.indent * indentStep << (band.shaded ? "\\cbpat1" : "");
        writeText(band.cells[0]);
        out_ << "\\par\n";
    }

    void writeRow(const Band& band) {
        out_ << rowStart(band);
        const bool keep = band.isHeader();
        for (const Cell& cell : band.cells) {
            out_ << "\\pard\\intbl" << (keep ? "\\keepn" : "") << cellStart_ << alignmentWord(cell.alignment);
            writeText(cell);
            out_ << "\\cell";
        }
        out_ << "\\row\n";
    }

    /// What defines a row. Most rows are as the one before, which is remembered.
    const QByteArray& rowStart(const Band& band) {
        const bool same = rowKind_ == band.kind && rowEdges_ == edgesOf(band) && rowIndent_ == band.indent &&
                          rowHeight_ == band.height && rowShaded_ == band.shaded &&
                          std::equal(shares_.begin(), shares_.end(), band.cells.begin(), band.cells.end(),
                                     [](double share, const Cell& cell) { return share == cell.share; });
        if (same) return row_;
        rowKind_ = band.kind;
        rowEdges_ = edgesOf(band);
        rowIndent_ = band.indent;
        rowHeight_ = band.height;
        rowShaded_ = band.shaded;
        shares_.clear();
        for (const Cell& cell : band.cells) shares_.push_back(cell.share);
        makeRow(band);
        return row_;
    }

    static int edgesOf(const Band& band) {
        int edges = band.edges;
        if (band.above == Separation::Rule || band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals)
            edges |= TopEdge;
        if (band.kind == BandKind::ColumnHeads) edges |= BottomEdge;
        for (const Cell& cell : band.cells)
            if (cell.framed) edges |= TopEdge | BottomEdge | SideEdges | CellEdges;
        return edges;
    }

    void makeRow(const Band& band) {
        const int left = band.indent * indentStep;
        const int width = twips(body_.width()) - left;
        double shares = 0;
        for (const Cell& cell : band.cells) shares += cell.share;
        row_ =
            "\\trowd\\trgaph" + QByteArray::number(cellPadding) + "\\trleft" + QByteArray::number(left - cellPadding);
        row_ += "\\trkeep";
        if (band.kind == BandKind::ColumnHeads) row_ += "\\trhdr";
        if (band.height > 0)  // of labels exactly, of others at least
            row_ += "\\trrh" + QByteArray::number(twips(definition_.labels ? -band.height : band.height));
        double right = 0;
        for (size_t index = 0; index < band.cells.size(); ++index) {
            const bool first = index == 0 || (rowEdges_ & CellEdges);
            const bool last = index + 1 == band.cells.size();
            const auto edge = [&](bool wanted, const char* word) {
                if (wanted) row_ += word + QByteArray(line);
            };
            edge(rowEdges_ & TopEdge, "\\clbrdrt");
            edge(rowEdges_ & BottomEdge, "\\clbrdrb");
            edge((rowEdges_ & SideEdges) && first, "\\clbrdrl");
            edge((rowEdges_ & SideEdges) && last, "\\clbrdrr");
            if (band.shaded) row_ += "\\clcbpat1";
            if (definition_.labels) row_ += "\\clvertalc";
            right += band.cells[index].share;
            row_ += "\\cellx" + QByteArray::number(left + int(width * right / shares));
        }
        row_ += '\n';
    }

    void writeText(const Cell& cell) {
        QByteArray& block = out_.block();
        block += "\\f";
        block += char('0' + int(cell.style.typeface));
        block += "\\fs";
        block += QByteArray::number(qRound(cell.style.points * 2));
        if (!cell.label.isEmpty()) {
            block += ' ';
            addEscaped(block, cell.label);
            block += ' ';
        }
        if (cell.style.bold) block += "\\b";
        if (cell.style.italic) block += "\\i";
        if (cell.label.isEmpty() || cell.style.bold || cell.style.italic) block += ' ';
        addEscaped(block, cell.plainText());
        if (cell.style.bold) block += "\\b0";
        if (cell.style.italic) block += "\\i0";
    }

    TextOut out_;
    const ReportDefinition& definition_;
    QRectF body_;
    QByteArray cellStart_;
    bool inHeader_ = false;
    bool inTable_ = false;

    // The row before.
    QByteArray row_;
    std::vector<double> shares_;
    BandKind rowKind_ = BandKind::Title;
    int rowEdges_ = NoEdge;
    int rowIndent_ = 0;
    double rowHeight_ = 0;
    bool rowShaded_ = false;
};

}  // namespace

std::unique_ptr<BandWriter> rtfWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper) {
    return std::make_unique<RtfWriter>(file, definition, paper);
}

}  // namespace report
