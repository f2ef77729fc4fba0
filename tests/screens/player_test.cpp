#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include "platform/widgets/SearchCombo.h"
#include "registration/clsRegistration.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

const QString annEntry = QStringLiteral("Smith, Ann - 4/2/2012");
const QString bobEntry = QStringLiteral("Young, Bob - 9/9/2013");

/// The player tab over two divisions and two players, Ann in view: of Minors, in the team Owls, with 85.00 paid.
class PlayerTest : public testing::Test {
protected:
    void SetUp() override {
        execute(
            "UPDATE tblDefaults SET [DefaultAgeCutoffMonth] = \"1\", [DefaultAgeCutoffDay] = \"1\", "
            "[DefaultCity] = \"Oakville\", [DefaultStateId] = \"OR\", [DefaultPostalCode] = \"97050\", "
            "[DefaultAreaCode] = \"503\", [DefaultFundRaiserFee] = \"25\", [DefaultDateFormat] = \"M/d/yyyy\"");
        execute(
            "INSERT INTO tblDivision ([DivName], [DivAgeCutOffMonth], [DivAgeCutOffDay], [DivRegistrationFee]) "
            "VALUES (\"Minors\", \"8\", \"1\", \"85.00\")");
        execute(
            "INSERT INTO tblDivision ([DivName], [DivAgeCutOffMonth], [DivAgeCutOffDay], [DivRegistrationFee]) "
            "VALUES (\"Majors\", \"3\", \"\", \"120.00\")");
        execute("INSERT INTO tblTeam ([TeamName], [DivisionId]) VALUES (\"Owls\", 1)");
        addPlayer("Smith", "Ann", QDate(2012, 4, 2));
        addPlayer("Young", "Bob", QDate(2013, 9, 9));
        execute(
            "UPDATE tblRegistration SET [PlayerDivisionId] = 1, [PlayerTeamId] = 1, [PlayerFeeAmount] = \"85.00\", "
            "[PlayerAmountPaid] = \"85.00\" WHERE [PlayerId] = 1");
        loadGlobals(running.league.context);
        running.program.globals().currentSeasonYear = "2026";
        screen = running.open("frmRegister");
    }
    void execute(const QString& statement) { running.league.database().execute(statement); }
    void addPlayer(const QString& last, const QString& first, QDate birth) {
        clsRegistration player(running.league.context);
        player.NewPlayerRecord();
        player.PlayerLastName = last;
        player.PlayerFirstName = first;
        player.PlayerBirthDate = birth;
        player.PlayerAddress1 = "1 Elm Street";
        player.PlayerCity = "Oakville";
        player.PlayerStateId = "OR";
        player.PlayerPostalCode = "97050";
        player.PlayerPhone = "555-0100";
        player.SavePlayerRecord();
    }
    QString column(int player, const QString& name) {
        return running.league.value(QString("SELECT * FROM tblRegistration WHERE [PlayerId] = %1").arg(player), name);
    }
    QString text(const char* name) {
        auto* box = control(screen, name);
        if (const auto* edit = qobject_cast<QLineEdit*>(box)) return edit->text();
        if (const auto* combo = qobject_cast<QComboBox*>(box)) return combo->currentText();
        return qobject_cast<QLabel*>(box)->text();
    }
    bool checked(const char* name) { return control<QCheckBox>(screen, name)->isChecked(); }
    /// With the arrow keys; each entry on the way is chosen too.
    void choose(const char* name, const QString& entry) {
        auto* box = control<QComboBox>(screen, name);
        const int wanted = box->findText(entry);
        ASSERT_GE(wanted, 0) << entry.toStdString();
        while (box->currentIndex() != wanted)
            QTest::keyClick(box, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    }
    void leave() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    void go(const QString& entry) {
        auto* search = control<SearchCombo>(screen, "cboPlayerSearchList");
        type(screen, "cboPlayerSearchList", entry);
        QTest::keyClick(search, Qt::Key_Return);
        ASSERT_EQ(search->currentText(), entry);
    }
    QStringList list() {
        auto* search = control<SearchCombo>(screen, "cboPlayerSearchList");
        QStringList entries;
        for (int i = 0; i < search->entryCount(); ++i) entries << search->entryAt(i);
        return entries;
    }
    void typeNew(const QString& last, const QString& first, const QString& birth) {
        press(screen, "cmdAdd");
        type(screen, "txtPlayerLastName", last);
        type(screen, "txtPlayerFirstName", first);
        type(screen, "dtpPlayerBirthDate", birth);
        type(screen, "txtPlayerAddress1", "2 Oak Street");
        type(screen, "mskedPlayerPhone", "5550111");
    }
    /// The balance is shown once the box has been left, an event later.
    void expectBalance(const QString& caption, const QString& amount) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return text("lblPlayerBalance") == amount; }))
            << text("lblPlayerBalance").toStdString();
        const auto labels = screen->findChildren<QLabel*>();
        EXPECT_TRUE(
            std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) { return label->text() == caption; }));
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(PlayerTest, NewPlayerBeginsWithTheLeaguesDefaults) {
    screen->findChild<QTabWidget*>()->currentWidget()->findChild<QTabWidget*>()->setCurrentIndex(3);
    press(screen, "cmdAdd");
    EXPECT_TRUE(control(screen, "txtPlayerLastName")->hasFocus());
    const struct {
        const char* box;
        const char* text;
    } boxes[]{{"txtPlayerLastName", ""},           {"txtPlayerCity", "Oakville"},
              {"cboPlayerStateId", "OR"},          {"txtPlayerPostalCode", "97050"},
              {"mskedPlayerPhoneArea", "503"},     {"mskedPlayerDadMobilePhoneArea", "503"},
              {"dtpPlayerBirthDate", "4/22/2026"}, {"dtpPlayerRegistrationDate", "4/22/2026"},
              {"mskedPlayerFeeAmount", ""},        {"mskedPlayerFundRaiserFee", "$25.00"},
              {"cboPlayerDivision", ""},           {"lblPlayerTeamName", ""},
              {"lblPlayerBalance", "$0.00"}};
    for (const auto& box : boxes) EXPECT_EQ(text(box.box), box.text) << box.box;
    const struct {
        const char* box;
        bool ticked;
        const char* column;
        const char* saved;
    } ticks[]{{"chkPlayerActive", true, "PlayerActive", "1"},
              {"chkPlayerIdCheck", true, "PlayerIdCheck", "1"},
              {"chkPlayerIsUmpire", false, "PlayerIsUmpire", "0"},
              {"chkPlayerBirthCertificateChecked", false, "PlayerBirthCertificateChecked", "1"},
              {"chkPlayerSendInvitation", true, "PlayerSendInvitation", "0"},
              {"chkPlayerParentApproval", true, "PlayerParentApproval", "0"}};
    for (const auto& tick : ticks) EXPECT_EQ(checked(tick.box), tick.ticked) << tick.box;
    type(screen, "txtPlayerLastName", "Adams");
    EXPECT_EQ(text("txtPlayerDadLastName"), "Adams");
    type(screen, "txtPlayerFirstName", "Eve");
    type(screen, "txtPlayerAddress1", "2 Oak Street");
    type(screen, "mskedPlayerPhone", "5550111");
    EXPECT_EQ(text("mskedPlayerMomPhone"), "555-0111");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Adams, Eve - 4/22/2026\" Saved.");
    for (const auto& tick : ticks) EXPECT_EQ(column(3, tick.column), tick.saved) << tick.column;
    EXPECT_EQ(column(3, "PlayerFundRaiserFee"), "$25.00");
    type(screen, "txtPlayerLastName", "Adamson");
    EXPECT_EQ(text("txtPlayerDadLastName"), "Adams") << "a player who is there already is not typed ahead";
    press(screen, "cmdCancel");
    EXPECT_EQ(text("txtPlayerLastName"), "Adams");
}

