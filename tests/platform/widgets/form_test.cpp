#include "platform/widgets/FormBuilder.h"
#include "support/Printing.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// A form over plain values, shown on a screen.
class FormTest : public testing::Test {
protected:
    Binding bound(QString& value, int length = 0) {
        return {[&value] { return value; }, [&value](const QString& text) { value = text; }, length};
    }

    void SetUp() override {
        FormBuilder builder(form);
        builder.tab("One")
            .frame("Person", 3)
            .text("txtName", "&Name *", bound(name, 8))
            .phone("mskedArea", "mskedPhone", "Phone", bound(area, 3), bound(phone, 8))
            .choice("cboSize", "Size", bound(size), {"Small", "Large"})
            .date("dtpBirth", "Birth", {[this] { return birth; }, [this](const QDate& date) { birth = date; }})
            .money("mskedFee", "Fee", bound(fee, 9))
            .shown("lblGreeting", "Greeting", [this] { return QString("Hello " + name); })
            .together("Hand")
            .check("chkRight", "Right", {[this] { return right; }, [this](bool flag) { right = flag; }})
            .check("chkLeft", "Left", {[this] { return left; }, [this](bool flag) { left = flag; }})
            .comments("txtComments", "Comments", bound(comments, 20));
        builder.tab("Two")
            .frame({})
            .yesNo("optHelps", "Helps?", {[this] { return helps; }, [this](bool yes) { helps = yes; }})
            .text("txtNameAgain", "Name", bound(name, 8));
        form->resize(900, 400);
        form->show();
        form->refresh();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    void TearDown() override { delete form; }

    QLineEdit* box(const char* boxName) { return form->findChild<QLineEdit*>(boxName); }
    void type(const char* boxName, const QString& text) {
        form->focusField(boxName);
        box(boxName)->selectAll();
        QTest::keyClicks(box(boxName), text);
    }

    QString name = "Ann", area, phone, size = "Large", fee = "45", comments;
    QDate birth{2012, 4, 2};
    bool right = true, left = false, helps = false;
    Form* form = new Form;
};

TEST_F(FormTest, LinesAreBrokenAlikeHoweverTheWidthCameAbout) {
    const auto heightAt = [&](int width) {
        form->resize(width, 160);
        for (int round = 0; round < 20; ++round) QCoreApplication::processEvents();  // one posts the next
        return static_cast<QScrollArea*>(form->findChild<QTabWidget*>()->currentWidget())->widget()->height();
    };
    std::map<int, int> growing;
    for (int width = 300; width <= 800; width += 4) growing[width] = heightAt(width);
    EXPECT_GT(growing[300], growing[800]);
    for (int width = 800; width >= 300; width -= 4) EXPECT_EQ(heightAt(width), growing[width]) << width;
}

TEST_F(FormTest, FieldThatIsGoneToIsReadyToBeTypedOver) {
    QWidget inFront;
    inFront.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&inFront)) << "as a box is when it closes";
    form->focusField("txtName");
    EXPECT_EQ(box("txtName")->selectedText(), "Ann");
}

TEST_F(FormTest, RefreshShowsTheValuesAndWritesNothing) {
    QSignalSpy changed(form, &Form::changed);
    name = "Zoë";
    birth = QDate(2011, 12, 31);
    form->refresh();
    EXPECT_EQ(box("txtName")->text(), "Zoë");
    EXPECT_EQ(box("dtpBirth")->text(), "12/31/2011");
    EXPECT_EQ(box("mskedFee")->text(), "$45.00");
    EXPECT_EQ(box("mskedPhone")->text(), "   -    ");
    EXPECT_EQ(form->findChild<QLabel*>("lblGreeting")->text(), "Hello Zoë");
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(phone, "") << "a mask that nobody touched is not written";
    EXPECT_EQ(fee, "45") << "money is kept as it was typed";
}

