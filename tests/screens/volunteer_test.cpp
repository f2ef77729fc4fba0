#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>

#include "platform/widgets/ListMover.h"
#include "platform/widgets/SearchCombo.h"
#include "registration/clsRegistration.h"
#include "registration/clsVolunteer.h"
#include "support/RunningProgram.h"

namespace {

const QString joan = QStringLiteral("Hill, Joan - 555-0200");
const QString tom = QStringLiteral("West, Tom - 555-0300");
const QString annEntry = QStringLiteral("Smith, Ann - 4/2/2012");

/// The volunteer tab over Joan (in view) and Tom, who is Ann's father and Bob's second parent by name and phone.
class VolunteerScreenTest : public testing::Test {
protected:
    void SetUp() override {
        execute(
            "UPDATE tblDefaults SET [DefaultCity] = \"Oakville\", [DefaultStateId] = \"OR\", "
            "[DefaultPostalCode] = \"97050\", [DefaultAreaCode] = \"503\", [DefaultDateFormat] = \"M/d/yyyy\"");
        execute("DELETE FROM tblVolunteerPositions WHERE True");
        execute("DELETE FROM tblCertifications WHERE True");
        for (const char* name : {"Coach", "Umpire"})
            execute(QString("INSERT INTO tblVolunteerPositions ([VolPosName]) VALUES (\"%1\")").arg(name));
        execute("INSERT INTO tblCertifications ([CertificationName]) VALUES (\"First Aid\")");
        addVolunteer("Hill", "Joan", "555-0200");
        addVolunteer("West", "Tom", "555-0300");
        addPlayer("Smith", "Ann", QDate(2012, 4, 2), "Dad", "555-0300");
        addPlayer("Young", "Bob", QDate(2013, 9, 9), "Mom", "555-0300");
        addPlayer("Zorn", "Cal", QDate(2013, 9, 9), "Dad", "555-9999");
        loadGlobals(running.league.context);
        screen = running.open("frmRegister");
        screen->findChild<QTabWidget*>()->setCurrentIndex(1);
    }
    void execute(const QString& statement) { running.league.database().execute(statement); }
    void addVolunteer(const QString& last, const QString& first, const QString& phone) {
        clsVolunteer volunteer(running.league.context);
        volunteer.NewVolRecord();
        volunteer.VolLastName = last;
        volunteer.VolFirstName = first;
        volunteer.VolHomePhoneArea = "503";
        volunteer.VolHomePhone = phone;
        volunteer.VolActive = true;
        volunteer.SaveVolRecord();
    }
    void addPlayer(const QString& last, const QString& first, QDate birth, const QString& parent,
                   const QString& phone) {
        clsRegistration player(running.league.context);
        player.NewPlayerRecord();
        player.PlayerLastName = last;
        player.PlayerFirstName = first;
        player.PlayerBirthDate = birth;
        (parent == "Dad" ? player.PlayerDadLastName : player.PlayerMomLastName) = "west";
        (parent == "Dad" ? player.PlayerDadFirstName : player.PlayerMomFirstName) = "Tom";
        (parent == "Dad" ? player.PlayerDadPhone : player.PlayerMomPhone) = phone;
        player.SavePlayerRecord();
    }
    QString volunteer(int id, const QString& column) {
        return running.league.value(QString("SELECT * FROM tblVolunteer WHERE [VolId] = %1").arg(id), column);
    }
    QString player(int id, const QString& column) {
        return running.league.value(QString("SELECT * FROM tblRegistration WHERE [PlayerId] = %1").arg(id), column);
    }
    QString text(const char* name) {
        auto* box = control(screen, name);
        if (const auto* edit = qobject_cast<QLineEdit*>(box)) return edit->text();
        if (const auto* combo = qobject_cast<QComboBox*>(box)) return combo->currentText();
        return qobject_cast<QLabel*>(box)->text();
    }
    QStringList list() {
        auto* search = control<SearchCombo>(screen, "cboVolSearchList");
        QStringList entries;
        for (int i = 0; i < search->entryCount(); ++i) entries << search->entryAt(i);
        return entries;
    }
    void go(const QString& entry) {
        type(screen, "cboVolSearchList", entry);
        QTest::keyClick(control(screen, "cboVolSearchList"), Qt::Key_Return);
        ASSERT_EQ(text("cboVolSearchList"), entry);
    }
    void typeNew(const QString& last, const QString& first, const QString& phone) {
        press(screen, "cmdAdd");
        type(screen, "txtVolLastName", last);
        type(screen, "txtVolFirstName", first);
        type(screen, "mskedVolHomePhone", phone);
    }
    QTabWidget* subTabs() { return screen->findChild<QTabWidget*>()->currentWidget()->findChild<QTabWidget*>(); }
    QStringList entries(const char* mover, ListMover::Side side) {
        const auto* lists = control<ListMover>(screen, mover);
        QStringList all;
        for (int i = 0; i < lists->entryCount(side); ++i) all << lists->entryAt(side, i);
        return all;
    }
    /// Sends the first entry of a list across.
    void send(const char* name) {
        auto* view = control<QListView>(screen, name);
        view->setCurrentIndex(view->model()->index(0, 0));
        QTest::keyClick(view, Qt::Key_Return);
    }
    void choosePlayer(const QString& entry) {
        auto* box = control<QComboBox>(screen, "cboVolPlayer");
        ASSERT_GE(box->findText(entry), 0);
        while (box->currentText() != entry) QTest::keyClick(box, Qt::Key_Down);
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(VolunteerScreenTest, NewVolunteerBeginsWithTheLeaguesDefaultsAndIsSavedWhenComplete) {
    press(screen, "cmdAdd");
    const struct {
        const char* box;
        const char* text;
    } boxes[]{{"txtVolLastName", ""},           {"txtVolCity", "Oakville"},
              {"cboVolStateId", "OR"},          {"txtVolPostalCode", "97050"},
              {"mskedVolHomePhoneArea", "503"}, {"mskedVolWorkPhoneArea", "503"},
              {"mskedVolFaxPhoneArea", "503"},  {"cboVolGender", ""},
              {"dtpVolBirthDate", "4/22/2026"}, {"dtpVolRegistrationDate", "4/22/2026"}};
    for (const auto& box : boxes) EXPECT_EQ(text(box.box), box.text) << box.box;
    type(screen, "mskedVolHomePhoneArea", "");
    dialogs.expectWarning("Validation Error - Volunteer Registration",
                          "The Volunteers Last Name is a required entry.\n"
                          "The Volunteers First Name is a required entry.\n"
                          "The Home Phone Area Code is a required entry.\n"
                          "The Home Phone Number is a required entry.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtVolLastName")->hasFocus());
    type(screen, "txtVolLastName", "Moss");
    type(screen, "txtVolFirstName", "Ida");
    type(screen, "mskedVolHomePhoneArea", "971");
    type(screen, "mskedVolHomePhone", "5550400");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Moss, Ida - 555-0400\" Saved.");
    EXPECT_EQ(list(), (QStringList{joan, "Moss, Ida - 555-0400", tom}));
    EXPECT_EQ(
        QString(volunteer(3, "VolHomePhoneArea") + '/' + volunteer(3, "VolCity") + '/' + volunteer(3, "VolActive")),
        "971/Oakville/1");
}

TEST_F(VolunteerScreenTest, RenameInPlaceTakesTheParentsOfThatNameAndPhoneAlong) {
    go(tom);
    type(screen, "txtVolLastName", "Weston");
    type(screen, "mskedVolHomePhone", "5550301");
    const QString title = "Add New Record?";
    dialogs.expectBox(BoxKind::Question, title, BoxAnswer::Cancel,
                      "A record for Tom Weston was not found,\nand the Add New button was not pressed.\n\n"
                      "Would you like to add a New Volunteer record?\n   Yes -> Add New Volunteer Record\n"
                      "   No  -> Update the Current Record\n   Cancel -> No Changes Written to Database");
    press(screen, "cmdSave");
    EXPECT_EQ(volunteer(2, "VolLastName"), "West");
    EXPECT_TRUE(control(screen, "cmdSave")->isEnabled());
    running.league.clock.set(QDateTime(QDate(2026, 4, 23), QTime(9, 0)));
    dialogs.expectBox(BoxKind::Question, title, BoxAnswer::No);
    press(screen, "cmdSave");
    EXPECT_EQ(list(), (QStringList{joan, "Weston, Tom - 555-0301"}));
    EXPECT_EQ(volunteer(2, "VolLastName"), "Weston");
    EXPECT_EQ(QString(player(1, "PlayerDadLastName") + '/' + player(1, "PlayerDadPhone")), "Weston/555-0301");
    EXPECT_EQ(QString(player(2, "PlayerMomLastName") + '/' + player(2, "PlayerMomPhone")), "Weston/555-0301");
    EXPECT_EQ(player(1, "TimeStamp"), QString::number(9 * 3600));
    EXPECT_EQ(player(3, "PlayerDadLastName"), "west") << "another person: the phone differs";
    type(screen, "txtVolFirstName", "Thomas");
    dialogs.expectBox(BoxKind::Question, title, BoxAnswer::Yes);
    press(screen, "cmdSave");
    EXPECT_EQ(list(), (QStringList{joan, "Weston, Thomas - 555-0301", "Weston, Tom - 555-0301"}));
    EXPECT_EQ(player(1, "PlayerDadFirstName"), "Tom") << "a new volunteer renames nobody";
}

TEST_F(VolunteerScreenTest, RenameOntoAnotherVolunteerIsRefused) {
    go(tom);
    type(screen, "txtVolLastName", "WEST");
    press(screen, "cmdSave");
    EXPECT_EQ(volunteer(2, "VolLastName"), "WEST") << "case alone is no other name";
    for (const auto& [box, value] : {std::pair("txtVolLastName", "hill"), std::pair("txtVolFirstName", "Joan"),
                                     std::pair("mskedVolHomePhone", "5550200")})
        type(screen, box, value);
    dialogs.expectInformation("Unable to Update Volunteer Record",
                              "Unable to change the name or phone number of Volunteer Joan hill.\n"
                              "A record already exists for Volunteer Joan hill with the same Phone Number.\n\n"
                              "Please enter a different First Name, Last Name, or Phone Number.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtVolLastName")->hasFocus());
    press(screen, "cmdCancel");
    EXPECT_EQ(text("txtVolFirstName"), "Tom");
}

