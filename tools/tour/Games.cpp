#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "platform/widgets/Grid.h"
#include "tour/Chapters.h"

namespace {

constexpr char division[] = "Majors Baseball";

void chooseDivision(Guide& guide, const QString& list) {
    guide.control(list).setFocus(Qt::TabFocusReason);
    guide.type(division);
    guide.key(Qt::Key_Return);
}

void addRow(Guide& guide, Grid& grid) {
    QWidget& screen = guide.front();
    const QPoint place(20, 20);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, grid.viewport()->mapToGlobal(place));
    QApplication::sendEvent(grid.viewport(), &event);
    auto& menu = guide.control<QMenu>("MnuFGridRows");
    guide.waitFor([&] { return menu.isVisible(); }, "The menu of the rows");
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(&guide.control<QAction>("MnuFGridAddRow")).center());
    screen.activateWindow();  // where no window manager does it
    guide.waitForFocus("T1");
}

void addGame(Guide& guide) {
    guide.begin("A game in the schedule");
    guide.click("cmdGameResults");
    guide.waitForScreen("frmResults");
    chooseDivision(guide, "cboScheduleDivision");
    auto& grid = guide.control<Grid>("flxGridSchedule");
    guide.picture("schedule");
    addRow(guide, grid);
    for (const char* cell : {"5/23/2026", "", "5:30 PM", "Hawks", "Coyotes", "Kestrel Park 1"}) {
        if (*cell) guide.type(cell);
        guide.key(Qt::Key_Return);
    }
    guide.require(
        grid.rows().back().cells.join('|') == QLatin1String("5/23/26|Saturday|05:30 PM|Hawks|Coyotes|Kestrel Park 1"),
        "The game as it was typed, with its week day");
    guide.picture("schedule-game");
    guide.click("cmdSave");
    guide.waitForStatus("Schedule Saved");
}

void addResult(Guide& guide) {
    guide.begin("The result of a game");
    guide.clickTab("Game/Match Results");
    chooseDivision(guide, "cboResultsDivision");
    guide.click("cmdAdd");
    guide.waitForFocus("dtpGameDate");
    guide.type("5/15/2026");
    guide.fill("cboVisitorTeam", "Hawks");
    guide.fill("cboHomeTeam", "Coyotes");
    guide.fill("mskedGameTime", "6:30 PM");
    guide.fill("mskedVisitorTeamScore", "7");
    guide.fill("mskedHomeTeamScore", "5");
    guide.click("cmdSave");
    guide.waitForStatus("Results Record Added/Updated.");
    guide.picture("result");
}

void showStandings(Guide& guide) {
    guide.begin("The standings");
    guide.clickTab("Division Standings");
    chooseDivision(guide, "cboStandingsDivision");
    auto& grid = guide.control<Grid>("flxGridStandings");
    guide.require(!grid.rows().empty() && grid.text(0, 0) == QLatin1String("1"), "A first place");
    guide.picture("standings");
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}

}  // namespace

void visitGames(Guide& guide) {
    addGame(guide);
    addResult(guide);
    showStandings(guide);
}
