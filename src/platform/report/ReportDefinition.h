#pragma once

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
    QString caption{};  ///< the column's head; unused in the lines of a record
    Field field{};
    double share = 10;                     ///< of the line's width, in proportion to the other cells of the line
    std::optional<Alignment> alignment{};  ///< money stands at the right, all else at the left, if not said
    Total total = Total::None;             ///< printed in the group footers and at the end of the report
    bool bold = false;
};
using Line = std::vector<Column>;

/// Consecutive rows with the same value in a column. Groups stand from the outermost to the innermost and the query
/// sorts its rows that way.
struct Group {
    QString key{};
    Line header{};
    std::optional<Field> footer{};  ///< caption of the line of totals; without it the group has no footer
    bool startsPage = false;
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

/// What a report prints, as plain data. Whoever runs it has put selection, organisation and date into it; nothing here
/// reads a screen.
struct ReportDefinition {
    QString title{};         ///< in the page header; without a title there is no page header
    QString organization{};  ///< above the title
    QString asOf{};          ///< the report's date as text
    QString footer{};        ///< fixed text at the foot of every page
    Query query{};
    Typeface typeface = Typeface::List;
    double points = 9;  ///< size of the detail text
    bool landscape = false;
    std::vector<Group> groups{};
    Line columns{};                              ///< a list: heads and one line for each row
    std::vector<Line> lines{};                   ///< further lines of each row, or, without columns, a record of lines
    bool rowStartsPage = false;                  ///< each row on a page of its own
    std::vector<ReportDefinition> subReports{};  ///< printed under each row
    QStringList boundTo{};          ///< of a sub-report: the parent's columns that its query takes as values
    std::optional<Field> totals{};  ///< caption of the totals of the whole report
    std::optional<LabelSheet> labels{};
};

}  // namespace report
