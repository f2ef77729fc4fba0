#include <QCoreApplication>
#include <QTemporaryFile>
#include <algorithm>
#include <numeric>

#include "platform/files/Files.h"
#include "platform/report/BandWriter.h"
#include "platform/report/CompoundFile.h"
#include "platform/report/FontBook.h"
#include "platform/report/XlsRecords.h"
#include "platform/text/Money.h"
#include "platform/text/Numbers.h"

namespace report {

namespace {

constexpr int mostRows = 65536;
constexpr int mostColumns = 256;
constexpr int firstCellFormat = 15;  ///< those before it belong to styles

enum FontNumber { Plain, Bold, Large, Italic };
enum NumberFormatNumber { General = 0, Whole = 1, TwoPlaces = 2, AsText = 49, MoneyFormat = 164 };

/// The number formats that are not built in, from MoneyFormat on.
constexpr const char* numberFormats[] = {"$#,##0.00;($#,##0.00)", "m/d/yyyy", "h:mm AM/PM", "0.0", "0.000", "0.0000"};
constexpr int dateFormat = MoneyFormat + 1;
constexpr int timeFormat = MoneyFormat + 2;

/// By the digits behind the point of a number as it is printed.
int formatForPlaces(const QString& text) {
    constexpr int formats[] = {Whole, MoneyFormat + 3, TwoPlaces, MoneyFormat + 4, MoneyFormat + 5};
    const qsizetype point = text.indexOf(u'.');
    const qsizetype places = point < 0 ? 0 : text.size() - point - 1;
    return places < qsizetype(std::size(formats)) ? formats[places] : General;
}

/// The look of a cell.
struct CellLook {
    int font = Plain;
    int numberFormat = AsText;
    int alignment = 0;  ///< as the file counts: 1 left, 2 center, 3 right
    bool shaded = false;
    bool ruleAbove = false;
    bool ruleBelow = false;
    bool operator==(const CellLook&) const = default;
};

struct Number {
    double value;
    int format;
};

bool isNumber(const QVariant& value) {
    const int type = value.typeId();
    return type == QMetaType::Double || type == QMetaType::Int || type == QMetaType::LongLong;
}

/// The number behind a cell's text, if the whole text is one.
std::optional<Number> numberIn(const Cell& cell) {
    if (!cell.label.isEmpty() || cell.text.isEmpty()) return std::nullopt;
    switch (cell.format) {
        case Format::Money:
            if (const auto amount = Money::parse(cell.text)) return Number{double(amount->cents) / 100, MoneyFormat};
            return std::nullopt;
        case Format::Date: {
            const auto date = cell.text == formatted(cell.value, Format::Date) ? dateOf(cell.value) : std::nullopt;
            const auto serial = date ? serialOf(*date) : std::nullopt;
            return serial ? std::optional(Number{*serial, dateFormat}) : std::nullopt;
        }
        case Format::Time: {
            const auto time = cell.text == formatted(cell.value, Format::Time) ? timeOf(cell.value) : std::nullopt;
            return time ? std::optional(Number{time->msecsSinceStartOfDay() / 86400e3, timeFormat}) : std::nullopt;
        }
        case Format::Number: break;
        default:  // numbers of the data file; codes and phones are texts there
            if (!isNumber(cell.value)) return std::nullopt;
    }
    const auto shown = Decimal::parse(cell.text);
    if (!shown) return std::nullopt;
    return Number{shown->toDouble(), formatForPlaces(cell.text)};
}

QString textOf(const Cell& cell) {
    return cell.label.isEmpty() ? cell.plainText() : QString(cell.label % u' ' % cell.plainText());
}

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
            addText(0, cell.text, {title ? Large : cell.style.bold ? Bold : Plain, AsText, 1});
            endRow();
        }
    }

    void writeRow(const Band& band) {
        const bool totals = band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals;
        int column = band.indent;
        for (const Cell& cell : band.cells) {
            if (column >= mostColumns) break;
            CellLook look;
            look.font = cell.style.bold ? Bold : cell.style.italic ? Italic : Plain;
            look.alignment = cell.alignment == Alignment::Left ? 1 : cell.alignment == Alignment::Center ? 2 : 3;
            look.shaded = band.shaded;
            look.ruleAbove = totals;
            look.ruleBelow = band.kind == BandKind::ColumnHeads;
            if (const auto number = numberIn(cell)) {
                look.numberFormat = number->format;
                addNumber(column, number->value, look);
            } else {
                const QString text = textOf(cell);
                if (!text.isEmpty()) addText(column, text, look);
            }
            column += std::max(1, cell.columns);
        }
        sheets_.back().columns = std::max(sheets_.back().columns, std::min(column, mostColumns));
        endRow();
    }

    void addText(int column, const QString& text, const CellLook& look) {
        XlsRecords record(block_);
        record.begin(XlsRecords::TextCell).u16(row_).u16(column).u16(formatNumberOf(look));
        record.u32(texts_.numberOf(text)).end();
    }

    void addNumber(int column, double value, const CellLook& look) {
        XlsRecords record(block_);
        record.begin(XlsRecords::NumberCell).u16(row_).u16(column).u16(formatNumberOf(look)).real(value).end();
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

    int formatNumberOf(const CellLook& look) {
        auto found = std::find(looks_.begin(), looks_.end(), look);
        if (found == looks_.end()) found = looks_.insert(looks_.end(), look);
        return firstCellFormat + 1 + int(found - looks_.begin());
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
        for (const int font : {Plain, Bold, Large, Italic}) addFont(record, font);
        for (size_t index = 0; index < std::size(numberFormats); ++index)
            record.begin(XlsRecords::NumberFormat)
                .u16(MoneyFormat + int(index))
                .text(QString::fromLatin1(numberFormats[index]))
                .end();
        for (int index = 0; index < firstCellFormat; ++index) addStyleFormat(record, 0xfff5);
        addStyleFormat(record, 1);
        for (const CellLook& look : looks_) addCellFormat(record, look);
        record.begin(XlsRecords::CellStyle).u16(0x8000).u8(0).u8(0xff).end();
        for (size_t index = 0; index < sheets_.size(); ++index)
            record.begin(XlsRecords::SheetPlace).u32(sheets_[index].place).u16(0).text(sheetName(index), true).end();
        return bytes;
    }

    void addFont(XlsRecords& record, int font) const {
        const int twips = font == Large ? 280 : 200;
        const bool bold = font == Bold || font == Large;
        record.begin(XlsRecords::Font).u16(twips).u16(font == Italic ? 2 : 0).u16(0x7fff).u16(bold ? 700 : 400);
        record.u16(0).u8(0).u8(0).u8(0).u8(0).text(families(definition_.typeface).first(), true).end();
    }

    static void addStyleFormat(XlsRecords& record, int flags) {
        record.begin(XlsRecords::CellFormat).u16(0).u16(General).u16(flags).u8(0x20).u8(0).u8(0).u8(0);
        record.u32(0).u32(0).u16(0x20c0).end();
    }

    static void addCellFormat(XlsRecords& record, const CellLook& look) {
        constexpr int thin = 1;
        constexpr int gray = 22;
        constexpr int automatic = 64;
        const int borders = (look.ruleAbove ? thin << 8 : 0) | (look.ruleBelow ? thin << 12 : 0);
        const qint64 colors = qint64(automatic) | qint64(automatic) << 7 | (look.shaded ? qint64(1) << 26 : 0);
        record.begin(XlsRecords::CellFormat).u16(look.font).u16(look.numberFormat).u16(1).u8(0x20 | look.alignment);
        record.u8(0).u8(0).u8(0xfc).u32(borders).u32(colors);
        record.u16((look.shaded ? gray : automatic) | (automatic + 1) << 7).end();
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
        constexpr double usual = 18;  // characters
        const double total = definition_.landscape ? 130 : 95;
        const Line& columns = definition_.columns;
        const double shares = std::accumulate(columns.begin(), columns.end(), 0.0,
                                              [](double sum, const Column& column) { return sum + column.share; });
        for (int index = 0; index < count; ++index) {
            double width = usual;
            if (index < int(columns.size())) {
                const Column& column = columns[size_t(index)];
                width = std::clamp(column.share / shares * total, double(column.caption.size()) + 2, 80.0);
            }
            record.begin(XlsRecords::ColumnInfo).u16(index).u16(index).u16(int(width * 256)).u16(firstCellFormat);
            record.u16(0).u16(0).end();
        }
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
    std::vector<Sheet> sheets_;
    int row_ = 0;
    bool lastWasHeader_ = true;
    std::vector<Cell> heads_;
    std::vector<CellLook> looks_;
    SharedTexts texts_;
    Spool cells_;
    QByteArray block_;  ///< cells on their way to the spool
};

}  // namespace

std::unique_ptr<BandWriter> xlsWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper) {
    return std::make_unique<XlsWriter>(file, definition, paper);
}

}  // namespace report
