#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QLineEdit>
#include <QTabWidget>

namespace {

/// Majors (1) with the Hawks (1), Minors (2) with the Hawks (2) and the Owls (3), T-Ball (3) without a team.
class TeamsTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"Majors", "Minors", "T-Ball"})
            run(QStringLiteral("INSERT INTO tblDivision ([DivName]) VALUES (\"%1\")").arg(name));
        for (const char* team : {"\"Hawks\", 1", "\"Hawks\", 2", "\"Owls\", 2"})
            run(QStringLiteral("INSERT INTO tblTeam ([TeamName], [DivisionId]) VALUES (%1)").arg(team));
        run("INSERT INTO tblSponsor ([SponsorName], [SponsorColorRequest]) VALUES (\"Ace Tools\", \"Navy\")");
        for (const char* volunteer :
             {"\"Lee\", \"Al\", \"555-0001\"", "\"Lee\", \"Al\", \"555-0002\"", "\"Moss\", \"Bo\", \"555-0003\""})
            run(QStringLiteral("INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], "
                               "[VolHomePhoneArea], [VolCity]) VALUES (%1, \"503\", \"Elm\")")
                    .arg(volunteer));
        open();
    }
    void open() {
        screen = running.open("frmTeams");
        tab("Teams");
    }
    void tab(const QString& caption) {
        for (auto* tabs : screen->findChildren<QTabWidget*>())
            for (int index = 0; index < tabs->count(); ++index)
                if (tabs->tabText(index) == caption) return tabs->setCurrentIndex(index);
        ADD_FAILURE() << caption.toStdString();
    }
    QString frontTab(int depth) {
        auto* tabs = screen->findChild<QTabWidget*>();
        while (depth-- > 0) tabs = tabs->currentWidget()->findChild<QTabWidget*>();
        return tabs->tabText(tabs->currentIndex());
    }
    void pick(const char* list, const QString& text) {
        auto* search = control<SearchCombo>(screen, list);
        search->setFocus();
        QTest::keyClick(search, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty()) QTest::keyClick(search, Qt::Key_Delete);
        QTest::keyClicks(search, text);
        QTest::keyClick(search, Qt::Key_Return);
        ASSERT_EQ(search->currentText(), text);
    }
    void choose(const char* name, const QString& text) {
        auto* box = control<ChoiceBox>(screen, name);
        ASSERT_GE(box->indexOf(text), 0) << name;
        box->setCurrentIndex(box->indexOf(text));
        Q_EMIT box->activated(box->currentIndex());
    }
    QString shown(const char* name) { return control<QLineEdit>(screen, name)->text(); }
    QString current(const char* list) { return control<SearchCombo>(screen, list)->currentText(); }
    QString label(const char* name) { return control<QLabel>(screen, name)->text(); }
    QString value(const QString& query, const char* column) {
        return running.league.value(query, QLatin1String(column));
    }
    int count(const QString& query) { return running.league.count("SELECT * FROM " + query); }
    void run(const QString& statement) { running.league.database().execute(statement); }
    void addPlayer(int division, int team, bool deleted = false) {
        run(QStringLiteral("INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerBirthDate], "
                           "[PlayerDivisionId], [PlayerTeamId], [PlayerActive], [DeletedFlag]) VALUES (\"Fox\", "
                           "\"Jo\", #4/2/2016#, %1, %2, True, %3)")
                .arg(division)
                .arg(team)
                .arg(deleted ? "True" : "False"));
    }
    void expectDeleteRefused(const QString& why) {
        dialogs.expectError("Delete Error...", why);
        press(screen, "cmdDelete");
        EXPECT_EQ(value("tblTeam", "DeletedFlag"), "0");
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

TEST_F(TeamsTest, TeamsAreThoseOfTheChosenDivision) {
    EXPECT_EQ(current("cboTeamDivisionName") + u'/' + shown("txtTeamName"), "Majors/Hawks");
    press(screen, "cmdTeamDivisionMove1");
    EXPECT_EQ(status(screen), "First Record");
    press(screen, "cmdTeamDivisionMove2");
    press(screen, "cmdTeamMove3");
    EXPECT_EQ(current("cboTeamDivisionName") + u'/' + shown("txtTeamName"), "Minors/Owls");
    press(screen, "cmdTeamMove2");
    EXPECT_EQ(status(screen), "Last Record");
    pick("cboTeamDivisionName", "T-Ball");
    EXPECT_EQ(current("cboTeamSearchList") + shown("txtTeamName") + shown("mskedTeamFeeAmount"), "$0.00");
    EXPECT_FALSE(control(screen, "cmdDelete")->isEnabled());
    EXPECT_TRUE(control(screen, "cmdTeamAddNew")->isEnabled());
    tab("Divisions");
    pick("cboDivSearchList", "T-Ball");
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    tab("Teams");
    EXPECT_EQ(current("cboTeamDivisionName") + u'/' + shown("txtTeamName"), "Majors/Hawks")
        << "the one in hand is gone";
    run("UPDATE tblDivision SET [DeletedFlag] = True");
    press(screen, "cmdRefresh");
    EXPECT_EQ(current("cboTeamDivisionName") + shown("txtTeamName"), "");
    EXPECT_FALSE(control(screen, "cmdTeamAddNew")->isEnabled()) << "a team belongs to a division";
}

TEST_F(TeamsTest, NewTeamTakesNameAndColorsOfItsSponsor) {
    pick("cboTeamDivisionName", "T-Ball");
    press(screen, "cmdTeamAddNew");
    EXPECT_EQ(shown("mskedTeamFeeAmount") + shown("mskedTeamFeePaid"), "$0.00$0.00");
    EXPECT_FALSE(control(screen, "cboTeamDivisionName")->isEnabled());
    choose("cboTeamSponsor", "Ace Tools");
    EXPECT_EQ(shown("txtTeamName") + u'/' + shown("txtTeamColors"), "Ace Tools/Navy");
    type(screen, "txtTeamName", "Wrens");
    choose("cboTeamSponsor", "");
    choose("cboTeamSponsor", "Ace Tools");
    EXPECT_EQ(shown("txtTeamName"), "Wrens") << "a name that stands is kept";
    choose("cboTeamGender", "Male & Female");
    type(screen, "mskedTeamFeeAmount", "150");
    type(screen, "txtTeamSocksColor", "Red");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"Wrens\" Saved.");
    const QString query = "SELECT * FROM tblTeam WHERE [TeamName] = \"Wrens\"";
    for (const auto& [column, kept] :
         {std::pair("DivisionId", "3"), std::pair("SponsorId", "1"), std::pair("TeamGender", "Male & Female"),
          std::pair("TeamFeeAmount", "150"), std::pair("TeamFeePaid", "0"), std::pair("TeamColors", "Navy"),
          std::pair("TeamSocksColor", "Red"), std::pair("DateStamp", "2026-04-22")})
        EXPECT_EQ(value(query, column), kept) << column;
    run("UPDATE tblSponsor SET [DeletedFlag] = True");
    press(screen, "cmdRefresh");
    EXPECT_EQ(control<ChoiceBox>(screen, "cboTeamSponsor")->text(), "") << "a sponsor that is gone has no name";
    type(screen, "txtTeamSocksColor", "Blue");
    press(screen, "cmdSave");
    EXPECT_EQ(value(query, "SponsorId"), "1");
}

