#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/SearchCombo.h"
#include "support/RunningProgram.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

namespace {

class EquipmentTest : public testing::Test {
protected:
    void run(const QString& statement) { running.league.database().execute(statement); }
    QString kept(const QString& where, const char* column) {
        return running.league.value("SELECT * FROM tblEquipment WHERE " + where, QLatin1String(column));
    }
    void addItem(const char* name, const char* description, int count, bool isDeleted = false) {
        run(QString("INSERT INTO tblEquipment ([ItemName], [Description], [NbrItems], [Insured], [DeletedFlag]) VALUES "
                    "(\"%1\", \"%2\", %3, 1, %4)")
                .arg(name, description)
                .arg(count)
                .arg(isDeleted));
    }
    void choose(const char* name, const QString& text) {
        auto* box = control<ChoiceBox>(screen, name);
        ASSERT_GE(box->indexOf(text), 0) << name << ' ' << text.toStdString();
        box->setCurrentIndex(box->indexOf(text));
        Q_EMIT box->activated(box->currentIndex());
    }
    QString shown(const char* name) { return control<QLineEdit>(screen, name)->text(); }
    QString chosen(const char* name) { return control<ChoiceBox>(screen, name)->text(); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(EquipmentTest, AnItemIsEnteredWithVendorAndInsuranceByName) {
    run("INSERT INTO tblVendor ([VendorName], [DeletedFlag]) VALUES (\"Old\", True)");
    run("INSERT INTO tblVendor ([VendorName], [DeletedFlag]) VALUES (\"Sports \"\"R\"\" We\", False)");
    run("INSERT INTO tblInsurance ([InsAgencyName], [DeletedFlag]) VALUES (\"Safe, Inc.\", False)");
    screen = running.open("frmEquipment");
    press(screen, "cmdAdd");
    EXPECT_EQ(shown("txtNbrItems"), "1");
    press(screen, "optInsured0");
    dialogs.expectWarning("Error - Equipment Save",
                          "There is an inconsistency in the \nInsured (Yes/No) field and the Insurance List field.\n"
                          "The Equipment Name is a required entry.\nThe Equipment Description is a required entry.");
    press(screen, "cmdSave");
    type(screen, "txtItemName", "Bat");
    type(screen, "txtDescription", "Aluminum");
    type(screen, "txtNbrItems", "12x");
    type(screen, "mskedCost", "1,234.5");
    EXPECT_EQ(control<ChoiceBox>(screen, "cboVendorId")->indexOf("Old"), -1);
    choose("cboVendorId", "Sports \"R\" We");
    choose("cboInsuranceId", "Safe, Inc.");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Bat\" Added.");
    const struct {
        const char* column;
        const char* value;
    } columns[] = {
        {"NbrItems", "12"}, {"VendorId", "2"},    {"InsuranceId", "1"},           {"Insured", "0"},
        {"Cost", "1234.5"}, {"DeletedFlag", "0"}, {"PurchaseDate", "2026-04-22"}, {"WarrantyExpiration", "2026-04-22"}};
    for (const auto& [column, value] : columns) EXPECT_EQ(kept("[ItemName] = \"Bat\"", column), value) << column;
    type(screen, "txtSize", "32");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Bat\" Added.") << "the same words after an update";
    EXPECT_EQ(chosen("cboVendorId"), "Sports \"R\" We");
    type(screen, "txtItemName", "T-Ball");
    dialogs.expectWarning("Error!", "Error!  Equipment Name not found in Search List");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"T-Ball\" Added.") << "though the list does not find it";
    EXPECT_EQ(shown("txtItemName"), "");
}

