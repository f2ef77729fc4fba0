#include "reports/Reports.h"

using namespace report;

QueryText Reports::games() {
    return QueryText(
               "SELECT division AS DivName, [Date], [Day], [Time], VisitorsTeam, HomeTeam, [Field] FROM tblSchedule")
        .where("DeletedFlag = False");
}

Line Reports::gameColumns(std::initializer_list<Column> more) {
    Line columns{
        {tr("Date"), date("Date"), 9},        {tr("Day"), column("Day"), 9.5},
        {tr("Time"), time("Time"), 8},        {tr("Visitors"), column("VisitorsTeam"), 20},
        {tr("Home"), column("HomeTeam"), 20},
    };
    columns.insert(columns.end(), more);
    return columns;
}

Column Reports::gameDivision() { return {tr("Division"), column("DivName"), 20}; }
Column Reports::gameField() { return {tr("Field"), column("Field"), 24}; }