TEST_F(TeamsTest, NameIsUniqueWithinTheDivision) {
    const auto taken = [this](const char* name) {
        dialogs.expectWarning("Validation Error - Team",
                              QStringLiteral("The Team Name %1\nalready exists\nin this Division -- duplicate team "
                                             "names are not allowed.\nPlease enter a New Team Name.")
                                  .arg(name));
        press(screen, "cmdSave");
    };
    pick("cboTeamDivisionName", "Minors");
    type(screen, "txtTeamName", " ");
    dialogs.expectWarning("Validation Error - Team", "The Team Name is a required entry.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtTeamName")->hasFocus());
    type(screen, "txtTeamName", "owls");
    taken("owls");
    type(screen, "txtTeamName", "HAWKS");
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), "Record \"HAWKS\" Saved.");
    press(screen, "cmdTeamAddNew");
    type(screen, "txtTeamName", "Owls");
    taken("Owls");
    press(screen, "cmdCancel");

    run("UPDATE tblTeam SET [DeletedFlag] = True, [TeamComments] = \"old\" WHERE [TeamId] = 3");
    run("INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"Owls\", 1, True)");
    press(screen, "cmdTeamAddNew");
    type(screen, "txtTeamName", "Owls");
    press(screen, "cmdSave");
    EXPECT_EQ(value("SELECT * FROM tblTeam WHERE [TeamId] = 3", "DeletedFlag"), "0") << "back with its old results";
    EXPECT_EQ(value("SELECT * FROM tblTeam WHERE [TeamId] = 3", "TeamComments"), "");
    EXPECT_EQ(count("tblTeam"), 4);
}

