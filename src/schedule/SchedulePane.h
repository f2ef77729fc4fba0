#pragma once

#include "schedule/GamesPane.h"
#include "schedule/clsSchedule.h"

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
    bool ValidateSchedule();
    void SaveScheduleGrid(const QString& division);

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
