#include <gtest/gtest.h>

#include <QRegularExpression>

#include "maintenance/merge/MergeSteps.h"
#include "merge/MergeInto.h"
#include "platform/datafile/Connection.h"
#include "support/Printing.h"

// What is particular to a run; the rules of the tables are held against a second telling by two_officers_test.cpp.

namespace {

class Merging : public testing::Test {
protected:
    static void run(LeagueFile& file, const QString& sql) { file.database().prepare(sql).run(); }
    static QStringList list(LeagueFile& file, const QString& query) {
        QStringList rows;
        const datafile::Database database = file.database();
        for (datafile::Statement rest = database.prepare(query); rest.step();) rows << rest.text(0);
        return rows;
    }
    void merge() { mergeInto(local.context, other.database()); }

    LeagueFile local;
    LeagueFile other;
    const datafile::Database openMeanwhile = other.database();
};

TEST_F(Merging, ShowsEachStepAndMovesItsBar) {
    struct Watched final : MergeProgress {
        void begin(const QString& text) override { texts << text; }
        void reached(double part, bool writing) override {
            EXPECT_GE(part, last);
            EXPECT_LE(part, 25.0 / 26);
            EXPECT_FALSE(writing) << "there is nothing to be written";
            last = part;
        }
        QStringList texts;
        double last = 0;
    } watched;
    MergeRun(local.context, other.database(), watched).run();
    const QStringList expected{"Merging Sponsor Registrations...",
                               "Merging Sponsor Previous Pledges...",
                               "Merging Divisions...",
                               "Merging Team Records...",
                               "Merging Player Records...This could take a few minutes",
                               "Merging Volunteer Records...",
                               "Merging Ability Rating Records...",
                               "Merging Certification Records...",
                               "Merging Difficulty Ratings...",
                               "Merging Insurance Records...",
                               "Merging Vendor Records...",
                               "Merging Equipment Records...",
                               "Merging Equipment Assignments...",
                               "Merging Field Records...",
                               "Merging Uniform Size Records...",
                               "Merging Ratings Records...",
                               "Merging Division Results...",
                               "Merging School Name Records...",
                               "Merging Field Assignment Records...",
                               "Merging Vol. Position Requests...Could take a few minutes",
                               "Merging Team Volunteer Records...",
                               "Merging Position Type Records...",
                               "Merging Vol. Position Assignments...Could take a few minutes",
                               "Merging Volunteer Certification Records"};
    EXPECT_EQ(watched.texts, expected);
}

/// A text too long for its column, as no program of ours writes it, costs its row; the others are merged. Teams of a
/// division that was refused wait, so that they do not lose it for good.
TEST_F(Merging, RefusedRowCostsNoMoreThanWhatBelongsToIt) {
    run(other, "PRAGMA ignore_check_constraints = ON");
    run(other,
        QString("INSERT INTO tblDivision (DivName, DivGender) VALUES ('Minors', ''), ('Majors', '%1'), ('Tots', '%1')")
            .arg(QString(99, 'x')));
    run(other, "INSERT INTO tblTeam (DivisionId, TeamName) VALUES (1, 'Owls'), (2, 'Hawks')");
    local.dialogs.expectWarning("Database Error",
                                "8-The text is too long for the column DivGender, which takes 20 characters.\n"
                                "8-The text is too long for the column DivGender, which takes 20 characters.");
    merge();
    EXPECT_EQ(list(local, "SELECT DivName FROM tblDivision"), QStringList{"Minors"});
    EXPECT_EQ(list(local, "SELECT TeamName FROM tblTeam"), QStringList{"Owls"});
    run(other, "UPDATE tblDivision SET DivGender = 'Female'");
    merge();
    EXPECT_EQ(list(local, "SELECT TeamName FROM tblTeam JOIN tblDivision USING (DivisionId) ORDER BY DivName"),
              (QStringList{"Hawks", "Owls"}));
}

/// What has a name is missed when it does not arrive.
TEST_F(Merging, RowThatLacksWhatItMustHaveIsTold) {
    run(other,
        "INSERT INTO tblCertifications (CertificationName, CertifyingOrganization, DeletedFlag) VALUES ('Level 1', '', "
        "0), ('Level 2', 'Board', 0), ('Level 3', '', 1), ('', '', 0)");
    local.dialogs.expectWarning("Database Error",
                                "9-Level 1 was not merged: a value is required in the column CertifyingOrganization.");
    merge();
    EXPECT_EQ(list(local, "SELECT CertificationName FROM tblCertifications WHERE CertificationName LIKE 'Level%'"),
              QStringList{"Level 2"});
}

TEST_F(Merging, EveryTableButTheScheduleAndTheFilesOwnIsMerged) {
    QStringList left = local.database().tableNames();
    for (const MergeStep& step : mergeSteps())
        for (const MergeTable& table : step.tables) EXPECT_EQ(left.removeAll(table.name), 1) << table.name;
    left = left.filter(QRegularExpression("^tbl(?!Temp)"));
    EXPECT_EQ(left, (QStringList{"tblDefaults", "tblEquipmentAvailable", "tblFieldAvailability", "tblHowFeePaid",
                                 "tblLarkfoldSync", "tblOfficialDivisionNames", "tblOptions", "tblReports",
                                 "tblSchedule", "tblSport", "tblState", "tblVersion"}));
}

TEST_F(Merging, AgeFollowsTheDivisionOfTheLocalFile) {
    run(local,
        "INSERT INTO tblDivision (DivName, DivAgeCutOffMonth, DivAgeCutOffDay, DateStamp) VALUES ('Minors', '8', '31', "
        "'2026-04-01')");
    run(other,
        "INSERT INTO tblDivision (DivName, DivAgeCutOffMonth, DivAgeCutOffDay) VALUES ('Other', '1', '1'), ('minors', "
        "'1', '1')");
    run(other,
        "INSERT INTO tblRegistration (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerDivisionId, PlayerAge) "
        "VALUES ('Ash', 'Ann', '2014-08-31', 2, 3)");
    merge();
    EXPECT_EQ(list(local, "SELECT PlayerDivisionId || ' ' || PlayerAge FROM tblRegistration"), QStringList{"1 12"});
}

}  // namespace