TEST_F(TeamsTest, ScheduleOfTheDivisionFollowsARenamedTeam) {
    const struct {
        const char* before;
        const char* after;
    } games[] = {{"\"Minors\", \"Hawks\", \"Owls\"", "Sky O'Hawks/Owls"},
                 {"\"Minors\", \"Owls\", \"Hawks\"", "Owls/Sky O'Hawks"},
                 {"\"Minors\", \"Hawks\", \"Hawks\"", "Sky O'Hawks/Hawks"},
                 {"\"Minors\", Null, \"Hawks\"", "/Sky O'Hawks"},
                 {"\"Majors\", \"Hawks\", \"Owls\"", "Hawks/Owls"}};
    for (const auto& game : games)
        run(QStringLiteral("INSERT INTO tblSchedule ([division], [VisitorsTeam], [HomeTeam]) VALUES (%1)")
                .arg(game.before));
    pick("cboTeamDivisionName", "Minors");
    type(screen, "txtTeamName", "Sky O'Hawks");
    press(screen, "cmdSave");
    int id = 0;
    for (const auto& game : games) {
        const QString row = QStringLiteral("SELECT * FROM tblSchedule WHERE [ScheduleId] = %1").arg(++id);
        EXPECT_EQ(QString(value(row, "VisitorsTeam") + u'/' + value(row, "HomeTeam")), game.after) << game.before;
    }
    EXPECT_EQ(current("cboTeamSearchList"), "Sky O'Hawks");
}

TEST_F(TeamsTest, FailedRenameLeavesTheScheduleAsItWas) {
    run("INSERT INTO tblSchedule ([division], [VisitorsTeam]) VALUES (\"Majors\", \"Hawks\")");
    type(screen, "txtTeamName", "Ravens");
    run("DELETE FROM tblTeam WHERE [TeamId] = 1");
    dialogs.expectError("The record was not saved");
    press(screen, "cmdSave");
    EXPECT_EQ(value("tblSchedule", "VisitorsTeam"), "Hawks");
    press(screen, "cmdCancel");
}

TEST_F(TeamsTest, DeletingAsksForEquipmentThenPlayersThenTheUser) {
    run("INSERT INTO tblEquipmentAssignment ([DivisionId], [TeamId], [PlayerId], [VolId]) VALUES (1, 1, 0, 0)");
    run("INSERT INTO tblTeamVolunteer ([VolId], [DivisionId], [TeamId], [VolPosName]) VALUES (1, 1, 1, \"HeadCoach\")");
    addPlayer(1, 1);
    addPlayer(1, 1, true);
    addPlayer(2, 1);
    expectDeleteRefused(
        "The Team being deleted has Equipment \nassigned to it.  Delete any equipment assignments\n"
        "before deleting this record.");
    run("UPDATE tblEquipmentAssignment SET [DeletedFlag] = True");
    const QString question =
        "This team currently has Players Assigned to it.\nWould you like to automatically remove "
        "these\nPlayers from the team?";
    dialogs.expectQuestion("Remove Player/Team Assignment", BoxAnswer::No, question);
    expectDeleteRefused("The Team has players assigned to it.\nYou cannot delete a team with players\nassigned to it.");
    EXPECT_EQ(count("tblRegistration WHERE [PlayerTeamId] = 1"), 3);
    dialogs.expectQuestion("Remove Player/Team Assignment", BoxAnswer::Yes, question);
    dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, "Are you sure you want to delete Team \"Hawks\"?");
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), "Record \"Hawks\" Deleted.");
    EXPECT_EQ(value("tblTeam", "DeletedFlag"), "1");
    EXPECT_EQ(count("tblRegistration WHERE [PlayerTeamId] = 1"), 1) << "the one of another division";
    EXPECT_EQ(count("tblRegistration WHERE [PlayerDivisionId] = 1 AND [DateStamp] = #4/22/2026#"), 2);
    EXPECT_EQ(value("tblTeamVolunteer", "DeletedFlag"), "0");
    EXPECT_EQ(shown("txtTeamName") + shown("mskedTeamFeePaid"), "$0.00") << "no team is left";
}

