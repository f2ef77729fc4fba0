#include "registration/SponsorPane.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QContextMenuEvent>
#include <QItemSelection>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

const QString checkTitle = QStringLiteral("Validation Error - Volunteer Registration");
const QString replaceTitle = QStringLiteral("Previous Pledge Found");

/// The sponsor tab over Acme, which pledged 300 for 2026 and before that for 2024 and 2025, and Bolt.
class SponsorPaneTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"Acme", "Bolt"}) {
            clsSponsors sponsor(running.league.context);
            sponsor.NewSponsorRecord();
            sponsor.SponsorName = name;
            sponsor.SponsorPledgeAmount = "300";
            sponsor.SponsorPaidAmount = "50";
            sponsor.SaveSponsorRecord();
        }
        for (const char* year : {"2025", "2024"}) addPrevious(year);
        screen = running.open("frmRegister");
        auto* tabs = screen->findChild<QTabWidget*>();
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i) == "Sponsor Registrations") tabs->setCurrentIndex(i);
        pages = tabs->currentWidget()->findChild<QTabWidget*>();
    }
    void addPrevious(const QString& year) {
        running.league.database().execute(
            "INSERT INTO tblSponsorPreviousPledge ([SponsorId], [PreviousPledgeYear], [PreviousPledgeAmount], "
            "[PreviousPaidAmount]) VALUES (1, \"" +
            year + "\", \"250\", \"1000\")");
    }
    QString text(const char* box) { return control<QLineEdit>(screen, box)->text(); }
    QString column(const char* name) {
        return running.league.value("SELECT * FROM tblSponsor WHERE [SponsorId] = 1", name);
    }
    Grid* table() { return control<Grid>(screen, "grdPreviousPledges"); }
    QStringList grid() {
        QStringList rows;
        for (int row = 0; row < int(table()->rows().size()); ++row)
            rows << QStringList{table()->text(row, 0), table()->text(row, 1), table()->text(row, 2)}.join(u' ');
        return rows;
    }
    int pledges(bool deleted) {
        return running.league.count(
            QString("SELECT * FROM tblSponsorPreviousPledge WHERE [DeletedFlag] = %1").arg(deleted ? "True" : "False"));
    }
    /// The pop-up menu that a right click on the row opens; null when none opens.
    QMenu* openMenu(int row = 0) {
        const QPoint place = table()->visualRect(table()->model()->index(row, 1)).center();
        QContextMenuEvent click(QContextMenuEvent::Mouse, place, table()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(table()->viewport(), &click);
        return table()->findChild<QMenu*>("mnuPledge");
    }
    void deleteRows(int from, int to, BoxAnswer answer) {
        const QAbstractItemModel* model = table()->model();
        table()->selectionModel()->select({model->index(from, 0), model->index(to, 2)},
                                          QItemSelectionModel::ClearAndSelect);
        QMenu* menu = openMenu(to);
        ASSERT_TRUE(menu);
        running.league.dialogs.expectQuestion("Delete Pledge Records", answer,
                                              QString("You have selected %1 row(s) to delete.\nDo you want to delete "
                                                      "the Previous Pledge record(s)?")
                                                  .arg(to - from + 1));
        menu->actions().first()->trigger();
        delete menu;
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
    QTabWidget* pages = nullptr;
};

TEST_F(SponsorPaneTest, YearsAreCompletedWhenTheBoxIsLeft) {
    const struct {
        const char* typed;
        const char* year;
    } cases[]{{"", "2026"},   {"5", "205"},   {"05", "2005"},   {"30", "2030"},   {"31", "1931"},
              {"99", "1999"}, {"205", "205"}, {"1899", "1899"}, {"1900", "1900"}, {"2027", "2027"}};
    for (const auto& each : cases) EXPECT_EQ(fullPledgeYear(each.typed, 2026), each.year) << each.typed;
    for (const char* box : {"mskedSponsorPledgeYear", "mskedCurrentPledgeYear"}) {
        SCOPED_TRACE(box);
        const bool second = box == QString("mskedCurrentPledgeYear");
        pages->setCurrentIndex(second ? 1 : 0);
        type(screen, box, "99");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return text("mskedSponsorPledgeYear") == "1999" && text("mskedCurrentPledgeYear") == "1999"; }));
        press(screen, "cmdCancel");
        EXPECT_EQ(text(box), "2026");
    }
    type(screen, "mskedCurrentPledgeYear", "7");
    press(screen, "cmdSave");
    EXPECT_EQ(column("SponsorPledgeYear"), "207");
}

