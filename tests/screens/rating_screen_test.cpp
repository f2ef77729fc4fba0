#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/CommentBox.h"
#include "platform/widgets/SearchCombo.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>

namespace {

/// Ann Smith (1) umpires, Bo Wu (2) does not; Ann Smith is a volunteer (1) too, and so is Al O'Hara (2). The scale is
/// Not Rated 0, Poor 1, Fair 2, Average 3, Good 4, Excellent 5.
class RatingScreenTest : public testing::Test {
protected:
    void SetUp() override {
        run("INSERT INTO tblDivision ([DivName]) VALUES (\"Majors\")");
        run("INSERT INTO tblTeam ([TeamName], [DivisionId]) VALUES (\"Hawks\", 1)");
        for (const char* player : {"\"Smith\", \"Ann\", True, 1, 1, \"quick\"", "\"Wu\", \"Bo\", False, 0, 0, \"\""})
            run(QStringLiteral("INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerIsUmpire], "
                               "[PlayerDivisionId], [PlayerTeamId], [PlayerComments], [PlayerBirthDate]) VALUES (%1, "
                               "#4/2/2012#)")
                    .arg(player));
        for (const char* volunteer :
             {"\"Smith\", \"Ann\", \"555-1234\", \"\"", "\"O'Hara\", \"Al\", \"555-9\", \"old\""})
            run(QStringLiteral("INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolHomePhone], "
                               "[VolComments]) VALUES (%1)")
                    .arg(volunteer));
        run("DELETE FROM tblRating");
        int value = 0;
        for (const char* word : {"Not Rated", "Poor", "Fair", "Average", "Good", "Excellent"})
            addWord(word, QString::number(value++));
    }
    void addWord(const QString& word, const QString& value, bool deleted = false) {
        run(QStringLiteral("INSERT INTO tblRating ([RatingText], [RatingValue], [DeletedFlag]) VALUES (%1, \"%2\", %3)")
                .arg(datafile::quoted(word), value, deleted ? "True" : "False"));
    }
    void open() { screen = running.open("frmRatings"); }
    void tab(int index) { screen->findChild<QTabWidget*>()->setCurrentIndex(index); }
    void grade(const char* list, const QString& word) {
        auto* box = control<ChoiceBox>(screen, list);
        ASSERT_GE(box->indexOf(word), 0) << list;
        box->setCurrentIndex(box->indexOf(word));
        Q_EMIT box->activated(box->currentIndex());
    }
    void pick(const char* list, const QString& entry) {
        auto* search = control<SearchCombo>(screen, list);
        const int index = search->indexOf(entry);
        ASSERT_GE(index, 0) << entry.toStdString();
        search->setCurrentIndex(index);
        Q_EMIT search->activated(index);
    }
    QString word(const char* list) { return control<ChoiceBox>(screen, list)->text(); }
    QString label(const char* name) { return control<QLabel>(screen, name)->text(); }
    QString comments(const char* name) { return control<CommentBox>(screen, name)->text(); }
    QStringList entries(const char* list) {
        auto* search = control<SearchCombo>(screen, list);
        QStringList texts;
        for (int i = 0; i < search->entryCount(); ++i) texts << search->entryAt(i);
        return texts;
    }
    QString row(const QString& criteria, std::initializer_list<const char*> columns) {
        QStringList values;
        for (const char* column : columns)
            values << running.league.value("SELECT * FROM tblAbilityRating WHERE " + criteria, QLatin1String(column));
        return values.join(u' ');
    }
    int rows() { return running.league.count("SELECT * FROM tblAbilityRating"); }
    void run(const QString& statement) { running.league.database().execute(statement); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

constexpr char annPlays[] = "Smith, Ann - 4/2/2012";
constexpr char annVolunteers[] = "Smith, Ann - 555-1234";

TEST_F(RatingScreenTest, TotalsCountEverySkillThatIsRated) {
    addWord("Hopeless", "-2");
    open();
    EXPECT_EQ(label("lblPlayerDivision") + u'/' + label("lblPlayerTeam"), "Majors/Hawks");
    const struct {
        std::vector<std::pair<const char*, const char*>> grades;
        const char* totals;
    } steps[] = {
        {{}, "0 0.00"},
        {{{"cboPitcherRating", "Good"}, {"cboBattingRating", "Good"}, {"cboKnowledgeRating", "Excellent"}}, "13 4.33"},
        {{{"cboBattingRating", "Not Rated"}}, "9 4.50"},
        {{{"cboOutfieldRating", "Hopeless"}}, "7 2.33"}};
    for (const auto& step : steps) {
        for (const auto& [list, grading] : step.grades) grade(list, grading);
        EXPECT_EQ(label("lblTotalRating") + u' ' + label("lblAvgRating"), step.totals);
    }
    EXPECT_FALSE(control(screen, "cboPlayerSearchList")->isEnabled());
    press(screen, "cmdSave");
    EXPECT_EQ(status(screen), QStringLiteral("Record \"%1\" Saved.").arg(annPlays));
    EXPECT_EQ(row("PlayerId = 1", {"VolId", "PitcherRating", "BattingRating", "KnowledgeRating", "OutfieldRating",
                                   "CoachReturn", "DateStamp"}),
              "0 4 0 5 -2 0 2026-04-22");
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen->focusWidget() == control(screen, "cboPlayerSearchList"); }));
    press(screen, "cmdPlayerMove2");
    EXPECT_EQ(label("lblTotalRating") + word("cboPitcherRating") + label("lblPlayerTeam"), "0") << "nobody else's";
    press(screen, "cmdPlayerMove2");
    EXPECT_EQ(status(screen), "Last Record");
    press(screen, "cmdPlayerMove1");
    EXPECT_EQ(label("lblTotalRating") + word("cboCatcherRating"), "7Not Rated");
}

