#include "schedule/StandingsPane.h"

#include "platform/widgets/Grid.h"
#include "shell/Program.h"

StandingsPane::StandingsPane(Program& program)
    : GamesPane(program,
                {.tag = "Standings",
                 .caption = tr("Division Standings"),
                 .searchName = "cboStandingsDivision",
                 .moveName = "cmdStandingsMove"},
                {}),
      results_(program.store),
      grid_(makeGrid()) {
    place(grid_);
}

Grid* StandingsPane::makeGrid() {
    const auto number = [](const QString& caption) {
        return GridColumn{.caption = caption, .characters = 8, .alignment = Qt::AlignHCenter};
    };
    auto* grid = new Grid({number(tr("Rank")),
                           {tr("Team Name"), 30},
                           {.caption = tr("SponsorName"), .characters = 30, .stretches = true},
                           number(tr("Wins")),
                           number(tr("Losses")),
                           number(tr("Ties")),
                           {.caption = tr("Win Percent"), .characters = 10, .alignment = Qt::AlignHCenter}});
    grid->setObjectName("flxGridStandings");
    grid->setAccessibleName(tr("Standings"));
    grid->setEmptyText(tr("No Records available for the division."));
    return grid;
}

/// Only a division that the user chose is worth a box when there is nothing to rank.
void StandingsPane::showDivision(Shown how) {
    std::vector<GridRow> rows;
    if (divisionId() != 0 && results_.BuildStandings(divisionId(), how == Shown::Picked))
        for (const Standing& place : results_.standings())
            rows.push_back(
                {{QString::number(place.rank), place.teamName, place.sponsorName, QString::number(place.wins),
                  QString::number(place.losses), QString::number(place.ties), place.winPercentage}});
    grid_->setRows(std::move(rows));
}
