#include <gtest/gtest.h>
#include <sqlite3.h>

#include "equipment/clsEquip.h"
#include "equipment/clsEquipmentAssignment.h"
#include "league/clsDivision.h"
#include "league/clsFieldInfo.h"
#include "league/clsTeam.h"
#include "league/clsTeamField.h"
#include "league/clsTeamVolunteer.h"
#include "ratings/clsAbilityRating.h"
#include "registration/clsRegistration.h"
#include "registration/clsSponsors.h"
#include "registration/clsVolunteer.h"
#include "schedule/clsResults.h"
#include "schedule/clsSchedule.h"
#include "setup/ClsVolPos.h"
#include "setup/clsCertifications.h"
#include "setup/clsDifficultyRating.h"
#include "setup/clsHowFeePaid.h"
#include "setup/clsInsurance.h"
#include "setup/clsRating.h"
#include "setup/clsSchoolName.h"
#include "setup/clsUniform.h"
#include "setup/clsVendor.h"
#include "store/Schema.h"
#include "support/LeagueFile.h"

// Every find of every record class, watched while it runs: the engine counts the rows that a statement reads without
// an index that leads to them.

namespace {

int statements = 0;
QString slow;

int watch(unsigned, void*, void* statement, void*) {
    auto* ended = static_cast<sqlite3_stmt*>(statement);
    const QString sql = QString::fromUtf8(sqlite3_sql(ended));
    ++statements;
    if (sqlite3_stmt_status(ended, SQLITE_STMTSTATUS_FULLSCAN_STEP, 1) > 0 && !sql.contains(u"sqlite_schema"))
        slow = sql;
    return 0;
}

int watchEachFile(sqlite3* file, const char**, const sqlite3_api_routines*) {
    return sqlite3_trace_v2(file, SQLITE_TRACE_PROFILE, watch, nullptr);
}

class FindsTest : public testing::Test {
protected:
    FindsTest() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(watchEachFile)); }
    ~FindsTest() override { sqlite3_reset_auto_extension(); }

    /// A few rows in each table, all alike, so that a walk through one is seen.
    void SetUp() override {
        const datafile::Database database = league_.emplace().database();
        datafile::Transaction transaction(database);
        for (const datafile::TableDef& table : schema::tables()) {
            if (!table.relations.isEmpty() || table.field("DBVersion")) continue;
            datafile::Recordset rows = database.openRecordset(table.name);
            for (int number = 101; number < 106; ++number) {
                rows.addNew();
                for (const datafile::FieldDef& field : table.fields) {
                    const bool isUnique = field.required || field.name == u"StateId" || field.name.endsWith(u"Id");
                    if (field.type == datafile::ColumnType::Date)
                        rows.set(field.name, QDate(2012, 4, 2));
                    else if (field.type == datafile::ColumnType::Text && isUnique)
                        rows.set(field.name, QString::number(number).right(2));
                    else if (field.type == datafile::ColumnType::Long && isUnique)
                        rows.set(field.name, number);
                }
                rows.update();
            }
        }
        transaction.commit();
    }
    StoreContext& context() { return league_->context; }

    /// The find, which need not find anything.
    template <class Find>
    void expectIndexed(const char* name, Find find) {
        statements = 0;
        slow.clear();
        find();
        EXPECT_GT(statements, 0) << name << " asked nothing";
        EXPECT_TRUE(slow.isEmpty()) << name << ": " << slow.toStdString();
    }

    std::optional<LeagueFile> league_;
};

#define INDEXED(find) expectIndexed(#find, [&] { find; })

const QString a = QStringLiteral("a");
const QString key = QStringLiteral("a, b - c");
const QDate day(2012, 4, 2);
const QTime noon(12, 0);

