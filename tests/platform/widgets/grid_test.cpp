#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/Grid.h"
#include "support/Printing.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

/// A window with a grid of two texts around a list and a column that is only shown, between two other boxes.
class GridTest : public testing::Test {
protected:
    void SetUp() override {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* each :
             {static_cast<QWidget*>(&before), static_cast<QWidget*>(grid), static_cast<QWidget*>(&after)})
            layout->addWidget(each);
        grid->setRows({{{"a1", "Red", "c1", "x"}, 1}, {{"a2", "", "c2", "y"}, 2}, {{"a3", "Blue", "", "z"}, 3}});
        grid->setChoices(1, {"Blue", "Green", "Red"});
        window.resize(700, 400);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void click(int row, int column, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid->viewport(), button, {},
                          grid->visualRect(grid->model()->index(row, column)).topLeft() + QPoint(4, 4));
    }
    static void keys(std::initializer_list<Qt::Key> all) {
        for (const Qt::Key key : all) QTest::keyClick(QApplication::focusWidget(), key);
    }
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    QString at() const {
        return QStringLiteral("%1,%2").arg(grid->currentIndex().row()).arg(grid->currentIndex().column());
    }
    QString row(int number) const { return grid->rows()[size_t(number)].cells.join('|'); }

    QWidget window;
    QLineEdit before;
    Grid* grid = new Grid({{"A", 10, GridColumn::Cells::Text, FilterNumeric, 4},
                           {"B", 10, GridColumn::Cells::Choice, FilterTextFull, 10},
                           {"C", 10, GridColumn::Cells::Text, FilterTextFull},
                           {"D"}});
    QLineEdit after;
};

TEST_F(GridTest, TypedTextIsInTheCellAtOnceAndEscapeTakesItBack) {
    QSignalSpy edited(grid, &Grid::cellEdited);
    click(1, 2);
    EXPECT_TRUE(grid->textBox()->hasFocus());
    EXPECT_EQ(grid->textBox()->cursorPosition(), 2) << "the caret stands at the end";
    type("x");
    EXPECT_EQ(row(1), "a2||c2x|y");
    EXPECT_EQ(edited.size(), 1);
    keys({Qt::Key_Backspace, Qt::Key_Backspace});
    EXPECT_EQ(row(1), "a2||c|y");
    keys({Qt::Key_Escape});
    EXPECT_EQ(row(1), "a2||c2|y");
    EXPECT_EQ(grid->textBox()->text(), "c2");
    click(0, 0);
    type("b7\"1234");
    EXPECT_EQ(row(0), "a171|Red|c1|x") << "the column's filter and length hold";
    click(2, 3);
    EXPECT_FALSE(grid->textBox()->isVisible() || grid->choiceBox()->isVisible()) << "this column is only shown";
    type("q");
    EXPECT_EQ(row(2), "a3|Blue||z");
}

TEST_F(GridTest, ListCompletesAndTakesOtherTextsToo) {
    click(1, 1);
    EXPECT_TRUE(grid->choiceBox()->hasFocus());
    type("gr");
    EXPECT_EQ(row(1), "a2|Green|c2|y");
    keys({Qt::Key_Down});
    EXPECT_EQ(row(1), "a2|Red|c2|y") << "arrows choose";
    EXPECT_EQ(at(), "1,1");
    keys({Qt::Key_Right});
    EXPECT_EQ(at(), "1,1") << "and move in the text";
    keys({Qt::Key_Escape});
    EXPECT_EQ(row(1), "a2||c2|y");
    type("Grey");
    keys({Qt::Key_Return});
    EXPECT_EQ(row(1), "a2|Grey|c2|y");
    EXPECT_EQ(at(), "1,2");
}

TEST_F(GridTest, KeysLeadFromCellToCell) {
    using enum Qt::Key;
    const struct {
        const char* what;
        int row, column;
        std::vector<Qt::Key> keys;
        const char* to;
    } cases[]{
        {"Enter", 0, 0, {Key_Return}, "0,1"},
        {"Enter from the last column that can be edited", 0, 2, {Key_Enter}, "1,0"},
        {"Enter at the end of the grid", 2, 2, {Key_Return}, "2,2"},
        {"Tab and back", 0, 1, {Key_Tab, Key_Tab, Key_Backtab}, "0,2"},
        {"Left within the text", 1, 2, {Key_Left}, "1,2"},
        {"Left at its start", 1, 2, {Key_Home, Key_Left}, "1,1"},
        {"Left from the first column", 1, 0, {Key_Home, Key_Left}, "0,2"},
        {"Left at the start of the grid", 0, 0, {Key_Home, Key_Left}, "0,0"},
        {"Right within the text", 0, 0, {Key_Home, Key_Right}, "0,0"},
        {"Right at its end", 0, 0, {Key_Right}, "0,1"},
        {"Right from the last column", 0, 2, {Key_Right}, "1,0"},
        {"Right at the end of the grid", 2, 2, {Key_Right}, "2,2"},
        {"Up and down", 1, 2, {Key_Up, Key_Up, Key_Down, Key_Down, Key_Down}, "2,2"},
        {"Page Down", 0, 0, {Key_PageDown}, "2,0"},
    };
    for (const auto& each : cases) {
        grid->setCurrentIndex({});
        click(each.row, each.column);
        for (const Qt::Key key : each.keys) keys({key});
        EXPECT_EQ(at(), each.to) << each.what;
    }
    click(2, 2);
    keys({Qt::Key_Tab});
    EXPECT_TRUE(after.hasFocus()) << "Tab leads out of the grid at its end";
    keys({Qt::Key_Backtab});
    type("5");
    EXPECT_EQ(row(2), "a3|Blue|5|z") << "and back into the cell";
    EXPECT_EQ(at(), "2,2");
}

