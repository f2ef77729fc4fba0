#pragma once

#include <QDate>
#include <QHash>
#include <QIODevice>
#include <optional>
#include <vector>

namespace report {

/// The records that workbooks of the Excel 97 format (BIFF8) are made of: a number, a length, the content.
class XlsRecords {
public:
    enum Kind : quint16 {
        Eof = 0x0a,
        DateMode = 0x22,
        Footer = 0x15,
        Font = 0x31,
        Continue = 0x3c,
        Window1 = 0x3d,
        CodePage = 0x42,
        ColumnInfo = 0x7d,
        SheetOptions = 0x81,
        SheetPlace = 0x85,
        PageSetup = 0xa1,
        CellFormat = 0xe0,
        SharedTexts = 0xfc,
        TextCell = 0xfd,
        Dimensions = 0x200,
        NumberCell = 0x203,
        Row = 0x208,
        Window2 = 0x23e,
        CellStyle = 0x293,
        NumberFormat = 0x41e,
        Begin = 0x809
    };

    explicit XlsRecords(QByteArray& out) : out_(out) {}
    XlsRecords& begin(Kind kind);
    XlsRecords& u8(int number) { return out_ += char(number), *this; }
    XlsRecords& u16(int number) { return u8(number & 0xff).u8(number >> 8 & 0xff); }
    XlsRecords& u32(qint64 number) { return u16(int(number & 0xffff)).u16(int(number >> 16 & 0xffff)); }
    XlsRecords& real(double number);
    XlsRecords& zeros(int count) { return out_.append(count, '\0'), *this; }
    /// A text with its length before it in one byte or two.
    XlsRecords& text(const QString& text, bool shortLength = false);
    /// Sets the length of the record that was begun.
    void end();

private:
    QByteArray& out_;
    qsizetype start_ = 0;
};

/// The texts of all cells, each kept once.
class SharedTexts {
public:
    /// The number that cells name the text by.
    quint32 numberOf(const QString& text);
    /// How many bytes write() will write.
    qint64 size() const;
    void write(QIODevice& file) const;

private:
    void add(const QString& text);

    static constexpr qsizetype mostInRecord = 8224;

    QHash<QString, quint32> numbers_;
    qint64 uses_ = 0;
    QByteArray content_;             ///< of the record and those that continue it
    std::vector<qsizetype> starts_;  ///< of the continuing records' content
    qsizetype room_ = mostInRecord - 8;
};

/// A date as the number of days by which spreadsheets keep it; nothing before their first whole year.
std::optional<double> serialOf(QDate date);

}  // namespace report
