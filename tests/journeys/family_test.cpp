#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace {

class FamilyJourney : public testing::Test {
protected:
    void SetUp() override {
        for (const char* row : {"tblDivision ([DivName], [DivRegistrationFee]) VALUES (\"Minors\", \"$85.00\")",
                                "tblDivision ([DivName], [DivRegistrationFee]) VALUES (\"Majors\", \"$95.00\")",
                                "tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], [VolActive]) VALUES "
                                "(\"Rowan\", \"Dana\", \"555-0101\", False)"})
            running.league.database().execute(QStringLiteral("INSERT INTO ") + QLatin1String(row));
        screen = running.open("frmRegister");
    }

    QString player(const QString& first, const char* column) {
        return running.league.value(
            "SELECT * FROM tblRegistration WHERE [PlayerFirstName] = " + datafile::quoted(first), column);
    }
    QString volunteerOf(const QString& child, const char* role) {
        return running.league.value(
            "SELECT tblVolunteer.* FROM tblVolunteer, tblRegistrationVolunteer WHERE tblVolunteer![VolId] = "
            "tblRegistrationVolunteer![VolId] AND tblRegistrationVolunteer![DeletedFlag] = False AND [PlayerId] = " +
                player(child, "PlayerId") +
                " AND tblRegistrationVolunteer![VolGender] = " + datafile::quoted(QString(role)),
            "VolFirstName");
    }
    void choose(const char* box, const QString& text) {
        auto* choice = control<ChoiceBox>(screen, box);
        choice->setFocus();
        QTest::keyClicks(choice, text);
        EXPECT_EQ(choice->text(), text);
    }
    void show(const QString& entry) {
        auto* search = control<SearchCombo>(screen, "cboPlayerSearchList");
        type(screen, "cboPlayerSearchList", entry);
        QTest::keyClick(search, Qt::Key_Return);
        ASSERT_EQ(search->currentText(), entry);
    }
    void bothVolunteer() {
        control<QAbstractButton>(screen, "optPlayerDadVolunteer0")->click();
        control<QAbstractButton>(screen, "optPlayerMomVolunteer0")->click();
    }
    void completeVolunteer() {
        running.league.dialogs.expectForm("frmVolInfo", [](QDialog& form) { press(&form, "cmdSave"); });
    }
    void addSibling(const QString& first, const QString& birth) {
        press(screen, "cmdAddSibling");
        type(screen, "txtPlayerFirstName", first);
        type(screen, "dtpPlayerBirthDate", birth);
        bothVolunteer();
        press(screen, "cmdSave");
        EXPECT_EQ(status(screen), QStringLiteral("Record \"Rowan, %1 - %2\" Saved.").arg(first, birth));
    }

    RunningProgram running;
    Screen* screen = nullptr;
};

TEST_F(FamilyJourney, ThreeChildrenWithTwoVolunteeringParentsThroughASeason) {
    press(screen, "cmdAdd");
    type(screen, "txtPlayerLastName", "Rowan");
    type(screen, "txtPlayerFirstName", "Ann");
    type(screen, "txtPlayerAddress1", "18 Orchard Lane");
    type(screen, "txtPlayerCity", "Millbrook");
    type(screen, "cboPlayerStateId", "OR");
    type(screen, "txtPlayerPostalCode", "97050");
    type(screen, "mskedPlayerPhone", "5550101");
    type(screen, "dtpPlayerBirthDate", "4/2/2012");
    choose("cboPlayerDivision", "Minors");
    type(screen, "txtPlayerDadFirstName", "Dana");
    type(screen, "txtPlayerMomFirstName", "Kim");
    bothVolunteer();
    completeVolunteer();
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Rowan, Ann - 4/2/2012\" Saved.");
    EXPECT_EQ(player("Ann", "PlayerFeeAmount"), "$85.00");
    EXPECT_EQ(volunteerOf("Ann", "Dad"), "Dana");
    EXPECT_EQ(volunteerOf("Ann", "Mom"), "Kim");
    EXPECT_EQ(running.league.count("SELECT * FROM tblVolunteer WHERE [VolActive] = True"), 2)
        << "Dana was there, and is active again";

    addSibling("Ben", "5/6/2014");
    addSibling("Cleo", "7/8/2016");
    EXPECT_EQ(running.league.count("tblVolunteer"), 2) << "brothers and sisters share their parents";
    EXPECT_EQ(running.league.count("tblRegistrationVolunteer"), 6);

    show("Rowan, Ann - 4/2/2012");
    type(screen, "txtPlayerDadFirstName", "Dane");
    running.league.dialogs.expectQuestion("Volunteer Record Found", BoxAnswer::Yes);
    press(screen, "cmdSave");
    for (const char* child : {"Ann", "Ben", "Cleo"}) {
        EXPECT_EQ(volunteerOf(child, "Dad"), "Dane") << child;
        EXPECT_EQ(player(child, "PlayerDadFirstName"), "Dane") << child;
    }

    show("Rowan, Ben - 5/6/2014");
    EXPECT_EQ(control<QLineEdit>(screen, "txtPlayerDadFirstName")->text(), "Dane");
    type(screen, "txtPlayerMomFirstName", "Lee");
    running.league.dialogs.expectQuestion("Volunteer Record Found", BoxAnswer::No);
    completeVolunteer();
    press(screen, "cmdSave");
    EXPECT_EQ(volunteerOf("Ben", "Mom"), "Lee");
    EXPECT_EQ(volunteerOf("Ann", "Mom"), "Kim") << "the others keep theirs";

    running.league.database().execute("UPDATE tblRegistration SET [PlayerDivisionId] = 1, [PlayerTeamId] = 5");
    show("Rowan, Cleo - 7/8/2016");
    QTest::keyClick(control(screen, "cboPlayerDivision"), Qt::Key_Up);  // from the Minors to the Majors
    press(screen, "cmdSave");
    EXPECT_EQ(player("Cleo", "PlayerDivisionId"), "2");
    EXPECT_EQ(player("Cleo", "PlayerTeamId"), "0") << "no team goes along into another division";
    EXPECT_EQ(player("Ann", "PlayerTeamId"), "5");

    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes,
                                          "Are you sure you want to delete player Rowan, Cleo - 7/8/2016?");
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Rowan, Cleo - 7/8/2016\" Deleted.");
    EXPECT_EQ(player("Cleo", "DeletedFlag"), "1");
    EXPECT_EQ(control<SearchCombo>(screen, "cboPlayerSearchList")->entryCount(), 2);
    EXPECT_EQ(control<QLineEdit>(screen, "txtPlayerFirstName")->text(), "Ben");
}

}  // namespace
