#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QMenu>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

constexpr char list[] = "cboScheduleDivision";
const QString checkTitle = QStringLiteral("Schedule Validation");
const QString checkText =
    QStringLiteral("Schedule cannot be saved, the following\nerrors were found while validating the schedule:\n\n");

/// The schedule of Majors, two games of which one more is deleted, and of Minors, which has none.
class ScheduleScreenTest : public testing::Test {
protected:
    void SetUp() override {
        const datafile::Database data = running.league.database();
        for (const char* name : {"Majors", "Minors"})
            data.execute(QStringLiteral("INSERT INTO tblDivision (DivName) VALUES (\"%1\")").arg(name));
        for (const char* name : {"Owls", "Hawks"})
            data.execute(QStringLiteral("INSERT INTO tblTeam (TeamName, DivisionId) VALUES (\"%1\", 1)").arg(name));
        data.execute("INSERT INTO tblTeam (TeamName, DivisionId, DeletedFlag) VALUES (\"Gone\", 1, True)");
        addGame("5-2-2026", "18:30:00", "Hawks", false);
        addGame("4-25-2026", "09:00:00", "Owls", false);
        addGame("4-18-2026", "09:00:00", "Owls", true);
        screen = running.open("frmResults");
        grid = control<Grid>(screen, "flxGridSchedule");
    }
    void addGame(const QString& date, const QString& time, const QString& home, bool deleted) {
        running.league.database().execute(
            QStringLiteral("INSERT INTO tblSchedule ([Date], [Day], [Time], [division], VisitorsTeam, HomeTeam, "
                           "[Field], DeletedFlag) VALUES (#%1#, \"Saturday\", #%2#, \"Majors\", \"Crows\", \"%3\", "
                           "\"Oak\", %4)")
                .arg(date, time, home, deleted ? "True" : "False"));
    }
    QStringList shown() const {
        QStringList rows;
        for (const GridRow& row : grid->rows()) rows << row.cells.join('|');
        return rows;
    }
    /// The games in the file; "-" before a deleted one.
    QStringList kept() {
        QStringList games;
        datafile::Recordset rows = running.league.database().openRecordset("SELECT * FROM tblSchedule ORDER BY [Date]");
        for (; !rows.eof(); rows.moveNext())
            games << (rows.flag("DeletedFlag") ? "-" : "") + rows.text("Date") + ' ' + rows.text("Day") + ' ' +
                         rows.text("Time") + ' ' + rows.text("division") + ' ' + rows.text("HomeTeam");
        return games;
    }
    void go(int row, int column) {
        grid->setFocus();
        grid->setCurrentCell(row, column);
    }
    static void typeOver(const QString& text) {
        QWidget* cell = QApplication::focusWidget();
        QTest::keyClick(cell, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty()) QTest::keyClick(cell, Qt::Key_Delete);
        QTest::keyClicks(cell, text);
    }
    void fill(std::initializer_list<const char*> cells) {
        for (const char* text : cells) {
            typeOver(text);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
    }
    void choose(const char* entry) {
        Q_EMIT grid->menuWanted({});
        auto* action = screen->findChild<QAction*>(entry);
        EXPECT_TRUE(action->isEnabled()) << entry;
        screen->findChild<QMenu*>("MnuFGridRows")->close();
        action->trigger();
    }
    bool isDirty() { return control(screen, "cmdSave")->isEnabled(); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
    Grid* grid = nullptr;
};

TEST_F(ScheduleScreenTest, GamesOfTheDivisionStandInTheirOrder) {
    EXPECT_EQ(shown(),
              (QStringList{"4/25/26|Saturday|09:00 AM|Crows|Owls|Oak", "5/2/26|Saturday|06:30 PM|Crows|Hawks|Oak"}));
    EXPECT_FALSE(isDirty());
    press(screen, "cmdScheduleMove2");
    EXPECT_EQ(shown(), QStringList());
    press(screen, "cmdScheduleMove2");
    EXPECT_EQ(status(screen), "Last Record");
    press(screen, "cmdScheduleMove0");
    EXPECT_EQ(shown().size(), 2);
}

TEST_F(ScheduleScreenTest, GameIsTypedInAndSavedWithTheOthers) {
    choose("MnuFGridAddRow");
    EXPECT_TRUE(control(screen, "T1")->hasFocus());
    EXPECT_FALSE(control(screen, list)->isEnabled() || control(screen, "cmdScheduleMove0")->isEnabled());
    typeOver("5-9-2026");
    EXPECT_EQ(shown()[2].section('|', 0, 0), "5-9-2026") << "what is typed is in the cell at once";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(shown()[2].section('|', 0, 1), "5/9/26|Saturday") << "the week day follows";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(control<FilteredEdit>(screen, "T1")->hasFocus());
    fill({"14:05"});
    EXPECT_TRUE(control(screen, "CBO1")->hasFocus());
    EXPECT_EQ(control<ChoiceBox>(screen, "CBO1")->entryCount(), 2) << "no deleted team";
    fill({"h", "Nobody's team", "Field by the river"});
    EXPECT_EQ(shown()[2], "5/9/26|Saturday|02:05 PM|Hawks|Nobody's team|Field by the river");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Schedule Saved");
    EXPECT_FALSE(isDirty());
    EXPECT_TRUE(control(screen, list)->isEnabled());
    EXPECT_EQ(kept(),
              (QStringList{"-2026-04-18 Saturday 09:00:00 Majors Owls", "2026-04-25 Saturday 09:00:00 Majors Owls",
                           "2026-05-02 Saturday 18:30:00 Majors Hawks",
                           "2026-05-09 Saturday 14:05:00 Majors Nobody's team"}));
    EXPECT_EQ(running.league.value("SELECT * FROM tblSchedule WHERE [HomeTeam] = \"Nobody's team\"", "DateStamp"),
              "2026-04-22");
}

TEST_F(ScheduleScreenTest, WeekDayFollowsTheDateWheneverItIsLeft) {
    go(0, 1);
    typeOver("Sunday");
    go(0, 0);
    go(1, 0);
    EXPECT_EQ(grid->text(0, 1), "Saturday") << "over a day chosen by hand";
    typeOver("2/30/26");
    go(0, 0);
    EXPECT_EQ(shown()[1].section('|', 0, 1), "2/30/26|Saturday") << "no date, no change";
    typeOver("4/26/2036");
    go(1, 0);
    EXPECT_EQ(shown()[0].section('|', 0, 1), "4/26/2036|Saturday") << "two digits would be another century";
}

TEST_F(ScheduleScreenTest, RowsWithoutDateOrTimeAreNamedAndNothingIsSaved) {
    go(0, 2);
    typeOver("25:99");
    choose("MnuFGridInsRow");
    choose("MnuFGridAddRow");
    const QStringList before = kept();
    dialogs.expectWarning(checkTitle, checkText +
                                          "Row 1 - Invalid Game Date\nRow 1 - Invalid Game Time\n"
                                          "Row 2 - Invalid Game Time\n"
                                          "Row 4 - Invalid Game Date\nRow 4 - Invalid Game Time");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Schedule NOT Saved");
    EXPECT_EQ(kept(), before);
    EXPECT_TRUE(isDirty());
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(0, 0)) << "the first that is wrong";
}

TEST_F(ScheduleScreenTest, EscapeLeavesNothingToSaveUnlessThereWasBefore) {
    go(0, 5);
    typeOver("Elm");
    EXPECT_TRUE(isDirty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(grid->text(0, 5), "Oak");
    EXPECT_FALSE(isDirty());
    typeOver("Elm");
    go(1, 5);
    typeOver("Ash");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(isDirty()) << "the change of the other row stands";
}

TEST_F(ScheduleScreenTest, DeletedGameIsGoneAtOnce) {
    const QString question =
        "Are you sure you want\nto delete row 2?\n\nThis will automatically delete\nthe game from the schedule.";
    go(1, 0);
    dialogs.expectQuestion("Delete Row", BoxAnswer::No, question);
    choose("MnuFGridDelRow");
    EXPECT_EQ(shown().size(), 2);
    dialogs.expectQuestion("Delete Row", BoxAnswer::Yes, question);
    choose("MnuFGridDelRow");
    EXPECT_EQ(shown().size(), 1);
    EXPECT_EQ(grid->currentIndex().row(), 0);
    EXPECT_FALSE(isDirty());
    EXPECT_EQ(kept().last(), "-2026-05-02 Saturday 18:30:00 Majors Hawks");
    choose("MnuFGridAddRow");
    choose("MnuFGridDelRow");
    EXPECT_EQ(shown().size(), 1) << "a row that was never saved goes without a question";
    press(screen, "cmdSave");
    dialogs.expectQuestion("Delete Row", BoxAnswer::Yes);
    choose("MnuFGridDelRow");
    EXPECT_EQ(shown().size(), 0);
    EXPECT_EQ(kept()[1], "2026-04-25 Saturday 09:00:00 Majors Owls") << "kept under a new key";
    EXPECT_TRUE(isDirty()) << "so that it goes with the next save";
    Q_EMIT grid->menuWanted({});
    EXPECT_FALSE(screen->findChild<QAction*>("MnuFGridDelRow")->isEnabled());
    screen->findChild<QMenu*>("MnuFGridRows")->close();
    press(screen, "cmdSave");
    EXPECT_EQ(kept(),
              (QStringList{"-2026-04-18 Saturday 09:00:00 Majors Owls", "-2026-05-02 Saturday 18:30:00 Majors Hawks"}));
}

TEST_F(ScheduleScreenTest, LeavingOffersToSave) {
    auto* tabs = screen->findChild<QTabWidget*>();
    const auto leave = [&](BoxAnswer answer) {
        go(0, 5);
        typeOver("Elm");
        dialogs.expectQuestion("Save Record?", answer, "Save the current schedule?");
    };
    leave(BoxAnswer::No);
    tabs->setCurrentIndex(2);
    EXPECT_EQ(tabs->currentIndex(), 2);
    tabs->setCurrentIndex(0);
    EXPECT_EQ(grid->text(0, 5), "Oak");
    go(0, 2);
    typeOver("");
    leave(BoxAnswer::Yes);
    dialogs.expectWarning(checkTitle);
    tabs->setCurrentIndex(1);
    EXPECT_EQ(tabs->currentIndex(), 0) << "a time is missing";
    typeOver("9p");
    dialogs.expectQuestion("Save Schedule?", BoxAnswer::Yes, "Save the current schedule?");
    screen->close();
    EXPECT_EQ(
        running.league.value("SELECT * FROM tblSchedule WHERE [HomeTeam] = \"Owls\" AND [DeletedFlag] = False", "Time"),
        "21:00:00");
}

TEST_F(ScheduleScreenTest, SaveThatFailsMidwayKeepsBothSchedules) {
    running.league.database().addIndex("tblSchedule", {.name = "idxOneADay", .fields = {"Date"}, .unique = true});
    go(0, 0);
    typeOver("5/2/26");
    const QStringList before = kept();
    dialogs.expectError("The schedule was not saved");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Schedule NOT Saved");
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(grid->text(0, 0), "5/2/26");
    go(0, 0);
    typeOver("5/3/26");
    press(screen, "cmdSave");
    EXPECT_EQ(kept()[2], "2026-05-03 Sunday 09:00:00 Majors Owls");
}

}  // namespace
