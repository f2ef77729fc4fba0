#pragma once

#include <QString>
#include <QVariant>
#include <vector>

#include "platform/report/ReportDefinition.h"

namespace report {

enum class BandKind { Title, GroupHeader, ColumnHeads, Detail, GroupFooter, Totals };

/// A filled cell. Spreadsheets take the value, pages the text.
struct Cell {
    QString label{};  ///< stands before the text
    QString text{};   ///< of a check box, "[ ] " or "[x] " and its caption; of a cell to be filled in, with blankRule
    QVariant value{};
    Format format = Format::Text;
    Alignment alignment = Alignment::Left;
    double share = 1;  ///< of the band's width, in proportion to the other cells
    int columns = 1;   ///< how many columns of the list it spans
    TextStyle style{};
    int fillIn = 0;  ///< rules to write on, in the place of the blankRule
    bool framed = false;
    bool gap = false;            ///< white between reports that stand side by side: rules are interrupted
    std::optional<QRectF> at{};  ///< placed freely, in points from the band's upper left corner

    bool isCheckBox() const { return format == Format::Box; }
    bool isChecked() const { return isCheckBox() && text.startsWith(QLatin1String("[x]")); }
    /// The text beside a check box or before a rule to write on; for all other cells their text.
    QStringView words() const;
    /// The text for files: the check box as a character, each rule to write on as a line of its own.
    QString plainText() const;
};

/// What sets a row of several lines apart from the row above it.
enum class Separation { None, Space, Rule };

/// A box may go around several bands.
enum Edge { NoEdge = 0, TopEdge = 1, BottomEdge = 2, SideEdges = 4, CellEdges = 8 };

/// One filled line of a report.
struct Band {
    BandKind kind = BandKind::Detail;
    /// Depth in the report: the title below 0, then groups, column heads, rows, the parts of their sub-reports. A
    /// header holds until a band of its own or a lower level comes.
    int level = 0;
    int indent = 0;  ///< how many reports this one is nested in
    bool keepWithPrevious = false;
    bool sameBlock = false;  ///< a row of its own that stays with the band above it where one page holds both
    bool startsPage = false;
    Separation above = Separation::None;
    double space = 0;   ///< points of white above
    double height = 0;  ///< at least, in points
    int edges = NoEdge;
    bool shaded = false;
    std::vector<Cell> cells{};

    /// Headers are repeated when their rows run over to the next page.
    bool isHeader() const {
        return kind == BandKind::Title || kind == BandKind::GroupHeader || kind == BandKind::ColumnHeads;
    }
    /// Makes a blank band of it that keeps the room of its cells for others.
    void reset() {
        std::vector<Cell> room = std::move(cells);
        *this = Band();
        cells = std::move(room);
        cells.clear();
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