TEST_F(EquipmentTest, AnItemGoesAndItsAssignmentsStay) {
    addItem("Ball", "Hard", 20);
    addItem("Bat", "Wood", 3);
    run("INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId], [EquipmentId], "
        "[DistributionQuantity], [ReturnQuantity], [DeletedFlag]) VALUES (1, 0, 0, 0, 2, \"1\", \"0\", False)");
    screen = running.open("frmEquipment");
    EXPECT_EQ(control<SearchCombo>(screen, "cboEquipmentSearchList")->currentText(), "Ball - Hard");
    press(screen, "cmdEquipmentMove3");
    const char* question =
        "This will permanently delete the current record\nAND ALL Assignments for this record.\n\nDo you want to "
        "continue?";
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::No, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Bat\" NOT Deleted.");
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Bat\" Deleted.");
    EXPECT_EQ(kept("[ItemName] = \"Bat\"", "DeletedFlag"), "1");
    EXPECT_EQ(running.league.count("SELECT * FROM tblEquipmentAssignment WHERE [DeletedFlag] = False"), 1);
    EXPECT_EQ(shown("txtItemName"), "Ball");
}

TEST_F(EquipmentTest, LeavingTheTabOffersToSave) {
    addItem("Ball", "Hard", 20);
    screen = running.open("frmEquipment");
    auto* tabs = screen->findChild<QTabWidget*>();
    type(screen, "txtNbrItems", "21");
    dialogs.expectQuestion("Save Record?", BoxAnswer::No, "Save the current record?");
    tabs->setCurrentIndex(1);
    EXPECT_EQ(status(screen), "Record \"Ball\" NOT saved.");
    tabs->setCurrentIndex(0);
    type(screen, "txtNbrItems", "22");
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current record?");
    tabs->setCurrentIndex(1);
    EXPECT_EQ(status(screen), "Equipment Record Added/Updated.");
    EXPECT_EQ(kept("[ItemName] = \"Ball\"", "NbrItems"), "22");
}

class EquipmentAssignmentTest : public EquipmentTest {
protected:
    void SetUp() override {
        run("INSERT INTO tblDivision ([DivName], [DeletedFlag]) VALUES (\"Minors\", False)");
        run("INSERT INTO tblDivision ([DivName], [DeletedFlag]) VALUES (\"Majors\", False)");
        run("INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"Owls\", 1, False)");
        run("INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], [PlayerAddress1], "
            "[PlayerCity], [PlayerStateId], [PlayerZipCode], [PlayerPhone], [PlayerGender], [PlayerJerseyNumber], "
            "[DeletedFlag]) VALUES (\"O'Hara-Li\", \"Zoe\", #5/1/2016#, \"1 Elm\", \"Oak\", \"OR\", \"97001\", "
            "\"555-0101\", \"Female\", \"7\", False)");
        run("INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], [DeletedFlag]) VALUES "
            "(\"Stone\", \"Mary\", \"555-0102\", False)");
        addItem("Ball", "Hard", 5);
        addItem("Bat", "Wood", 3);
        addItem("Gone", "Away", 9, true);
        screen = running.open("frmEquipment");
        screen->findChild<QTabWidget*>()->setCurrentIndex(1);
    }
    void assignTo(int choice) {
        control<QRadioButton>(screen, qPrintable(QString("optAssignTo%1").arg(choice)))->click();
    }
    QString label(const char* name) { return control<QLabel>(screen, name)->text(); }
    Grid* grid() { return control<Grid>(screen, "flxGridAssignedItems"); }
    QString available(int item) {
        const QString query = QString("SELECT * FROM tblEquipmentAvailable WHERE [EquipmentId] = %1").arg(item);
        if (running.league.count(query) == 0) return "none";
        QStringList values;
        for (const char* column : {"TotalAvailable", "TotalDistributed", "QuantityAvailable"})
            values << running.league.value(query, column);
        return values.join(' ');
    }
    QStringList assignments() {
        QStringList rows;
        auto all =
            running.league.database().openRecordset("SELECT * FROM tblEquipmentAssignment ORDER BY AssignmentId");
        for (; !all.eof(); all.moveNext()) {
            QStringList values;
            for (const char* column : {"DivisionId", "TeamId", "PlayerId", "VolId", "EquipmentId",
                                       "DistributionQuantity", "ReturnQuantity", "DeletedFlag"})
                values << all.text(column);
            rows << values.join(' ');
        }
        return rows;
    }
    void give(const char* item, const char* quantity) {
        choose("cboEquipmentList", item);
        type(screen, "txtDistributionQuantity", quantity);
        press(screen, "cmdSave");
    }
};