TEST_F(GridTest, LeavingIsToldOnceWhereverItLeads) {
    QSignalSpy left(grid, &Grid::cellLeft);
    const auto told = [&left] {
        QStringList cells;
        for (const auto& each : left) cells << QStringLiteral("%1,%2").arg(each[0].toInt()).arg(each[1].toInt());
        left.clear();
        return cells.join(' ');
    };
    click(0, 0);
    EXPECT_EQ(told(), "");
    keys({Qt::Key_Return, Qt::Key_Return});
    EXPECT_EQ(told(), "0,0 0,1");
    after.setFocus();
    EXPECT_EQ(told(), "0,2");
    grid->setFocus();
    type("z");
    grid->settle();
    EXPECT_EQ(told(), "0,2");
    type("y");
    keys({Qt::Key_Escape});
    EXPECT_EQ(row(0), "a1|Red|c1z|x") << "what was settled is not taken back";
    grid->setRows({});
    EXPECT_EQ(told(), "") << "the row is no longer there";
}

TEST_F(GridTest, RowsComeAndGo) {
    click(1, 2);
    grid->insertRow(1);
    EXPECT_EQ(at(), "1,0");
    type("9");
    EXPECT_EQ(row(1), "9");
    EXPECT_EQ(row(2), "a2||c2|y");
    EXPECT_EQ(grid->rows()[1].id, 0);
    keys({Qt::Key_Down});
    type("8");
    EXPECT_EQ(row(2), "a28||c2|y");
    grid->removeRow(1);
    EXPECT_EQ(at(), "1,0");
    EXPECT_EQ(grid->textBox()->text(), "a28");
    grid->removeRow(2);
    EXPECT_EQ(at(), "1,0") << "the last row steps up";
    grid->removeRow(1);
    grid->removeRow(0);
    EXPECT_FALSE(grid->textBox()->isVisible());
    grid->insertRow(0);
    type("7");
    EXPECT_EQ(row(0), "7") << "the keys still come here";
}

TEST_F(GridTest, MenuIsForTheRowUnderThePointer) {
    QSignalSpy wanted(grid, &Grid::menuWanted);
    click(0, 2);
    const auto rightClick = [](QWidget* widget, QPoint place) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
    };
    rightClick(grid->textBox(), {3, 3});
    EXPECT_EQ(at(), "0,2");
    rightClick(grid->viewport(), grid->visualRect(grid->model()->index(2, 0)).center());
    EXPECT_EQ(at(), "2,2");
    QHeaderView* numbers = grid->verticalHeader();
    rightClick(numbers->viewport(), {5, numbers->sectionViewportPosition(1) + 5});
    EXPECT_EQ(at(), "1,2");
    grid->setRows({});
    rightClick(grid->viewport(), {5, 5});
    EXPECT_EQ(wanted.size(), 4) << "also where there are no rows";
}

TEST_F(GridTest, OpenCellStaysOnItsCellAndComesIntoViewForTyping) {
    std::vector<GridRow> many;
    for (int number = 0; number < 2000; ++number) many.push_back({{QString::number(number), "", "", ""}, number});
    grid->setRows(std::move(many));
    grid->setCurrentCell(1000, 0);
    grid->setFocus();
    grid->scrollToTop();
    EXPECT_FALSE(grid->viewport()->rect().intersects(grid->textBox()->geometry()));
    type("1");
    EXPECT_EQ(grid->text(1000, 0), "1000") << "four characters fill the cell";
    keys({Qt::Key_Backspace});
    EXPECT_EQ(grid->text(1000, 0), "100");
    EXPECT_EQ(grid->textBox()->geometry(), grid->visualRect(grid->currentIndex()));
    EXPECT_TRUE(grid->viewport()->rect().contains(grid->textBox()->geometry()));
}

TEST(Grid, RowsThatAreOnlyShownArePicked) {
    Grid grid({{"A"}, {"B"}});
    grid.setRows({{{"a1", "b1"}, 1}, {{"a2", "b2"}, 2}});
    grid.resize(400, 200);
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    QSignalSpy picked(&grid, &Grid::rowPicked);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(1, 0)).center());
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Return);
    ASSERT_EQ(picked.size(), 2);
    EXPECT_EQ(picked[0][0].toInt(), 1);
    EXPECT_EQ(picked[1][0].toInt(), 0);
}

}  // namespace
