#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "faults/FaultJob.h"
#include "maintenance/work/NewSeason.h"
#include "platform/datafile/DataFile.h"
#include "sample_league/SampleLeague.h"

// A new season over a league of full size, in a process of its own that is killed at any time. Only in the full form
// (KESTREL_FAULTS=full), for it takes its time.

namespace {

constexpr int players = 100'000;
constexpr int kills = 100;

/// Rows that are there until their step is done, in the order of the steps. Two of one step go together.
constexpr std::pair<int, const char*> untilDone[] = {
    {2, "tblRegistration WHERE [PlayerActive] = True"},
    {3, "tblRegistration WHERE [PlayerRegistrationDate] <> #4-22-2026#"},
    {5, "tblRegistration WHERE [PlayerTryoutNumber] <> \"\""},
    {6, "tblRegistration WHERE [PlayerDivisionId] <> 0"},
    {8, "tblRegistration WHERE [PlayerComments] <> \"\""},
    {9, "tblRegistration WHERE [PlayerOtherFees] <> \"\""},
    {10, "tblRegistration WHERE [PlayerAmountPaid] <> \"\""},
    {11, "tblAbilityRating WHERE [PlayerId] <> 0 AND [PitcherRating] <> 0"},
    {12, "tblRegistration WHERE [PlayerGradeLevel] = \"K\""},
    {13, "tblRegistration WHERE [PlayerYearsExperience] = \"0\""},
    {14, "tblEquipmentAssignment WHERE [DeletedFlag] = False"},
    {15, "tblVolunteer WHERE [DeletedFlag] = False"},
    {15, "tblRegistrationVolunteer WHERE [DeletedFlag] = False"},
    {21, "tblTeam WHERE [DeletedFlag] = False"},
    {21, "tblSchedule"},
    {21, "tblDivision WHERE [DeletedFlag] = False"},
    {23, "tblTeamField"},
    {25, "tblResults"},
    {27, "tblTeamVolunteer WHERE [DeletedFlag] = False"},
};

std::vector<qint64> countsOf(const LeagueFolder& folder) {
    std::vector<qint64> counts;
    folder.with([&](StoreContext& context) {
        const datafile::Database database = context.database();
        for (const auto& [step, rows] : untilDone)
            counts.push_back(database.openRecordset(QString("SELECT Count(*) AS N FROM ") + rows).number("N"));
    });
    return counts;
}

void openSeason(const LeagueFolder& folder) {
    folder.with([](StoreContext& context) {
        SeasonBoxes boxes;
        for (size_t box = 0; box < seasonBoxCount; ++box) boxes.set(static_cast<SeasonBox>(box), true);
        const auto nothing = [](const QString&) {};
        runNewSeason(context, boxes, "2027", {nothing, nothing, [](int) {}});
    });
}

/// Steps are there one after the other, each with all its rows or none.
void judge(const std::vector<qint64>& before, const std::vector<qint64>& now, std::set<int>& lastSteps) {
    int lastDone = 1;
    int firstMissing = 99;
    for (size_t i = 0; i < now.size(); ++i) {
        const auto& [step, rows] = untilDone[i];
        EXPECT_TRUE(now[i] == 0 || now[i] == before[i]) << "step " << step << " is there in part: " << rows;
        if (now[i] == 0)
            lastDone = std::max(lastDone, step);
        else
            firstMissing = std::min(firstMissing, step);
    }
    EXPECT_LT(lastDone, firstMissing);
    lastSteps.insert(lastDone);
}

TEST(SeasonKill, LeavesWholeStepsBehind) {
    if (!isFullSweep()) GTEST_SKIP() << "only with KESTREL_FAULTS=full";
    const QTemporaryDir made;
    const QString original = made.filePath("league.kmr");
    makeSampleLeague(original, {.players = players});
    qint64 whole = 0;
    std::vector<qint64> before;
    std::set<int> lastSteps;
    QRandomGenerator random(20260422);
    for (int kill = 0; kill <= kills; ++kill) {
        SCOPED_TRACE(kill);
        const QTemporaryDir temporary;
        const LeagueFolder folder(temporary.path());
        ASSERT_TRUE(QFile::copy(original, folder.dataFile()));
        if (before.empty()) before = countsOf(folder);
        QElapsedTimer timer;
        timer.start();
        const pid_t child = fork();
        if (child == 0) {
            openSeason(folder);
            _exit(0);
        }
        if (kill > 0) {
            usleep(static_cast<useconds_t>(random.bounded(whole)));
            ::kill(child, SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        if (kill == 0) whole = timer.nsecsElapsed() / 1000;
        const std::vector<qint64> now = countsOf(folder);  // opening takes back what was not committed
        datafile::checkIntegrity(folder.dataFile());
        judge(before, now, lastSteps);
    }
    for (const qint64 count : before) EXPECT_GT(count, 0) << "the league lacks rows to judge by";
    EXPECT_GT(lastSteps.size(), 5u) << "the kills came at one place";
}

}  // namespace
