#include "schedule/SchedulePane.h"

#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

#include "platform/text/Dates.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/Grid.h"
#include "shell/Program.h"

namespace {

enum GameColumn { Date, WeekDay, Time, Visitors, Home, Field };

/// English in every locale, since it is stored.
QString weekDayOf(QDate date) { return QLocale::c().dayName(date.dayOfWeek()); }

QStringList weekDays() {
    QStringList names;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) names << QLocale::c().dayName(day);
    return names;
}

/// With the whole year where two digits would stand for another one.
QString dateText(QDate date) {
    const QString text = formatDate(date, QStringLiteral("M/d/yy"));
    return parseDate(text) == date || !date.isValid() ? text : shortDate(date);
}

QString timeText(QTime time) { return formatTime(time, QStringLiteral("hh:mm AMPM")); }

}  // namespace

SchedulePane::SchedulePane(Program& program)
    : GamesPane(program,
                {.tag = "Schedule",
                 .caption = tr("Edit Game Schedules"),
                 .searchName = "cboScheduleDivision",
                 .moveName = "cmdScheduleMove",
                 .leaveQuestion = tr("Save the current schedule?"),
                 .menu = tr("Game Schedule"),
                 .noun = tr("Schedule")},
                Save),
      schedule_(program.store),
      grid_(makeGrid()),
      rowMenu_(makeRowMenu()) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(spacing::line);
    for (const QString& hint : {tr("Click on a cell that you would like to change.  Use the Enter key to move "
                                   "between cells."),
                                tr("Right Click on the row number (first column) to Add a row, Insert a row, or "
                                   "Delete a row.")}) {
        auto* label = new QLabel(hint);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    column->addWidget(grid_, 1);
    place(content);
}

Grid* SchedulePane::makeGrid() {
    using Cells = GridColumn::Cells;
    auto* grid =
        new Grid({{tr("Date"), 10, Cells::Text, FilterTextFull, 20},
                  {tr("Week Day"), 12, Cells::Choice, FilterTextFull, schedule_.ScheduleDay.size()},
                  {tr("Time"), 10, Cells::Text, FilterTime, 8},
                  {tr("Visitors Team"), 26, Cells::Choice, FilterTextWide, schedule_.ScheduleVisitorsTeam.size()},
                  {tr("Home Team"), 26, Cells::Choice, FilterTextWide, schedule_.ScheduleHomeTeam.size()},
                  {.caption = tr("Field"),
                   .characters = 22,
                   .cells = Cells::Text,
                   .filter = FilterTextWide,
                   .maxLength = schedule_.ScheduleField.size(),
                   .stretches = true}});
    grid->setObjectName("flxGridSchedule");
    grid->setAccessibleName(tr("Games of the division"));
    grid->textBox()->setObjectName("T1");
    grid->choiceBox()->setObjectName("CBO1");
    grid->setChoices(WeekDay, weekDays());
    connect(grid, &Grid::cellEntered, this, [this] { wasEditing_ = isEditing(); });
    connect(grid, &Grid::cellEdited, this, [this] { setEditing(true); });
    connect(grid, &Grid::cellRestored, this, [this] { setEditing(wasEditing_); });
    connect(grid, &Grid::cellLeft, this, [this](int row, int column) {
        completeRow(row, column);
        wasEditing_ = isEditing();
    });
    connect(grid, &Grid::menuWanted, this, &SchedulePane::offerRowMenu);
    return grid;
}

QMenu* SchedulePane::makeRowMenu() {
    auto* menu = new QMenu(this);
    menu->setObjectName("MnuFGridRows");
    menu->addAction(tr("&Add Row"), this, &SchedulePane::addRow)->setObjectName("MnuFGridAddRow");
    menu->addAction(tr("&Insert Row"), this, &SchedulePane::insertRow)->setObjectName("MnuFGridInsRow");
    deleteEntry_ = menu->addAction(tr("&Delete Row"), this, &SchedulePane::deleteRow);
    deleteEntry_->setObjectName("MnuFGridDelRow");
    return menu;
}

void SchedulePane::showDivision(Shown how) {
    const QModelIndex current = grid_->currentIndex();
    LoadScheduleGrid();
    if (how == Shown::Again && current.isValid() && current.row() < int(grid_->rows().size()))
        grid_->setCurrentCell(current.row(), current.column());
}

void SchedulePane::LoadScheduleGrid() {
    loadedDivision_ = divisionName();
    QStringList names;
    for (datafile::Recordset rows = teams(); !rows.eof(); rows.moveNext()) names << rows.text("Name");
    grid_->setChoices(Visitors, names);
    grid_->setChoices(Home, names);
    datafile::Recordset games = database().openRecordset(
        "SELECT [ScheduleId], [Date], [Day], [Time], [VisitorsTeam], [HomeTeam], [Field] FROM tblSchedule WHERE " +
        live(matches("division", loadedDivision_)) + "  ORDER BY [Date], [Time], [HomeTeam]");
    std::vector<GridRow> rows;
    for (; !games.eof(); games.moveNext()) {
        const datafile::Values& game = games.row();
        rows.push_back(
            {{dateText(datafile::toDate(game[1])), datafile::toText(game[2]), timeText(datafile::toTime(game[3])),
              datafile::toText(game[4]), datafile::toText(game[5]), datafile::toText(game[6])},
             int(datafile::toNumber(game[0]))});
    }
    grid_->setRows(std::move(rows));
    grid_->setEnabled(divisionId() != 0);
    grid_->setEmptyText(divisionId() == 0 ? tr("There are no divisions yet.")
                                          : tr("There are no games yet. Right click here to add a row."));
}