TEST_F(RatingScreenTest, PlayerWhoUmpiresHasOneRowWithBothHalves) {
    open();
    tab(1);
    EXPECT_EQ(entries("cboUmpireSearchList"), (QStringList{annPlays, "O'Hara, Al - 555-9", annVolunteers}));
    press(screen, "cmdVolunteerMove1");
    EXPECT_EQ(status(screen), "First Volunteer Record");
    EXPECT_EQ(comments("txtVolunteerComments"), "quick");
    grade("cboUmpireFieldRating", "Good");
    grade("cboUmpireKnowledgeRating", "Fair");
    EXPECT_EQ(label("lblTotalUmpireRating") + u' ' + label("lblTotalCoachRating"), "6 0");
    type(screen, "txtVolunteerComments", "calm");
    press(screen, "cmdSave");
    tab(0);
    EXPECT_EQ(comments("txtPlayerComments"), "calm") << "the comments are the person's";
    grade("cboBattingRating", "Excellent");
    press(screen, "cmdSave");
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(row("PlayerId = 1", {"VolId", "UmpireFieldRating", "UmpireKnowledgeRating", "BattingRating"}), "0 4 2 5");

    tab(1);
    pick("cboUmpireSearchList", annVolunteers);
    EXPECT_EQ(label("lblTotalUmpireRating") + word("cboUmpireFieldRating"), "0") << "as a volunteer she is another";
    grade("cboCoachAttitudeRating", "Average");
    press(screen, "optCoachReturn2");
    press(screen, "cmdSave");
    EXPECT_EQ(row("VolId = 1", {"PlayerId", "CoachAttitudeRating", "CoachReturn", "BattingRating"}), "0 3 2 0");
    EXPECT_EQ(rows(), 2);
    press(screen, "cmdVolunteerMove2");
    EXPECT_EQ(status(screen), "Last Volunteer Record");
    run("UPDATE tblAbilityRating SET [CoachReturn] = 7 WHERE [VolId] = 1");
    press(screen, "cmdRefresh");
    for (const char* answer : {"optCoachReturn0", "optCoachReturn1", "optCoachReturn2"})
        EXPECT_FALSE(control<QRadioButton>(screen, answer)->isChecked()) << answer;
}

TEST_F(RatingScreenTest, AllPositionsSetsEveryOtherAndIsLeftByNone) {
    open();
    const auto checks = [this] {
        QString marks;
        for (int index = 0; index < 10; ++index)
            marks += control<QCheckBox>(screen, qPrintable(QStringLiteral("chkPosition%1").arg(index)))->isChecked()
                         ? u'x'
                         : u'-';
        return marks;
    };
    const struct {
        const char* box;
        const char* after;
    } clicks[] = {{"chkPosition9", "xxxxxxxxxx"},
                  {"chkPosition0", "-xxxxxxxxx"},
                  {"chkPosition9", "----------"},
                  {"chkPosition4", "----x-----"}};
    for (const auto& click : clicks) {
        control<QCheckBox>(screen, click.box)->click();
        EXPECT_EQ(checks(), click.after) << click.box;
    }
    press(screen, "cmdSave");
    EXPECT_EQ(row("PlayerId = 1", {"PositionShortStop", "PositionPitcher", "PositionAllPositions"}), "1 0 0");
}

