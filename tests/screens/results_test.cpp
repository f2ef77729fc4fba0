#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/SearchCombo.h"
#include "schedule/clsResults.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

const QDate saturday(2026, 4, 18);

/// The tabs of results and standings over Majors with Hawks, Owls and the deleted Terns, and Minors without a team.
class ResultsScreenTest : public testing::Test {
protected:
    void SetUp() override {
        const datafile::Database data = running.league.database();
        for (const char* name : {"Majors", "Minors"})
            data.execute(QStringLiteral("INSERT INTO tblDivision (DivName) VALUES (\"%1\")").arg(name));
        for (const char* name : {"Hawks", "Owls", "Terns"})
            data.execute(QStringLiteral("INSERT INTO tblTeam (TeamName, DivisionId) VALUES (\"%1\", 1)").arg(name));
        data.execute("UPDATE tblTeam SET [DeletedFlag] = True WHERE [TeamName] = \"Terns\"");
        play(2, 1, 5, 3, {18, 30});
        play(2, 1, 1, 1, {9, 0});
        play(3, 1, 7, 2, {14, 0});
        screen = running.open("frmResults");
        tabs = screen->findChild<QTabWidget*>();
        tabs->setCurrentIndex(1);
    }
    void play(int home, int visitor, int homeScore, int visitorScore, QTime time) {
        clsResults result(running.league.context);
        result.NewResultsRecord();
        result.DivisionId = 1;
        result.HomeTeamId = home;
        result.VisitorTeamId = visitor;
        result.GameDate = saturday;
        result.GameTime = time;
        result.HomeTeamScore = homeScore;
        result.VisitorTeamScore = visitorScore;
        result.SaveResultsRecord();
    }
    QStringList shown(const char* name) {
        QStringList rows;
        for (const GridRow& row : control<Grid>(screen, name)->rows()) rows << row.cells.join('|');
        return rows;
    }
    QStringList games() { return shown("flxGridGamesPlayed"); }
    void select(const char* box, const QString& team) {
        auto* choice = control<ChoiceBox>(screen, box);
        choice->setCurrentIndex(choice->indexOf(team));
        Q_EMIT choice->activated(choice->currentIndex());
    }
    QString text(const char* box) { return control<QLineEdit>(screen, box)->text(); }
    /// Time, visitors' score, home score and comments as they stand in the fields.
    QString fields() {
        return QStringList{text("mskedGameTime"), text("mskedVisitorTeamScore"), text("mskedHomeTeamScore"),
                           control<QPlainTextEdit>(screen, "txtResultsComments")->toPlainText()}
            .join('|');
    }
    void pickGame(int row) { Q_EMIT control<Grid>(screen, "flxGridGamesPlayed")->rowPicked(row); }
    void typeDate(const QString& date) {
        type(screen, "dtpGameDate", date);
        QTest::keyClick(control(screen, "dtpGameDate"), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    bool isEnabled(const char* button) { return control(screen, button)->isEnabled(); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
    QTabWidget* tabs = nullptr;
};

TEST_F(ResultsScreenTest, TwoTeamsAndADateBringUpTheirFirstGame) {
    EXPECT_EQ(games(), (QStringList{"4-18-26|09:00 AM|Hawks|1|Owls|1|", "4-18-26|02:00 PM|Hawks|2|Terns|7|",
                                    "4-18-26|06:30 PM|Hawks|3|Owls|5|"}))
        << "a deleted team's name too";
    EXPECT_EQ(text("dtpGameDate"), "04/22/26");
    select("cboHomeTeam", "Owls");
    select("cboVisitorTeam", "Hawks");
    EXPECT_EQ(fields(), "|||") << "they did not play today";
    typeDate("4/18/26");
    EXPECT_EQ(fields(), "06:30 PM|3|5|") << "the one that was entered first";
    EXPECT_TRUE(isEnabled("cmdDelete") && !isEnabled("cmdSave"));
    select("cboHomeTeam", "Hawks");
    EXPECT_EQ(fields(), "|||");
    EXPECT_EQ(text("dtpGameDate"), "04/18/26");
    EXPECT_FALSE(isEnabled("cmdDelete"));
    type(screen, "mskedGameTime", "2pm");
    select("cboVisitorTeam", "Owls");
    EXPECT_EQ(fields(), "2pm|||") << "a game begun without a word is a new one";
    press(screen, "cmdCancel");
    EXPECT_EQ(fields(), "|||");
    press(screen, "cmdAdd");
    EXPECT_EQ(text("dtpGameDate"), "04/22/26");
    EXPECT_TRUE(control(screen, "dtpGameDate")->hasFocus());
    type(screen, "mskedGameTime", "1pm");
    select("cboVisitorTeam", "Owls");
    EXPECT_EQ(fields(), "1pm|||") << "a new game keeps what was typed";
    select("cboHomeTeam", "Owls");
    select("cboVisitorTeam", "Hawks");
    typeDate("4/18/26");
    EXPECT_EQ(fields(), "06:30 PM|3|5|") << "this one exists already";
    EXPECT_FALSE(isEnabled("cmdSave"));
}

TEST_F(ResultsScreenTest, SaveUpdatesTheGameOfThatTimeOrAddsOne) {
    pickGame(2);
    EXPECT_EQ(fields(), "06:30 PM|3|5|");
    type(screen, "mskedHomeTeamScore", "x1\"5");
    EXPECT_EQ(text("mskedHomeTeamScore"), "15") << "only digits";
    EXPECT_FALSE(isEnabled("cboResultsDivision"));
    type(screen, "txtResultsComments", "Rain, then sun.");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Results Record Added/Updated.");
    EXPECT_TRUE(control(screen, "dtpGameDate")->hasFocus());
    EXPECT_EQ(games()[2], "4-18-26|06:30 PM|Hawks|3|Owls|15|Rain, then sun.");
    EXPECT_EQ(games().size(), 3);
    type(screen, "mskedGameTime", "19:00");
    press(screen, "cmdSave");
    EXPECT_EQ(games()[3], "4-18-26|07:00 PM|Hawks|3|Owls|15|Rain, then sun.") << "another time is another game";
    EXPECT_EQ(games().size(), 4);
    pickGame(1);
    EXPECT_EQ(control<ChoiceBox>(screen, "cboHomeTeam")->text(), "Terns");
    type(screen, "mskedHomeTeamScore", "8");
    press(screen, "cmdSave");
    EXPECT_EQ(games()[1], "4-18-26|02:00 PM|Hawks|2|Terns|8|") << "a deleted team's game stays its own";
    type(screen, "mskedHomeTeamScore", "9");
    press(screen, "cmdCancel");
    EXPECT_EQ(fields(), "02:00 PM|2|8|");
}

TEST_F(ResultsScreenTest, WhatIsMissingIsToldInItsOrder) {
    const QString title = "Validation Error - Game/Match Results";
    press(screen, "cmdAdd");
    type(screen, "dtpGameDate", "2/30/2026");
    dialogs.expectWarning(title,
                          "The Game Time is Invalid.\nThe Visitors Team Score must be entered.\n"
                          "The Home Team Score must be entered.\nThe Game Date is Invalid.\n"
                          "The Visitors Team must be selected.\nThe Home Team must be selected.");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Results Record NOT Added/Updated.");
    EXPECT_TRUE(control(screen, "mskedGameTime")->hasFocus());
    for (const char* box : {"cboHomeTeam", "cboVisitorTeam"}) select(box, "Owls");
    type(screen, "mskedGameTime", "25:99");
    type(screen, "mskedVisitorTeamScore", "0");
    type(screen, "mskedHomeTeamScore", "12");
    type(screen, "dtpGameDate", "");
    dialogs.expectWarning(title, "The Game Time is Invalid.\nThe Game Date is Invalid.");
    press(screen, "cmdSave");
    type(screen, "mskedGameTime", "9:00");
    type(screen, "dtpGameDate", "4/21/26");
    press(screen, "cmdSave");
    EXPECT_EQ(games().last(), "4-21-26|09:00 AM|Owls|0|Owls|12|") << "the same team on both sides is not refused";
}

TEST_F(ResultsScreenTest, GameIsDeletedForGoodAfterAQuestion) {
    pickGame(0);
    const QString question = "Are you sure you want to delete\nthe current Game/Match results?";
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::No, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(games().size(), 3);
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Game/Match Result Record Deleted.");
    EXPECT_EQ(games().size(), 2);
    EXPECT_EQ(running.league.count("SELECT * FROM tblResults"), 2);
    EXPECT_EQ(fields(), "|||");
    running.league.database().execute("DELETE FROM tblResults");
    dialogs.expectWarning("Assignment Record Error...",
                          "The assignment record was not found.\nRefresh the screen and reselect the record.");
    pickGame(0);
    press(screen, "cmdRefresh");
    EXPECT_EQ(games().size(), 0);
}

TEST_F(ResultsScreenTest, LeavingOffersToSaveAndStaysWhereThatFails) {
    press(screen, "cmdAdd");
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current record?");
    dialogs.expectWarning("Validation Error - Game/Match Results");
    tabs->setCurrentIndex(2);
    EXPECT_EQ(tabs->currentIndex(), 1);
    dialogs.expectQuestion("Save Record?", BoxAnswer::No);
    tabs->setCurrentIndex(2);
    EXPECT_EQ(tabs->currentIndex(), 2);
    tabs->setCurrentIndex(1);
    pickGame(0);
    type(screen, "mskedHomeTeamScore", "6");
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes);
    tabs->setCurrentIndex(2);
    EXPECT_EQ(tabs->currentIndex(), 2);
    EXPECT_EQ(running.league.value("SELECT * FROM tblResults WHERE [GameTime] = #09:00:00#", "HomeTeamScore"), "6");
}

TEST_F(ResultsScreenTest, AnotherDivisionBeginsAnew) {
    pickGame(0);
    auto* divisions = control<SearchCombo>(screen, "cboResultsDivision");
    type(screen, "cboResultsDivision", "min");
    QTest::keyClick(divisions, Qt::Key_Return);
    EXPECT_EQ(fields(), "|||");
    EXPECT_EQ(text("dtpGameDate"), "04/22/26");
    EXPECT_EQ(control<ChoiceBox>(screen, "cboHomeTeam")->text(), "");
    EXPECT_EQ(games().size(), 0);
}

TEST_F(ResultsScreenTest, StandingsRankTheTeamsOfTheDivision) {
    tabs->setCurrentIndex(2);
    EXPECT_EQ(shown("flxGridStandings"),
              (QStringList{"1|Terns|No Sponsor Assigned|1|0|0|100.000", "2|Owls|No Sponsor Assigned|1|0|1|50.000",
                           "3|Hawks|No Sponsor Assigned|0|2|1|0.000"}));
    dialogs.expectWarning("Division Standings", "No Records available for the division.");
    press(screen, "cmdStandingsMove2");
    EXPECT_EQ(shown("flxGridStandings").size(), 0);
    press(screen, "cmdStandingsMove1");
    tabs->setCurrentIndex(1);
    pickGame(0);
    type(screen, "mskedVisitorTeamScore", "4");
    press(screen, "cmdSave");
    tabs->setCurrentIndex(2);
    EXPECT_EQ(shown("flxGridStandings"),
              (QStringList{"1|Terns|No Sponsor Assigned|1|0|0|100.000", "2|Owls|No Sponsor Assigned|1|1|0|50.000",
                           "3|Hawks|No Sponsor Assigned|1|2|0|33.333"}));
    EXPECT_FALSE(control(screen, "cmdAdd")->isVisible()) << "there is nothing to add to standings";
}

TEST_F(ResultsScreenTest, EmptyLeagueShowsEmptyTabs) {
    RunningProgram empty;
    Screen* other = empty.open("frmResults");
    for (const int tab : {0, 1, 2}) {
        other->findChild<QTabWidget*>()->setCurrentIndex(tab);
        EXPECT_FALSE(control(other, "cmdSave")->isEnabled());
        EXPECT_FALSE(control(other, "cmdAdd")->isEnabled() && control(other, "cmdAdd")->isVisible());
    }
    EXPECT_TRUE(empty.league.dialogs.shown().empty());
}

}  // namespace
