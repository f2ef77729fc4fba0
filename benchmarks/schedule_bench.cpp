#include <QLabel>
#include <QTest>

#include "Comparison.h"
#include "RawFile.h"
#include "app/ProgramParts.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/Grid.h"
#include "schedule/clsResults.h"
#include "setup/clsOptions.h"
#include "shell/Screens.h"
#include "store/BaseFile.h"
#include "support/MemorySettings.h"
#include "support/QuietDialogs.h"

// The games of a large division: standings over many results, and a long schedule typed in and saved.

namespace {

constexpr int teamCount = 200;
constexpr int resultCount = 100'000;
constexpr int gameCount = 2000;

void run(const RawFile& file, const QString& sql) { RawStatement(file, sql.toUtf8().constData()).step(); }

/// A division of many teams with their games.
struct League {
    League() {
        const QString path = files.filePath("Kestrelmoor.kmr");
        makeBaseFile(path);
        context.dataFilePath = path;
        loadGlobals(context);
        const RawFile file(path);
        run(file, "BEGIN");
        run(file, "INSERT INTO tblDivision (DivName) VALUES ('Majors')");
        run(file, "INSERT INTO tblSponsor (SponsorName) VALUES ('Corner Bakery')");
        const QString counted = "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < %1) ";
        run(file, "INSERT INTO tblTeam (TeamName, DivisionId, SponsorId) " + counted.arg(teamCount) +
                      "SELECT 'Team ' || n, 1, n % 3 FROM c");
        run(file,
            "INSERT INTO tblResults (DivisionId, HomeTeamId, VisitorTeamId, GameDate, GameTime, HomeTeamScore, "
            "VisitorTeamScore) " +
                counted.arg(resultCount) +
                QString("SELECT 1, 1 + n % T, 1 + (n * 7 + 3) % T, date('2026-03-01', (n % 120) || ' days'), "
                        "'18:30:00', n % 11, n * 13 % 11 FROM c")
                    .replace("% T", "% " + QString::number(teamCount)));
        run(file, "INSERT INTO tblSchedule ([Date], [Day], [Time], division, VisitorsTeam, HomeTeam, Field) " +
                      counted.arg(gameCount) +
                      "SELECT date('2026-03-01', (n % 120) || ' days'), 'Monday', '18:30:00', 'Majors', 'Team ' || (n "
                      "% 100), 'Team ' || (n % 99), 'Kestrel Park' FROM c");
        run(file, "COMMIT");
    }

