#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <map>

#include "platform/text/Money.h"
#include "platform/widgets/DateBox.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/RecordPane.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

/// What people paste.
struct OddText {
    const char* name;
    QString text;
};
void PrintTo(const OddText& odd, std::ostream* out) { *out << odd.name; }

const OddText oddTexts[]{
    {"Quotes", "D'Arcy \"Ace\" O'Neil ''; \"\" --"},
    {"Marks", "50% off; a,b|c*?[x]#1 & <b> \\ {0} $1 %1 _ -"},
    {"DateInAName", "Jo - 4/2/2012 - 5"},
    {"Long", QString(10000, 'x')},
    {"LongBeyondTheBasicPlane", "x" + QString::fromUtf8("𠮷").repeated(5000)},
    {"Alphabets", QString::fromUtf8("Ωμέγα Жанна 漢字 שלום สวัสดี e\u0301")},
    {"Lines", "one\ntwo\r\nthree\tfour"},
};

class OddTextTest : public testing::TestWithParam<OddText> {
protected:
    using Shown = std::map<QString, QString>;

    /// The boxes of the pane that take free text: their names and what they show.
    Shown shown() const {
        Shown texts;
        for (const auto* box : pane->findChildren<QLineEdit*>()) {
            if (qobject_cast<const DateBox*>(box) || qobject_cast<SearchCombo*>(box->parentWidget())) continue;
            const bool inCombo = qobject_cast<QComboBox*>(box->parentWidget());
            const QString name = inCombo ? box->parentWidget()->objectName() : box->objectName();
            texts[name] = box->text();
        }
        for (const auto* box : pane->findChildren<QPlainTextEdit*>()) texts[box->objectName()] = box->toPlainText();
        return texts;
    }
    void pasteIntoAll(const QString& text) { paste(text, false); }
    void pasteIntoEmpty(const QString& text) { paste(text, true); }
    void paste(const QString& text, bool onlyIntoEmpty) {
        QGuiApplication::clipboard()->setText(text);
        for (auto* box : pane->findChildren<QLineEdit*>()) {
            if (qobject_cast<DateBox*>(box) || qobject_cast<SearchCombo*>(box->parentWidget())) continue;
            if (onlyIntoEmpty && !box->text().isEmpty()) continue;
            box->selectAll();
            box->paste();
        }
        for (auto* box : pane->findChildren<QPlainTextEdit*>()) {
            if (onlyIntoEmpty && !box->toPlainText().isEmpty()) continue;
            box->selectAll();
            box->paste();
        }
    }
    /// Every box that held a text shows it again, an amount as money.
    void expectShown(const Shown& typed) const {
        const Shown now = shown();
        for (const auto& [box, text] : typed) {
            const auto amount = Money::parse(text);
            const bool isMoney = amount && now.at(box) == amount->text();
            if (text.isEmpty() || isMoney) continue;
            EXPECT_EQ(now.at(box), text) << box.toStdString();
        }
    }
    void search(const char* list, const QString& entry) {
        auto* combo = control<SearchCombo>(pane, list);
        type(pane, list, entry);
        QTest::keyClick(combo, Qt::Key_Return);
        EXPECT_EQ(combo->currentText(), entry);
    }

    RunningProgram running;
    QWidget* pane = nullptr;
};

TEST_P(OddTextTest, IsKeptAndFoundInEveryBoxOfThePlayerForm) {
    running.league.database().execute(
        "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate]) "
        "VALUES (\"Smith\", \"Ann\", #4-2-2012#)");
    Screen* screen = running.open("frmRegister");
    pane = screen->findChild<QTabWidget*>()->currentWidget();
    press(screen, "cmdAdd");
    pasteIntoAll(GetParam().text);
    type(screen, "mskedPlayerPhone", "5550182");  // the parents' too
    const Shown typed = shown();
    for (const char* box : {"txtPlayerLastName", "txtPlayerFirstName", "txtPlayerAddress1", "txtPlayerComments"})
        EXPECT_FALSE(typed.at(box).isEmpty()) << box;
    running.league.dialogs.expectQuestion("Add New School Name?", BoxAnswer::Yes);
    press(screen, "cmdSave");
    const QString entry = control<SearchCombo>(screen, "cboPlayerSearchList")->currentText();
    EXPECT_EQ(status(screen), "Record \"" + entry + "\" Saved.");
    expectShown(typed);
    search("cboPlayerSearchList", "Smith, Ann - 4/2/2012");
    EXPECT_EQ(control<QLineEdit>(screen, "txtPlayerLastName")->text(), "Smith");
    search("cboPlayerSearchList", entry);
    expectShown(typed);
}

TEST_P(OddTextTest, IsKeptAndFoundInEveryBoxOfTheSetup) {
    Screen* screen = running.open("frmSetup");
    auto* tabs = screen->findChild<QTabWidget*>();
    for (auto* each : tabs->findChildren<RecordPane*>()) {
        pane = each;
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (tabs->widget(tab) == pane || tabs->widget(tab)->isAncestorOf(pane)) tabs->setCurrentIndex(tab);
        const auto* list = pane->findChild<SearchCombo*>();
        SCOPED_TRACE(list->objectName().toStdString());
        const auto ownAdd = pane->findChildren<QPushButton*>(QRegularExpression("^cmdAdd"));
        const QString addName = ownAdd.isEmpty() ? QStringLiteral("cmdAdd") : ownAdd.first()->objectName();
        const auto add = [&](const QString& text) {
            press(screen, qPrintable(addName));
            pasteIntoAll(text);
            pasteIntoEmpty("7");  // such as a box for numbers
            const Shown typed = shown();
            press(screen, "cmdSave");
            expectShown(typed);
            return typed;
        };
        add("7");
        const QString other = list->currentText();
        const Shown typed = add(GetParam().text);
        const QString entry = list->currentText();
        search(qPrintable(list->objectName()), other);
        search(qPrintable(list->objectName()), entry);
        expectShown(typed);
    }
}

INSTANTIATE_TEST_SUITE_P(Pasted, OddTextTest, testing::ValuesIn(oddTexts),
                         [](const auto& each) { return each.param.name; });

}  // namespace
