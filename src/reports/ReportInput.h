#pragma once

#include <QDate>
#include <array>
#include <optional>

#include "reports/LabelOptions.h"
#include "store/Globals.h"

/// Of a division's youngest and oldest players, as typed; an empty one limits nothing.
struct AgeLimits {
    QString minimum;
    QString maximum;
};

/// What a report is made for: what was chosen on the selection screen, the league's preferences, and the day.
struct ReportInput {
    std::array<QString, 3> lists{};   ///< the texts of the three lists; empty where nothing is chosen
    std::optional<int> divisionId{};  ///< of the live division in the second list; nothing means all divisions
    std::optional<int> teamId{};      ///< of that division's live team in the third list; nothing means all teams
    bool byDivision = false;
    std::optional<AgeLimits> ages{};  ///< in place of those that the division has
    Globals globals{};
    QDate today{};
    LabelOptions labels{};
};