TEST_F(SponsorPaneTest, NewSponsorPledgesTheDefaultFeeAndNeedsAName) {
    running.program.globals().defaultSponsorFee = "1250";
    pages->setCurrentIndex(1);
    press(screen, "cmdAdd");
    EXPECT_EQ(pages->currentIndex(), 0);
    EXPECT_EQ(text("mskedSponsorPledgeAmount"), "$1,250.00");
    EXPECT_EQ(text("mskedSponsorPledgeYear"), "2026");
    EXPECT_EQ(grid(), QStringList{"  "}) << "one blank row";
    EXPECT_FALSE(control(screen, "cmdAddNewPledge")->isEnabled());
    type(screen, "mskedSponsorPledgeAmount", "");
    type(screen, "mskedSponsorPledgeYear", "");
    dialogs.expectWarning(checkTitle,
                          "The Sponsor Name is a required entry.\nThe Sponsor Pledge Amount is a required entry.\n"
                          "The Pledge Year is a required entry.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtSponsorName")->hasFocus());
    type(screen, "txtSponsorName", "Aaa");
    type(screen, "mskedSponsorPledgeAmount", "10");
    type(screen, "mskedSponsorPledgeYear", "2027");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Aaa\" Saved.");
    EXPECT_EQ(control<SearchCombo>(screen, "cboSponsorSearchList")->entryAt(0), "Aaa");
    EXPECT_EQ(openMenu(), nullptr) << "there is nothing to delete in a blank row";
}

TEST_F(SponsorPaneTest, CurrentPledgeMovesToThePreviousOnes) {
    const QString title = "New Pledge Confirmation";
    EXPECT_EQ(grid(), (QStringList{"2024 $250.00 $1,000.00", "2025 $250.00 $1,000.00"}));
    pages->setCurrentIndex(1);
    dialogs.expectQuestion(title, BoxAnswer::No,
                           "This will archive the current pledge\nto the Previous Pledges display and\n"
                           "prompt for a New Pledge.\n\nWould you like to continue?");
    press(screen, "cmdAddNewPledge");
    EXPECT_EQ(text("mskedCurrentPledgeYear"), "2026");
    EXPECT_EQ(pledges(false), 2);
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    press(screen, "cmdAddNewPledge");
    EXPECT_EQ(grid().last(), "2026 $300.00 $50.00");
    EXPECT_EQ(QString(text("mskedCurrentPledgeAmount") + text("mskedSponsorPaidAmount")), "");
    EXPECT_TRUE(control(screen, "mskedCurrentPledgeYear")->hasFocus());
    EXPECT_EQ(column("SponsorPledgeYear"), "2026") << "the row takes the new pledge with the next save";
    type(screen, "mskedCurrentPledgeYear", "2027");
    type(screen, "mskedCurrentPledgeAmount", "400");
    press(screen, "cmdSave");
    EXPECT_EQ(
        QString(column("SponsorPledgeYear") + ' ' + column("SponsorPledgeAmount") + ' ' + column("SponsorPaidAmount")),
        "2027 400 ");
}

