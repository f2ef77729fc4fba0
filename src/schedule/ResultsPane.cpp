#include "schedule/ResultsPane.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/Grid.h"
#include "shell/Program.h"

namespace {

constexpr char dateField[] = "dtpGameDate";
constexpr char timeField[] = "mskedGameTime";
constexpr char homeField[] = "cboHomeTeam";
constexpr char visitorField[] = "cboVisitorTeam";
constexpr char homeScoreField[] = "mskedHomeTeamScore";
constexpr char visitorScoreField[] = "mskedVisitorTeamScore";
constexpr char commentsField[] = "txtResultsComments";
constexpr int scoreDigits = 4;  // any such number fits the column
constexpr int timeCharacters = 8;
constexpr int teamCharacters = 35;  // of the longest name

QString timeText(QTime time) { return formatTime(time, QStringLiteral("hh:mm AMPM")); }

}  // namespace

ResultsPane::ResultsPane(Program& program)
    : GamesPane(program,
                {.tag = "Results",
                 .caption = tr("Game/Match Results"),
                 .searchName = "cboResultsDivision",
                 .noun = tr("Result")},
                EveryOrder),
      results_(program.store),
      form_(makeForm()),
      grid_(makeGrid()) {
    auto* content = new QWidget;
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins({});
    row->setSpacing(spacing::group);
    row->addWidget(form_, 1);
    auto* frame = new QGroupBox(tr("Games Played"));
    auto* inside = new QVBoxLayout(frame);
    inside->addWidget(grid_);
    row->addWidget(frame, 2);
    place(content);
}

Form* ResultsPane::makeForm() {
    auto* form = new Form;
    const auto bound = [this](QString Entry::*field, int length) {
        return Binding([this, field] { return entry_.*field; },
                       [this, field](const QString& text) { entry_.*field = text; }, length);
    };
    const auto team = [this](QString Entry::*name, int Entry::*id) {
        return Binding([this, name] { return entry_.*name; },
                       [this, name, id](const QString& text) {
                           entry_.*name = text;
                           entry_.*id = teams_.value(text);
                       },
                       teamCharacters);
    };
    FormBuilder(form)
        .frame(tr("Game/Match"), 1)
        .date(dateField, tr("&Game/Match Date"),
              {[this] { return entry_.date; }, [this](QDate date) { entry_.date = date; }})
        .choice(visitorField, tr("Visitors Tea&m"), team(&Entry::visitorTeam, &Entry::visitorId), {},
                ChoiceBox::EmptyFirst)
        .choice(homeField, tr("Home Te&am"), team(&Entry::homeTeam, &Entry::homeId), {}, ChoiceBox::EmptyFirst)
        .text(timeField, tr("Game/Match Time"), bound(&Entry::time, timeCharacters), FilterTime)
        .text(visitorScoreField, tr("Visitors Team Score"), bound(&Entry::visitorScore, scoreDigits), FilterNumeric)
        .text(homeScoreField, tr("Home Team Score"), bound(&Entry::homeScore, scoreDigits), FilterNumeric)
        .frame(tr("Game/Match Comments"), 1)
        .comments(commentsField, {}, bound(&Entry::comments, results_.ResultsComments.size()), FilterTextWide);
    form->findChild<QWidget*>(commentsField)->setAccessibleName(tr("Game/Match Comments"));
    form->setDateFormat(program().globals().defaultDateFormat);
    connect(form, &Form::changed, this, &ResultsPane::noteEdit);
    connect(form, &Form::left, this, [this](const QString& field) {
        if (field == QLatin1String(dateField) && entry_.date != soughtDate_) ShowResultForTeams();
        if (const auto time = parseTime(entry_.time); field == QLatin1String(timeField) && time)
            form_->display(timeField, entry_.time = timeText(*time));
    });
    return form;
}

Grid* ResultsPane::makeGrid() {
    const GridColumn score{.caption = tr("Score"), .characters = 5, .alignment = Qt::AlignHCenter};
    auto* grid = new Grid({{tr("Game Date"), 8},
                           {tr("Game Time"), 8},
                           {tr("Visitors Team"), 16},
                           score,
                           {tr("Home Team"), 16},
                           score,
                           {.caption = tr("Comments"), .characters = 16, .stretches = true}});
    grid->setObjectName("flxGridGamesPlayed");
    grid->setAccessibleName(tr("Games Played"));
    grid->setEmptyText(tr("No results were entered for the division yet."));
    connect(grid, &Grid::rowPicked, this, &ResultsPane::showPicked);
    return grid;
}

