#include <gtest/gtest.h>

#include <map>
#include <set>

#include "maintenance/work/NewSeason.h"
#include "maintenance/work/SeasonGrades.h"
#include "store/Housekeeping.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

using Box = SeasonBox;

namespace {

/// The boxes that are checked, in the order of the screen.
std::vector<Box> checkedOf(const SeasonBoxes& boxes) {
    std::vector<Box> checked;
    for (size_t i = 0; i < seasonBoxCount; ++i)
        if (boxes.isChecked(static_cast<Box>(i))) checked.push_back(static_cast<Box>(i));
    return checked;
}

const std::vector<Box> ofVolunteers = {
    Box::MarkVolunteersInactive,   Box::ChangeVolunteerRegistrationDate, Box::RemoveVolunteerPlayerAssociations,
    Box::RemoveVolunteerPositions, Box::RemoveVolunteerCertifications,   Box::ClearVolunteerRatings};
const std::vector<Box> ofDivisions = {
    Box::RemoveDivisionAssignment, Box::RemoveTeamAssignment,      Box::DeleteDivisions,   Box::DeleteTeams,
    Box::DeleteFieldAssignments,   Box::ResetTeamCoachInformation, Box::ResetTeamSponsors, Box::DeleteGameResults};

std::vector<Box> sorted(std::vector<Box> boxes, const std::vector<Box>& more = {}) {
    boxes.insert(boxes.end(), more.begin(), more.end());
    std::sort(boxes.begin(), boxes.end());
    return boxes;
}

TEST(SeasonBoxes, FollowEachOther) {
    struct Case {
        const char* about;
        std::vector<std::pair<Box, bool>> clicks;
        std::vector<Box> checked;
    };
    const Case cases[] = {
        {"volunteers",
         {{Box::DeleteAllVolunteers, true}},
         sorted(ofVolunteers, {Box::DeleteAllVolunteers, Box::ResetTeamCoachInformation})},
        {"and back",
         {{Box::DeleteAllVolunteers, true}, {Box::DeleteAllVolunteers, false}},
         {Box::ResetTeamCoachInformation}},
        {"divisions", {{Box::DeleteDivisions, true}}, ofDivisions},
        {"and back",
         {{Box::DeleteDivisions, true}, {Box::DeleteDivisions, false}},
         {Box::RemoveDivisionAssignment, Box::RemoveTeamAssignment, Box::DeleteTeams, Box::DeleteFieldAssignments,
          Box::ResetTeamCoachInformation, Box::ResetTeamSponsors, Box::DeleteGameResults}},
        {"divisions hold",
         {{Box::DeleteDivisions, true},
          {Box::DeleteTeams, false},
          {Box::DeleteFieldAssignments, false},
          {Box::DeleteGameResults, false},
          {Box::RemoveDivisionAssignment, false},
          {Box::RemoveTeamAssignment, false}},
         ofDivisions},
        {"but not these",
         {{Box::DeleteDivisions, true}, {Box::ResetTeamCoachInformation, false}, {Box::ResetTeamSponsors, false}},
         {Box::RemoveDivisionAssignment, Box::RemoveTeamAssignment, Box::DeleteDivisions, Box::DeleteTeams,
          Box::DeleteFieldAssignments, Box::DeleteGameResults}},
        {"teams", {{Box::DeleteTeams, true}}, {Box::RemoveTeamAssignment, Box::DeleteTeams, Box::DeleteGameResults}},
        {"teams hold the results alone",
         {{Box::DeleteTeams, true}, {Box::DeleteGameResults, false}, {Box::RemoveTeamAssignment, false}},
         {Box::DeleteTeams, Box::DeleteGameResults}},
        {"division of players",
         {{Box::RemoveDivisionAssignment, true}},
         {Box::RemoveDivisionAssignment, Box::RemoveTeamAssignment}},
        {"team of players", {{Box::RemoveDivisionAssignment, true}, {Box::RemoveTeamAssignment, false}}, {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.about);
        SeasonBoxes boxes;
        for (const auto& [box, checked] : each.clicks) boxes.set(box, checked);
        EXPECT_EQ(checkedOf(boxes), each.checked);
        for (size_t i = 0; i < seasonBoxCount; ++i) {
            const Box box = static_cast<Box>(i);
            const bool isHeld = boxes.isChecked(Box::DeleteAllVolunteers) &&
                                std::find(ofVolunteers.begin(), ofVolunteers.end(), box) != ofVolunteers.end();
            EXPECT_EQ(boxes.isEnabled(box), !isHeld) << i;
        }
    }
}

class NewSeason : public testing::Test {
protected:
    using Rows = std::map<QString, QStringList>;  ///< by number, each with all columns

    /// Each table has a row that is marked as deleted. Nothing was stamped lately.
    void SetUp() override {
        datafile::Transaction transaction(database);
        for (const QString& table : purgedTables()) database.execute("DELETE FROM " + table);
        for (const char* statement : {
                 "INSERT INTO tblField ([FieldId], [FieldName]) VALUES (1, \"East\")",
                 "INSERT INTO tblDivision ([DivisionId], [DivName], [DeletedFlag]) VALUES (1, \"A\", False)",
                 "INSERT INTO tblDivision ([DivisionId], [DivName], [DeletedFlag]) VALUES (2, \"B\", True)",
                 "INSERT INTO tblTeamField ([FieldId], [DivisionId]) VALUES (1, 1)",
                 "INSERT INTO tblTeamField ([FieldId], [DivisionId], [DeletedFlag]) VALUES (1, 2, True)",
                 "INSERT INTO tblRegistration ([PlayerId], [PlayerLastName], [PlayerFirstName], [PlayerBirthDate], "
                 "[PlayerActive], [PlayerIsUmpire], [PlayerDivisionId], [PlayerTeamId], [PlayerGradeLevel], "
                 "[PlayerSchoolName], [PlayerYearsExperience], [PlayerDadVolunteer], [PlayerMomVolunteer], "
                 "[PlayerComments], [PlayerOtherFees], [PlayerAmountPaid], [PlayerTryoutNumber]) VALUES "
                 "(1, \"A\", \"A\", #4-2-2012#, True, True, 1, 1, \"12\", \"Elm\", \"4\", 0, 1, \"c\", \"5\", \"6\", "
                 "\"7\")",
                 "INSERT INTO tblRegistration ([PlayerId], [PlayerLastName], [PlayerFirstName], [PlayerBirthDate], "
                 "[PlayerActive], [PlayerTeamId], [PlayerGradeLevel], [PlayerSchoolName], [PlayerDadVolunteer], "
                 "[PlayerMomVolunteer], [PlayerFundRaiserFee], [PlayerHowFeePaid], [DeletedFlag]) VALUES "
                 "(2, \"B\", \"B\", #4-2-2012#, True, 2, \"k\", \"Elm\", 1, 1, \"3\", \"Cash\", True)",
                 "INSERT INTO tblRegistration ([PlayerId], [PlayerLastName], [PlayerFirstName], [PlayerBirthDate], "
                 "[PlayerIsUmpire], [PlayerDivisionId], [PlayerGradeLevel], [PlayerYearsExperience], "
                 "[PlayerDadVolunteer], [PlayerMomVolunteer]) VALUES "
                 "(3, \"C\", \"C\", #4-2-2012#, True, 2, \"xx\", \"new\", 1, 1)",
                 "INSERT INTO tblVolunteer ([VolId], [VolLastName], [VolActive]) VALUES (1, \"V\", True)",
                 "INSERT INTO tblVolunteer ([VolId], [VolLastName], [DeletedFlag]) VALUES (2, \"W\", True)",
                 "INSERT INTO tblVolToPosition ([VolId], [VolPosId]) VALUES (1, 1)",
                 "INSERT INTO tblVolToPosition ([VolId], [VolPosId], [DeletedFlag]) VALUES (2, 1, True)",
                 "INSERT INTO tblVolunteerCertifications ([VolId], [CertificationId]) VALUES (1, 1)",
                 "INSERT INTO tblVolunteerCertifications ([VolId], [CertificationId], [DeletedFlag]) VALUES (2, 1, "
                 "True)",
                 "INSERT INTO tblRegistrationVolunteer ([VolId], [PlayerId]) VALUES (1, 1)",
                 "INSERT INTO tblRegistrationVolunteer ([VolId], [PlayerId], [DeletedFlag]) VALUES (2, 2, True)",
                 "INSERT INTO tblTeam ([TeamId], [DivisionId], [TeamName], [SponsorId]) VALUES (1, 1, \"Owls\", 3)",
                 "INSERT INTO tblTeam ([TeamId], [DivisionId], [TeamName], [DeletedFlag]) VALUES (2, 1, \"Old\", True)",
                 "INSERT INTO tblTeamVolunteer ([VolId], [DivisionId], [TeamId], [VolPosName]) VALUES "
                 "(1, 1, 1, \"HeadCoach\")",
                 "INSERT INTO tblTeamVolunteer ([VolId], [DivisionId], [TeamId], [VolPosName], [DeletedFlag]) VALUES "
                 "(2, 1, 1, \"TeamParent\", True)",
                 "INSERT INTO tblSchedule ([division], [HomeTeam]) VALUES (\"A\", \"Owls\")",
                 "INSERT INTO tblResults ([DivisionId], [HomeTeamId]) VALUES (1, 1)",
                 "INSERT INTO tblResults ([DivisionId], [HomeTeamId], [DeletedFlag]) VALUES (1, 2, True)",
                 "INSERT INTO tblEquipmentAssignment ([PlayerId], [EquipmentId]) VALUES (1, 1)",
                 "INSERT INTO tblEquipmentAssignment ([PlayerId], [EquipmentId], [DeletedFlag]) VALUES (2, 1, True)",
                 "INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PitcherRating], [CoachReturn], "
                 "[PositionPitcher], "
                 "[PositionCatcher], [PositionFirstBase], [PositionSecondBase], [PositionShortStop], "
                 "[PositionThirdBase], "
                 "[PositionLeftField], [PositionCenterField], [PositionRightField], [PositionAllPositions]) "
                 "VALUES (1, 0, 5, 6, True, True, True, True, True, True, True, True, True, True)",
                 "INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PitcherRating], [CoachReturn], [DeletedFlag]) "
                 "VALUES (2, 0, 5, 6, True)",
                 "INSERT INTO tblAbilityRating ([PlayerId], [VolId], [PitcherRating], [CoachReturn], [DeletedFlag]) "
                 "VALUES (0, 2, 5, 6, True)",
             })
            database.execute(statement);
        transaction.commit();
    }

    std::map<QString, Rows> readAll() {
        std::map<QString, Rows> tables;
        for (const QString& table : database.tableNames()) {
            datafile::Recordset rows = database.openRecordset(table);
            for (; !rows.eof(); rows.moveNext()) {
                QStringList row;
                for (int field = 0; field < rows.fieldCount(); ++field) row << datafile::toText(rows.value(field));
                tables[table][QString::number(rows.bookmark())] = row;
            }
        }
        return tables;
    }

    /// What a run changed, one line a table: how many rows, the columns with the values they have now, and how many
    /// rows were removed.
    QStringList run(const SeasonBoxes& boxes, const QString& year = "2026") {
        const auto before = readAll();
        texts.clear();
        percents.clear();
        const auto text = [this](const QString& said) { texts << said; };
        runNewSeason(league.context, boxes, year, {text, text, [this](int percent) { percents.push_back(percent); }});
        auto after = readAll();
        QStringList lines;
        for (const auto& [table, rows] : before) {
            const datafile::TableDef* about = database.table(table);
            std::map<QString, std::set<QString>> values;
            int changed = 0;
            int stamped = 0;
            int removed = 0;
            for (const auto& [key, row] : rows) {
                if (!after[table].contains(key)) {
                    ++removed;
                    continue;
                }
                const QStringList& now = after[table][key];
                if (now == row) continue;
                ++changed;
                for (qsizetype i = 0; i < row.size(); ++i) {
                    const QString& column = about->fields[i].name;
                    if (column == u"DateStamp" && now[i] == u"2026-04-22") ++stamped;
                    if (now[i] != row[i] && column != u"DateStamp" && (column != u"TimeStamp" || now[i] != u"43200"))
                        values[column].insert(now[i]);
                }
            }
            QStringList parts;
            for (const auto& [column, all] : values)
                parts << column + '=' + QStringList(all.begin(), all.end()).join('|');
            const QString what = changed == stamped ? QString::number(changed) : QString("%1 unstamped").arg(changed);
            if (changed > 0) lines << table.mid(3) + ' ' + what + ' ' + parts.join(' ');
            if (removed > 0) lines << QString("%1 removed %2").arg(table.mid(3)).arg(removed);
        }
        return lines;
    }
    QStringList runWith(const std::vector<Box>& checked) {
        SeasonBoxes boxes;
        for (const Box box : checked) boxes.set(box, true);
        return run(boxes);
    }

    LeagueFile league;
    const datafile::Database database = league.database();
    QStringList texts;
    std::vector<int> percents;
};

const QString clearedSkills =
    "AbilityRating 2 BattingRating=0 CatcherRating=0 DeletedFlag=0 InfieldRating=0 KnowledgeRating=0 "
    "OutfieldRating=0 PitcherRating=0 PositionAllPositions=0 PositionCatcher=0 PositionCenterField=0 "
    "PositionFirstBase=0 PositionLeftField=0 PositionPitcher=0 PositionRightField=0 PositionSecondBase=0 "
    "PositionShortStop=0 PositionThirdBase=0 RunningRating=0 ThrowingRating=0";
const QString clearedRatings =
    "CoachAbilityRating=0 CoachAttitudeRating=0 CoachKnowledgeRating=0 CoachReturn=0 DeletedFlag=0 "
    "UmpireFieldRating=0 UmpireHomePlateRating=0 UmpireKnowledgeRating=0";

struct Step {
    std::vector<Box> boxes;
    QStringList texts;  ///< behind the one of the year
    QStringList changes;
};

TEST_F(NewSeason, EachBoxChangesWhatItSays) {
    const QString noGame = "Results removed 2";
    const QString noTeam = "Team 2 DeletedFlag=1";
    const QString noCoach = "TeamVolunteer 2 DeletedFlag=1";
    const Step steps[] = {
        {{}, {}, {}},
        {{Box::MarkPlayersInactive}, {"Marking Players Inactive..."}, {"Registration 2 PlayerActive=0"}},
        {{Box::ChangePlayerRegistrationDate},
         {"Changing Player Registration Date..."},
         {"Registration 3 PlayerRegistrationDate=2026-04-22"}},
        {{Box::RemoveUmpireCheck}, {"Removing Umpire Check Marks..."}, {"Registration 2 PlayerIsUmpire=0"}},
        {{Box::RemoveTryoutNumber}, {"Removing Tryout Numbers..."}, {"Registration 3 PlayerTryoutNumber="}},
        {{Box::RemoveDivisionAssignment},
         {"Removing Division Assignments..."},
         {"Registration 2 PlayerDivisionId=0 PlayerTeamId=0"}},
        {{Box::RemoveTeamAssignment}, {"Removing Team Assignments..."}, {"Registration 2 PlayerTeamId=0"}},
        {{Box::RemovePlayerComments}, {"Removing Player Comments..."}, {"Registration 3 PlayerComments="}},
        {{Box::RemoveOtherFeesAmount},
         {"Setting Other Fees to $0.00 ..."},
         {"Registration 3 PlayerFundRaiserFee= PlayerOtherFees="}},
        {{Box::ClearFeePaidAmount},
         {"Removing Fee Paid Amount..."},
         {"Registration 3 PlayerAmountPaid= PlayerHowFeePaid="}},
        {{Box::ClearPlayerRatings}, {"Clearing Player Ratings..."}, {clearedSkills}},
        {{Box::IncreaseGradeLevel},
         {"Increasing Grade Level..."},
         {"Registration 3 PlayerGradeLevel=|0|1 PlayerSchoolName="}},
        {{Box::IncreaseYearsExperience},
         {"Increasing Years of Experience..."},
         {"Registration 3 PlayerYearsExperience=1|5"}},
        {{Box::DeleteEquipmentAssignments},
         {"Deleting Equipment Assignments..."},
         {"EquipmentAssignment 2 DeletedFlag=1"}},
        {{Box::DeleteAllVolunteers},
         {"Deleting Volunteer Records...", "Clearing Volunteer Ratings...", "Clearing Coach and Team Parent Info..."},
         {"AbilityRating 2 " + clearedRatings, "Registration 1 PlayerDadVolunteer=1",
          "RegistrationVolunteer 2 DeletedFlag=1", noCoach, "VolToPosition 2 DeletedFlag=1",
          "Volunteer 2 DeletedFlag=1", "VolunteerCertifications 2 DeletedFlag=1"}},
        {{Box::MarkVolunteersInactive}, {"Marking Volunteers Inactive..."}, {"Volunteer 2 VolActive=0"}},
        {{Box::ChangeVolunteerRegistrationDate},
         {"Updating Volunteer Registration Date..."},
         {"Volunteer 2 VolRegistrationDate=2026-04-22"}},
        {{Box::RemoveVolunteerPlayerAssociations},
         {"Removing Vol/Player Associations..."},
         {"VolToPosition 2 DeletedFlag=1"}},
        {{Box::RemoveVolunteerPositions},
         {"Removing Volunteer Positions..."},
         {noCoach, "VolToPosition 2 DeletedFlag=1"}},
        {{Box::RemoveVolunteerCertifications},
         {"Removing Volunteer Certifications..."},
         {"VolunteerCertifications removed 2"}},
        {{Box::DeleteDivisions},
         {"Removing Division Assignments...", "Deleting All Teams...", "Deleting All Divisions",
          "Deleting Field Assignments...", "Removing Sponsor Assignments...", "Deleting Game Results...",
          "Clearing Coach and Team Parent Info..."},
         {"Division 2 DeletedFlag=1", "Registration 2 PlayerDivisionId=0 PlayerTeamId=0", noGame, "Schedule removed 1",
          "Team 2 DeletedFlag=1 SponsorId=0", "TeamField removed 2", noCoach}},
        {{Box::DeleteTeams},
         {"Removing Team Assignments...", "Deleting All Teams...", "Deleting Game Results..."},
         {"Registration 2 PlayerTeamId=0", noGame, "Schedule removed 1", noTeam}},
        {{Box::DeleteFieldAssignments}, {"Deleting Field Assignments..."}, {"TeamField removed 2"}},
        {{Box::ResetTeamSponsors}, {"Removing Sponsor Assignments..."}, {"Team 2 SponsorId=0"}},
        {{Box::DeleteGameResults}, {"Deleting Game Results..."}, {noGame}},
        {{Box::ClearVolunteerRatings}, {"Clearing Volunteer Ratings..."}, {"AbilityRating 2 " + clearedRatings}},
        {{Box::ResetTeamCoachInformation}, {"Clearing Coach and Team Parent Info..."}, {noCoach}},
        {{Box::RemoveUmpireCheck, Box::ClearVolunteerRatings},  // no player counts as an umpire any more
         {"Removing Umpire Check Marks...", "Clearing Volunteer Ratings..."},
         {"AbilityRating 1 " + clearedRatings, "Registration 2 PlayerIsUmpire=0"}},
    };
    for (const Step& step : steps) {
        SetUp();
        SCOPED_TRACE(testing::PrintToString(step.texts));
        EXPECT_EQ(runWith(step.boxes), step.changes);
        EXPECT_EQ(texts, QStringList{"Updating New Season Year..."} + step.texts);
        ASSERT_EQ(percents.size(), 27u);
        EXPECT_EQ(percents.front(), 3);
        EXPECT_EQ(percents[12], 48);
        EXPECT_EQ(percents.back(), 100);
    }
}

TEST_F(NewSeason, YearGoesToTheFileAndTheProgramWithoutAStamp) {
    database.execute("INSERT INTO tblOptions ([OptionId], [CurrentSeasonYear]) VALUES (1, \"2026\")");
    EXPECT_EQ(run({}, "2027"), QStringList{"Options 1 unstamped CurrentSeasonYear=2027"});
    EXPECT_EQ(league.context.globals.currentSeasonYear, QString("2027"));
    database.execute("DELETE FROM tblOptions");
    EXPECT_EQ(run({}, "2028"), QStringList{}) << "without a row there is nothing to change";
    EXPECT_EQ(league.context.globals.currentSeasonYear, QString("2028"));
}

TEST_F(NewSeason, GradesAndExperienceRiseByTheirRules) {
    struct Case {
        const char* now;
        const char* grade;
        const char* experience;
    };
    for (const Case& each :
         {Case{"12", "0", "13"}, Case{"0", "0", "1"}, Case{"11", "12", "12"}, Case{"9", "10", "10"},
          Case{"K", "1", "1"}, Case{"k", "1", "1"}, Case{"", "", "1"}, Case{"xx", "", "1"}, Case{"-1", "0", "0"},
          Case{"00", "1", "1"}, Case{".5", "1.5", "1.5"}, Case{" 3", "4", "4"}}) {
        EXPECT_EQ(nextGrade(each.now), QString(each.grade)) << each.now;
        EXPECT_EQ(nextExperience(each.now), QString(each.experience)) << each.now;
    }
    database.execute(
        "UPDATE tblRegistration SET [PlayerGradeLevel] = \"11\", [PlayerSchoolName] = \"Elm\" "
        "WHERE [PlayerId] = 3");
    runWith({Box::IncreaseGradeLevel, Box::IncreaseYearsExperience});
    runWith({Box::IncreaseGradeLevel, Box::IncreaseYearsExperience});
    std::vector<QString> kept;
    for (const char* column : {"PlayerGradeLevel", "PlayerSchoolName", "PlayerYearsExperience"})
        for (const QString& value : database.readList("SELECT * FROM tblRegistration ORDER BY [PlayerId]", column))
            kept.push_back(value);
    EXPECT_EQ(kept, (std::vector<QString>{"0", "2", "0", "", "Elm", "", "6", "2", "2"}));
}

/// What a step did before it failed stays, and the next steps run.
TEST_F(NewSeason, FailingRowEndsItsStepAlone) {
    database.execute("UPDATE tblRegistration SET [PlayerYearsExperience] = \"9999\" WHERE [PlayerId] = 2");
    const QStringList changes = runWith({Box::IncreaseYearsExperience, Box::DeleteGameResults});
    EXPECT_EQ(changes, (QStringList{"Registration 1 PlayerYearsExperience=5", "Results removed 2"}));
    database.deleteTable("tblVolunteerCertifications");
    EXPECT_EQ(runWith({Box::DeleteAllVolunteers}),
              (QStringList{"AbilityRating 2 " + clearedRatings, "TeamVolunteer 2 DeletedFlag=1",
                           "VolToPosition 2 DeletedFlag=1", "Volunteer 2 DeletedFlag=1"}));
}

}  // namespace