TEST_F(FormTest, AnEditWritesItsValueAndShowsWhatFollowsFromIt) {
    QSignalSpy changed(form, &Form::changed);
    type("txtName", "Maximilian");
    EXPECT_EQ(name, "Maximili") << "cut to the column's length";
    EXPECT_EQ(form->findChild<QLabel*>("lblGreeting")->text(), "Hello Maximili");
    EXPECT_EQ(box("txtNameAgain")->text(), name) << "a second box for the value follows";
    EXPECT_EQ(changed.first().first().toString(), "txtName");
    type("mskedArea", "503");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "mskedPhone") << "a full area goes on to the number";
    QTest::keyClicks(QApplication::focusWidget(), "5551234");
    EXPECT_EQ(phone, "555-1234");
    type("mskedFee", "1200.5");
    EXPECT_EQ(fee, "1200.5");
    form->focusField("txtName");
    EXPECT_TRUE(QTest::qWaitFor([&] { return box("mskedFee")->text() == "$1,200.50"; }));
    EXPECT_EQ(fee, "1200.5") << "leaving the box changes how it looks, not what is kept";
    QTest::mouseClick(form->findChild<QCheckBox*>("chkLeft"), Qt::LeftButton);
    EXPECT_TRUE(left);
}

TEST_F(FormTest, TabGoesFromFieldToFieldInTheOrderOfTheDeclaration) {
    form->focusField("txtName");
    QStringList order;
    for (int i = 0; i < 9; ++i) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"txtName", "mskedArea", "mskedPhone", "cboSize", "dtpBirth", "mskedFee", "chkRight",
                                  "chkLeft", "txtComments"}));
}

TEST_F(FormTest, WrongDateStaysInItsBoxAndIsNamed) {
    type("dtpBirth", "31/31/2012");
    EXPECT_EQ(form->unreadableField(), "dtpBirth");
    EXPECT_EQ(birth, QDate(2012, 4, 2));
    type("txtName", "Bo");
    EXPECT_EQ(box("dtpBirth")->text(), "31/31/2012") << "other edits leave it alone";
    type("dtpBirth", "5/6/12");
    EXPECT_EQ(form->unreadableField(), "");
    EXPECT_EQ(birth, QDate(2012, 5, 6));
}

TEST_F(FormTest, TabStopsAtThePresentAnswer) {
    for (const bool answer : {true, false}) {
        helps = answer;
        form->refresh();
        form->focusField("txtNameAgain");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), answer ? "optHelps0" : "optHelps1");
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(helps) << "an arrow key gives the other answer";
}

TEST_F(FormTest, AKeyThatChangesNothingIsNoEdit) {
    area = "503";
    form->refresh();
    QSignalSpy changed(form, &Form::changed);
    form->focusField("mskedArea");
    box("mskedArea")->setCursorPosition(0);
    QTest::keyClicks(box("mskedArea"), "5x");
    QTest::keyClick(form->findChild<QWidget*>("mskedFee"), 'a');
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(FormTest, WhatIsOnlyDisplayedLeavesTheValueAlone) {
    form->display("chkRight", false);
    type("txtName", "Bo");
    EXPECT_FALSE(form->findChild<QCheckBox*>("chkRight")->isChecked()) << "other edits do not bring the value back";
    EXPECT_TRUE(right);
}

TEST_F(FormTest, ANarrowWindowBreaksLinesInsteadOfScrollingSideways) {
    auto* page = form->findChild<QScrollArea*>();
    const auto lineOf = [this](const char* boxName) { return box(boxName)->mapTo(form, QPoint()).y(); };
    const auto settled = [&](int width, bool oneLine) {
        form->resize(width, 400);
        return QTest::qWaitFor([&] { return (lineOf("txtName") == lineOf("mskedArea")) == oneLine; }) &&
               page->horizontalScrollBar()->maximum() == 0;
    };
    EXPECT_TRUE(settled(900, true));
    EXPECT_TRUE(settled(320, false));
    EXPECT_TRUE(settled(900, true));
}

TEST_F(FormTest, FieldsAreFoundNamedAndSwitched) {
    EXPECT_EQ(box("txtName")->accessibleName(), "Name");
    form->focusField("optHelps");
    EXPECT_EQ(form->findChild<QTabWidget*>()->currentIndex(), 1);
    form->setFieldsEnabled(false);
    EXPECT_FALSE(box("txtName")->isEnabled());
    EXPECT_TRUE(form->findChild<QTabWidget*>()->isEnabled()) << "one can look at the other tabs all the same";
    form->setCaption("txtName", "Nick & Name");
    EXPECT_EQ(box("txtName")->accessibleName(), "Nick & Name");
}

}  // namespace
