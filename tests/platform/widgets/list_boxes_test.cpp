#include "platform/text/Collation.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/DateBox.h"
#include "platform/widgets/ListMover.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCalendarWidget>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

/// A window with the search list of a few players and a second place for the focus.
struct Search {
    Search() {
        combo.setEntries({"Adams, Ann", "Baker, Bo", "Bakewell, Cy", "baxter, Di", "Young, Zoe"});
        combo.setCurrentIndex(0);
        QObject::connect(&combo, &SearchCombo::picked, [this](int index) { picked << index; });
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&combo);
        layout->addWidget(&other);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        combo.setFocus(Qt::TabFocusReason);
    }
    QString selected() const { return combo.lineEdit()->selectedText(); }

    QWidget window;
    SearchCombo combo{"Current Player"};
    QLineEdit other;
    QList<int> picked;
};

TEST(SearchCombo, CompletesWhatIsTyped) {
    Search search;
    QTest::keyClicks(&search.combo, "BAK");
    EXPECT_EQ(search.combo.currentText(), "Baker, Bo");
    EXPECT_EQ(search.selected(), "er, Bo");
    QTest::keyClicks(&search.combo, "ew");
    EXPECT_EQ(search.combo.currentText(), "Bakewell, Cy");
    QTest::keyClick(&search.combo, Qt::Key_Backspace);
    EXPECT_EQ(search.combo.currentText(), "Bakew") << "deleting completes nothing";
    EXPECT_EQ(search.combo.currentIndex(), -1);
    EXPECT_TRUE(search.picked.isEmpty()) << "typing picks nothing yet";
    QTest::keyClick(&search.combo, Qt::Key_Return);
    EXPECT_EQ(search.combo.currentText(), "Bakewell, Cy");
    EXPECT_EQ(search.picked, QList<int>{2});
}

TEST(SearchCombo, LeavingTakesTheEntryOrReturnsToTheOneBefore) {
    Search search;
    QTest::keyClicks(&search.combo, "bax");
    search.other.setFocus();
    EXPECT_EQ(search.picked, QList<int>{3});
    EXPECT_EQ(search.combo.currentText(), "baxter, Di");

    search.combo.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&search.combo, "Nobody");
    EXPECT_EQ(search.combo.currentIndex(), -1);
    search.other.setFocus();
    EXPECT_EQ(search.combo.currentIndex(), 3);
    EXPECT_EQ(search.combo.currentText(), "baxter, Di");

    search.combo.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&search.combo, "you");
    QTest::keyClick(&search.combo, Qt::Key_Escape);
    search.other.setFocus();
    EXPECT_EQ(search.combo.currentText(), "baxter, Di");
    EXPECT_EQ(search.picked.size(), 1);
}

TEST(SearchCombo, OnlyTheUserPicks) {
    Search search;
    search.combo.setCurrentIndex(2);
    search.combo.setEntries({"Adams, Ann", "Baker, Bo", "Young, Zoe"});
    search.combo.setCurrentIndex(1);
    search.other.setFocus();
    EXPECT_TRUE(search.picked.isEmpty());
    search.combo.setFocus();
    QTest::keyClick(&search.combo, Qt::Key_Down);
    EXPECT_EQ(search.picked, QList<int>{2});
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&search.combo, &wheel);
    EXPECT_EQ(search.combo.currentIndex(), 2) << "the wheel changes nothing in passing";
    search.combo.showPopup();
    QTest::keyClick(search.combo.view(), Qt::Key_Up);
    QTest::keyClick(search.combo.view(), Qt::Key_Return);
    EXPECT_EQ(search.picked, (QList<int>{2, 1}));
}

TEST(SearchCombo, TakesAndLosesSingleEntries) {
    Search search;
    search.combo.setCurrentIndex(1);
    EXPECT_EQ(search.combo.insertEntry("Baker, Al", listLess), 1);
    EXPECT_EQ(search.combo.currentText(), "Baker, Bo") << "the shown entry stays shown";
    EXPECT_EQ(search.combo.currentIndex(), 2);
    EXPECT_EQ(search.combo.indexOf("BAXTER, DI"), 4);
    search.combo.removeEntry(0);
    EXPECT_EQ(search.combo.currentText(), "Baker, Bo");
    search.combo.removeEntry(1);
    EXPECT_EQ(search.combo.currentIndex(), -1);
    EXPECT_EQ(search.combo.currentText(), "");
    EXPECT_EQ(search.combo.indexOf("Baker, Bo"), -1);
    EXPECT_TRUE(search.picked.isEmpty());
}

