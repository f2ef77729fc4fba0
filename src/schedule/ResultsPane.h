#pragma once

#include "schedule/GamesPane.h"
#include "schedule/clsResults.h"

class Form;
class Grid;

/// The games that a division has played: one in the fields, all of them in a grid. Two teams and a date bring up their
/// game of that day.
class ResultsPane final : public GamesPane {
    Q_OBJECT

public:
    explicit ResultsPane(Program& program);

    bool canAdd() const override { return divisionId() != 0; }
    bool canDelete() const override { return !isEditing() && results_.GameId != 0; }
    void addNew() override;
    bool save() override;
    void remove() override;
    void focusSearch() override;

private:
    struct Finding {
        const char* field;
        QString text;
    };
    /// The game as it stands in the fields.
    struct Entry {
        QString homeTeam{};
        int homeId = 0;
        QString visitorTeam{};
        int visitorId = 0;
        QDate date{};
        QString time{};
        QString homeScore{};
        QString visitorScore{};
        QString comments{};
    };

    Form* makeForm();
    Grid* makeGrid();

    void showEvent(QShowEvent* event) override;
    void showDivision(Shown how) override;
    void dropEdits() override;
    void readTeams();
    void LoadGamesPlayed();
    void ShowResultForTeams();
    void showGame();
    void showPicked(int row);
    void blank();
    void noteEdit(const QString& field);
    std::vector<Finding> findings() const;
    bool ValidateResult();
    void write();

    clsResults results_;  ///< the game in view; without a key where there is none
    Entry entry_;
    QDate soughtDate_;           ///< of the last look for a game
    QHash<QString, int> teams_;  ///< those to choose from
    Form* form_;
    Grid* grid_;
    struct Game {
        int homeTeam;
        int visitorTeam;
        QDate date;
        QTime time;
    };
    std::vector<Game> games_;  ///< those in the grid
};