TEST_F(RatingScreenTest, ClearTakesGradesAndCommentsOffUntilSaved) {
    run("INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PitcherRating], [PositionCatcher], [UmpireFieldRating], "
        "[CoachReturn]) VALUES (1, 0, 4, True, 3, 1)");
    open();
    const auto cleared = [this]() -> QString {
        return word("cboPitcherRating") + label("lblTotalRating") + comments("txtPlayerComments") +
               (control<QCheckBox>(screen, "chkPosition1")->isChecked() ? "x" : "-");
    };
    press(screen, "cmdRatingsClear");
    EXPECT_EQ(cleared(), "0-");
    EXPECT_EQ(row("PlayerId = 1", {"PitcherRating"}), "4");
    press(screen, "cmdCancel");
    EXPECT_EQ(cleared(), "Good4quickx");
    press(screen, "cmdRatingsClear");
    press(screen, "cmdSave");
    EXPECT_EQ(row("PlayerId = 1", {"PitcherRating", "PositionCatcher", "UmpireFieldRating"}), "0 0 3");
    EXPECT_EQ(running.league.value("tblRegistration", "PlayerComments"), "");
    tab(1);
    press(screen, "cmdRatingsClear");
    EXPECT_TRUE(control<QRadioButton>(screen, "optCoachReturn1")->isChecked()) << "this answer stays";
    press(screen, "cmdSave");
    EXPECT_EQ(row("PlayerId = 1", {"UmpireFieldRating", "CoachReturn"}), "0 1");
}

TEST_F(RatingScreenTest, GradesAreKeptAsValuesWhateverBecomesOfTheWords) {
    addWord("Super", "12");
    addWord("Legend", "30", true);
    run("UPDATE tblRating SET [DeletedFlag] = True WHERE [RatingText] = \"Good\"");
    run("INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PitcherRating], [CatcherRating], [InfieldRating]) VALUES "
        "(1, 0, 4, 77, 12)");
    open();
    auto* box = control<ChoiceBox>(screen, "cboBattingRating");
    QStringList words;
    for (int i = 0; i < box->entryCount(); ++i) words << box->entryAt(i);
    EXPECT_EQ(words, (QStringList{"Not Rated", "Poor", "Fair", "Average", "Excellent", "Super"}));
    EXPECT_EQ(word("cboPitcherRating") + u'/' + word("cboCatcherRating"), "Good/Rating Not Found");
    EXPECT_EQ(label("lblTotalRating"), "16") << "a value that no word has counts for nothing";
    run("UPDATE tblRating SET [RatingText] = \"Great\" WHERE [RatingText] = \"Super\"");
    addWord("Fine", "4");
    press(screen, "cmdRefresh");
    EXPECT_EQ(word("cboInfieldRating") + u'/' + word("cboPitcherRating"), "Great/Fine") << "a live word goes first";
    run("DELETE FROM tblRating");
    press(screen, "cmdRefresh");
    EXPECT_EQ(label("lblTotalRating") + u' ' + label("lblAvgRating"), "0 0.00");
    EXPECT_EQ(word("cboPitcherRating"), "") << "no scale, no words";
}

TEST_F(RatingScreenTest, UnsavedGradesAreOfferedWhenTheTabIsLeft) {
    open();
    grade("cboPitcherRating", "Good");
    dialogs.expectQuestion("Save Record?", BoxAnswer::No, "Save the current record?");
    tab(1);
    EXPECT_EQ(rows(), 0);
    grade("cboCoachAbilityRating", "Poor");
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current record?");
    tab(0);
    EXPECT_EQ(row("PlayerId = 1", {"CoachAbilityRating", "PitcherRating"}), "1 0");
    EXPECT_EQ(word("cboPitcherRating"), "Not Rated") << "the row that the other tab made";
}

TEST_F(RatingScreenTest, RowOfAPersonWhoLeftComesBack) {
    run("INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PitcherRating], [DeletedFlag]) VALUES (1, 0, 4, True)");
    open();
    grade("cboCatcherRating", "Good");
    press(screen, "cmdSave");
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(row("PlayerId = 1", {"CatcherRating", "DeletedFlag"}), "4 0");
}

TEST_F(RatingScreenTest, WithoutPeopleThereIsNothingToGrade) {
    run("DELETE FROM tblRegistration");
    run("DELETE FROM tblVolunteer");
    open();
    for (const int index : {0, 1}) {
        tab(index);
        for (const char* button : {"cmdRatingsClear", "cmdSave", "cmdCancel"})
            EXPECT_FALSE(control(screen, button)->isEnabled()) << button;
    }
    EXPECT_FALSE(control(screen, "cboPitcherRating")->isEnabled());
    EXPECT_EQ(label("lblPlayerBirthDate"), "");
}

}  // namespace