TEST(SearchCombo, StaysQuickWithAHundredThousandEntries) {
    std::vector<QString> entries;
    for (int i = 0; i < 100'000; ++i) entries.push_back(QString("Name%1, First - 5/6/2015").arg(i, 6, 10, QChar('0')));
    Search search;
    const auto measured = [](const char* what, int limit, auto act) {
        QElapsedTimer timer;
        timer.start();
        act();
        const auto took = timer.nsecsElapsed() / 1'000'000.0;
        testing::Test::RecordProperty(what, std::to_string(took) + " ms");
        EXPECT_LT(took, limit) << what;
    };
    // The limits are wide: they catch a list that is copied or measured entry by entry, not a busy machine.
    measured("set", 250, [&] { search.combo.setEntries(std::move(entries)), search.combo.grab(); });
    measured("type", 250, [&] { QTest::keyClicks(&search.combo, "name0999"); });
    measured("find nothing", 250,
             [&] { QTest::keyClicks(&search.combo, "x"), QTest::keyClick(&search.combo, Qt::Key_Escape); });
    measured("insert", 250, [&] { search.combo.insertEntry("Name050000, Second", std::less<>()); });
    measured("open", 250, [&] { search.combo.showPopup(), search.combo.view()->grab(); });
    search.combo.hidePopup();
    EXPECT_EQ(search.combo.entryCount(), 100'001);
}

TEST(ChoiceBox, HoldsAListAndShowsAnyValue) {
    struct Case {
        const char* what;
        ChoiceBox::Options options;
        const char* shown;
        const char* keys;  ///< "<" is Backspace, "^" Delete
        const char* text;
        int index;
    };
    const Case cases[] = {
        {"an entry", ChoiceBox::EmptyFirst, "Male", "", "Male", 1},
        {"cleared to the empty entry", ChoiceBox::EmptyFirst, "Male", "<", "", 0},
        {"cleared without one", ChoiceBox::ListOnly, "Male", "^", "", -1},
        {"chosen by its letter", ChoiceBox::ListOnly, "Male", "f", "Female", 1},
        {"a value of an older season", ChoiceBox::EmptyFirst, "Unknown", "", "Unknown", 3},
        {"a typed entry is completed", ChoiceBox::FreeText, "", "fe", "Female", 1},
        {"another text can be typed", ChoiceBox::FreeText, "", "fe^n", "Fen", -1},
        {"a filter keeps keys out", ChoiceBox::FreeText, "Unkn,own", "fe\"^", "Fe", -1},
        {"a stored text keeps what the filter refuses", ChoiceBox::FreeText, "a \"b\"", "", "a \"b\"", -1},
    };
    for (const Case& it : cases) {
        ChoiceBox box(it.options);
        box.setEntries({"Male", "Female"});
        box.setLimits(FilterTextFull, 10);
        box.setText(it.shown);
        if (box.lineEdit()) box.lineEdit()->selectAll();
        QString told = it.shown;
        QObject::connect(&box, &ChoiceBox::edited, [&told](const QString& text) { told = text; });
        for (const char* key = it.keys; *key; ++key) {
            if (*key == '<' || *key == '^')
                QTest::keyClick(&box, *key == '<' ? Qt::Key_Backspace : Qt::Key_Delete);
            else
                QTest::keyClick(&box, *key);
        }
        EXPECT_EQ(box.text(), it.text) << it.what;
        EXPECT_EQ(box.currentIndex(), it.index) << it.what;
        EXPECT_EQ(told, box.text()) << it.what;
    }
}

TEST(ChoiceBox, AStrangerLeavesTheListAgain) {
    ChoiceBox box;
    box.setEntries({"Small", "Large"});
    box.setText("Huge");
    EXPECT_EQ(box.entryCount(), 3);
    box.setText("Small");
    EXPECT_EQ(box.entryCount(), 2);
    EXPECT_EQ(box.text(), "Small");
    box.setEntries({"Medium"});
    EXPECT_EQ(box.text(), "Small") << "a new list keeps the value";
}

TEST(ChoiceBox, TurnsToCapitalsWhenLeft) {
    QWidget window;
    QVBoxLayout layout(&window);
    auto* box = new ChoiceBox(ChoiceBox::FreeText | ChoiceBox::UpperCase);
    auto* other = new QLineEdit;
    layout.addWidget(box);
    layout.addWidget(other);
    box->setEntries({"AZ", "NM"});
    QStringList told;
    QObject::connect(box, &ChoiceBox::edited, [&told](const QString& text) { told << text; });
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    QTest::keyClicks(box, "on");
    other->setFocus();
    EXPECT_EQ(told.back(), "ON");
    EXPECT_EQ(box->text(), "ON");
}

TEST(DateBox, ReadsWhatIsTypedAndKeepsWhatItCannotRead) {
    struct Case {
        const char* format;
        const char* typed;
        const char* shown;  ///< after the box was left
        QDate date;
    };
    const QDate stored(2015, 5, 6);
    const Case cases[] = {
        {"MM/dd/yyyy", "4/2/26", "04/02/2026", {2026, 4, 2}},
        {"MM/dd/yyy", "4/2/65", "04/02/1965", {1965, 4, 2}},
        {"dd-MMM-yy", "2-apr-26", "02-Apr-26", {2026, 4, 2}},
        {"yy/MM/dd", "26/04/02", "26/04/02", {2026, 4, 2}},
        {"yyyy-MM-dd", "2026-4-2", "2026-04-02", {2026, 4, 2}},
        {"MM/dd/yyyy", "2/30/2026", "2/30/2026", stored},
        {"MM/dd/yyyy", "soon", "soon", stored},
        {"MM/dd/yyyy", "", "", {}},
    };
    for (const Case& it : cases) {
        DateBox box;
        box.setFormat(it.format);
        box.setDate(stored);
        box.selectAll();
        if (*it.typed)
            QTest::keyClicks(&box, it.typed);
        else
            QTest::keyClick(&box, Qt::Key_Delete);
        QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&box, &leaves);
        EXPECT_EQ(box.text(), it.shown);
        EXPECT_EQ(box.date(), it.date) << it.typed;
        const bool kept = it.date == stored;
        EXPECT_EQ(box.isReadable(), !kept) << it.typed;
        EXPECT_EQ(box.toolTip().isEmpty(), !kept) << it.typed;
    }
}

TEST(DateBox, StepsByKeysAndTakesFromTheCalendar) {
    DateBox box;
    QList<QDate> told;
    QObject::connect(&box, &DateBox::edited, [&told](const QDate& date) { told << date; });
    box.setDate({2026, 3, 31});
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_PageDown);
    EXPECT_EQ(told, (QList<QDate>{{2026, 4, 1}, {2026, 3, 1}}));
    box.show();
    QTest::keyClick(&box, Qt::Key_F4);
    auto* calendar = box.findChild<QCalendarWidget*>();
    ASSERT_TRUE(calendar);
    EXPECT_EQ(calendar->selectedDate(), QDate(2026, 3, 1));
    Q_EMIT calendar->activated(QDate(2026, 3, 9));
    EXPECT_EQ(box.text(), "03/09/2026");
    EXPECT_EQ(told.back(), QDate(2026, 3, 9));
    box.setDate({});
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(told.size(), 3) << "showing is no edit";
}