    QTemporaryDir files;
    datafile::Workspace workspace;
    FixedClock clock{QDateTime(QDate(2026, 5, 16), QTime(12, 0))};
    QuietDialogs dialogs;
    StoreContext context{workspace, clock, dialogs};
    MemorySettings settings;
};

void measureStandings(Comparison& comparison, League& league) {
    auto results = std::make_shared<clsResults>(league.context);
    auto raw = std::make_shared<RawFile>(league.context.dataFilePath);
    comparison.add(
        {"standings of 200 teams over 100,000 results", resultCount, {.times = 1.3}},
        [results] {
            results->BuildStandings(1, false);
            if (results->standings().size() != teamCount) qFatal("Teams are missing.");
        },
        [raw] {
            run(*raw, "BEGIN IMMEDIATE");
            run(*raw, "DELETE FROM tblTempResults");
            run(*raw,
                "INSERT INTO tblTempResults (TeamId, TeamName, SponsorId, SponsorName, DivisionId, Wins, Losses, Ties, "
                "WinPercentage) SELECT t.TeamId, TeamName, t.SponsorId, coalesce(SponsorName, ''), t.DivisionId, won, "
                "lost, tied, coalesce(round(100.0 * won / nullif(won + lost + tied, 0), 3), 0) FROM tblTeam t LEFT "
                "JOIN tblSponsor s ON s.SponsorId = t.SponsorId LEFT JOIN (SELECT team, sum(own > other) AS won, "
                "sum(own < other) AS lost, sum(own = other) AS tied FROM (SELECT HomeTeamId AS team, HomeTeamScore AS "
                "own, VisitorTeamScore AS other FROM tblResults UNION ALL SELECT VisitorTeamId, VisitorTeamScore, "
                "HomeTeamScore FROM tblResults) GROUP BY team) ON team = t.TeamId WHERE t.DivisionId = 1");
            run(*raw, "COMMIT");
            RawStatement rows(*raw, "SELECT * FROM tblTempResults ORDER BY WinPercentage DESC, TeamName");
            std::vector<std::variant<qint64, QString>> row;
            while (rows.step()) rows.readRow(row);
        });
}

/// The same rows written by hand, in one transaction.
void saveByHand(const RawFile& raw, const std::vector<GridRow>& rows) {
    run(raw, "BEGIN IMMEDIATE");
    run(raw, "DELETE FROM tblSchedule WHERE division = 'Majors' AND DeletedFlag = 0");
    RawStatement add(raw,
                     "INSERT INTO tblSchedule ([Date], [Day], [Time], division, VisitorsTeam, HomeTeam, Field, "
                     "DateStamp, TimeStamp, DeletedFlag) VALUES (?, ?, ?, 'Majors', ?, ?, ?, '2026-05-16', 43200, 0)");
    for (const GridRow& row : rows) {
        const QByteArray cells[] = {"2026-05-02",          row.cells[1].toUtf8(), "18:30:00",
                                    row.cells[3].toUtf8(), row.cells[4].toUtf8(), row.cells[5].toUtf8()};
        int place = 0;
        for (const QByteArray& cell : cells) add.bind(++place, cell);
        add.step();
        add.reset();
    }
    run(raw, "COMMIT");
}

void measureGrid(Comparison& comparison, League& league, Screen* screen) {
    auto* grid = screen->findChild<Grid*>("flxGridSchedule");
    auto* save = screen->findChild<QWidget*>("cmdSave");
    auto* status = screen->findChild<QLabel*>("lblStatus");
    if (grid->rows().size() != gameCount) qFatal("Games are missing.");
    grid->setFocus();
    QWidget* cell = grid->textBox();
    comparison.add({"a key in the grid, to the text on the screen", gameCount, {.total = 0.016}},
                   [grid, cell, number = 0]() mutable {
                       grid->setCurrentCell(gameCount / 2, 5);
                       QTest::keyClick(cell, ++number % 2 ? Qt::Key_X : Qt::Key_Backspace);
                       QApplication::processEvents();
                   });
    comparison.add({"Enter, to the next cell open", gameCount, {.total = 0.016}}, [grid] {
        QTest::keyClick(grid->focusProxy(), Qt::Key_Return);
        if (grid->currentIndex().row() > gameCount - 2) grid->setCurrentCell(0, 0);
        QApplication::processEvents();
    });
    auto raw = std::make_shared<RawFile>(league.context.dataFilePath);
    comparison.add(
        {"save a schedule of 2,000 games", gameCount, {.times = 1.3}},
        [grid, cell, save, status, number = 0]() mutable {
            grid->setCurrentCell(7, 5);
            QTest::keyClick(cell, ++number % 2 ? Qt::Key_X : Qt::Key_Backspace);
            QTest::mouseClick(save, Qt::LeftButton);
            if (status->text() != QLatin1String("Schedule Saved")) qFatal("The schedule was not saved.");
            status->clear();
        },
        [raw, grid] { saveByHand(*raw, grid->rows()); });
}

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));  // and no "no raise() offscreen"
    });
    QApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    League league;
    ProgramParts parts(league.context, league.settings, {}, {});
    parts.screens().show("frmResults");
    Screen* screen = parts.screens().load("frmResults");
    if (!QTest::qWaitForWindowActive(screen)) qFatal("The screen did not open.");
    measureStandings(comparison, league);
    measureGrid(comparison, league, screen);
    return comparison.run();
}
