#include <QCoreApplication>
#include <QTemporaryFile>
#include <algorithm>
#include <numeric>

#include "platform/files/Files.h"
#include "platform/report/BandWriter.h"
#include "platform/report/CompoundFile.h"
#include "platform/report/FontBook.h"
#include "platform/report/XlsLooks.h"

namespace report {

namespace {

constexpr int mostRows = 65536;
constexpr int mostColumns = 256;
/// A file for what does not fit into memory; what fails is raised.
class Spool {
public:
    Spool() {
        if (!file_.open()) fail();
    }
    qint64 size() const { return size_; }
    void write(const QByteArray& bytes) {
        if (file_.write(bytes) != bytes.size()) fail();
        size_ += bytes.size();
    }
    void copyTo(QIODevice& target, qint64 from, qint64 to) {
        if (!file_.flush() || !file_.seek(from)) fail();
        while (from < to) {
            const QByteArray block = file_.read(std::min<qint64>(to - from, 1 << 18));
            if (block.isEmpty()) fail();
            target.write(block);
            from += block.size();
        }
    }

private:
    [[noreturn]] void fail() const { throw files::Error(file_.errorString(), 0); }

    QTemporaryFile file_;
    qint64 size_ = 0;
};

class XlsWriter final : public BandWriter {
public:
    XlsWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper)
        : file_(file), definition_(definition), paper_(paper) {
        shares_ = sharesOf(definition.columns);
        sheets_.emplace_back();
    }

    void write(const Band& band) override {
        if (band.kind == BandKind::Title) return writeTitle(band);
        const bool apart = band.kind == BandKind::GroupHeader || band.kind == BandKind::ColumnHeads;
        if (apart && !lastWasHeader_ && row_ > 0 && row_ + 1 < mostRows) ++row_;
        lastWasHeader_ = band.isHeader();
        if (band.kind == BandKind::ColumnHeads) heads_ = band.cells;
        writeRow(band);
    }

    void finish() override {
        endSheet();
        const QByteArray globals = makeGlobals();
        qint64 length = globals.size() + texts_.size() + endRecord().size();
        std::vector<QByteArray> starts;
        for (size_t index = 0; index < sheets_.size(); ++index) {
            starts.push_back(sheetStart(index));
            sheets_[index].place = length;
            length += starts.back().size() + sheets_[index].end - sheets_[index].begin + sheetEnd(index).size();
        }
        const qint64 whole = std::max(length, CompoundFile::leastLength);
        CompoundFile container(file_, whole);
        container.begin();
        file_.write(makeGlobals());  // the places of the sheets are known now
        texts_.write(file_);
        file_.write(endRecord());
        for (size_t index = 0; index < sheets_.size(); ++index) {
            file_.write(starts[index]);
            cells_.copyTo(file_, sheets_[index].begin, sheets_[index].end);
            file_.write(sheetEnd(index));
        }
        file_.write(QByteArray(whole - length, '\0'));
        container.finish(QStringLiteral("Workbook"));
    }

private:
    struct Sheet {
        qint64 begin = 0;  ///< of its cells in the spool
        qint64 end = 0;
        int rows = 0;
        int columns = 0;
        qint64 place = 0;  ///< in the file's stream
    };

    void writeTitle(const Band& band) {
        for (const Cell& cell : band.cells) {
            if (cell.text.isEmpty()) continue;
            const bool title = band.cells.size() > 1 && cell.alignment == Alignment::Center;
            addText(0, cell.text, {title ? CellLook::Large : cell.style.bold ? CellLook::Bold : CellLook::Plain});
            endRow();
        }
    }