TEST_F(EquipmentAssignmentTest, EachKindOfHolderIsKeptByItsOwnIds) {
    const struct {
        int choice;
        std::vector<std::pair<const char*, const char*>> lists;
        const char* row;
    } holders[] = {{0, {{"cboDivisionList", "Minors"}}, "1 0 0 0 1 1 0 0"},
                   {1, {{"cboTeamList", "Owls"}}, "1 1 0 0 1 1 0 0"},
                   {2, {{"cboPlayerList", "O'Hara-Li, Zoe - 5/1/2016"}}, "0 0 1 0 1 1 0 0"},
                   {3, {{"cboVolunteerList", "Stone, Mary - 555-0102"}}, "0 0 0 1 1 1 0 0"}};
    QStringList expected;
    for (const auto& [choice, lists, row] : holders) {
        assignTo(choice);
        for (const auto& [list, entry] : lists) choose(list, entry);
        EXPECT_EQ(grid()->rows().size(), 0U);
        give("Ball - Hard", "1");
        EXPECT_EQ(status(screen), "Assignment Added.");
        ASSERT_EQ(grid()->rows().size(), 1U);
        EXPECT_EQ(grid()->rows()[0].cells, QStringList({"Ball - Hard", "1", "4-22-26", "0", ""}));
        expected << row;
        EXPECT_EQ(assignments(), expected);
    }
    EXPECT_EQ(available(1), "5 4 1");
    EXPECT_EQ(available(3), "none") << "a deleted item";
    EXPECT_EQ(running.league.value("tblRegistration", "PlayerJerseyNumber"), "7");
    assignTo(2);
    type(screen, "txtJerseyNumber", "42");
    type(screen, "txtDistributionQuantity", "0");
    type(screen, "txtReturnQuantity", "0");
    press(screen, "cmdSave");
    EXPECT_EQ(running.league.value("tblRegistration", "PlayerJerseyNumber"), "42");
    EXPECT_EQ(assignments(), expected) << "nothing out and nothing back is not kept";
}

TEST_F(EquipmentAssignmentTest, AnItemThatIsAllOutComesBackThroughTheGrid) {
    choose("cboDivisionList", "Minors");
    give("Bat - Wood", "3");
    EXPECT_EQ(available(2), "3 3 0");
    EXPECT_EQ(control<ChoiceBox>(screen, "cboEquipmentList")->indexOf("Bat - Wood"), -1);
    choose("cboEquipmentList", "Ball - Hard");
    EXPECT_EQ(label("lblTotalAvailable") + ' ' + label("lblQuantityAvailable"), "5 5");
    EXPECT_FALSE(control(screen, "cmdDelete")->isEnabled()) << "nothing of it is here";
    Q_EMIT grid()->rowPicked(0);
    EXPECT_EQ(chosen("cboEquipmentList"), "Bat - Wood");
    EXPECT_EQ(shown("txtDistributionQuantity"), "3");
    type(screen, "txtReturnQuantity", "4");
    EXPECT_FALSE(control(screen, "cboEquipmentList")->isEnabled()) << "the edit belongs to this item";
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Assignment Updated.");
    EXPECT_EQ(available(2), "3 -1 4") << "more came back than went out";
    EXPECT_EQ(grid()->rows()[0].cells[4], "4-22-26");
    dialogs.expectQuestion("Delete Assignment Record", BoxAnswer::Yes,
                           "Are you sure you want to delete\nthis Equipment Assignment record?");
    press(screen, "cmdDelete");
    EXPECT_EQ(assignments(), QStringList("1 0 0 0 2 3 4 1"));
    EXPECT_EQ(available(2), "3 0 3");
    give("Bat - Wood", "2");
    EXPECT_EQ(assignments(), QStringList("1 0 0 0 2 2 0 0")) << "the deleted row comes back";
    run("UPDATE tblEquipmentAssignment SET [DeletedFlag] = True");
    dialogs.expectWarning("Assignment Record Error...",
                          "The assignment record was not found.\nRefresh the screen and reselect the record.");
    Q_EMIT grid()->rowPicked(0);
    dialogs.expectQuestion("Delete Assignment Record", BoxAnswer::Yes);
    dialogs.expectWarning("Assignment Delete Error...",
                          "The Assignment record was not found.\nPlease report this as a bug.");
    press(screen, "cmdDelete");
}