TEST_F(VolunteerScreenTest, RenameOntoADeletedVolunteerMovesWhatHungOnTheOld) {
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes,
                           "Are you sure you want to delete Volunteer " + joan + "?");
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Hill, Joan\" Deleted.");
    EXPECT_EQ(QString(volunteer(1, "DeletedFlag") + volunteer(1, "VolActive")), "10");
    const char* tables[]{"tblAbilityRating", "tblEquipmentAssignment", "tblRegistrationVolunteer", "tblVolToPosition",
                         "tblVolunteerCertifications"};
    for (const char* table : tables) execute(QString("INSERT INTO %1 ([VolId]) VALUES (2)").arg(table));
    execute("INSERT INTO tblTeamVolunteer ([VolId], [DivisionId], [TeamId], [VolPosName]) VALUES (2, 1, 1, \"Coach\")");
    for (const auto& [box, value] : {std::pair("txtVolLastName", "Hill"), std::pair("txtVolFirstName", "Joan"),
                                     std::pair("mskedVolHomePhone", "5550200"), std::pair("txtVolCity", "Elm")})
        type(screen, box, value);
    press(screen, "cmdSave");
    EXPECT_EQ(list(), QStringList{joan});
    EXPECT_EQ(QString(volunteer(1, "DeletedFlag") + volunteer(1, "VolActive") + volunteer(1, "VolCity")), "01Elm");
    EXPECT_EQ(QString(volunteer(2, "DeletedFlag") + volunteer(2, "VolActive")), "10");
    for (const char* table : tables) EXPECT_EQ(running.league.value(table, "VolId"), "1") << table;
    EXPECT_EQ(running.league.value("tblTeamVolunteer", "VolId"), "1");
    EXPECT_EQ(player(1, "PlayerDadLastName"), "west") << "nobody was renamed";
}

