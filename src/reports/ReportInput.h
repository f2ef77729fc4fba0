#pragma once

#include <QDate>
#include <array>

#include "store/Globals.h"

/// What a report is made for: what was chosen on the selection screen, the league's preferences, and the day.
struct ReportInput {
    std::array<QString, 3> lists{};  ///< the texts of the three lists; empty where nothing is chosen
    bool byDivision = false;
    Globals globals{};
    QDate today{};
};