TEST_F(PlayerTest, WhatIsMissingComesInOneBox) {
    press(screen, "cmdAdd");
    for (const char* box : {"txtPlayerCity", "cboPlayerStateId", "txtPlayerPostalCode", "dtpPlayerBirthDate"})
        type(screen, box, "");
    const QString title = "Validation Error - Player Registration";
    dialogs.expectWarning(title,
                          "The Players Last Name is a required entry.\nThe Players First Name is a required entry.\n"
                          "The Players Birth Date is a required entry.\nThe Players Address is a required entry.\n"
                          "The City is a required entry.\nThe State Id is a required entry.\n"
                          "The Zip/Postal Code is a required entry.\nThe Phone Number is a required entry.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtPlayerLastName")->hasFocus());
    press(screen, "cmdCancel");
    EXPECT_EQ(text("txtPlayerLastName"), "Smith");
    for (const char* box : {"txtPlayerDadLastName", "txtPlayerDadFirstName", "txtPlayerMomFirstName"})
        type(screen, box, "Kim");
    dialogs.expectWarning(
        title,
        "Don't forget to enter a phone number for the guardian.\n    - Guardian 1 does not have a phone number.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "mskedPlayerDadPhone")->isVisible()) << "the tab came forward";
    type(screen, "dtpPlayerBirthDate", "31/31/2012");
    dialogs.expectWarning(title);
    press(screen, "cmdSave");
    EXPECT_EQ(text("dtpPlayerBirthDate"), "31/31/2012") << "nothing typed is lost";
    EXPECT_EQ(column(1, "PlayerDadLastName"), "");
}