/// In a narrow window the grid gives way: the form scrolls up and down only.
void ResultsPane::showEvent(QShowEvent* event) {
    GamesPane::showEvent(event);
    const auto* view = form_->findChild<QScrollArea*>();
    form_->setMinimumWidth(view->widget()->minimumSizeHint().width() + view->verticalScrollBar()->sizeHint().width());
}

void ResultsPane::showDivision(Shown how) {
    readTeams();
    LoadGamesPlayed();
    form_->setFieldsEnabled(divisionId() != 0);
    if (how == Shown::Again) return;
    entry_ = {};
    blank();
}

void ResultsPane::readTeams() {
    teams_.clear();
    QStringList names;
    for (datafile::Recordset rows = teams(); !rows.eof(); rows.moveNext()) {
        names << rows.text("Name");
        teams_.insert(names.back(), int(rows.number("TeamId")));
    }
    for (const char* field : {homeField, visitorField}) form_->findChild<ChoiceBox*>(field)->setEntries(names);
}

void ResultsPane::LoadGamesPlayed() {
    datafile::Recordset games = database().openRecordset(
        "SELECT [HomeTeamId], [VisitorTeamId], [GameDate], [GameTime], Home![TeamName] as HomeName, "
        "Visitors![TeamName] as VisitorName, [HomeTeamScore], [VisitorTeamScore], [Comments] FROM tblResults "
        "LEFT JOIN tblTeam AS Home ON [HomeTeamId] = Home![TeamId] "
        "LEFT JOIN tblTeam AS Visitors ON [VisitorTeamId] = Visitors![TeamId] WHERE tblResults![DivisionId] = " +
        QString::number(divisionId()) + " ORDER BY [GameDate], [GameTime], [HomeTeamId]");
    std::vector<GridRow> rows;
    games_.clear();
    for (; !games.eof(); games.moveNext()) {
        const datafile::Values& game = games.row();
        const auto text = [&game](int column) { return datafile::toText(game[size_t(column)]); };
        games_.push_back({int(datafile::toNumber(game[0])), int(datafile::toNumber(game[1])), datafile::toDate(game[2]),
                          datafile::toTime(game[3])});
        rows.push_back({{formatDate(games_.back().date, "m-d-yy"), timeText(games_.back().time), text(5), text(7),
                         text(4), text(6), text(8)}});
    }
    grid_->setRows(std::move(rows));
}

/// Neither a game in view nor one being entered. The teams stay.
void ResultsPane::blank() {
    results_.blank();
    results_.SetIsResultNew(false);
    results_.SetIsResultDirty(false);
    entry_ = {.homeTeam = entry_.homeTeam,
              .homeId = entry_.homeId,
              .visitorTeam = entry_.visitorTeam,
              .visitorId = entry_.visitorId,
              .date = program().clock().today()};
    soughtDate_ = entry_.date;
    form_->refresh();
}

void ResultsPane::addNew() {
    blank();
    results_.NewResultsRecord();
    setEditing(true);
    Q_EMIT said({});
    form_->focusField(dateField);
}

void ResultsPane::noteEdit(const QString& field) {
    if (field == QLatin1String(dateField)) return;  // looked up when it is whole
    if (field == QLatin1String(homeField) || field == QLatin1String(visitorField)) return ShowResultForTeams();
    if (results_.GameId == 0) results_.SetIsResultNew(true);  // begun by typing; teams chosen later leave it as it is
    results_.SetIsResultDirty(true);
    setEditing(true);
}

/// Brings up the game of the two teams on that day. Where there is none, what was shown goes, unless it is a new game.
void ResultsPane::ShowResultForTeams() {
    soughtDate_ = entry_.date;
    if (entry_.homeId == 0 || entry_.visitorId == 0 || !entry_.date.isValid()) return;
    if (results_.FindResults(divisionId(), entry_.homeId, entry_.visitorId, entry_.date, false, true))
        return showGame();
    if (results_.IsResultNew()) return;
    const QDate date = entry_.date;
    blank();
    entry_.date = soughtDate_ = date;
    form_->refresh();
    setEditing(false);
}

/// The game that was found into the fields.
void ResultsPane::showGame() {
    results_.SetIsResultNew(false);
    results_.SetIsResultDirty(false);
    entry_.date = soughtDate_ = results_.GameDate;
    entry_.time = timeText(results_.GameTime);
    entry_.homeScore = QString::number(results_.HomeTeamScore);
    entry_.visitorScore = QString::number(results_.VisitorTeamScore);
    entry_.comments = results_.ResultsComments;
    form_->refresh();
    setEditing(false);
}