TEST_F(FindsTest, PeopleAreFoundByIndex) {
    bool found = false;
    clsRegistration player(context());
    INDEXED(player.FindPlayerRecord("a, b - 4/2/2012", false, true));
    INDEXED(player.FindPlayerRecord(key, false, true));
    INDEXED(player.FindExactPlayerRecord(a, a, day, found, true));
    INDEXED(player.FindPlayerAssignments(1, 1, found));
    INDEXED(player.FindPlayerRecordByPlayerId(1, found));
    INDEXED(player.UpdateOldVolInfo("Dad", {a, a, a}, {a, a, a}, found));
    INDEXED(player.UpdateOldVolInfo("Mom", {a, a, a}, {a, a, a}, found));
    INDEXED(player.RemovePlayerAssignments(1, 1));

    clsVolunteer volunteer(context());
    int count = 0;
    QString name;
    INDEXED(volunteer.FindVolRecord(key, false, true));
    INDEXED(volunteer.FindDeletedVolRecord(key, false, true, found));
    INDEXED(volunteer.FindVolRecord2(a, a, a, true, found));
    INDEXED(volunteer.FindActiveVolunteer(a, a, a, found));
    INDEXED(volunteer.FindVolRecordByVolId(1, found));
    INDEXED(volunteer.FindRegVolRecord(1, 1, found));
    INDEXED(volunteer.FindDeletedRegVolRecord(1, 1, "Dad", found));
    INDEXED(volunteer.FindVolIdInRegVol(1, "Dad", found));
    INDEXED(volunteer.FindFirstPlayerIdInRegVol(1, "Dad", found));
    INDEXED(volunteer.CountRegVolRecords(1, count));
    INDEXED(volunteer.AddRegVolRecord(1, 1, "Dad"));
    INDEXED(volunteer.AddVolToPositionRecord(1, 1, 1));
    INDEXED(volunteer.DeleteVolToPositionRecord(1, 1, 1));
    INDEXED(volunteer.DeleteAllVolToPositionRecords(1, 1));
    INDEXED(volunteer.FindDivisionRecord(a, found));
    INDEXED(volunteer.FindDivisionRecordById(1, name, found));

    clsSponsors sponsor(context());
    INDEXED(sponsor.FindSponsorRecord(a, false, true));
    INDEXED(sponsor.FindDeletedSponsorRecord(a, false, true, found));
    INDEXED(sponsor.FindSponsorById(1, found));
    INDEXED(sponsor.FindPreviousPledge(1, "2026", found));
    INDEXED(sponsor.DeletePreviousPledgeRecord(1, "2026"));

    clsAbilityRating rating(context());
    INDEXED(rating.FindARPlayerRecord(1, false, true));
    INDEXED(rating.FindARVolunteerRecord(1, false, true));
}

TEST_F(FindsTest, TheLeaguesStructureIsFoundByIndex) {
    bool found = false;
    clsDivision division(context());
    INDEXED(division.FindDivRecord(a, false, true));
    INDEXED(division.FindDivisionMergeRecord(a, false, true, found));
    INDEXED(division.FindDivisionRecordById(1, false, true, found));
    INDEXED(division.TeamsAssignedToDivision(1));
    INDEXED(division.FindDeletedRatingRecord(a));

    clsTeam team(context());
    INDEXED(team.FindTeamRecord(a, 1, false, true));
    INDEXED(team.FindDeletedTeamRecord(a, 1, false, true));
    INDEXED(team.FindTeamMergeRecord(a, 1, false, true));
    INDEXED(team.FindTeamRecordById(1, false, true));
    INDEXED(team.FindTeamName(1, 1));
    INDEXED(team.FindTeamId(a, 1));
    INDEXED(team.FindDivisionRecord(a));
    INDEXED(team.FindSponsorRecordById(1));
    INDEXED(team.FindSponsorId(a));

    clsTeamVolunteer staff(context());
    INDEXED(staff.GetTeamVolunteerInfo2(1, 1, "HeadCoach"));
    INDEXED(staff.GetVolunteerRecord(key));
    INDEXED(staff.FindVolMergeRecord(1, 1, 1, "HeadCoach"));

    clsFieldInfo field(context());
    INDEXED(field.FindFieldRecord(a, false, true));
    INDEXED(field.FindDeletedFieldRecord(a, false, true));
    INDEXED(field.FindFieldMergeRecord(a, false, true));
    INDEXED(field.FindFieldRecordById(1, false, true));
    clsTeamField pair(context());
    INDEXED(pair.FindTeamFieldMergeRecord(1, 1, true));

    clsEquip item(context());
    INDEXED(item.FindEquipmentRecord("a - b", false, true));
    INDEXED(item.FindEquipmentMergeRecord("a - b", false, true));
    INDEXED(item.FindEquipmentRecordById(1, false, true));
    clsEquipmentAssignment assignment(context());
    for (const EquipmentHolder& holder : {EquipmentHolder{.divisionId = 1}, EquipmentHolder{.playerId = 1}}) {
        INDEXED(assignment.FindAssignmentRecord(holder, 1, false, true));
        INDEXED(assignment.FindAssignmentMergeRecord(holder, 1, false, true));
        INDEXED(assignment.FindEquipmentAssignment(holder, false, true));
    }

    clsSchedule game(context());
    INDEXED(game.FindDivisionRecord(a));
    INDEXED(game.FindScheduleRecord(1, false, true));
    INDEXED(game.FindScheduleMergeRecord(day, a, noon, a, a, a, a, true));
    clsResults result(context());
    INDEXED(result.FindResults(1, 1, 1, day, false, true));
    INDEXED(result.FindResultsWithTime(1, 1, 1, day, noon, false, true));
    INDEXED(result.FindResultToDelete(1, 1, 1, day, noon, false, true));
    INDEXED(result.UpdateTempResultRecord(1, 1, 1, 1));
}

