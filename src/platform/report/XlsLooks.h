#pragma once

#include "platform/report/Band.h"
#include "platform/report/XlsRecords.h"

namespace report {

/// How a cell of a workbook looks.
struct CellLook {
    enum Font { Plain, Bold, Large, Italic };
    static constexpr int asText = 49;  ///< the number format of what stays a text, even when it is edited

    Font font = Plain;
    int numberFormat = asText;
    Alignment alignment = Alignment::Left;
    bool shaded = false;
    bool ruleAbove = false;
    bool ruleBelow = false;
    bool wrapped = false;  ///< else a long text runs over the empty cells beside it
    bool operator==(const CellLook&) const = default;
};

/// A number as spreadsheets keep it, with the number of the format that shows it as it is printed.
struct XlsNumber {
    double value;
    int format;
};

/// The number behind a cell: an amount of money, a date, a time, a number of the data file. Nothing where the cell says
/// anything else or more; postal codes and phones are texts.
std::optional<XlsNumber> numberIn(const Cell& cell);

/// The looks of all cells of a workbook, numbered as they come.
class XlsLooks {
public:
    static constexpr int usual = 15;  ///< those before it belong to styles

    int numberOf(const CellLook& look);
    /// The fonts, number formats and looks, in the order that a workbook wants.
    void write(XlsRecords& record, const QString& family) const;

private:
    std::vector<CellLook> looks_;
};

}  // namespace report
