#pragma once

#include <QString>
#include <QVariant>
#include <vector>

#include "platform/report/ReportDefinition.h"

namespace report {

enum class BandKind { Title, GroupHeader, ColumnHeads, Detail, GroupFooter, Totals };

/// A filled cell. Spreadsheets take the value, pages the text.
struct Cell {
    QString text{};
    QVariant value{};
    Format format = Format::Text;
    Alignment alignment = Alignment::Left;
    double share = 1;  ///< of the band's width, in proportion to the other cells
    int columns = 1;   ///< how many columns of the list it spans
    TextStyle style{};
};

/// What sets a row of several lines apart from the row above it.
enum class Separation { None, Space, Rule };

/// One filled line of a report.
struct Band {
    BandKind kind = BandKind::Detail;
    /// Depth in the report: the title below 0, then groups, column heads, rows, the parts of their sub-reports. A
    /// header holds until a band of its own or a lower level comes.
    int level = 0;
    int indent = 0;  ///< how many reports this one is nested in
    bool keepWithPrevious = false;
    bool startsPage = false;
    Separation above = Separation::None;
    std::vector<Cell> cells{};

    /// Headers are repeated when their rows run over to the next page.
    bool isHeader() const {
        return kind == BandKind::Title || kind == BandKind::GroupHeader || kind == BandKind::ColumnHeads;
    }
};

/// The bands of a report, one after the other.
class BandSource {
public:
    virtual ~BandSource() = default;
    /// Overwrites `band` with the next one. False behind the last.
    virtual bool next(Band& band) = 0;
};

}  // namespace report