TEST_F(TeamsTest, StaffIsKeptByPositionAndDeletedLinksComeBack) {
    const QString link = "SELECT * FROM tblTeamVolunteer WHERE [VolPosName] = \"HeadCoach\"";
    tab("Coach/Team Parent Information");
    pick("cboHeadCoachSearchList", "Lee, Al - 555-0002");
    EXPECT_EQ(label("lblHeadCoachCity") + u' ' + label("lblHeadCoachHomePhone"), "Elm (503) 555-0002");
    choose("cboHeadCoachShirtSize", control<ChoiceBox>(screen, "cboHeadCoachShirtSize")->entryAt(1));
    press(screen, "cmdSave");
    EXPECT_EQ(value(link, "VolId") + value(link, "TeamId") + value(link, "DivisionId"), "211");
    EXPECT_EQ(value(link, "VolShirtSize"), control<ChoiceBox>(screen, "cboHeadCoachShirtSize")->text());
    EXPECT_FALSE(control(screen, "cmdSave")->isEnabled());

    pick("cboHeadCoachSearchList", "");
    EXPECT_EQ(label("lblHeadCoachCity"), "");
    press(screen, "cmdSave");
    EXPECT_EQ(value(link, "DeletedFlag"), "1");
    pick("cboHeadCoachSearchList", "Moss, Bo - 555-0003");
    press(screen, "cmdSave");
    EXPECT_EQ(count("tblTeamVolunteer"), 1) << "the deleted link was used again";
    EXPECT_EQ(value(link, "VolId") + value(link, "DeletedFlag"), "30");

    run("UPDATE tblVolunteer SET [DeletedFlag] = True WHERE [VolId] = 3");
    press(screen, "cmdRefresh");
    EXPECT_EQ(current("cboHeadCoachSearchList") + label("lblHeadCoachLastName"), "") << "who is gone is not shown";
    EXPECT_EQ(value(link, "DeletedFlag"), "0");
}

TEST_F(TeamsTest, OnePersonCoachesInOnePosition) {
    const QString one = "Lee, Al - 555-0001";
    const QString head =
        "The Head Coach's Name and the Assistant\nCoach's name is the same.  You must select \nunique "
        "names for the coaching positions.";
    const QString assistants =
        "The Assistant Coach's Names are the same.\nYou must select unique names for the\n"
        "coaching positions.";
    const struct {
        const char* position;
        const char* volunteer;
        QString warning;
    } picks[] = {{"HeadCoach", "Lee, Al - 555-0001", {}},
                 {"FirstAssistant", "Lee, Al - 555-0001", head},
                 {"SecondAssistant", "Lee, Al - 555-0001", head},
                 {"FirstAssistant", "Lee, Al - 555-0002", {}},
                 {"SecondAssistant", "Lee, Al - 555-0002", assistants},
                 {"TeamParent", "Lee, Al - 555-0001", {}},
                 {"TeamParent2", "Lee, Al - 555-0001", {}}};
    tab("Coach/Team Parent Information");
    auto* seats = control<QTabWidget>(screen, "tabStaff");
    for (const auto& each : picks) {
        const QByteArray list = QByteArray("cbo") + each.position + "SearchList";
        seats->setCurrentWidget(control(screen, list)->parentWidget());
        pick(list, each.volunteer);
        if (!each.warning.isEmpty()) dialogs.expectWarning("Invalid Coach Selections...", each.warning);
        press(screen, "cmdSave");
        const int kept = count(QStringLiteral("tblTeamVolunteer WHERE [VolPosName] = \"%1\" AND [DeletedFlag] = False")
                                   .arg(each.position));
        EXPECT_EQ(kept, each.warning.isEmpty() ? 1 : 0) << each.position;
        if (!each.warning.isEmpty()) press(screen, "cmdCancel");
    }
}

