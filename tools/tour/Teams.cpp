#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "tour/Chapters.h"

// A team is drafted for the division and the children of the tour, and one of them is rated.

namespace {

constexpr char team[] = "Orchard Owls";

void pick(Guide& guide, Qt::Key key, const QString& list, const QString& text) {
    guide.key(key, Qt::AltModifier);
    guide.waitForFocus(list);
    guide.type(text);
    guide.key(Qt::Key_Return);
}

/// Selects the first entry with the text and sends it to the other list.
void moveAcross(Guide& guide, const QString& name, const QString& text) {
    auto& list = guide.control<QListView>(name);
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        const QModelIndex index = list.model()->index(row, 0);
        if (!index.data().toString().contains(text)) continue;
        list.scrollTo(index);
        const QPoint middle = list.visualRect(index).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
        return QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
    }
    guide.fail("There is no " + text + " in " + name + '.');
}

/// The button clicks a moment after its access key.
void save(Guide& guide) {
    guide.key(Qt::Key_S, Qt::AltModifier);
    guide.waitFor([&] { return !guide.control("cmdSave").isEnabled(); }, "The save");
    guide.require(guide.control<QLabel>("lblStatus").text().endsWith(" Saved."), "The saved record");
}

void addTeam(Guide& guide) {
    guide.begin("A team of the division");
    guide.click("cmdTeams");
    guide.waitForScreen("frmTeams");
    guide.clickTab("Teams");
    pick(guide, Qt::Key_I, "cboTeamDivisionName", "Rookie");
    guide.key(Qt::Key_A, Qt::AltModifier);
    guide.waitForFocus("txtTeamName");
    guide.fill("txtTeamName", team);
    guide.fill("txtTeamColors", "Forest green");
    guide.fill("mskedTeamFeeAmount", "150");
    guide.picture("team-new");
    save(guide);
}

void addStaff(Guide& guide) {
    guide.begin("A coach and a team parent");
    guide.clickTab("Coach/Team Parent Information");
    pick(guide, Qt::Key_N, "cboHeadCoachSearchList", "winterb");
    guide.require(guide.control<QLabel>("lblHeadCoachFirstName").text() == "Rowan", "The parent as the coach");
    save(guide);
    guide.picture("team-staff");
}

void draft(Guide& guide) {
    guide.begin("The players of the team");
    guide.clickTab("Player/Team Assignments");
    for (const char* child : {"Winterbourne, Juniper", "Winterbourne, Linden"}) {
        moveAcross(guide, "lstPlayerRegistrations", child);
        guide.waitForStatus("Player Assigned to Team.");
    }
    guide.require(guide.control<QLabel>("lblNumberPlayers").text() == "2", "A team of two");
    guide.picture("team-players");
}

void assignField(Guide& guide) {
    guide.begin("A field for the division");
    guide.clickTab("Field Assignments");
    pick(guide, Qt::Key_U, "cboFieldDivisionList", "Rookie");
    moveAcross(guide, "lstFieldsAvailable", "Millbrook Field");
    guide.waitForStatus("Field Assigned to Team Assignment.");
    guide.picture("field-assignments");
    guide.clickTab("Fields");
    guide.picture("fields");
    guide.during([&] { guide.click("cmdFieldAvailability"); }, "The availability of the field",
                 [&] {
                     guide.picture("field-availability");
                     guide.click("cmdClose");
                 });
}

void rate(Guide& guide) {
    guide.begin("The ratings of a player and of the coach");
    guide.clickTool("btnRatings");
    guide.waitForScreen("frmRatings");
    pick(guide, Qt::Key_U, "cboPlayerSearchList", "winterbourne, j");
    guide.key(Qt::Key_P, Qt::AltModifier);
    guide.fill("cboPitcherRating", "Good");
    guide.fill("cboRunningRating", "Excellent");
    guide.fill("chkPosition2", " ");
    guide.require(guide.control<QLabel>("lblAvgRating").text() == "4.50", "The average of both skills");
    guide.picture("ratings-player");
    save(guide);
    guide.clickTab("Volunteer Ratings");
    pick(guide, Qt::Key_U, "cboUmpireSearchList", "winterb");
    guide.require(guide.control<QLabel>("lblVolFirstName").text() == "Rowan", "The coach among the volunteers");
    guide.key(Qt::Key_X, Qt::AltModifier);
    guide.fill("cboCoachAbilityRating", "Fair");
    guide.picture("ratings-volunteer");
    save(guide);
}

void showScores(Guide& guide) {
    guide.begin("The rating in the team's list");
    guide.clickTool("btnTeams");
    guide.waitForScreen("frmTeams");
    guide.clickTab("Teams");
    guide.require(guide.control<QLabel>("lblAverageAbilityRating").text() == "2.25", "The average of the team");
    guide.picture("team-scores");
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}

}  // namespace

void visitTeams(Guide& guide) {
    addTeam(guide);
    addStaff(guide);
    draft(guide);
    assignField(guide);
    rate(guide);
    showScores(guide);
}
