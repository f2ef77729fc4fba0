#pragma once

#include <functional>

#include "platform/report/ReportDefinition.h"
#include "reports/ReportInput.h"

struct StoreContext;

/// A report ready to run.
struct LeagueReport {
    LeagueReport(report::ReportDefinition how, std::function<void(StoreContext&)> work = {})
        : definition(std::move(how)), prepare(std::move(work)) {}

    report::ReportDefinition definition;
    std::function<void(StoreContext&)> prepare;  ///< fills the work table that the query reads; mostly there is none
};

using MakeReport = LeagueReport (*)(const ReportInput& input);
