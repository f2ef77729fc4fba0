#pragma once

#include <QCoreApplication>

#include "reports/ReportTable.h"

/// Every report of the program, each in a file of its own name, and below them what several of them print.
class Reports {
    Q_DECLARE_TR_FUNCTIONS(Reports)

public:
    /// Everything that can be selected, in the order of the buttons.
    static std::vector<ReportCategory> table();

    /// Players of the season, by name.
    static report::ReportDefinition rptPlayerReport7(const ReportInput& input);

private:
    /// A report with its page header and footer.
    static report::ReportDefinition headed(const ReportInput& input, const QString& title);

    // Fields of a player's row.
    static report::Field playerAddress();
    static report::Field playerGuardians();
    /// The league age by the cut-off date of the division (DivAgeCutOffMonth, DivAgeCutOffDay) or, without, the
    /// default.
    static report::Field playerAge(const ReportInput& input);
};
