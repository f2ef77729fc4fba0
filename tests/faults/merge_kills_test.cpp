#include <gtest/gtest.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <random>

#include "merge/MergeInto.h"
#include "merge/Officers.h"
#include "platform/datafile/Connection.h"
#include "platform/datafile/DataFile.h"
#include "support/QuietDialogs.h"

// The program is killed at any moment of a merge: the data file opens and is whole, each step is there as a whole or
// not at all, and merging anew ends it. A few kills on a small league; with KESTREL_FAULTS=full in the environment a
// hundred on one of 100,000 players.

namespace {

using Digests = std::map<QString, QByteArray>;

Digests digestsOf(const QString& path) {
    datafile::Workspace workspace;
    const datafile::Database database = workspace.openDatabase(path);
    Digests digests;
    for (const MergeStep& step : mergeSteps())
        for (const MergeTable& table : step.tables) {
            QCryptographicHash hash(QCryptographicHash::Md5);
            datafile::Statement rows = database.prepare(QString("SELECT * FROM %1 ORDER BY rowid").arg(table.name));
            while (rows.step())
                for (int i = 0; i < rows.columns(); ++i) hash.addData((rows.text(i) + '|').toUtf8());
            digests[table.name] = hash.result();
        }
    return digests;
}

void merge(const QString& local, const QString& other) {
    datafile::Workspace workspace;
    FixedClock clock(QDateTime(QDate(2026, 6, 1), QTime(12, 0)));
    QuietDialogs dialogs;
    StoreContext context{workspace, clock, dialogs, local};
    context.globals.currentSeasonYear = "2026";
    mergeInto(context, workspace.openDatabase(other));
}

/// Merges in a process of its own, which is killed after so long.
void mergeAndKill(const QString& local, const QString& other, int milliseconds) {
    const pid_t program = fork();
    if (program == 0) {
        merge(local, other);
        _exit(0);
    }
    pollfd ended{static_cast<int>(syscall(SYS_pidfd_open, program, 0)), POLLIN, 0};
    poll(&ended, 1, milliseconds);
    kill(program, SIGKILL);
    close(ended.fd);
    EXPECT_EQ(waitpid(program, nullptr, 0), program);
}

/// Steps up to one are there and those behind it are not.
void expectWholeSteps(const Digests& now, const Digests& before, const Digests& after) {
    bool reached = true;
    for (const MergeStep& step : mergeSteps()) {
        SCOPED_TRACE(step.text);
        bool done = true;
        bool untouched = true;
        for (const MergeTable& table : step.tables) {
            done = done && now.at(table.name) == after.at(table.name);
            untouched = untouched && now.at(table.name) == before.at(table.name);
        }
        EXPECT_TRUE(done || untouched) << "the step is there in part";
        EXPECT_TRUE(reached || untouched) << "a step before it is missing";
        reached = reached && done;
    }
}

TEST(KilledMerge, LeavesWholeStepsAndCanBeMergedAnew) {
    const bool full = qgetenv("KESTREL_FAULTS") == "full";
    const int kills = full ? 100 : 4;
    const QTemporaryDir temporary;
    const QDir originals(temporary.path());
    makeOfficers(originals, full ? 100000 : 60);
    const QString other = originals.filePath(otherFile);
    const QString local = originals.filePath("work.kmr");
    const Digests before = digestsOf(originals.filePath(localFile));
    const auto startAnew = [&] {
        for (const QString& part : {local, QString(local + "-journal")}) QFile::remove(part);
        ASSERT_TRUE(QFile::copy(originals.filePath(localFile), local));
    };
    startAnew();
    QElapsedTimer timer;
    timer.start();
    merge(local, other);
    const auto duration = static_cast<int>(timer.elapsed());
    const Digests after = digestsOf(local);
    for (const auto& [table, digest] : after) EXPECT_NE(digest, before.at(table)) << table.toStdString();

    std::mt19937 chance(1);
    for (int i = 0; i < kills; ++i) {
        const int milliseconds = std::uniform_int_distribution(0, duration)(chance);
        SCOPED_TRACE(testing::Message() << "killed after " << milliseconds << " of " << duration << " ms");
        startAnew();
        mergeAndKill(local, other, milliseconds);
        expectWholeSteps(digestsOf(local), before, after);
        datafile::checkIntegrity(local);
        if (i % 4 == 0) {
            merge(local, other);
            EXPECT_EQ(digestsOf(local), after);
        }
        if (full && (i + 1) % 10 == 0) std::printf("killed %d times\n", i + 1), std::fflush(stdout);
    }
}

}  // namespace
