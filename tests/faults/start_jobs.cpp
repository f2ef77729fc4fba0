#include <gtest/gtest.h>

#include "faults/Jobs.h"
#include "store/CorrectVersion.h"
#include "store/Schema.h"
#include "store/UpgradeRun.h"
#include "store/UpgradeSteps.h"
#include "support/OlderFile.h"
#include "support/Printing.h"
#include "support/QuietDialogs.h"

// What a start does to the data file: the safety copy, each upgrade step alone, their end, and the whole chain.

namespace {

const QString dataFile = QStringLiteral("Kestrelmoor.kmr");
constexpr int sampledVersion = 34;  ///< the chain from here: five steps, the final forms, the version and a compact

/// Whatever the fault left, the next start ends the upgrade.
void expectNextStartToPass(const LeagueFolder& folder) {
    folder.with([](StoreContext& context) {
        EXPECT_TRUE(CorrectVersion(context)) << "the next start failed";
        const datafile::Database database = context.database();
        EXPECT_EQ(database.openRecordset("tblVersion").text("DBVersion"), GetCurrentDBVersion());
        EXPECT_EQ(database.tableNames().size(), schema::tables().size());
    });
}

/// The start behind a single step; the short form leaves that to the chain.
void startAfterStep(const Aftermath& aftermath) {
    if (isFullSweep()) expectNextStartToPass(aftermath.folder);
}

FaultJob stepJob(const UpgradeStep& step) {
    const QString name = QString::fromLatin1(step.name);
    const int version = step.lastVersion;
    return {.name = name,
            .samples = 2,
            .prepare = [version](const LeagueFolder& folder) { olderfile::make(folder.dataFile(), version); },
            .begin = FaultJob::step([name](StoreContext& context) {
                for (const UpgradeStep& each : upgradeSteps())
                    if (name == QLatin1String(each.name)) runUpgradeStep(each, context, context.database());
            }),
            .next = startAfterStep};
}

void prepareEnd(const LeagueFolder& folder) {
    olderfile::make(folder.dataFile(), sampledVersion);
    folder.with([](StoreContext& context) {
        const datafile::Database database = context.database();
        for (const UpgradeStep& step : upgradeSteps())
            if (step.lastVersion >= sampledVersion) runUpgradeStep(step, context, database);
    });
}

/// A work that says in a box what went wrong.
template <class Work>
auto speaking(Work work) {
    return [work](StoreContext& context) {
        return [&context, work] {
            return work(context) ? FaultJob::done : static_cast<QuietDialogs&>(context.dialogs).last;
        };
    };
}

void judgeChain(const Aftermath& aftermath) {
    datafile::Workspace workspace;
    const QString version =
        workspace.openDatabase(aftermath.folder.dataFile()).openRecordset("tblVersion").text("DBVersion");
    EXPECT_TRUE(!aftermath.saidDone() || version == GetCurrentDBVersion()) << "the user was told otherwise";
}

/// What single steps did is compared by way of the next start: a part of one would stand in its way.
void startAfterChain(const Aftermath& aftermath) {
    expectNextStartToPass(aftermath.folder);
    EXPECT_TRUE(aftermath.folder.contents()[dataFile] == aftermath.after[dataFile]);
}

void prepareCopy(const LeagueFolder& folder) {
    folder.makeLeague();
    QFile::copy(folder.dataFile(), folder.safetyCopy());
    folder.with([](StoreContext& context) { context.database().execute("DELETE FROM tblState WHERE True"); });
}

}  // namespace

QList<FaultJob> startJobs() {
    QList<FaultJob> jobs{{.name = "copy", .samples = 8, .prepare = prepareCopy, .begin = speaking(MakeSafetyCopy)}};
    for (const UpgradeStep& step : upgradeSteps()) jobs << stepJob(step);
    jobs << FaultJob{.name = "finish",
                     .samples = 6,
                     .prepare = prepareEnd,
                     .begin = FaultJob::step([](StoreContext& context) { finishUpgrade(context.database()); }),
                     .next = startAfterStep};
    jobs << FaultJob{.name = "chain",
                     .samples = 6,
                     .prepare = [](const auto& folder) { olderfile::make(folder.dataFile(), sampledVersion); },
                     .begin = speaking(CorrectVersion),
                     .judge = judgeChain,
                     .next = startAfterChain};
    return jobs;
}
