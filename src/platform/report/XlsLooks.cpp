#include "platform/report/XlsLooks.h"

#include <algorithm>

#include "platform/text/Money.h"
#include "platform/text/Numbers.h"

namespace report {

namespace {

// Number formats that are built in.
constexpr int general = 0;
constexpr int whole = 1;
constexpr int twoPlaces = 2;

/// Those that are not, and their numbers.
constexpr const char* ownFormats[] = {"$#,##0.00;($#,##0.00)", "m/d/yyyy", "h:mm AM/PM", "0.0", "0.000", "0.0000"};
constexpr int moneyFormat = 164;
constexpr int dateFormat = moneyFormat + 1;
constexpr int timeFormat = moneyFormat + 2;

/// By the digits behind the point of a number as it is printed.
int formatForPlaces(const QString& text) {
    constexpr int formats[] = {whole, moneyFormat + 3, twoPlaces, moneyFormat + 4, moneyFormat + 5};
    const qsizetype point = text.indexOf(u'.');
    const qsizetype places = point < 0 ? 0 : text.size() - point - 1;
    return places < qsizetype(std::size(formats)) ? formats[places] : general;
}

bool isNumber(const QVariant& value) {
    const int type = value.typeId();
    return type == QMetaType::Double || type == QMetaType::Int || type == QMetaType::LongLong;
}

std::optional<double> fractionOfDay(const QVariant& value) {
    const auto time = timeOf(value);
    return time ? std::optional(time->msecsSinceStartOfDay() / 86400e3) : std::nullopt;
}

void addFont(XlsRecords& record, int font, const QString& family) {
    const int twips = font == CellLook::Large ? 280 : 200;
    const bool bold = font == CellLook::Bold || font == CellLook::Large;
    record.begin(XlsRecords::Font).u16(twips).u16(font == CellLook::Italic ? 2 : 0).u16(0x7fff).u16(bold ? 700 : 400);
    record.u16(0).u8(0).u8(0).u8(0).u8(0).text(family, true).end();
}

void addStyleLook(XlsRecords& record, int flags) {
    record.begin(XlsRecords::CellFormat).u16(0).u16(general).u16(flags).u8(0x20).u8(0).u8(0).u8(0);
    record.u32(0).u32(0).u16(0x20c0).end();
}

int alignmentNumber(Alignment alignment) {
    return alignment == Alignment::Left ? 1 : alignment == Alignment::Center ? 2 : 3;
}

void addCellLook(XlsRecords& record, const CellLook& look) {
    constexpr int thin = 1;
    constexpr int gray = 22;
    constexpr int automatic = 64;
    const int borders = (look.ruleAbove ? thin << 8 : 0) | (look.ruleBelow ? thin << 12 : 0);
    const qint64 colors = qint64(automatic) | qint64(automatic) << 7 | (look.shaded ? qint64(1) << 26 : 0);
    record.begin(XlsRecords::CellFormat).u16(look.font).u16(look.numberFormat).u16(1);
    constexpr int top = 0, wrap = 8;
    record.u8(top | (look.wrapped ? wrap : 0) | alignmentNumber(look.alignment))
        .u8(0)
        .u8(0)
        .u8(0xfc)
        .u32(borders)
        .u32(colors);
    record.u16((look.shaded ? gray : automatic) | (automatic + 1) << 7).end();
}

}  // namespace

std::optional<XlsNumber> numberIn(const Cell& cell) {
    if (!cell.label.isEmpty() || cell.text.isEmpty()) return std::nullopt;
    std::optional<double> number;
    switch (cell.format) {
        case Format::Money:
            if (const auto amount = Money::parse(cell.text)) return XlsNumber{double(amount->cents) / 100, moneyFormat};
            return std::nullopt;
        case Format::Date:
        case Format::Time: {
            if (cell.text != formatted(cell.value, cell.format)) return std::nullopt;
            const bool isDate = cell.format == Format::Date;
            number = isDate ? serialOf(dateOf(cell.value).value_or(QDate())) : fractionOfDay(cell.value);
            if (!number) return std::nullopt;
            return XlsNumber{*number, isDate ? dateFormat : timeFormat};
        }
        case Format::Number: break;
        default:
            if (!isNumber(cell.value)) return std::nullopt;
    }
    const auto shown = Decimal::parse(cell.text);
    if (!shown) return std::nullopt;
    return XlsNumber{shown->toDouble(), formatForPlaces(cell.text)};
}

int XlsLooks::numberOf(const CellLook& look) {
    auto found = std::find(looks_.begin(), looks_.end(), look);
    if (found == looks_.end()) found = looks_.insert(looks_.end(), look);
    return usual + 1 + int(found - looks_.begin());
}

void XlsLooks::write(XlsRecords& record, const QString& family) const {
    for (const int font : {CellLook::Plain, CellLook::Bold, CellLook::Large, CellLook::Italic})
        addFont(record, font, family);
    for (size_t index = 0; index < std::size(ownFormats); ++index)
        record.begin(XlsRecords::NumberFormat)
            .u16(moneyFormat + int(index))
            .text(QString::fromLatin1(ownFormats[index]))
            .end();
    for (int style = 0; style < usual; ++style) addStyleLook(record, 0xfff5);
    addStyleLook(record, 1);
    for (const CellLook& look : looks_) addCellLook(record, look);
    record.begin(XlsRecords::CellStyle).u16(0x8000).u8(0).u8(0xff).end();
}

}  // namespace report