    void writeRow(const Band& band) {
        const bool totals = band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals;
        const bool ofList = band.kind == BandKind::Detail && !definition_.columns.empty();
        const bool listed = ofList && !band.keepWithPrevious;
        addRowHeight(band, listed);
        const double shares = sharesOf(band.cells);
        double start = 0;  // of the cell, as a part of the row's width
        int column = band.indent;
        for (const Cell& cell : band.cells) {
            // A further line of a row has widths of its own.
            if (ofList && !listed && band.indent == 0) column = std::max(column, columnAt(start));
            start += cell.share / shares;
            if (ofList && !listed && cell.text.isEmpty()) continue;
            if (column >= mostColumns) break;
            CellLook look;
            look.font = cell.style.bold ? CellLook::Bold : cell.style.italic ? CellLook::Italic : CellLook::Plain;
            look.alignment = cell.alignment;
            look.shaded = band.shaded;
            look.ruleAbove = totals;
            look.ruleBelow = band.kind == BandKind::ColumnHeads;
            look.wrapped = listed || cell.text.contains(u'\n');
            if (const auto number = numberIn(cell)) {
                look.numberFormat = number->format;
                addNumber(column, number->value, look);
            } else if (!cell.label.isEmpty()) {
                addText(column, cell.label % u' ' % cell.plainText(), look);
            } else if (!cell.text.isEmpty()) {
                addText(column, cell.plainText(), look);
            }
            column += std::max(1, cell.columns);
        }
        sheets_.back().columns = std::max(sheets_.back().columns, std::min(column, mostColumns));
        endRow();
    }

    template <typename Cells>
    static double sharesOf(const Cells& cells) {
        return std::accumulate(cells.begin(), cells.end(), 0.0,
                               [](double sum, const auto& cell) { return sum + cell.share; });
    }

    /// The column of the list that begins nearest to a part of its width.
    int columnAt(double part) const {
        int nearest = 0;
        double start = 0, least = 1;
        for (size_t index = 0; index < definition_.columns.size(); ++index) {
            if (const double apart = std::abs(start - part); apart < least) least = apart, nearest = int(index);
            start += definition_.columns[index].share / shares_;
        }
        return nearest;
    }

    /// Of a row of several lines; spreadsheets do not all see to that themselves.
    void addRowHeight(const Band& band, bool wrapped) {
        constexpr int lineHeight = 270;  // in twentieths of a point
        qsizetype most = 1;
        int column = band.indent;
        for (const Cell& cell : band.cells) {
            qsizetype lines = 1 + cell.text.count(u'\n');
            const auto width = qsizetype(1.25 * widthOf(column));  // most letters are narrower than a digit
            if (wrapped && cell.text.size() > width) lines = std::max(lines, (cell.text.size() + width - 1) / width);
            most = std::max(most, lines);
            column += std::max(1, cell.columns);
        }
        if (most == 1) return;
        XlsRecords record(block_);
        record.begin(XlsRecords::Row)
            .u16(row_)
            .u16(0)
            .u16(mostColumns)
            .u16(int(std::min<qsizetype>(most, 20)) * lineHeight);
        record.u32(0).u32(0x100).end();
    }

    void addText(int column, const QString& text, const CellLook& look) {
        XlsRecords record(block_);
        record.begin(XlsRecords::TextCell).u16(row_).u16(column).u16(looks_.numberOf(look));
        record.u32(texts_.numberOf(text)).end();
    }

    void addNumber(int column, double value, const CellLook& look) {
        XlsRecords record(block_);
        record.begin(XlsRecords::NumberCell).u16(row_).u16(column).u16(looks_.numberOf(look)).real(value).end();
    }

    /// A sheet that is full goes on in a further one, under the same heads.
    void endRow() {
        constexpr qsizetype blockSize = 1 << 16;
        ++row_;
        if (block_.size() >= blockSize) passOn();
        if (row_ < mostRows) return;
        endSheet();
        const Sheet next{.begin = cells_.size(), .columns = sheets_.back().columns};
        sheets_.push_back(next);
        row_ = 0;
        if (heads_.empty()) return;
        Band heads;
        heads.kind = BandKind::ColumnHeads;
        heads.cells = heads_;
        writeRow(heads);
    }

    void passOn() {
        cells_.write(block_);
        block_.resize(0);
    }

    void endSheet() {
        passOn();
        sheets_.back().end = cells_.size();
        sheets_.back().rows = row_;
    }

    static QByteArray endRecord() {
        QByteArray bytes;
        XlsRecords(bytes).begin(XlsRecords::Eof).end();
        return bytes;
    }

    static void beginStream(QByteArray& bytes, int kind) {
        XlsRecords record(bytes);
        record.begin(XlsRecords::Begin).u16(0x600).u16(kind).u16(0xdbb).u16(0x7cc).u32(0x41).u32(6).end();
    }