/// The week day follows the date; date and time show in the form in which they are kept.
void SchedulePane::completeRow(int row, int column) {
    const QString typed = grid_->text(row, column);
    if (column == Time) {
        if (const auto time = parseTime(typed)) grid_->setText(row, Time, timeText(*time));
    }
    if (column != Date) return;
    const auto date = parseDate(typed);
    if (!date) return;
    grid_->setText(row, Date, dateText(*date));
    if (grid_->text(row, WeekDay) == weekDayOf(*date)) return;
    grid_->setText(row, WeekDay, weekDayOf(*date));
    setEditing(true);
}

std::optional<std::vector<Game>> SchedulePane::ValidateSchedule() {
    std::vector<Game> games;
    QStringList lines;
    std::optional<std::pair<int, int>> firstBad;
    for (const GridRow& row : grid_->rows()) {
        const int number = int(games.size());
        const auto note = [&](int column, const QString& text) {
            lines << text.arg(number + 1);
            if (!firstBad) firstBad = {number, column};
        };
        const auto date = parseDate(row.cells.value(Date));
        const auto time = parseTime(row.cells.value(Time));
        if (!date) note(Date, tr("Row %1 - Invalid Game Date"));
        if (!time) note(Time, tr("Row %1 - Invalid Game Time"));
        games.push_back({date.value_or(QDate()), row.cells.value(WeekDay), time.value_or(QTime()), loadedDivision_,
                         row.cells.value(Visitors), row.cells.value(Home), row.cells.value(Field)});
    }
    if (!firstBad) return games;
    program().dialogs().warning(
        tr("Schedule Validation"),
        tr("Schedule cannot be saved, the following\nerrors were found while validating the schedule:") + "\n\n" +
            lines.join('\n'));
    grid_->setCurrentCell(firstBad->first, firstBad->second);
    grid_->setFocus();
    Q_EMIT said(tr("Schedule NOT Saved"));
    return {};
}

bool SchedulePane::save() {
    grid_->settle();
    if (!isEditing()) return true;
    const auto games = ValidateSchedule();
    if (!games) return false;
    try {
        SaveScheduleGrid(loadedDivision_, *games);
    } catch (const datafile::Error& error) {
        program().dialogs().error(tr("The schedule was not saved"), error.text());
        Q_EMIT said(tr("Schedule NOT Saved"));
        return false;
    }
    setEditing(false);
    wasEditing_ = false;
    sawChanges();
    Q_EMIT said(tr("Schedule Saved"));
    return true;
}

void SchedulePane::SaveScheduleGrid(const QString& division, const std::vector<Game>& games) {
    schedule_.ReplaceDivisionSchedule(division, clsSchedule::Games::NotDeleted, games);
}

bool SchedulePane::offerToSaveBeforeClosing() {
    return offerToSave(tr("Save the current schedule?"), tr("Save Schedule?"));
}

void SchedulePane::offerRowMenu(const QPoint& global) {
    if (divisionId() == 0) return;
    deleteEntry_->setEnabled(grid_->currentIndex().isValid());
    rowMenu_->popup(global);
}

/// A change that Escape does not take back.
void SchedulePane::touch() {
    wasEditing_ = true;
    setEditing(true);
}

void SchedulePane::addRow() {
    grid_->insertRow(int(grid_->rows().size()));
    grid_->setFocus();
    touch();
}

void SchedulePane::insertRow() {
    grid_->insertRow(std::max(0, grid_->currentIndex().row()));
    grid_->setFocus();
    touch();
}

/// A game in the file goes at once, whatever becomes of the other changes in the grid.
void SchedulePane::deleteRow() {
    const int row = grid_->currentIndex().row();
    if (row < 0) return;
    const int id = grid_->rows()[size_t(row)].id;
    if (id != 0 && !program().dialogs().ask(tr("Delete Row"),
                                            tr("Are you sure you want\nto delete row %1?\n\nThis will automatically "
                                               "delete\nthe game from the schedule.")
                                                .arg(row + 1)))
        return;
    const bool isGone = deleteGame(id);
    grid_->removeRow(row);
    if (!isGone) touch();  // the file still has the game under a newer key, until the next save
}

bool SchedulePane::deleteGame(int id) {
    if (id == 0 || !schedule_.FindScheduleRecord(id, false, true)) return false;
    schedule_.DeleteScheduleRecord();
    schedule_.SetScheduleIsDirty(false);
    if (!isEditing()) sawChanges();
    return true;
}