TEST_F(PlayerTest, AgeFollowsDivisionAndBirthDate) {
    EXPECT_EQ(text("lblPlayerAge"), "14");
    EXPECT_FALSE(control(screen, "cmdSave")->isEnabled()) << "a look changes nothing";
    type(screen, "dtpPlayerBirthDate", "8/2/2012");
    EXPECT_EQ(text("lblPlayerAge"), "13");
    choose("cboPlayerDivision", "Majors");
    EXPECT_EQ(text("lblPlayerAge"), "13");
    type(screen, "dtpPlayerBirthDate", "3/1/2012");
    EXPECT_EQ(text("lblPlayerAge"), "14") << "a cut-off without a day takes the default one";
    QTest::keyClick(control(screen, "cboPlayerDivision"), Qt::Key_Delete);
    EXPECT_EQ(text("cboPlayerDivision"), "");
    EXPECT_EQ(text("lblPlayerAge"), "13");
}

TEST_F(PlayerTest, AnotherDivisionGivesAFeeOnlyWhereThereIsNoneAndNoTeam) {
    EXPECT_EQ(text("lblPlayerTeamName"), "Owls");
    choose("cboPlayerDivision", "Majors");
    EXPECT_EQ(text("lblPlayerTeamName"), "");
    EXPECT_EQ(text("mskedPlayerFeeAmount"), "$85.00");
    press(screen, "cmdSave");
    EXPECT_EQ(QString(column(1, "PlayerDivisionId") + '/' + column(1, "PlayerTeamId")), "2/0");
    type(screen, "mskedPlayerFeeAmount", "");
    choose("cboPlayerDivision", "Minors");  // from Majors, by one key
    EXPECT_EQ(text("mskedPlayerFeeAmount"), "$85.00");
    QTest::keyClick(control(screen, "cboPlayerDivision"), Qt::Key_Delete);
    press(screen, "cmdSave");
    EXPECT_EQ(column(1, "PlayerDivisionId"), "0");
    EXPECT_EQ(column(1, "PlayerFeeAmount"), "85.00");
}

TEST_F(PlayerTest, BalanceIsDueOrToBeRefunded) {
    const struct {
        const char* fee;
        const char* fundRaiser;
        const char* other;
        const char* paid;
        const char* caption;
        const char* balance;
    } cases[]{{"45", "", "5.00", "60.00", "Refund Due", "$10.00"},
              {"", "", "", "", "Balance Due", "$0.00"},
              {"1000.10", "0.20", "", "", "Balance Due", "$1,000.30"},
              {"50", "", "10", "60", "Balance Due", "$0.00"}};
    for (const auto& each : cases) {
        type(screen, "mskedPlayerFeeAmount", each.fee);
        type(screen, "mskedPlayerFundRaiserFee", each.fundRaiser);
        type(screen, "mskedPlayerOtherFees", each.other);
        type(screen, "mskedPlayerAmountPaid", each.paid);
        leave();
        expectBalance(each.caption, each.balance);
        const auto isRed = [&](const QWidget* label) {
            return label->palette().color(QPalette::WindowText) != screen->palette().color(QPalette::WindowText);
        };
        EXPECT_EQ(isRed(control(screen, "lblPlayerBalance")), QString(each.caption) == "Refund Due");
        for (const QLabel* label : screen->findChildren<QLabel*>()) {
            if (label->text() != each.caption) continue;
            EXPECT_EQ(isRed(label), QString(each.caption) == "Refund Due");
        }
    }
    go(annEntry);
}

