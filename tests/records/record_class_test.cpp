#include "league/clsDivision.h"
#include "setup/clsCertifications.h"
#include "setup/clsOptions.h"
#include "setup/clsSchoolName.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace {

class RecordClassTest : public testing::Test {
protected:
    void addDivision(const QString& name) {
        clsDivision division(league.context);
        division.NewDivRecord();
        division.DivName = name;
        division.SaveDivRecord();
    }
    QString divisionValue(const QString& name, const QString& column) {
        return league.value("SELECT * FROM tblDivision WHERE [DivName] = " + datafile::quoted(name), column);
    }

    LeagueFile league;
};

TEST_F(RecordClassTest, EmptyTableLoadsNothingAndMovesNowhere) {
    clsDivision division(league.context);
    EXPECT_EQ(division.DivId, 0);
    EXPECT_EQ(division.DivAgeCutOffMonth(), "1");
    EXPECT_FALSE(division.isChanged());
    EXPECT_THROW(division.DivMove(3), datafile::Error);
}

TEST_F(RecordClassTest, SaveStampsWritesAndClearsBothFlags) {
    clsDivision division(league.context);
    division.NewDivRecord();
    EXPECT_TRUE(division.IsDivNew());
    division.SaveDivRecord();
    EXPECT_TRUE(division.IsDivNew()) << "a new row without its name stays unsaved, in silence";
    EXPECT_EQ(league.count("tblDivision"), 0);
    division.DivName = "Minors \"A\"";
    EXPECT_TRUE(division.IsDivDirty());
    division.DivAgeCutOffMonth = "May";
    division.SaveDivRecord();
    EXPECT_FALSE(division.isChanged());
    EXPECT_EQ(division.DivId, 1);
    const QString stored = QStringLiteral("tblDivision");
    EXPECT_EQ(league.value(stored, "DivAgeCutOffMonth"), "1");
    EXPECT_EQ(league.value(stored, "DateStamp"), "2026-04-22");
    EXPECT_EQ(league.value(stored, "TimeStamp"), "43200");

    league.clock.set(QDateTime(QDate(2026, 4, 23), QTime(0, 0, 9)));
    division.SaveDivRecord();
    EXPECT_EQ(league.value(stored, "DateStamp"), "2026-04-22") << "a clean record keeps its stamps";
    division.DivGender = division.DivGender;
    division.SaveDivRecord();
    EXPECT_EQ(league.value(stored, "TimeStamp"), "9");
    EXPECT_TRUE(clsDivision(league.context).FindDivRecord("MINORS \"a\"", false, true));
}

TEST_F(RecordClassTest, UpdateLeavesTheColumnsThatAnotherHolderChanged) {
    addDivision("Minors");
    clsDivision one(league.context);
    clsDivision other(league.context);
    other.DivMinAge = "9";
    other.SaveDivRecord();
    one.DivMaxAge = "12";
    one.SaveDivRecord();
    EXPECT_EQ(divisionValue("Minors", "DivMinAge"), "9");
    EXPECT_EQ(divisionValue("Minors", "DivMaxAge"), "12");
}

TEST_F(RecordClassTest, AddingADeletedNameRevivesItsRow) {
    addDivision("Minors");
    clsDivision division(league.context);
    division.DivComments = "old";
    division.SaveDivRecord();
    division.DeleteDivRecord();
    EXPECT_EQ(division.DivName(), "");
    EXPECT_EQ(division.DivAgeCutOffDay(), "1");
    EXPECT_EQ(division.recordCount(), 1) << "the row itself still counts";
    EXPECT_FALSE(division.FindDivRecord("Minors", false, false));
    bool found = false;
    division.FindDivisionMergeRecord("Minors", false, true, found);
    EXPECT_TRUE(found);
    EXPECT_TRUE(division.DivDeletedFlag);
    addDivision("minors");
    EXPECT_EQ(league.count("tblDivision"), 1);
    EXPECT_EQ(divisionValue("minors", "DivComments"), "");
    EXPECT_EQ(divisionValue("minors", "DeletedFlag"), "0");
    EXPECT_EQ(divisionValue("minors", "DivisionId"), "1");
}

TEST_F(RecordClassTest, DeleteMovesToANeighbour) {
    for (const char* name : {"A", "B", "C"}) addDivision(name);
    clsDivision division(league.context);
    ASSERT_TRUE(division.FindDivRecord("B", false, true));
    division.DeleteDivRecord();
    EXPECT_EQ(division.DivName(), "A");
    division.DivMove(MoveLast);
    EXPECT_EQ(division.DivName(), "C");
    division.DivMove(MoveNext);
    EXPECT_EQ(division.DivName(), "C");
    division.DivMove(MovePrevious);
    EXPECT_EQ(division.DivName(), "B") << "the class itself walks over deleted rows";

    clsSchoolName school(league.context);
    school.NewSchoolRecord();
    school.SchoolName = "Oak Hill";
    school.SaveSchoolRecord();
    school.DeleteSchoolRecord();
    school.SchoolMove(MoveFirst);
    EXPECT_EQ(school.SchoolName(), "") << "a lookup shows a deleted row as blank";
}