TEST_F(VolunteerScreenTest, NewOneOfAKnownNameGoesOverItAfterAQuestionAndComesBackWithoutOne) {
    const QString title = "Duplicate Record Found";
    typeNew("west", "Tom", "5550300");
    dialogs.expectQuestion(title, BoxAnswer::No,
                           "A record already exists for the Volunteer Tom west\nwith the same Phone Number as the "
                           "record that is being added or updated.\n\n"
                           "Would you like to overwrite the current record in the database?");
    press(screen, "cmdSave");
    EXPECT_EQ(volunteer(2, "VolCity"), "");
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    press(screen, "cmdSave");
    EXPECT_EQ(volunteer(2, "VolCity"), "Oakville");
    EXPECT_EQ(list(), (QStringList{joan, "west, Tom - 555-0300"}));
    typeNew("West", "Tom", "5550300");
    dialogs.expectQuestion("Overwrite Current Record?", BoxAnswer::No,
                           "A record for Volunteer Tom West already exists.\n\nDo you want to overwrite the current "
                           "record?");
    press(screen, "cmdSave");
    press(screen, "cmdCancel");
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    typeNew("West", "Tom", "5550300");
    press(screen, "cmdSave");
    EXPECT_EQ(volunteer(2, "DeletedFlag"), "0");
    EXPECT_EQ(running.league.count("tblVolunteer"), 2);
}

