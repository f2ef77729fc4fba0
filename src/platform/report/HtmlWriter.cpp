#include <QCoreApplication>
#include <algorithm>
#include <numeric>

#include "platform/report/BandWriter.h"
#include "platform/report/FontBook.h"
#include "platform/report/TextOut.h"

namespace report {

namespace {

constexpr char styles[] =
    "body{margin:24pt auto;padding:0 12pt;color:#000;background:#fff}\n"
    "header{text-align:center;position:relative;margin-bottom:8pt}\n"
    "h1{font-size:175%;margin:0 0 4pt}\n"
    "header p{margin:0;font-weight:bold;font-size:130%}\n"
    "header .asof{font-weight:normal;font-size:100%;text-align:right}\n"
    "h2,h3{font-size:110%;margin:10pt 0 2pt;break-after:avoid}\n"
    "h2{background:#e9edf2;padding:2pt 4pt}\n"
    "table{border-collapse:collapse;table-layout:fixed;width:100%}\n"
    "td,th{padding:1.5pt 4pt 1.5pt 0;text-align:left;vertical-align:top;font-weight:normal;overflow-wrap:anywhere}\n"
    "td.a,th.a{text-align:right}td.c,th.c{text-align:center}\n"
    "th,.t td{font-weight:bold}thead th{border-bottom:1px solid #80868e}\n"
    ".t td{border-top:1px solid #80868e}.s td{background:#e9edf2;font-weight:bold}\n"
    ".u td{border-top:1px solid #80868e}\n"
    "td.f{border:1px solid #80868e;padding-left:3pt}\n"
    "tr{break-inside:avoid}b{font-weight:bold}i{font-style:italic}\n"
    "footer{margin-top:16pt;font:8pt Arial,sans-serif}\n";

/// Text with the characters that mean something to a browser written so that they do not.
void addEscaped(QByteArray& out, QStringView text) {
    qsizetype start = 0;
    const auto copy = [&](qsizetype end) {
        for (qsizetype at = start; at < end; ++at) {
            if (text[at].unicode() < 0x80) {
                out += char(text[at].unicode());
                continue;
            }
            qsizetype last = at;
            while (last < end && text[last].unicode() >= 0x80) ++last;
            out += text.mid(at, last - at).toUtf8();
            at = last - 1;
        }
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char* instead = nullptr;
        switch (text[at].unicode()) {
            case u'&': instead = "&amp;"; break;
            case u'<': instead = "&lt;"; break;
            case u'>': instead = "&gt;"; break;
            case u'"': instead = "&quot;"; break;
            case u'\n': instead = "<br>"; break;
            case u' ':  // a browser takes several for one
                if (at == 0 || text[at - 1] != u' ') continue;
                instead = "&nbsp;";
                break;
            case 0: instead = "&#65533;"; break;
            default: continue;
        }
        copy(at);
        out += instead;
        start = at + 1;
    }
    copy(text.size());
}

QByteArray escaped(const QString& text) {
    QByteArray out;
    addEscaped(out, text);
    return out;
}

QByteArray familyList(Typeface typeface) {
    QByteArray list;
    for (const QString& family : families(typeface)) list += '\'' + family.toUtf8() + "',";
    return list + (typeface == Typeface::Label ? "serif" : "sans-serif");
}

class HtmlWriter final : public BandWriter {
public:
    HtmlWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper)
        : out_(file), definition_(definition) {
        const QPageSize size = paper.pageSize();
        out_ << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>"
             << escaped(definition.title)
             << "</title>\n<style>\n@page{size:" << (size.id() == QPageSize::A4 ? "A4 " : "letter ")
             << (definition.landscape ? "landscape" : "portrait")
             << ";margin:0.5in}\nbody{font-family:" << familyList(definition.typeface)
             << ";font-size:" << QByteArray::number(definition.points)
             << "pt;max-width:" << QByteArray::number(paper.paintRect(QPageLayout::Point).width()) << "pt}\n"
             << styles << "</style>\n</head>\n<body>\n";
    }

    void write(const Band& band) override {
        if (band.kind == BandKind::Title) return writeTitle(band);
        if (band.kind == BandKind::GroupHeader && band.cells.size() == 1) return writeHeading(band);
        if (!fits(band)) openTable(band);
        if (band.kind != BandKind::ColumnHeads && inHead_) {
            out_ << "</thead>\n";
            inHead_ = false;
        }
        writeRow(band);
    }

    void finish() override {
        closeTable();
        closeHeader();
        if (!definition_.footer.isEmpty()) out_ << "<footer>" << escaped(definition_.footer) << "</footer>\n";
        out_ << "</body>\n</html>\n";
        out_.flush();
    }

private:
    void writeTitle(const Band& band) {
        out_ << (inHeader_ ? "" : "<header>\n");
        inHeader_ = true;
        for (size_t index = 0; index < band.cells.size(); ++index) {
            const Cell& cell = band.cells[index];
            if (cell.text.isEmpty()) continue;
            const bool title = band.cells.size() > 1 && cell.alignment == Alignment::Center;
            out_ << (title                                ? "<h1>"
                     : cell.alignment == Alignment::Right ? "<p class=\"asof\">"
                                                          : "<p>")
                 << escaped(cell.text) << (title ? "</h1>\n" : "</p>\n");
        }
    }

