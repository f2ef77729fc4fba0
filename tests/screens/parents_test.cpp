#include "registration/clsRegistration.h"
#include "registration/clsVolunteer.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <gtest/gtest.h>

#include "platform/widgets/SearchCombo.h"

namespace {

const QString renameTitle = QStringLiteral("Volunteer Record Found");
const QString retireTitle = QStringLiteral("Delete Volunteer Record?");

/// Ann, Bob and Cal Smith, whose father is Dan Smith, 555-0100; Ann in view.
class ParentsTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* first : {"Ann", "Bob", "Cal"}) {
            clsRegistration player(running.league.context);
            player.NewPlayerRecord();
            player.PlayerLastName = "Smith";
            player.PlayerFirstName = first;
            player.PlayerBirthDate = QDate(2012, 4, 2);
            player.PlayerAddress1 = "1 Elm Street";
            player.PlayerCity = "Oakville";
            player.PlayerStateId = "OR";
            player.PlayerPostalCode = "97050";
            player.PlayerPhone = "555-0100";
            player.PlayerDadLastName = "Smith";
            player.PlayerDadFirstName = "Dan";
            player.PlayerDadPhoneArea = "503";
            player.PlayerDadPhone = "555-0100";
            player.PlayerGuardian1Relationship = "Father";
            player.SavePlayerRecord();
        }
    }
    void execute(const QString& statement) { running.league.database().execute(statement); }
    /// Dan as a volunteer, linked as "Dad" with these players.
    void addDan(const std::vector<int>& players) {
        clsVolunteer volunteer(running.league.context);
        volunteer.NewVolRecord();
        volunteer.VolLastName = "Smith";
        volunteer.VolFirstName = "Dan";
        volunteer.VolHomePhone = "555-0100";
        volunteer.VolActive = true;
        volunteer.SaveVolRecord();
        for (const int player : players) {
            volunteer.AddRegVolRecord(player, volunteer.VolId, "Dad");
            volunteer.AddVolToPositionRecord(volunteer.VolId, player, 1);
        }
    }
    void open() { screen = running.open("frmRegister"); }
    bool volunteers() { return control<QRadioButton>(screen, "optPlayerDadVolunteer0")->isChecked(); }
    void answer(bool yes) {
        showParents();
        control<QRadioButton>(screen, yes ? "optPlayerDadVolunteer0" : "optPlayerDadVolunteer1")->click();
    }
    void showParents() {
        auto* pages = screen->findChild<QTabWidget*>()->currentWidget()->findChild<QTabWidget*>();
        pages->setCurrentIndex(1);
    }
    void enter(const char* box, const QString& text) {
        showParents();
        type(screen, box, text);
    }
    void save() {
        press(screen, "cmdSave");
        EXPECT_FALSE(control(screen, "cmdSave")->isEnabled()) << "the child itself is saved in every case";
    }
    /// Every row in a line, deleted ones in parentheses.
    QStringList lines(const QString& table, const QStringList& columns) {
        QStringList lines;
        datafile::Recordset rows = running.league.database().openRecordset("SELECT * FROM " + table);
        for (; !rows.eof(); rows.moveNext()) {
            QStringList values;
            for (const QString& column : columns) values << rows.text(column);
            const QString line = values.join(u' ');
            lines << (rows.flag("DeletedFlag") ? QString("(" + line + ")") : line);
        }
        return lines;
    }
    QStringList volunteerRows() {
        return lines("tblVolunteer", {"VolLastName", "VolFirstName", "VolHomePhone", "VolActive"});
    }
    /// "1 Dan Dad": of player 1 with Dan; "1 ? Dad" with a volunteer who is not there.
    QStringList links() {
        QStringList links = lines("tblRegistrationVolunteer", {"PlayerId", "VolId", "VolGender"});
        for (QString& link : links) {
            const QString id = link.section(u' ', 1, 1);
            const QString query = "SELECT * FROM tblVolunteer WHERE [VolId] = " + id;
            const QString name = running.league.count(query) > 0 ? running.league.value(query, "VolFirstName") : "?";
            link.replace(u' ' + id + u' ', u' ' + name + u' ');
        }
        return links;
    }
    QStringList positions() { return lines("tblVolToPosition", {"PlayerId"}); }
    QStringList fathers() {
        return lines("tblRegistration", {"PlayerDadLastName", "PlayerDadFirstName", "PlayerDadPhone"});
    }
    void expectRename(BoxAnswer chosen) {
        dialogs.expectQuestion(
            renameTitle, chosen,
            "A Volunteer Record was found with the name\n\"Dan Smith\".\n\nWould you like to update "
            "this Volunteer Record\n(and any other Player Record(s) associated with \"Dan Smith\") \n"
            "with the new name?");
    }
    void expectVolInfo(bool saves) {
        dialogs.expectForm("frmVolInfo", [saves](QDialog& form) {
            if (saves) type(&form, "txtVolOccupation", "Baker");
            press(&form, saves ? "cmdSave" : "cmdCancel");
        });
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(ParentsTest, VolunteerOfThatNameAndPhoneIsLinkedAndComesBack) {
    addDan({});
    execute("UPDATE tblVolunteer SET [VolActive] = False, [DeletedFlag] = True");
    open();
    EXPECT_FALSE(volunteers());
    answer(true);
    save();
    EXPECT_EQ(volunteerRows(), QStringList{"Smith Dan 555-0100 1"});
    EXPECT_EQ(links(), QStringList{"1 Dan Dad"});
    EXPECT_TRUE(volunteers());
    enter("txtPlayerDadEmail", "dan@example.org");
    execute("UPDATE tblVolunteer SET [VolActive] = False");
    save();
    EXPECT_EQ(volunteerRows(), QStringList{"Smith Dan 555-0100 1"}) << "a link that fits makes active again too";
    EXPECT_EQ(links(), QStringList{"1 Dan Dad"});
}

TEST_F(ParentsTest, EachParentIsLinkedInTheirOwnRole) {
    addDan({1});
    execute(
        "INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone]) VALUES (\"Young\", \"Eve\", "
        "\"555-0177\")");
    open();
    enter("txtPlayerMomLastName", "Young");
    enter("txtPlayerMomFirstName", "eve");
    enter("mskedPlayerMomPhone", "5550177");
    control<QRadioButton>(screen, "optPlayerMomVolunteer0")->click();
    save();
    EXPECT_EQ(links(), (QStringList{"1 Dan Dad", "1 Eve Mom"}));
    EXPECT_EQ(volunteerRows(), (QStringList{"Smith Dan 555-0100 1", "Young Eve 555-0177 1"}));
    answer(false);
    dialogs.expectQuestion(retireTitle, BoxAnswer::Yes);
    save();
    EXPECT_EQ(links(), (QStringList{"(1 Dan Dad)", "1 Eve Mom"}));
    EXPECT_TRUE(control<QRadioButton>(screen, "optPlayerMomVolunteer0")->isChecked());
}

TEST_F(ParentsTest, NewVolunteerIsMadeThroughTheFormOrNotAtAll) {
    open();
    answer(true);
    expectVolInfo(false);
    save();
    EXPECT_EQ(volunteerRows() + links(), QStringList{});
    EXPECT_TRUE(volunteers()) << "as the user left it";
    press(screen, "cmdPlayerMove2");
    press(screen, "cmdPlayerMove1");
    EXPECT_FALSE(volunteers()) << "what was not made is not read";
    answer(true);
    expectVolInfo(true);
    save();
    EXPECT_EQ(volunteerRows(), QStringList{"Smith Dan 555-0100 1"});
    EXPECT_EQ(links(), QStringList{"1 Dan Dad"});
    const struct {
        const char* column;
        const char* value;
    } taken[]{{"VolGender", "Male"},       {"VolAddress1", "1 Elm Street"}, {"VolStateId", "OR"},
              {"VolHomePhoneArea", "503"}, {"VolPostalCode", "97050"},      {"VolOccupation", "Baker"}};
    for (const auto& each : taken)
        EXPECT_EQ(running.league.value("tblVolunteer", each.column), each.value) << each.column;
    EXPECT_TRUE(volunteers());
}

TEST_F(ParentsTest, NewNameGoesToTheVolunteerAndToTheOtherChildrenOnYes) {
    addDan({1, 2});
    open();
    EXPECT_TRUE(volunteers());
    enter("txtPlayerDadFirstName", "Daniel");
    enter("mskedPlayerDadPhone", "5550199");
    expectRename(BoxAnswer::Yes);
    save();
    EXPECT_EQ(volunteerRows(), QStringList{"Smith Daniel 555-0199 1"});
    EXPECT_EQ(fathers(), (QStringList{"Smith Daniel 555-0199", "Smith Daniel 555-0199", "Smith Dan 555-0100"}));
    EXPECT_EQ(links(), (QStringList{"1 Daniel Dad", "2 Daniel Dad"}));
}

TEST_F(ParentsTest, AnotherPersonTakesTheLinkOnNo) {
    const struct {
        const char* what;
        std::vector<int> linked;
        bool made;
        QStringList volunteers;
        QStringList links;
    } cases[]{{"the only child: the one before retires",
               {1},
               true,
               {"(Smith Dan 555-0100 0)", "Smith Edgar 555-0100 1"},
               {"1 Edgar Dad"}},
              {"nobody takes the place: no link is left with the one who retired",
               {1},
               false,
               {"(Smith Dan 555-0100 0)"},
               {"(1 Dan Dad)"}},
              {"one of two: the one before stays with the other",
               {1, 2},
               true,
               {"Smith Dan 555-0100 1", "Smith Edgar 555-0100 1"},
               {"(1 Dan Dad)", "2 Dan Dad", "1 Edgar Dad"}}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        for (const char* table : {"tblVolunteer", "tblRegistrationVolunteer", "tblVolToPosition"})
            execute(QString("DELETE FROM %1").arg(table));
        execute("UPDATE tblRegistration SET [PlayerDadFirstName] = \"Dan\"");
        addDan(each.linked);
        open();
        enter("txtPlayerDadFirstName", "Edgar");
        expectRename(BoxAnswer::No);
        expectVolInfo(each.made);
        save();
        EXPECT_EQ(volunteerRows(), each.volunteers);
        EXPECT_EQ(links(), each.links);
        EXPECT_EQ(fathers(), (QStringList{"Smith Edgar 555-0100", "Smith Dan 555-0100", "Smith Dan 555-0100"}));
        EXPECT_TRUE(volunteers());
        screen->close();
    }
}

TEST_F(ParentsTest, NewPhoneIsPassedOnWithoutAQuestion) {
    addDan({1, 2});
    open();
    enter("mskedPlayerDadPhone", "5550199");
    save();
    EXPECT_EQ(volunteerRows(), QStringList{"Smith Dan 555-0199 1"});
    EXPECT_EQ(fathers(), (QStringList{"Smith Dan 555-0199", "Smith Dan 555-0199", "Smith Dan 555-0100"}));
}

TEST_F(ParentsTest, NoEndsTheLinkAndWithTheLastChildPerhapsTheVolunteer) {
    const struct {
        const char* what;
        std::vector<int> linked;
        std::optional<BoxAnswer> answer;
        QStringList volunteers;
        QStringList links;
        QStringList positions;
    } cases[]{{"last child, retired", {1}, BoxAnswer::Yes, {"(Smith Dan 555-0100 0)"}, {"(1 Dan Dad)"}, {"(1)"}},
              {"last child, kept", {1}, BoxAnswer::No, {"Smith Dan 555-0100 1"}, {"(1 Dan Dad)"}, {"(1)"}},
              {"other children", {1, 2}, {}, {"Smith Dan 555-0100 1"}, {"(1 Dan Dad)", "2 Dan Dad"}, {"(1)", "2"}}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        for (const char* table : {"tblVolunteer", "tblRegistrationVolunteer", "tblVolToPosition"})
            execute(QString("DELETE FROM %1").arg(table));
        addDan(each.linked);
        open();
        answer(false);
        if (each.answer)
            dialogs.expectQuestion(
                retireTitle, *each.answer,
                "A Volunteer record was found for \"Dan Smith\"\nand no other players are associated "
                "with\nthis volunteer.\n\nWould you like to delete this \"Dan Smith\" Volunteer record?");
        save();
        EXPECT_EQ(volunteerRows(), each.volunteers);
        EXPECT_EQ(links(), each.links);
        EXPECT_EQ(positions(), each.positions);
        EXPECT_FALSE(volunteers());
        screen->close();
    }
}

/// No other volunteer is taken for one who is no longer in the file.
TEST_F(ParentsTest, LinkWithAPurgedVolunteerCountsAsNone) {
    addDan({1});
    execute(
        "INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], [VolActive]) "
        "VALUES (\"Young\", \"Eve\", \"555-0177\", True)");
    execute("DELETE FROM tblVolunteer WHERE [VolId] = 1");
    const QString eve = "Young Eve 555-0177 1";
    open();
    EXPECT_FALSE(volunteers());
    enter("txtPlayerDadEmail", "dan@example.org");
    save();
    EXPECT_EQ(volunteerRows(), QStringList{eve});
    EXPECT_EQ(links(), QStringList{"(1 ? Dad)"});
    execute("UPDATE tblRegistrationVolunteer SET [DeletedFlag] = False");
    answer(true);
    expectVolInfo(true);
    save();
    EXPECT_EQ(volunteerRows(), (QStringList{eve, "Smith Dan 555-0100 1"}));
    EXPECT_EQ(links(), (QStringList{"(1 ? Dad)", "1 Dan Dad"}));
}

TEST_F(ParentsTest, ReminderComesForAChildWithoutParentsUntilItIsSilenced) {
    const QString section = "WindowSettings\\frmRegister";
    running.settings.write(section, "ShowGuardianMsg", "True");
    open();
    const auto expectReminder = [&](bool silenced) {
        dialogs.expectForm("frmGuardianReminder", [silenced](QDialog& form) {
            EXPECT_EQ(form.windowTitle(), "Parent Reminder");
            if (silenced) control<QCheckBox>(&form, "chkDontShow")->click();
            press(&form, "cmdOK");
        });
    };
    enter("txtPlayerDadEmail", "dan@example.org");
    save();
    EXPECT_EQ(dialogs.shown().size(), 0u) << "one parent is enough";
    enter("txtPlayerDadFirstName", "");
    expectReminder(false);
    save();
    EXPECT_EQ(running.settings.read(section, "ShowGuardianMsg", {}), "True");
    enter("txtPlayerDadLastName", "");
    expectReminder(true);
    save();
    enter("txtPlayerDadEmail", "");
    save();
    EXPECT_EQ(running.settings.read(section, "ShowGuardianMsg", {}), "False");
}

}  // namespace
