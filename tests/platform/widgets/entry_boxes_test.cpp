#include "platform/widgets/CommentBox.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/MaskedEdit.h"
#include "support/Printing.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

void paste(QWidget& box, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keySequence(&box, QKeySequence(QKeySequence::Paste));
}

/// Plays "555", "<" for Backspace, "^" for Delete, "[" for Home and "]" for End; anything else is typed.
void play(QWidget& box, const QString& keys) {
    for (const QChar key : keys) {
        switch (key.unicode()) {
            case u'<': QTest::keyClick(&box, Qt::Key_Backspace); break;
            case u'^': QTest::keyClick(&box, Qt::Key_Delete); break;
            case u'[': QTest::keyClick(&box, Qt::Key_Home); break;
            case u']': QTest::keyClick(&box, Qt::Key_End); break;
            default: QApplication::postEvent(&box, new QKeyEvent(QEvent::KeyPress, 0, Qt::NoModifier, QString(key)));
        }
        QApplication::sendPostedEvents(&box);
    }
}

TEST(FilteredEdit, JudgesWhatItsUserPutsIn) {
    struct Case {
        const char* what;
        QString stored;
        QString typed;
        QString pasted;
        QString shown;
    };
    const Case cases[] = {
        {"typing", "", "O\"Neil; 2", "", "ONeil; 2"},
        {"accented letters", "", QString::fromUtf8("Peña"), QString::fromUtf8(" Québec"),
         QString::fromUtf8("Peña Québe")},
        {"a combining accent is joined", "", "", QString::fromUtf8("Pen\u0303a"), QString::fromUtf8("Peña")},
        {"pasted lines", "", "", "12 Oak\r\nSt.\t3", "12 Oak  St"},
        {"cut behind the filter, not before", "", "", "\"\"\"\"Main Street", "Main Stree"},
        {"a full box takes no more", "1234567890", "]x", "yz", "1234567890"},
        {"a stored text keeps what the filter refuses", "a, \"b\"", "]c", "", "a, \"b\"c"},
        {"a stored text may be too long", "Longer than ten", "]x<", "", "Longer than te"},
        {"a refused key leaves the selection alone", "abc", "\"", "", "abc"},
    };
    for (const Case& it : cases) {
        FilteredEdit box;
        box.setKeyFilter(FilterTextFull);
        box.setMaxLength(10);
        box.setText(it.stored);
        box.selectAll();
        play(box, it.typed);
        if (!it.pasted.isEmpty()) paste(box, it.pasted);
        EXPECT_EQ(box.text(), it.shown) << it.what;
    }
}

TEST(FilteredEdit, JudgesDropsAndComposedTextToo) {
    FilteredEdit box;
    box.setKeyFilter(FilterNumeric);
    box.setMaxLength(4);
    QInputMethodEvent composed;
    composed.setCommitString("a1\"2");
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), "12");
    QMimeData dragged;
    dragged.setText("x9 8 7");
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    box.event(&drop);
    EXPECT_EQ(box.text().size(), 4);
    EXPECT_TRUE(box.text().contains("98"));
}

TEST(FilteredEdit, UndoBringsBackAStoredTextThatTheFilterWouldRefuse) {
    FilteredEdit box;
    box.setKeyFilter(FilterTextFull);
    box.setText("Smith, \"Jr\"");
    box.selectAll();
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "x");
    QTest::keySequence(&box, QKeySequence(QKeySequence::Undo));
    EXPECT_EQ(box.text(), "Smith, \"Jr\"");
}

TEST(EntryBoxes, TenThousandPastedCharactersAreCutAtOnce) {
    FilteredEdit line;
    line.setMaxLength(50);
    CommentBox lines;
    lines.setLimits({}, 255);
    MaskedEdit mask("###-####");
    const QString text = QString("Aé 7\n").repeated(2000);
    QElapsedTimer timer;
    timer.start();
    for (QWidget* box : std::initializer_list<QWidget*>{&line, &lines, &mask}) paste(*box, text);
    EXPECT_LT(timer.elapsed(), 1000);
    EXPECT_EQ(line.text(), QString(text).replace('\n', ' ').left(50));
    EXPECT_EQ(lines.text(), text.left(255));
    EXPECT_EQ(mask.text(), "777-7777");
}

TEST(MaskedEdit, ReadsAsItDisplays) {
    struct Case {
        const char* mask;
        QString stored;
        QString shown;
    };
    const Case cases[] = {
        {"###-####", "", "   -    "},
        {"###-####", "   -    ", "   -    "},
        {"###-####", "555-1234", "555-1234"},
        {"###-####", "5551234", "555-1234"},
        {"###-####", "555-12", "555-12  "},
        {"###-####", "call mom", "call mom"},
        {"###-####", "555 1234", "555 1234"},
        {"###", "55", "55 "},
        {"####", "", "    "},
        {"(###) ###-####", "", "(   )    -    "},
        {"(###) ###-####", "5055551234", "(505) 555-1234"},
        {"#####-####", "87102-", "87102-    "},
        {"##:## ?M", "6:30 PM", "6:30 PM"},
        {"##:## ?M", "06:30 PM", "06:30 PM"},
    };
    for (const Case& it : cases) {
        MaskedEdit box(it.mask);
        box.setText(it.stored);
        EXPECT_EQ(box.text(), it.shown) << it.mask << " of \"" << it.stored.toStdString() << '"';
    }
}

