#pragma once

#include "schedule/GamesPane.h"
#include "schedule/clsSchedule.h"

#include <optional>

class Grid;
class QAction;
class QMenu;

/// The games of a division in a grid. A save replaces them as a whole.
class SchedulePane final : public GamesPane {
    Q_OBJECT

public:
    explicit SchedulePane(Program& program);

    bool save() override;
    bool offerToSaveBeforeClosing() override;

private:
    Grid* makeGrid();
    QMenu* makeRowMenu();

    void showDivision(Shown how) override;
    void LoadScheduleGrid();
    /// The games in the grid; none, and the user knows why, where a date or a time is none.
    std::optional<std::vector<Game>> ValidateSchedule();
    void SaveScheduleGrid(const QString& division, const std::vector<Game>& games);

    void completeRow(int row, int column);
    void offerRowMenu(const QPoint& global);
    void touch();
    void addRow();
    void insertRow();
    void deleteRow();
    bool deleteGame(int id);

    clsSchedule schedule_;
    Grid* grid_;
    QAction* deleteEntry_ = nullptr;  ///< of the row menu, whose making sets it
    QMenu* rowMenu_;
    QString loadedDivision_;   ///< whose games stand in the grid
    bool wasEditing_ = false;  ///< when the current cell was entered
};