TEST_F(TeamsTest, EachTabThatIsLeftAsksForItsOwn) {
    const struct {
        const char* from;
        const char* to;
        const char* position;
        QString title;
        QString text;
    } leavings[] = {
        {"Manager/Coach", "Asst. Coach #1", "HeadCoach", "Save Head Coach Info?",
         "The Head Coach information has changed.\nDo you want to save the new head coach information?"},
        {"Asst. Coach #1", "Asst. Coach #2", "FirstAssistant", "Save Assistant Coach Info?",
         "The First Assistant Coach information has changed.\nDo you want to save the new assistant coach "
         "information?"},
        {"Asst. Coach #2", "Team Parent #1", "SecondAssistant", "Save Assistant Coach Info?",
         "The Second Assistant Coach information has changed.\nDo you want to save the new assistant coach "
         "information?"},
        {"Team Parent #1", "Team Parent #2", "TeamParent", "Save Team Parent Info?",
         "The Team Parent information has changed.\nDo you want to save the new Team Parent information?"},
        {"Team Parent #2", "Manager/Coach", "TeamParent2", "Save Team Parent2 Info?",
         "The Team Parent2 information has changed.\nDo you want to save the new Team Parent2 information?"},
        {"Manager/Coach", "Team Information", "HeadCoach", "Save Coach/Team Parent Info?",
         "The Coach or Team Parent Information has changed.\nDo you want to save the new information?"},
        {"Manager/Coach", "Fields", "HeadCoach", "Save Record?", "Save the current Team record?"}};
    for (const auto& leaving : leavings) {
        SCOPED_TRACE(leaving.title.toStdString());
        tab("Coach/Team Parent Information");
        tab(leaving.from);
        const QByteArray list = QByteArray("cbo") + leaving.position + "SearchList";
        pick(list, "Moss, Bo - 555-0003");
        dialogs.expectQuestion(leaving.title, BoxAnswer::No, leaving.text);
        tab(leaving.to);
        tab("Teams");
        tab("Coach/Team Parent Information");
        EXPECT_EQ(current(list), "");
        EXPECT_EQ(count("tblTeamVolunteer"), 0);
    }
    tab("Teams");
    tab("Coach/Team Parent Information");
    tab("Manager/Coach");
    pick("cboHeadCoachSearchList", "Moss, Bo - 555-0003");
    dialogs.expectQuestion("Save Head Coach Info?", BoxAnswer::Yes);
    tab("Asst. Coach #1");
    pick("cboFirstAssistantSearchList", "Moss, Bo - 555-0003");
    dialogs.expectQuestion("Save Assistant Coach Info?", BoxAnswer::Yes);
    dialogs.expectWarning("Invalid Coach Selections...");
    tab("Team Parent #1");
    EXPECT_EQ(frontTab(2), "Asst. Coach #1") << "what cannot be saved stays in view";
    dialogs.expectQuestion("Save Coach/Team Parent Info?", BoxAnswer::Yes);
    dialogs.expectWarning("Invalid Coach Selections...");
    tab("Player/Team Assignments");
    EXPECT_EQ(frontTab(1), "Coach/Team Parent Information");
    press(screen, "cmdCancel");
    EXPECT_EQ(count("tblTeamVolunteer"), 1);
}

TEST_F(TeamsTest, LeavingTheTeamInformationAsks) {
    const QString question = "The Team information has changed.\nDo you want to save the team information?";
    type(screen, "txtTeamName", "Ravens");
    dialogs.expectQuestion("Save Team Information?", BoxAnswer::No, question);
    tab("Player/Team Assignments");
    EXPECT_EQ(label("lblAssignmentTeam"), "Hawks");
    tab("Team Information");
    press(screen, "cmdTeamAddNew");
    dialogs.expectQuestion("Save Team Information?", BoxAnswer::Yes, question);
    dialogs.expectWarning("Validation Error - Team");
    tab("Coach/Team Parent Information");
    EXPECT_EQ(frontTab(1), "Team Information") << "a team that cannot be saved stays in view";
    dialogs.expectQuestion("Save Record?", BoxAnswer::No, "Save the current Team record?");
    tab("Fields");
    EXPECT_EQ(frontTab(0), "Fields");
}

}  // namespace