TEST(ListMover, AsksForMovesOnEveryWay) {
    ListMover mover("lstPositions", "Positions", "Available");
    mover.setEntries(ListMover::Left, {"Coach"});
    mover.setEntries(ListMover::Right, {"Manager", "Scorer", "Umpire"});
    QStringList asked;
    QObject::connect(&mover, &ListMover::moveRequested, [&](ListMover::Side from, int index) {
        asked << (from == ListMover::Left ? "left " : "right ") + mover.entryAt(from, index);
    });
    auto* left = mover.findChild<QListView*>("lstPositionsLeft");
    auto* right = mover.findChild<QListView*>("lstPositionsRight");
    auto* toLeft = mover.findChild<QToolButton*>("lstPositionsRightMove");
    ASSERT_TRUE(left && right && toLeft);
    mover.resize(500, 200);
    mover.show();

    EXPECT_FALSE(toLeft->isEnabled()) << "nothing is selected";
    QTest::keyClick(right, Qt::Key_Left);
    EXPECT_TRUE(asked.isEmpty());
    right->setCurrentIndex(right->model()->index(1, 0));
    QTest::mouseClick(toLeft, Qt::LeftButton);
    QTest::keyClick(right, Qt::Key_Left);
    QTest::keyClick(right, Qt::Key_Return);
    const QPoint coach = left->visualRect(left->model()->index(0, 0)).center();
    QTest::mouseClick(left->viewport(), Qt::LeftButton, {}, coach);
    QTest::mouseDClick(left->viewport(), Qt::LeftButton, {}, coach);
    EXPECT_EQ(asked, (QStringList{"right Scorer", "right Scorer", "right Scorer", "left Coach"}));

    asked.clear();
    const QModelIndex scorer = right->model()->index(1, 0);
    const std::unique_ptr<QMimeData> carried(right->model()->mimeData({scorer}));
    const QMimeData foreign;
    const struct {
        const char* what;
        QListView* target;
        const QMimeData* data;
        bool taken;
    } drops[]{{"another program's", left, &foreign, false},
              {"its own", right, carried.get(), false},
              {"the other list's", left, carried.get(), true}};
    EXPECT_TRUE(scorer.flags() & Qt::ItemIsDragEnabled);
    for (const auto& each : drops) {
        QWidget* target = each.target->viewport();
        QDragEnterEvent enter({5, 5}, Qt::MoveAction, each.data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &enter);
        EXPECT_EQ(enter.isAccepted(), each.taken) << each.what;
        QDropEvent drop(QPointF(5, 5), Qt::MoveAction, each.data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
        EXPECT_EQ(drop.isAccepted(), each.taken) << each.what;
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !asked.isEmpty(); }));
    EXPECT_EQ(asked, QStringList{"right Scorer"});

    mover.setEntries(ListMover::Right, {"Manager", "Umpire"});
    EXPECT_EQ(mover.selectedEntry(ListMover::Right), "Umpire") << "the next one is ready to be moved";
    mover.setEntries(ListMover::Right, {});
    EXPECT_FALSE(toLeft->isEnabled());
}

}  // namespace