TEST_F(VolunteerScreenTest, VolunteerWithEquipmentStaysAndOneWithoutGoesWithTheRating) {
    execute("INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId]) VALUES (0, 0, 0, 1)");
    dialogs.expectError("Delete Error...",
                        "The Volunteer being deleted has Equipment assigned to them. Delete any equipment "
                        "assignments before deleting this record.");
    press(screen, "cmdDelete");
    EXPECT_EQ(list(), (QStringList{joan, tom}));
    execute("UPDATE tblEquipmentAssignment SET [DeletedFlag] = True");
    execute("INSERT INTO tblAbilityRating ([VolId]) VALUES (1)");
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    EXPECT_EQ(list(), QStringList{tom});
    EXPECT_EQ(running.league.value("tblAbilityRating", "DeletedFlag"), "1");
}

TEST_F(VolunteerScreenTest, PositionsAreWrittenAtOnceForThePlayerChosenOrForNone) {
    subTabs()->setCurrentIndex(1);
    EXPECT_EQ(text("lblVolName"), "Volunteer: Hill, Joan");
    EXPECT_EQ(entries("lstVolPositions", ListMover::Right), (QStringList{"Coach", "Umpire"}));
    send("lstVolPositionsRight");
    EXPECT_EQ(status(screen), "Volunteer Position Added.");
    EXPECT_EQ(entries("lstVolPositions", ListMover::Left), QStringList{"Coach"});
    EXPECT_EQ(running.league.value("tblVolToPosition", "PlayerId"), "0");
    choosePlayer(annEntry);
    EXPECT_EQ(entries("lstVolPositions", ListMover::Left), QStringList()) << "filled for no player";
    QTest::keyClick(control(screen, "cboVolPlayer"), Qt::Key_Delete);
    send("lstVolPositionsLeft");
    EXPECT_EQ(status(screen), "Volunteer Position Deleted.");
    send("lstVolPositionsRight");
    EXPECT_EQ(running.league.count("tblVolToPosition"), 1) << "the removed row came back";
    send("lstVolCertificationsRight");
    EXPECT_EQ(status(screen), "Certification Added.");
    EXPECT_EQ(entries("lstVolCertifications", ListMover::Left), QStringList{"First Aid"});
    send("lstVolCertificationsLeft");
    EXPECT_EQ(status(screen), "Volunteer Certification Deleted.");
    EXPECT_EQ(running.league.value("tblVolunteerCertifications", "DeletedFlag"), "1");
    EXPECT_FALSE(control(screen, "cmdSave")->isEnabled()) << "no Save is necessary";
    go(tom);
    EXPECT_EQ(text("lblVolName"), "Volunteer: West, Tom");
    EXPECT_EQ(entries("lstVolPositions", ListMover::Left), QStringList());
}