    void closeHeader() {
        if (inHeader_) out_ << "</header>\n";
        inHeader_ = false;
    }

    void writeHeading(const Band& band) {
        closeTable();
        closeHeader();
        const char* const level = band.shaded ? "h2" : "h3";
        out_ << '<' << level << indentStyle(band) << '>' << escaped(band.cells[0].text) << "</" << level << ">\n";
    }

    static QByteArray indentStyle(const Band& band) {
        if (band.indent == 0) return {};
        return " style=\"margin-left:" + QByteArray::number(18 * band.indent) + "pt\"";
    }

    /// Whether the band is a row of the table that is open. Totals span its columns.
    bool fits(const Band& band) const {
        if (!inTable_ || band.kind == BandKind::ColumnHeads || band.indent != indent_) return false;
        if (band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals) {
            size_t columns = 0;
            for (const Cell& cell : band.cells) columns += size_t(cell.columns);
            return columns == shares_.size();
        }
        return band.cells.size() == shares_.size() &&
               std::equal(shares_.begin(), shares_.end(), band.cells.begin(),
                          [](double share, const Cell& cell) { return share == cell.share; });
    }

    void openTable(const Band& band) {
        closeTable();
        closeHeader();
        indent_ = band.indent;
        shares_.clear();
        for (const Cell& cell : band.cells) shares_.push_back(cell.share);
        const double all = std::accumulate(shares_.begin(), shares_.end(), 0.0);
        out_ << "<table" << indentTable(band) << "><colgroup>";
        for (const double share : shares_)
            out_ << "<col style=\"width:" << QByteArray::number(100 * share / all, 'f', 2) << "%\">";
        out_ << "</colgroup>\n";
        inTable_ = true;
        inHead_ = band.kind == BandKind::ColumnHeads;
        if (inHead_) out_ << "<thead>\n";
    }

    static QByteArray indentTable(const Band& band) {
        if (band.indent == 0) return {};
        const QByteArray points = QByteArray::number(18 * band.indent);
        return " style=\"margin-left:" + points + "pt;width:calc(100% - " + points + "pt)\"";
    }

    void closeTable() {
        if (inHead_) out_ << "</thead>\n";
        if (inTable_) out_ << "</table>\n";
        inTable_ = inHead_ = false;
    }

    void writeRow(const Band& band) {
        const bool totals = band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals;
        const bool bold = totals || band.shaded || inHead_;
        out_ << "<tr";
        if (totals)
            out_ << " class=\"t\"";
        else if (band.shaded)
            out_ << " class=\"s\"";
        else if (band.above == Separation::Rule || band.edges & TopEdge)
            out_ << " class=\"u\"";
        if (band.height > 0) out_ << " style=\"height:" << QByteArray::number(band.height) << "pt\"";
        out_ << '>';
        for (const Cell& cell : band.cells) writeCell(cell, band, bold);
        out_ << "</tr>\n";
    }

    void writeCell(const Cell& cell, const Band& band, bool bold) {
        const bool framed = cell.framed || (band.edges & CellEdges) != 0;
        out_ << (inHead_ ? "<th scope=\"col\"" : "<td");
        if (framed)
            out_ << " class=\"f\"";
        else if (cell.alignment != Alignment::Left)
            out_ << (cell.alignment == Alignment::Right ? " class=\"a\"" : " class=\"c\"");
        if (cell.columns > 1 && inTable_ && band.cells.size() != shares_.size())
            out_ << " colspan=\"" << cell.columns << '"';
        if (cell.style.points != definition_.points && !cell.text.isEmpty())
            out_ << " style=\"font-size:" << QByteArray::number(cell.style.points) << "pt\"";
        out_ << '>';
        QByteArray& block = out_.block();
        if (!cell.label.isEmpty()) {
            addEscaped(block, cell.label);
            block += ' ';
        }
        const bool ownBold = cell.style.bold && !bold;
        if (ownBold) block += "<b>";
        if (cell.style.italic) block += "<i>";
        addEscaped(block, cell.plainText());
        if (cell.style.italic) block += "</i>";
        if (ownBold) block += "</b>";
        out_ << (inHead_ ? "</th>" : "</td>");
    }

    TextOut out_;
    const ReportDefinition& definition_;
    std::vector<double> shares_;  ///< of the columns of the open table
    int indent_ = 0;
    bool inHeader_ = false;
    bool inTable_ = false;
    bool inHead_ = false;
};

}  // namespace

std::unique_ptr<BandWriter> htmlWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper) {
    return std::make_unique<HtmlWriter>(file, definition, paper);
}

}  // namespace report