TEST_F(PlayerTest, RenameIsAskedFor) {
    const struct {
        BoxAnswer answer;
        QString said;
        QStringList list;
        int rows;
    } cases[]{{BoxAnswer::Cancel, "", {annEntry, bobEntry}, 2},
              {BoxAnswer::No, "Record \"Smith, Cleo - 4/2/2012\" Saved.", {"Smith, Cleo - 4/2/2012", bobEntry}, 2},
              {BoxAnswer::Yes,
               "Record \"Smith, Dora - 4/2/2012\" Saved.",
               {"Smith, Cleo - 4/2/2012", "Smith, Dora - 4/2/2012", bobEntry},
               3}};
    for (const auto& each : cases) {
        const QString first = each.answer == BoxAnswer::Yes ? "Dora" : "Cleo";
        type(screen, "txtPlayerFirstName", first);
        dialogs.expectBox(BoxKind::Question, "Add New Record?", each.answer,
                          "A record for " + first +
                              " Smith with the current\nbirth date was not found, and neither the Add New\n"
                              "nor Add Sibling buttons were pressed.\n\nWould you like to add a New Player record?\n   "
                              "Yes -> Add New Record\n"
                              "   No  -> Update the current record\n   Cancel -> No changes written to database.");
        press(screen, "cmdSave");
        EXPECT_EQ(status(screen), each.said);
        EXPECT_EQ(list(), each.list);
        EXPECT_EQ(running.league.count("tblRegistration"), each.rows);
        EXPECT_EQ(text("txtPlayerFirstName"), first);
        EXPECT_EQ(control(screen, "cmdSave")->isEnabled(), each.answer == BoxAnswer::Cancel);
    }
    EXPECT_EQ(QString(column(1, "PlayerTeamId") + '/' + column(3, "PlayerTeamId")), "1/0");
    type(screen, "txtPlayerLastName", "SMITH");
    press(screen, "cmdSave");
    EXPECT_EQ(list(), (QStringList{"Smith, Cleo - 4/2/2012", "SMITH, Dora - 4/2/2012", bobEntry}))
        << "other capitals are no rename";
}

TEST_F(PlayerTest, NameOfAnotherPlayerIsRefused) {
    type(screen, "txtPlayerLastName", "young");
    type(screen, "txtPlayerFirstName", "Bob");
    type(screen, "dtpPlayerBirthDate", "9/9/2013");
    type(screen, "txtPlayerCity", "Fern Hollow");
    dialogs.expectInformation("Unable to Update Player Record",
                              "Unable to change the name or birth date of Player Bob young.\n"
                              "A record already exists for Player Bob young with the same Birth Date.\n\n"
                              "Please enter a different First Name, Last Name, or Birth Date.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtPlayerLastName")->hasFocus());
    EXPECT_EQ(text("txtPlayerCity"), "Fern Hollow");
    press(screen, "cmdCancel");
    EXPECT_EQ(text("txtPlayerLastName"), "Smith");
    EXPECT_EQ(list(), (QStringList{annEntry, bobEntry}));
    EXPECT_EQ(column(2, "PlayerLastName"), "Young");
}

TEST_F(PlayerTest, NameOfADeletedPlayerBringsThatRowBackWithWhatHungOnTheOther) {
    go(bobEntry);
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes,
                           "Are you sure you want to delete player " + bobEntry + "?");
    press(screen, "cmdDelete");
    const char* tables[]{"tblAbilityRating", "tblEquipmentAssignment", "tblRegistrationVolunteer", "tblVolToPosition"};
    for (const char* table : tables) execute(QString("INSERT INTO %1 ([PlayerId]) VALUES (1)").arg(table));
    type(screen, "txtPlayerLastName", "Young");
    type(screen, "txtPlayerFirstName", "Bob");
    type(screen, "dtpPlayerBirthDate", "9/9/2013");
    type(screen, "txtPlayerCity", "Fern Hollow");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"" + bobEntry + "\" Saved.");
    EXPECT_EQ(list(), QStringList{bobEntry});
    EXPECT_EQ(QString(column(1, "DeletedFlag") + column(1, "PlayerActive")), "10");
    EXPECT_EQ(QString(column(2, "DeletedFlag") + column(2, "PlayerActive")), "01");
    EXPECT_EQ(column(2, "PlayerCity"), "Fern Hollow");
    EXPECT_EQ(column(2, "PlayerDivisionId"), "1");
    for (const char* table : tables) EXPECT_EQ(running.league.value(table, "PlayerId"), "2") << table;
}

TEST_F(PlayerTest, DuplicateGoesOverTheOtherOnlyAfterAQuestion) {
    const QString title = "Duplicate Record Found";
    typeNew("YOUNG", "Bob", "9/9/2013");
    dialogs.expectQuestion(title, BoxAnswer::No,
                           "A record already exists for the Player Bob YOUNG\nwith the same Birth Date as the record "
                           "that is being added or "
                           "updated.\n\nWould you like to overwrite the current record in the database?");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtPlayerLastName")->hasFocus());
    EXPECT_EQ(column(2, "PlayerAddress1"), "1 Elm Street");
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    press(screen, "cmdSave");
    EXPECT_EQ(column(2, "PlayerAddress1"), "2 Oak Street");
    EXPECT_EQ(list(), (QStringList{annEntry, "YOUNG, Bob - 9/9/2013"}));
    typeNew("Young", "Bob", "9/9/2013");
    dialogs.expectQuestion(
        "Overwrite Current Record?", BoxAnswer::No,
        "A record for player Bob Young already exists.\n\nDo you want to overwrite the current record?");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "cmdSave")->isEnabled());
    press(screen, "cmdCancel");
    EXPECT_EQ(running.league.count("tblRegistration"), 2);
}