TEST_F(VolunteerScreenTest, AssociationIsMadeAndGoesWithItsPositions) {
    execute("UPDATE tblRegistration SET [PlayerActive] = False WHERE [PlayerId] = 3");
    subTabs()->setCurrentIndex(1);
    EXPECT_EQ(control<QComboBox>(screen, "cboVolPlayer")->count(), 3) << "none and the active players";
    EXPECT_FALSE(control(screen, "cmdAddAssociation")->isEnabled());
    choosePlayer(annEntry);
    EXPECT_FALSE(control(screen, "cmdDeleteAssociation")->isEnabled());
    press(screen, "cmdAddAssociation");
    EXPECT_TRUE(control(screen, "cboVolPlayer")->hasFocus());
    EXPECT_EQ(running.league.value("tblRegistrationVolunteer", "VolGender"), "Other");
    auto* linked = control<QListView>(screen, "lstVolPlayers");
    ASSERT_EQ(linked->model()->rowCount(), 1);
    QTest::keyClick(control(screen, "cboVolPlayer"), Qt::Key_Delete);
    EXPECT_FALSE(control(screen, "cmdDeleteAssociation")->isEnabled());
    QTest::mouseClick(linked->viewport(), Qt::LeftButton, {},
                      linked->visualRect(linked->model()->index(0, 0)).center());
    EXPECT_EQ(text("cboVolPlayer"), annEntry);
    send("lstVolPositionsRight");
    EXPECT_EQ(running.league.value("tblVolToPosition", "PlayerId"), "1");
    press(screen, "cmdDeleteAssociation");
    EXPECT_EQ(linked->model()->rowCount(), 0);
    EXPECT_EQ(text("cboVolPlayer"), "");
    EXPECT_EQ(running.league.value("tblVolToPosition", "DeletedFlag"), "1");
    choosePlayer(annEntry);
    press(screen, "cmdAddAssociation");
    EXPECT_EQ(running.league.count("tblRegistrationVolunteer"), 1) << "the removed link came back";
    EXPECT_EQ(running.league.value("tblRegistrationVolunteer", "DeletedFlag"), "0");
}

TEST_F(VolunteerScreenTest, AnotherSubTabSettlesTheRecordFirst) {
    const QString title = "Save Volunteer Record?";
    type(screen, "txtVolLastName", "");
    dialogs.expectQuestion(title, BoxAnswer::Yes, "Save the current record?");
    dialogs.expectWarning("Validation Error - Volunteer Registration");
    subTabs()->setCurrentIndex(1);
    EXPECT_EQ(subTabs()->currentIndex(), 0) << "what is wrong is here";
    type(screen, "txtVolLastName", "Hill");
    type(screen, "txtVolCity", "Elm");
    dialogs.expectQuestion(title, BoxAnswer::Yes);
    subTabs()->setCurrentIndex(1);
    EXPECT_EQ(subTabs()->currentIndex(), 1);
    EXPECT_EQ(volunteer(1, "VolCity"), "Elm");
    press(screen, "cmdAdd");
    EXPECT_EQ(subTabs()->currentIndex(), 0) << "without a question";
    dialogs.expectQuestion(title, BoxAnswer::No);
    subTabs()->setCurrentIndex(1);
    EXPECT_FALSE(control(screen, "lstVolPositionsRight")->isEnabled()) << "there is nobody to fill a position";
    EXPECT_EQ(running.league.count("tblVolunteer"), 2);
}

}  // namespace
