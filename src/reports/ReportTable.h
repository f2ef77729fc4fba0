#pragma once

#include <vector>

#include "platform/report/ReportDefinition.h"
#include "reports/ReportInput.h"

/// One choice within a category of the selection screen.
struct ReportOption {
    QString caption;
    report::ReportDefinition (*report)(const ReportInput& input) = nullptr;  ///< null: not in this version
};

/// One of the kinds of report that the selection screen offers, with its choices in the order of their buttons.
struct ReportCategory {
    QString caption;
    std::vector<ReportOption> options{};
};

inline constexpr int mostReportOptions = 7;  ///< of a category
