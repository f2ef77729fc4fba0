#pragma once

#include <QRectF>
#include <optional>
#include <vector>

#include "platform/report/Field.h"
#include "platform/report/TextStyle.h"

namespace report {

enum class Alignment { Left, Center, Right };
/// Sums are exact to the hundredth; what is no number counts as none.
enum class Total { None, Sum, Count };

/// One column of a list, or one cell of a line.
struct Column {
    QString caption{};  ///< the column's head; in a line, a label before the value, as wide as it needs
    Field field{};
    double share = 10;                     ///< of the line's width, in proportion to the other cells of the line
    std::optional<Alignment> alignment{};  ///< money and numbers stand at the right, all else at the left, if not said
    Total total = Total::None;             ///< printed in the group footers and at the end of the report
    bool bold = false;
    bool italic = false;
    double larger = 0;  ///< points more than the report's size, or less
    int fillIn = 0;     ///< an empty value leaves so many rules to write on
    bool framed = false;
    std::optional<QRectF> at{};  ///< placed freely, in points from the line's upper left corner, whatever the share
};

/// The cells of a line side by side, and what sets the line apart: `Line{{.field = fixed(tr("Doctor"))}}.heading()`.
struct Line : std::vector<Column> {
    enum class Frame {
        None,
        Box,     ///< one box around this line and the boxed ones next to it
        Grid,    ///< a box around each cell
        Heading  ///< on shaded ground, bold
    };

    using vector::vector;
    Line boxed() const { return with(&Line::frame, Frame::Box); }
    Line grid() const { return with(&Line::frame, Frame::Grid); }
    Line heading() const { return with(&Line::frame, Frame::Heading); }
    /// White space above.
    Line spaced(double points = 6) const { return with(&Line::space, points); }
    /// A rule above.
    Line ruled() const { return with(&Line::rule, true); }
    /// At least so high, in points.
    Line high(double points) const { return with(&Line::height, points); }
    /// Left out where all its fields are empty.
    Line ifFilled() const { return with(&Line::onlyFilled, true); }

    Frame frame = Frame::None;
    double space = 0;
    double height = 0;
    bool rule = false;
    bool onlyFilled = false;

private:
    template <typename Member, typename Value>
    Line with(Member Line::*member, Value value) const {
        Line line = *this;
        line.*member = value;
        return line;
    }
};

struct ReportDefinition;

/// Consecutive rows with the same value in a column, upper and lower case alike. Groups stand from the outermost to
/// the innermost and the query sorts its rows that way.
struct Group {
    QString key{};
    Line header{};                  ///< repeated, as continued, on each page that the group goes on to
    std::optional<Field> footer{};  ///< caption of the line of totals; without it the group has no footer
    bool startsPage = false;
    std::vector<Line> lines{};                    ///< under the header, once for each group
    std::vector<ReportDefinition> parts{};        ///< sub-reports under the header, bound to the group's first row
    std::vector<ReportDefinition> footerParts{};  ///< and such before the group's footer
};

/// A sheet of labels that are filled row by row. Lengths in points.
struct LabelSheet {
    int columns = 3;
    int rows = 10;
    double left = 13.5;  ///< from the paper's edge to the first label
    double top = 36;
    double across = 198;  ///< from one label's left edge to the next one's
    double down = 72;     ///< from one label's top to the next one's
    double inset = 10;    ///< from a label's edge to its text
    double width = 189;
    int skip = 0;  ///< labels already used on the first sheet
};

/// What a screen says in a box where a report has no rows.
struct NoData {
    QString title;
    QString text;
};

/// What a report prints, as plain data. Whoever runs it has put selection, organisation and date into it; nothing here
/// reads a screen.
///
/// Without a query's text there is one row in which every column is empty: a form to be filled in by hand.
struct ReportDefinition {
    QString title{};         ///< of the file and its window, and in the page header, which labels do not have
    QString organization{};  ///< above the title
    QString asOf{};          ///< the report's date as text
    QString footer{};        ///< fixed text at the foot of every page
    Query query{};
    Typeface typeface = Typeface::List;
    double points = 9;  ///< size of the detail text
    bool landscape = false;
    std::vector<Group> groups{};
    Line columns{};                              ///< a list: heads and one line for each row
    int across = 1;                              ///< so many rows of the list side by side
    std::vector<Line> lines{};                   ///< further lines of each row, or, without columns, a record of lines
    bool rowStartsPage = false;                  ///< each row on a page of its own
    std::vector<ReportDefinition> subReports{};  ///< printed under each row
    int subReportsAcross = 1;                    ///< so many of them side by side, those of rows and groups alike
    std::optional<Field> totals{};               ///< caption of the totals of the whole report
    std::optional<LabelSheet> labels{};
    std::optional<NoData> noData{};

    // Of a sub-report.
    QStringList boundTo{};  ///< the parent's columns whose values choose the rows
    QStringList keys{};   ///< this query's columns that must hold those values; the query then runs once for the whole
                          ///< report. Without keys it runs for each parent and takes the values for its placeholders.
    double share = 10;    ///< of the width, where sub-reports stand side by side
    QString whenEmpty{};  ///< printed in the place of rows; otherwise nothing is
};

/// The rule in the text of a cell that is to be filled in by hand.
inline constexpr QLatin1String blankRule("____________");

}  // namespace report