TEST_F(PlayerTest, PlayerWithEquipmentStaysAndOneWithoutGoesWithTheRatings) {
    execute("INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId]) VALUES (0, 0, 1, 0)");
    dialogs.expectError("Delete Error...",
                        "The Player being deleted has Equipment assigned to them.\n"
                        "Delete any equipment assignments\nbefore deleting this record.");
    press(screen, "cmdDelete");
    EXPECT_EQ(list(), (QStringList{annEntry, bobEntry}));
    EXPECT_EQ(text("txtPlayerLastName"), "Smith");
    execute("UPDATE tblEquipmentAssignment SET [DeletedFlag] = True");
    execute("INSERT INTO tblAbilityRating ([PlayerId]) VALUES (1)");
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"" + annEntry + "\" Deleted.");
    EXPECT_EQ(list(), QStringList{bobEntry});
    EXPECT_EQ(text("txtPlayerLastName"), "Young");
    EXPECT_EQ(running.league.value("tblAbilityRating", "DeletedFlag"), "1");
    EXPECT_EQ(column(1, "PlayerActive"), "0");
}

TEST_F(PlayerTest, SiblingKeepsTheFamilyAndTheFee) {
    type(screen, "txtPlayerDadFirstName", "Carl");
    control<QCheckBox>(screen, "chkPlayerMedicalForm")->click();
    press(screen, "cmdSave");
    press(screen, "cmdAddSibling");
    const struct {
        const char* box;
        const char* text;
    } boxes[]{{"txtPlayerLastName", "Smith"},     {"txtPlayerFirstName", ""},    {"txtPlayerAddress1", "1 Elm Street"},
              {"txtPlayerDadFirstName", "Carl"},  {"cboPlayerDivision", ""},     {"lblPlayerTeamName", ""},
              {"mskedPlayerFeeAmount", "$85.00"}, {"mskedPlayerAmountPaid", ""}, {"mskedPlayerFundRaiserFee", "$25.00"},
              {"dtpPlayerBirthDate", "4/2/2012"}};
    for (const auto& box : boxes) EXPECT_EQ(text(box.box), box.text) << box.box;
    EXPECT_FALSE(checked("chkPlayerMedicalForm"));
    EXPECT_TRUE(control(screen, "txtPlayerFirstName")->hasFocus());
    type(screen, "txtPlayerFirstName", "Zoe");
    press(screen, "cmdSave");
    EXPECT_EQ(list(), (QStringList{annEntry, "Smith, Zoe - 4/2/2012", bobEntry}));
    EXPECT_EQ(column(3, "PlayerFundRaiserFee"), "0") << "what was only shown is not saved";
    EXPECT_EQ(column(3, "PlayerDadFirstName"), "Carl");
    EXPECT_EQ(QString(column(3, "PlayerDivisionId") + column(3, "PlayerMedicalForm")), "00");
    EXPECT_EQ(QString(column(1, "PlayerFirstName") + column(1, "PlayerMedicalForm")), "Ann1");
}

TEST_F(PlayerTest, UnknownSchoolIsAddedOrDropped) {
    const QString title = "Add New School Name?";
    type(screen, "cboPlayerSchoolName", "Elm School");
    dialogs.expectQuestion(title, BoxAnswer::No);
    press(screen, "cmdSave");
    EXPECT_EQ(text("cboPlayerSchoolName"), "");
    type(screen, "cboPlayerSchoolName", "Elm School");
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    press(screen, "cmdSave");
    EXPECT_EQ(column(1, "PlayerSchoolName") + '/' + running.league.value("tblSchoolInfo", "SchoolName"),
              "Elm School/Elm School");
    type(screen, "cboPlayerSchoolName", "elm school");
    press(screen, "cmdSave");
}

TEST_F(PlayerTest, SearchBeginsWithTheFirstKey) {
    auto* search = control<SearchCombo>(screen, "cboPlayerSearchList");
    screen->focusSearch();
    QTest::keyClicks(search, "yo");
    EXPECT_EQ(search->currentText(), bobEntry);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(text("txtPlayerFirstName"), "Bob");
    press(screen, "cmdPlayerMove0");
    QTest::keyClicks(search, "yo");
    EXPECT_EQ(search->currentText(), bobEntry) << "after another record came into view too";
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(search->currentText(), annEntry);
}

}  // namespace