TEST_F(FindsTest, LookupsAreFoundByIndex) {
    clsCertifications certification(context());
    INDEXED(certification.FindCertRecord(a, false, true));
    INDEXED(certification.FindCertMergeRecord(a, false, true));
    INDEXED(certification.FindDeletedCertRecord(a));
    INDEXED(certification.FindCertRecordById(1, false, true));
    INDEXED(certification.FindDeletedVolCertRecord(1, 1));
    INDEXED(certification.DeleteAllVolCertificationRecords(1));
    ClsVolPos position(context());
    INDEXED(position.FindVolPosRecord(a, false, true));
    INDEXED(position.FindVolPosMergeRecord(a, false, true));
    INDEXED(position.FindDeletedVolPosRecord(a));
    INDEXED(position.FindVolPosRecordById(1, false, true));
    INDEXED(position.DeleteAllVolToPositionRecords(1));
    clsRating rating(context());
    INDEXED(rating.FindRatingRecord(a, false, true));
    INDEXED(rating.FindRatingMergeRecord(a, false, true));
    INDEXED(rating.FindRatingRecordById(1, false, true));
    clsDifficultyRating difficulty(context());
    INDEXED(difficulty.FindDifficultyRatingRecord(a, false, true));
    INDEXED(difficulty.FindDifficultyRatingMergeRecord(a, false, true));
    INDEXED(difficulty.FindDifficultyRatingRecordById(1, false, true));
    clsInsurance insurance(context());
    INDEXED(insurance.FindInsRecord(a, false, true));
    INDEXED(insurance.FindInsMergeRecord(a, false, true));
    INDEXED(insurance.FindInsRecordById(1, false, true));
    clsVendor vendor(context());
    INDEXED(vendor.FindVendorRecord(a, false, true));
    INDEXED(vendor.FindVendorMergeRecord(a, false, true));
    INDEXED(vendor.FindVendorRecordById(1, false, true));
    clsSchoolName school(context());
    INDEXED(school.FindSchoolRecord(a, false, true));
    INDEXED(school.FindSchoolMergeRecord(a, false, true));
    INDEXED(school.FindSchoolRecordById(1, false, true));
    clsHowFeePaid how(context());
    INDEXED(how.FindHowFeePaidRecord(a, false, true));
    clsUniform uniform(context());
    for (UniformSize* size :
         {&uniform.PantSize, &uniform.ShirtSize, &uniform.HatSize, &uniform.SocksSize, &uniform.ShoeSize}) {
        INDEXED(size->FindSizeRecord(a, false, true));
        INDEXED(size->FindSizeMergeRecord(a, false, true));
        INDEXED(size->FindDeletedSizeRecord(a));
    }
}

/// That the watch sees what it is to see.
TEST_F(FindsTest, AWalkIsNoticed) {
    slow.clear();
    league_->count("SELECT * FROM tblRegistration WHERE [PlayerComments] = \"a\"");
    EXPECT_FALSE(slow.isEmpty());
}

}  // namespace
