#pragma once

#include <QString>
#include <vector>

#include "reports/LeagueReport.h"
#include "reports/ReportLists.h"

/// Which of the lists of divisions and teams an option uses.
enum class Scope { League, Division, Team };

/// What must be chosen before a report is made.
struct Demand {
    int list;         ///< 1 to 3, refused where that list's text is empty
    QString message;  ///< what the user is told
};

/// One choice within a category of the selection screen.
struct ReportOption {
    QString caption;
    MakeReport report = nullptr;     ///< null: nothing stands behind the option
    ListKind list = ListKind::None;  ///< of the first list
    Scope scope = Scope::League;
    std::vector<Demand> demands{};  ///< the first that is not met is told
    bool mayNarrow = false;         ///< "Select By Division" is offered: by its check, list and scope are used
    bool comparesAges = false;      ///< asks for the ages of the chosen division where they are no numbers
};

/// One of the kinds of report that the selection screen offers, with its choices in the order of their buttons.
struct ReportCategory {
    QString caption;
    std::vector<ReportOption> options{};
};

inline constexpr int mostReportOptions = 7;  ///< of a category
