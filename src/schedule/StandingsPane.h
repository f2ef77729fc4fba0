#pragma once

#include "schedule/GamesPane.h"
#include "schedule/clsResults.h"

class Grid;

/// The teams of a division in the order of their results. They are computed whenever they are looked at.
class StandingsPane final : public GamesPane {
    Q_OBJECT

public:
    explicit StandingsPane(Program& program);

private:
    Grid* makeGrid();
    void showDivision(Shown how) override;

    clsResults results_;
    Grid* grid_;
};