TEST_F(SponsorPaneTest, PledgeOfAYearThatIsArchivedAlreadyReplacesItOrJoinsIt) {
    addPrevious("2026");
    const auto archive = [this](BoxAnswer answer) {
        dialogs.expectBox(BoxKind::Question, replaceTitle, answer,
                          "This will archive the current pledge to the\nPrevious Pledges display, then prompt for a\n"
                          "new Pledge.\n\nA previous pledge has been found for the\ncurrent year being archived.\n\n"
                          "Would you like to replace the Archived Record?");
        screen->findChild<QAction*>("mnuDataNewSponsorPledgeRecord")->trigger();
    };
    archive(BoxAnswer::Cancel);
    EXPECT_FALSE(control(screen, "cmdSave")->isEnabled());
    EXPECT_EQ(text("mskedSponsorPledgeYear"), "2026");
    archive(BoxAnswer::Yes);
    EXPECT_EQ(status(screen), "Previous Pledge Updated.");
    EXPECT_EQ(grid(), (QStringList{"2024 $250.00 $1,000.00", "2025 $250.00 $1,000.00", "2026 $300.00 $50.00"}));
    press(screen, "cmdCancel");
    archive(BoxAnswer::No);
    EXPECT_EQ(grid().mid(2), (QStringList{"2026 $300.00 $50.00", "2026 $300.00 $50.00"}));
    EXPECT_EQ(text("mskedSponsorPledgeAmount"), "");
    press(screen, "cmdCancel");
    deleteRows(3, 3, BoxAnswer::Yes);
    EXPECT_EQ(grid().size(), 3) << "one of the two has gone";
}

TEST_F(SponsorPaneTest, SelectedPledgesAreDeletedAfterAQuestion) {
    pages->setCurrentIndex(1);
    deleteRows(0, 1, BoxAnswer::No);
    EXPECT_EQ(pledges(false), 2);
    deleteRows(0, 0, BoxAnswer::Yes);
    EXPECT_EQ(grid(), QStringList{"2025 $250.00 $1,000.00"});
    deleteRows(0, 0, BoxAnswer::Yes);
    EXPECT_EQ(grid(), QStringList{"  "});
    EXPECT_EQ(pledges(true), 2);
    press(screen, "cmdSponsorMove2");
    EXPECT_EQ(grid(), QStringList{"  "}) << "Bolt has none";
}

TEST_F(SponsorPaneTest, ChangeOfSubTabOffersToSave) {
    const QString title = "Save Volunteer Record?";
    type(screen, "txtSponsorContactName", "Lee");
    dialogs.expectQuestion(title, BoxAnswer::Yes, "Save the current Sponsor record?");
    pages->setCurrentIndex(1);
    EXPECT_EQ(column("SponsorContactName"), "Lee");
    EXPECT_EQ(pages->currentIndex(), 1);
    type(screen, "mskedCurrentPledgeAmount", "");
    dialogs.expectQuestion(title, BoxAnswer::No);
    pages->setCurrentIndex(0);
    EXPECT_EQ(text("mskedSponsorPledgeAmount"), "$300.00");
    type(screen, "txtSponsorName", "");
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    dialogs.expectWarning(checkTitle);
    pages->setCurrentIndex(1);
    EXPECT_EQ(pages->currentIndex(), 0) << "where the name is missing";
    press(screen, "cmdCancel");
    EXPECT_EQ(text("txtSponsorName"), "Acme");
}

TEST_F(SponsorPaneTest, DeletedSponsorLeavesTheListAndComesBackWithItsPledges) {
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, "Are you sure you want to delete Sponsor \"Acme\"?");
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Acme\" Deleted.");
    EXPECT_EQ(text("txtSponsorName"), "Bolt");
    EXPECT_EQ(pledges(false), 2);
    press(screen, "cmdAdd");
    type(screen, "txtSponsorName", "acme");
    type(screen, "mskedSponsorPledgeAmount", "5");
    press(screen, "cmdSave");
    EXPECT_EQ(grid().size(), 2);
    EXPECT_EQ(column("SponsorPledgeAmount"), "5");
}

}  // namespace