TEST_F(RecordClassTest, MergeSaveKeepsTheStampsItIsGiven) {
    addDivision("Minors");
    clsDivision division(league.context);
    division.DivDateStamp = QDate(2020, 2, 3);
    division.DivTimeStamp = 77;
    division.DivDeletedFlag = true;
    division.SaveMergeDivRecord();
    EXPECT_EQ(divisionValue("Minors", "DateStamp"), "2020-02-03");
    EXPECT_EQ(divisionValue("Minors", "TimeStamp"), "77");
    EXPECT_EQ(divisionValue("Minors", "DeletedFlag"), "1");
    league.database().execute("UPDATE tblDivision SET [DateStamp] = NULL, [TimeStamp] = NULL");
    division.UndoDivRecord();
    EXPECT_EQ(division.DivDateStamp(), QDate(1940, 1, 1));
    EXPECT_EQ(division.DivTimeStamp, 1);
}

TEST_F(RecordClassTest, FindsSpeakInTheirOwnWords) {
    clsDivision division(league.context);
    bool found = true;
    league.dialogs.expectWarning("Record Not Found...", "No Records Found for X.");
    EXPECT_FALSE(division.FindDivRecord("X", true, false));
    league.dialogs.expectWarning("Find Division Record...", "There are no Division Records Available.");
    division.FindDivisionRecord("X", true, false, found);
    EXPECT_FALSE(found);
    league.dialogs.expectWarning("Find Division Record...", "There are no Division Records Available.");
    division.FindDivisionRecordById(1, true, false, found);
    addDivision("Minors");
    division.DivisionRequery();
    league.dialogs.expectWarning("Record Not Found...", "No Records found for X%1.");
    division.FindDupDivRecord("X%1", true, false, found);
    league.dialogs.expectWarning("Find Division Record...", "No Records found for X.");
    division.FindDivisionMergeRecord("X", true, false, found);
    league.dialogs.expectWarning("Find Division Record...", "No Records found.");
    division.FindDivisionRecordById(99, true, false, found);
    division.FindDivisionRecordById(1, true, true, found);
    EXPECT_TRUE(found);
    EXPECT_EQ(division.DivName(), "Minors");
}

TEST_F(RecordClassTest, DivisionAsksForItsTeamsAndAddsDifficultyRatings) {
    clsDivision division(league.context);
    EXPECT_FALSE(division.TeamsAssignedToDivision(1));
    league.database().execute(
        "INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"Owls\", 1, True)");
    EXPECT_FALSE(division.TeamsAssignedToDivision(1));
    league.database().execute("UPDATE tblTeam SET [DeletedFlag] = False");
    EXPECT_TRUE(division.TeamsAssignedToDivision(1));
    const int before = league.count("tblDifficultyRating");
    division.AddNewDifficultyRating("Backyard", "for fun");
    EXPECT_EQ(division.RatingComments, "for fun");
    league.database().execute("UPDATE tblDifficultyRating SET [DeletedFlag] = True");
    division.AddNewDifficultyRating("backyard", "again");
    EXPECT_EQ(league.count("tblDifficultyRating"), before + 1);
    EXPECT_EQ(league.count("SELECT * FROM tblDifficultyRating WHERE [DeletedFlag] = False"), 1);
}

TEST_F(RecordClassTest, CertificationLinksComeAndGoSoftly) {
    clsCertifications certifications(league.context);
    certifications.AddVolCertificationRecord(5, 2);
    certifications.AddVolCertificationRecord(6, 2);
    certifications.AddVolCertificationRecord(5, 3);
    certifications.DeleteVolCertificationRecord(5, 2);
    EXPECT_TRUE(certifications.FindDeletedVolCertRecord(5, 2));
    certifications.AddVolCertificationRecord(5, 2);
    EXPECT_FALSE(certifications.FindDeletedVolCertRecord(5, 2));
    EXPECT_EQ(league.count("tblVolunteerCertifications"), 3);
    certifications.DeleteAllVolCertificationRecords(2);
    EXPECT_EQ(league.count("SELECT * FROM tblVolunteerCertifications WHERE [DeletedFlag] = True"), 2);
}

TEST_F(RecordClassTest, PreferencesReachTheGlobalsWithTheirFallbacks) {
    loadGlobals(league.context);
    EXPECT_TRUE(league.context.globals.showSplash);
    EXPECT_EQ(league.context.globals.currentSeasonYear, "2026");
    EXPECT_EQ(league.context.globals.lastBackupDate, QDate(2026, 4, 22));
    EXPECT_EQ(league.context.globals.defaultDateFormat, "MM/dd/yy");
    league.database().execute(
        "UPDATE tblDefaults SET [DefaultPlayerFee] = \"lots\", [DefaultTeamFee] = \"$1,200.50\", [DefaultDateFormat] = "
        "\"\", "
        "[DefaultAgeCutoffMonth] = \"8\", [DefaultAgeCutoffDay] = \"x\"");
    league.database().execute(
        "UPDATE tblOptions SET [CurrentSeasonYear] = \"soon\", [ShowSplashScreen] = False, [LastBackupDate] = NULL");
    loadGlobals(league.context);
    const Globals& globals = league.context.globals;
    EXPECT_EQ(globals.defaultPlayerFee, "0.00");
    EXPECT_EQ(globals.defaultTeamFee, "$1,200.50");
    EXPECT_EQ(globals.defaultDateFormat, "M/d/yyyy");
    EXPECT_EQ(globals.defaultAgeCutoffMonth, "8");
    EXPECT_EQ(globals.defaultAgeCutoffDay, "1");
    EXPECT_FALSE(globals.showSplash);
    EXPECT_EQ(globals.lastBackupDate, QDate(2026, 4, 22));
    EXPECT_EQ(league.count("tblOptions"), 1);
}

}  // namespace