    /// What holds for the whole workbook, but for the texts of the cells.
    QByteArray makeGlobals() const {
        QByteArray bytes;
        XlsRecords record(bytes);
        beginStream(bytes, 5);
        record.begin(XlsRecords::CodePage).u16(1200).end();
        record.begin(XlsRecords::Window1).u16(0).u16(0).u16(0x4000).u16(0x2800).u16(0x38).u16(0).u16(0).u16(1);
        record.u16(600).end();
        record.begin(XlsRecords::DateMode).u16(0).end();
        looks_.write(record, families(definition_.typeface).first());
        for (size_t index = 0; index < sheets_.size(); ++index)
            record.begin(XlsRecords::SheetPlace).u32(sheets_[index].place).u16(0).text(sheetName(index), true).end();
        return bytes;
    }

    QString sheetName(size_t index) const {
        constexpr qsizetype longest = 31;
        QString name = definition_.title;
        for (QChar& character : name)
            if (QStringLiteral("[]:*?/\\").contains(character)) character = u'-';
        if (name.startsWith(u'\'')) name = name.mid(1);
        if (name.isEmpty()) name = QCoreApplication::translate("report", "Report");
        const QString number = index == 0 ? QString() : QStringLiteral(" (%1)").arg(index + 1);
        return name.left(longest - number.size()).trimmed() % number;
    }

    QByteArray sheetStart(size_t index) const {
        QByteArray bytes;
        XlsRecords record(bytes);
        beginStream(bytes, 0x10);
        record.begin(XlsRecords::SheetOptions).u16(0x5c1).end();  // as wide as the paper
        QString title = definition_.footer.left(120);
        title.replace(u'&', QStringLiteral("&&"));
        const QString page = QCoreApplication::translate("report", "Page %1 of %2");
        const QString foot =
            QStringLiteral("&L") % title % QStringLiteral("&R") % page.arg(QStringLiteral("&P"), QStringLiteral("&N"));
        record.begin(XlsRecords::Footer).text(foot).end();
        const bool isA4 = paper_.pageSize().id() == QPageSize::A4;
        record.begin(XlsRecords::PageSetup).u16(isA4 ? 9 : 1).u16(100).u16(1).u16(1).u16(0);
        record.u16(definition_.landscape ? 0 : 2).u16(600).u16(600).real(0.3).real(0.3).u16(1).end();
        addColumnWidths(record, sheets_[index].columns);
        record.begin(XlsRecords::Dimensions).u32(0).u32(sheets_[index].rows).u16(0).u16(sheets_[index].columns).u16(0);
        record.end();
        return bytes;
    }

    void addColumnWidths(XlsRecords& record, int count) const {
        for (int index = 0; index < count; ++index) {
            record.begin(XlsRecords::ColumnInfo).u16(index).u16(index).u16(int(widthOf(index) * 256));
            record.u16(XlsLooks::usual).u16(0).u16(0).end();
        }
    }

    /// Of a column, in characters.
    double widthOf(int index) const {
        constexpr double usual = 18;
        const double total = definition_.landscape ? 130 : 95;
        if (index >= int(definition_.columns.size())) return usual;
        const Column& column = definition_.columns[size_t(index)];
        return std::clamp(column.share / shares_ * total, double(column.caption.size()) + 2, 80.0);
    }

    static QByteArray sheetEnd(size_t index) {
        QByteArray bytes;
        XlsRecords record(bytes);
        record.begin(XlsRecords::Window2).u16(index == 0 ? 0x6b6 : 0xb6).zeros(4).u32(64).zeros(8).end();
        return bytes + endRecord();
    }

    QIODevice& file_;
    const ReportDefinition& definition_;
    QPageLayout paper_;
    double shares_ = 0;  ///< of all columns
    std::vector<Sheet> sheets_;
    int row_ = 0;
    bool lastWasHeader_ = true;
    std::vector<Cell> heads_;
    XlsLooks looks_;
    SharedTexts texts_;
    Spool cells_;
    QByteArray block_;  ///< cells on their way to the spool
};

}  // namespace

std::unique_ptr<BandWriter> xlsWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper) {
    return std::make_unique<XlsWriter>(file, definition, paper);
}

}  // namespace report
