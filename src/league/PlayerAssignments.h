#pragma once

#include <QWidget>

#include "league/clsTeam.h"

class ListMover;
class QLabel;
struct Program;

/// Who plays on a team: the players of its division who have none yet, and those of no division, beside those on the
/// team, each with a score. Every move is written at once.
class PlayerAssignments final : public QWidget {
    Q_OBJECT

public:
    explicit PlayerAssignments(Program& program);
    /// Both names are empty where no team is shown.
    void setTeam(const QString& division, const QString& team);

Q_SIGNALS:
    /// For the status line.
    void said(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    enum class Move { ToTeam, FromTeam };

    QWidget* header();
    /// Fills both lists, now or when they come into view.
    void refresh();
    void LoadUnassignedPlayers();
    void LoadTeamPlayers();
    void AssignPlayerToTeam(int index);
    void RemovePlayerFromTeam(int index);
    bool isPlayer(const QString& entry) const;
    /// Writes the move; false when division or team are gone, which the user has been told.
    bool write(Move move, const QString& entry);
    bool findTeam();
    void showFigures();

    Program& program_;
    clsTeam team_;  ///< looks up what the labels name
    QLabel* division_;
    QLabel* teamName_;
    QLabel* numberPlayers_;
    QLabel* average_;
    ListMover* players_;
};
