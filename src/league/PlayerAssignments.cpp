#include "league/PlayerAssignments.h"

#include <QFormLayout>
#include <QLabel>
#include <QShowEvent>
#include <QVBoxLayout>

#include "league/ScoredPlayers.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/ListMover.h"
#include "registration/clsRegistration.h"
#include "shell/Program.h"

namespace {

QLabel* value(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

}  // namespace

PlayerAssignments::PlayerAssignments(Program& program)
    : program_(program),
      team_(program.store),
      division_(value("lblAssignmentDivision")),
      teamName_(value("lblAssignmentTeam")),
      numberPlayers_(value("lblNumberPlayers")),
      average_(value("lblAverageAbilityRating")),
      players_(new ListMover(QStringLiteral("lstPlayers"), tr("Unassigned Pla&yers"), tr("Players Assi&gned to Team"),
                             this)) {
    players_->setListNames(QStringLiteral("lstPlayerRegistrations"), QStringLiteral("lstTeamList"));
    players_->addHint(tr("<-- Drag and Drop -->"));
    players_->addHint(tr("Or Double-Click"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::line);
    layout->addWidget(header());
    layout->addWidget(players_, 1);
    layout->addWidget(new QLabel(tr("(Average Player Rating shown in Parentheses)"), this));
    players_->setMayMove([this](ListMover::Side from, int index) {
        return !division_->text().isEmpty() && !teamName_->text().isEmpty() &&
               (from == ListMover::Right || isPlayer(players_->entryAt(from, index)));
    });
    connect(players_, &ListMover::moveRequested, this, [this](ListMover::Side from, int index) {
        from == ListMover::Left ? AssignPlayerToTeam(index) : RemovePlayerFromTeam(index);
    });
}

QWidget* PlayerAssignments::header() {
    auto* header = new ColumnRow(this);
    const auto column = [&](const std::pair<QString, QLabel*>& first, const std::pair<QString, QLabel*>& second) {
        auto* widget = new QWidget(header);
        auto* lines = new QFormLayout(widget);
        lines->setContentsMargins({});
        lines->setHorizontalSpacing(spacing::label);
        lines->setVerticalSpacing(spacing::line / 2);
        for (const auto& [caption, label] : {first, second}) {
            label->setAccessibleName(caption);
            lines->addRow(caption, label);
        }
        header->addColumn(widget, 1);
    };
    column({tr("Division"), division_}, {tr("Team"), teamName_});
    column({tr("Number of Players Assigned to Team"), numberPlayers_}, {tr("Team Average Ability Rating"), average_});
    return header;
}

void PlayerAssignments::setTeam(const QString& division, const QString& team) {
    division_->setText(division);
    teamName_->setText(team);
    refresh();
}

void PlayerAssignments::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) refresh();
}

void PlayerAssignments::refresh() {
    if (!isVisible()) return;
    team_.DivisionRequery();
    LoadUnassignedPlayers();
    LoadTeamPlayers();
    showFigures();
}

void PlayerAssignments::LoadUnassignedPlayers() {
    std::vector<QString> entries;
    if (const int division = team_.FindDivisionId(division_->text()); division > 0)
        entries =
            scoredPlayers(program_.store.database(),
                          QStringLiteral("(([PlayerDivisionId] = %1 AND [PlayerTeamId] = 0) OR [PlayerDivisionId] = 0)")
                              .arg(division));
    players_->setEntries(ListMover::Left, std::move(entries));
}

void PlayerAssignments::LoadTeamPlayers() {
    std::vector<QString> entries;
    if (findTeam())
        entries =
            scoredPlayers(program_.store.database(), QStringLiteral("[PlayerDivisionId] = %1 AND [PlayerTeamId] = %2")
                                                         .arg(team_.TeamDivisionId())
                                                         .arg(team_.TeamId()));
    players_->setEntries(ListMover::Right, std::move(entries));
}

bool PlayerAssignments::findTeam() {
    const int division = team_.FindDivisionId(division_->text());
    return division > 0 && team_.FindTeamRecord(teamName_->text(), division, false, true);
}

void PlayerAssignments::showFigures() {
    numberPlayers_->setText(QString::number(players_->entryCount(ListMover::Right)));
    average_->setText(averageScore(players_->entries(ListMover::Right)));
}

bool PlayerAssignments::isPlayer(const QString& entry) const {
    clsRegistration player(program_.store);
    return player.FindPlayerRecord(playerOf(entry), false, true) && player.PlayerId > 0;
}

/// The entry goes over first, whatever the file then says.
void PlayerAssignments::AssignPlayerToTeam(int index) {
    const QString entry = players_->entryAt(ListMover::Left, index);
    players_->moveEntry(ListMover::Left, index, playerLess);
    if (write(Move::ToTeam, entry)) Q_EMIT said(tr("Player Assigned to Team."));
    showFigures();
}

void PlayerAssignments::RemovePlayerFromTeam(int index) {
    const QString entry = players_->entryAt(ListMover::Right, index);
    players_->moveEntry(ListMover::Right, index, playerLess);
    if (write(Move::FromTeam, entry)) Q_EMIT said(tr("Player Removed from Team."));
    showFigures();
}

bool PlayerAssignments::write(Move move, const QString& entry) {
    const QString goneText =
        tr("An Error has occurred -- \nThe %1 Name was not found\n"
           "Please check that a Division and \nTeam are selected on the Teams Tab");
    if (team_.FindDivisionId(division_->text()) == 0) {
        program_.dialogs().error(tr("Division Name Not Found..."), goneText.arg(tr("Division")));
        return false;
    }
    if (!findTeam()) {
        program_.dialogs().error(tr("Team Name Not Found..."), goneText.arg(tr("Team")));
        return false;
    }
    clsRegistration player(program_.store);
    if (!player.FindPlayerRecord(playerOf(entry), false, true) || player.PlayerId < 1) return true;
    if (move == Move::ToTeam) player.PlayerDivisionId = team_.TeamDivisionId;
    player.PlayerTeamId = move == Move::ToTeam ? team_.TeamId() : 0;
    try {
        player.SavePlayerRecord();
    } catch (const datafile::Error& error) {
        program_.dialogs().error(tr("The player was not moved"), error.text());
        return false;
    }
    return true;
}