TEST(MaskedEdit, OverwritesInPlace) {
    struct Case {
        const char* what;
        const char* mask;
        QString stored;
        QString keys;
        QString pasted;
        QString shown;
    };
    const Case cases[] = {
        {"typing skips the dash", "###-####", "", "5551234", "", "555-1234"},
        {"a typed dash is passed", "###-####", "", "555-1234", "", "555-1234"},
        {"a dash jumps ahead", "###-####", "", "5-1", "", "5  -1   "},
        {"letters are refused", "###-####", "", "a5b", "", "5  -    "},
        {"a full mask takes no more", "###-####", "555-1234", "]9", "", "555-1234"},
        {"overwriting", "###-####", "555-1234", "[77", "", "775-1234"},
        {"a blank empties a place", "###-####", "555-1234", "[ ", "", " 55-1234"},
        {"backspace blanks backwards over the dash", "###-####", "555-1234", "]<<<<<<", "", "55 -    "},
        {"delete blanks and stays", "###-####", "555-1234", "[^", "", " 55-1234"},
        {"delete in front of the dash", "###-####", "555-1234", "[555^", "", "555- 234"},
        {"typing replaces the selected whole", "###-####", "555-1234", "7", "", "7  -    "},
        {"deleting the selected whole", "###-####", "555-1234", "^", "", "   -    "},
        {"paste with dash", "###-####", "", "", "555-1234", "555-1234"},
        {"paste without", "###-####", "", "", "5551234", "555-1234"},
        {"paste with other marks", "###-####", "", "", "555 12.34", "555-1234"},
        {"paste a whole number into the middle", "###-####", "111-1111", "]", "555-1234", "555-1234"},
        {"paste of letters", "###-####", "555-1234", "", "none", "555-1234"},
        {"paste into the long mask", "(###) ###-####", "", "", "505-555-1234", "(505) 555-1234"},
        {"paste its own form", "(###) ###-####", "", "", "(505) 555-1234", "(505) 555-1234"},
        {"a letter's place", "##:## ?M", "", "0630P", "", "06:30 PM"},
        {"a text that does not fit is edited freely", "###-####", "call mom", "]<", "", "call mo"},
        {"or replaced as a whole", "###-####", "call mom", "5", "", "5  -    "},
    };
    for (const Case& it : cases) {
        MaskedEdit box(it.mask);
        box.setText(it.stored);
        box.selectAll();
        play(box, it.keys);
        if (!it.pasted.isEmpty()) paste(box, it.pasted);
        EXPECT_EQ(box.text(), it.shown) << it.what;
    }
}

/// A window with three boxes that has the focus, so that moving on can be watched.
struct ThreeBoxes {
    ThreeBoxes() {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* box : std::initializer_list<QWidget*>{&area, &number, &next}) layout->addWidget(box);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        next.setFocus();
        area.setFocus(Qt::TabFocusReason);
    }
    QWidget window;
    MaskedEdit area{"###"};
    MaskedEdit number{"###-####"};
    FilteredEdit next;
};

TEST(EntryBoxes, FillingABoxMovesOn) {
    ThreeBoxes boxes;
    boxes.area.setMovesOnWhenFull(true);
    boxes.number.setMovesOnWhenFull(true);
    boxes.number.setText("555-1234");
    for (const char key : {'5', '0', '5', '7'}) QTest::keyClick(boxes.window.focusWidget(), key);
    EXPECT_EQ(boxes.area.text(), "505");
    EXPECT_EQ(boxes.number.text(), "7  -    ") << "entering selected the whole number, so the key replaced it";
    for (const char key : {'7', '7', '1', '2', '3', '4', 'x'}) QTest::keyClick(boxes.window.focusWidget(), key);
    EXPECT_EQ(boxes.number.text(), "777-1234");
    EXPECT_EQ(boxes.next.text(), "x");
}

TEST(EntryBoxes, EnteringSelectsTheWholeText) {
    ThreeBoxes boxes;
    boxes.number.setText("555-1234");
    for (const auto reason : {Qt::TabFocusReason, Qt::ShortcutFocusReason, Qt::OtherFocusReason}) {
        boxes.number.setFocus(reason);
        EXPECT_EQ(boxes.number.selectedText(), "555-1234");
        boxes.next.setFocus();
        boxes.number.deselect();
    }
    QTest::mouseClick(&boxes.number, Qt::LeftButton, {}, QPoint(8, boxes.number.height() / 2));
    EXPECT_EQ(boxes.number.selectedText(), "555-1234");
    QTest::mouseClick(&boxes.number, Qt::LeftButton, {}, QPoint(8, boxes.number.height() / 2));
    EXPECT_FALSE(boxes.number.hasSelectedText()) << "a second click sets the cursor";
}

TEST(CommentBox, KeepsLinesAndJudgesTheRest) {
    CommentBox box;
    box.setLimits(FilterTextFull, 12);
    QStringList told;
    QObject::connect(&box, &CommentBox::edited, [&told](const QString& text) { told << text; });
    box.setText("Stored, \"so\"");
    EXPECT_TRUE(told.isEmpty()) << "showing is no edit";
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "Stored, \"so\"") << "it is full";
    box.selectAll();
    QTest::keyClicks(&box, "a\"b");
    QTest::keyClick(&box, Qt::Key_Return);
    paste(box, "c\"d\r\nefghijkl");
    EXPECT_EQ(box.text(), "ab\ncd\nefghij");
    EXPECT_EQ(told.back(), box.text());
}

}  // namespace