void ResultsPane::showPicked(int row) {
    const Game& game = games_[size_t(row)];
    Q_EMIT said({});
    if (!results_.FindResultsWithTime(divisionId(), game.homeTeam, game.visitorTeam, game.date, game.time, false,
                                      true)) {
        program().dialogs().warning(
            tr("Assignment Record Error..."),
            tr("The assignment record was not found.\nRefresh the screen and reselect the record."));
        return;
    }
    entry_.visitorTeam = grid_->text(row, 2);
    entry_.visitorId = game.visitorTeam;
    entry_.homeTeam = grid_->text(row, 4);
    entry_.homeId = game.homeTeam;
    showGame();
}

std::vector<ResultsPane::Finding> ResultsPane::findings() const {
    const bool badDate = !entry_.date.isValid() || form_->unreadableField() == QLatin1String(dateField);
    const struct {
        bool isBroken;
        Finding finding;
    } rules[] = {
        {!parseTime(entry_.time), {timeField, tr("The Game Time is Invalid.")}},
        {!isNumeric(entry_.visitorScore), {visitorScoreField, tr("The Visitors Team Score must be entered.")}},
        {!isNumeric(entry_.homeScore), {homeScoreField, tr("The Home Team Score must be entered.")}},
        {badDate, {dateField, tr("The Game Date is Invalid.")}},
        {entry_.visitorId == 0, {visitorField, tr("The Visitors Team must be selected.")}},
        {entry_.homeId == 0, {homeField, tr("The Home Team must be selected.")}},
    };
    std::vector<Finding> broken;
    for (const auto& rule : rules)
        if (rule.isBroken) broken.push_back(rule.finding);
    return broken;
}

bool ResultsPane::ValidateResult() {
    const std::vector<Finding> broken = findings();
    if (broken.empty()) return true;
    QStringList lines;
    for (const Finding& finding : broken) lines << finding.text;
    program().dialogs().warning(tr("Validation Error - Game/Match Results"), lines.join('\n'));
    form_->focusField(broken.front().field);
    return false;
}

bool ResultsPane::save() {
    try {
        if (ValidateResult()) {
            write();
            LoadGamesPlayed();
            sawChanges();
            Q_EMIT said(tr("Results Record Added/Updated."));
            focusSearch();
            return true;
        }
    } catch (const datafile::Error& error) {
        program().dialogs().error(tr("The record was not saved"), error.text());
    }
    Q_EMIT said(tr("Results Record NOT Added/Updated."));
    return false;
}

/// A game is known by its teams, its date and its time: with another time it is another game.
void ResultsPane::write() {
    const QTime time = *parseTime(entry_.time);
    const bool known =
        results_.FindResultsWithTime(divisionId(), entry_.homeId, entry_.visitorId, entry_.date, time, false, true);
    if (!known) results_.NewResultsRecord();
    results_.SetIsResultNew(!known);
    results_.DivisionId = divisionId();
    results_.HomeTeamId = entry_.homeId;
    results_.VisitorTeamId = entry_.visitorId;
    results_.GameDate = entry_.date;
    results_.GameTime = time;
    results_.HomeTeamScore = toWhole(entry_.homeScore).value_or(0);
    results_.VisitorTeamScore = toWhole(entry_.visitorScore).value_or(0);
    results_.ResultsComments = entry_.comments;
    results_.SaveResultsRecord();
    showGame();
}

void ResultsPane::remove() {
    const QTime now = program().clock().now().time();
    const bool found = results_.FindResultToDelete(divisionId(), entry_.homeId, entry_.visitorId,
                                                   entry_.date.isValid() ? entry_.date : program().clock().today(),
                                                   parseTime(entry_.time).value_or(now), false, true);
    if (!found || !program().dialogs().ask(tr("Delete Confirmation"),
                                           tr("Are you sure you want to delete\nthe current Game/Match results?")))
        return;
    results_.DeleteResultsRecord();
    blank();
    LoadGamesPlayed();
    setEditing(false);
    sawChanges();
    Q_EMIT said(tr("Game/Match Result Record Deleted."));
}

/// A game that was changed shows as it is kept; one that was begun goes.
void ResultsPane::dropEdits() {
    if (!results_.IsResultNew() && results_.GameId != 0) {
        results_.UndoResultsRecord();
        showGame();
    } else {
        blank();
        setEditing(false);
    }
}

/// Where the next game begins.
void ResultsPane::focusSearch() {
    if (divisionId() == 0) return GamesPane::focusSearch();
    form_->findChild<QWidget*>(dateField)->setFocus(Qt::TabFocusReason);
}