TEST_F(EquipmentAssignmentTest, AnItemJustEnteredIsFoundByTyping) {
    auto* tabs = screen->findChild<QTabWidget*>();
    tabs->setCurrentIndex(0);
    press(screen, "cmdAdd");
    type(screen, "txtItemName", "Bag");
    type(screen, "txtDescription", "Blue for six");
    press(screen, "cmdSave");
    tabs->setCurrentIndex(1);
    type(screen, "cboDivisionList", "mino");
    type(screen, "cboEquipmentList", "Bag - B");
    EXPECT_EQ(chosen("cboEquipmentList"), "Bag - Blue for six");
    EXPECT_EQ(label("lblTotalAvailable") + ' ' + label("lblQuantityAvailable"), "1 1");
    type(screen, "txtDistributionQuantity", "1");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Assignment Added.");
}

TEST_F(EquipmentAssignmentTest, WhatIsMissingIsTold) {
    const QString noItem = "\nYou must select an Equipment Item to assign.";
    const struct {
        int choice;
        const char* list;
        QString text;
    } cases[] = {{0, nullptr, "You must select a Division"},
                 {0, "cboDivisionList", "An Invalid Division has been selected."},
                 {1, nullptr, "An Invalid Division has been selected.\nYou must select a Team."},
                 {1, "cboTeamList", "An Invalid Division has been selected.\nAn Invalid Team has been selected."},
                 {2, nullptr, "You must select a Player."},
                 {2, "cboPlayerList", "An Invalid Player Record has been selected."},
                 {3, nullptr, "You must select a Volunteer."},
                 {3, "cboVolunteerList", "An Invalid Volunteer Record has been selected."}};
    for (const auto& [choice, list, text] : cases) {
        assignTo(choice);
        if (list) type(screen, list, "zz top");
        type(screen, "txtDistributionQuantity", "1");
        dialogs.expectWarning("Error - Assignment Save", text + noItem);
        press(screen, "cmdSave");
        press(screen, "cmdCancel");
    }
    EXPECT_TRUE(assignments().isEmpty());
}

TEST_F(EquipmentAssignmentTest, OnlyTheListsOfTheHolderCanBeUsed) {
    const char* lists[] = {"cboDivisionList", "cboTeamList", "cboPlayerList", "cboVolunteerList"};
    const char* usable[] = {"1000", "1100", "0010", "0001"};
    for (int choice = 0; choice < 4; ++choice) {
        assignTo(choice);
        QString enabled;
        for (const char* list : lists) enabled += control(screen, list)->isEnabled() ? '1' : '0';
        EXPECT_EQ(enabled, usable[choice]);
        EXPECT_EQ(control(screen, "txtJerseyNumber")->isVisible(), choice == 2);
    }
    assignTo(1);
    choose("cboDivisionList", "Majors");
    EXPECT_EQ(control<ChoiceBox>(screen, "cboTeamList")->indexOf("Owls"), -1);
}

}  // namespace
