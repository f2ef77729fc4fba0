#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "faults/Jobs.h"
#include "support/Printing.h"

// Each test lets faults of every kind strike at changes that a job makes to the league's files. Whatever happens, the
// job judges what is found afterwards. The short form samples changes and kinds; with KESTREL_FAULTS=full in the
// environment each kind strikes at the first change, then at the second, and so on until the job ends untouched.

namespace {

constexpr int exitCodeOfDeath = 86;

struct Fault {
    const char* kind;
    bool again = false;  ///< the user tries a second time
};
constexpr Fault faults[] = {{"die"}, {"full"}, {"error"}, {"stays-full"}, {"stays-broken"}, {"error", true}};

void copyFiles(const QDir& from, const QDir& to) {
    for (const QString& name : from.entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(from.filePath(name), to.filePath(name)));
}

struct Struck {
    bool struck = false;
    QString at;  ///< the change that failed, or how many there were
    bool died = false;
    QStringList told;
};

/// Runs the job in the folder; the change of that number fails, none when it is 0.
Struck run(const FaultJob& job, const Fault& fault, int change, const QString& folder) {
    const QTemporaryDir reports;
    const QString report = reports.filePath("report");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", FAULTY_DISK);
    environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
    environment.insert("FAULTY_DISK_FOLDER", folder);
    environment.insert("FAULTY_DISK_AT", QString::number(change));
    environment.insert("FAULTY_DISK_KIND", fault.kind);
    environment.insert("FAULTY_DISK_REPORT", report);
    QProcess worker;
    worker.setProcessEnvironment(environment);
    worker.setWorkingDirectory(folder);
    worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker.start(FAULT_WORKER, {job.name, folder, fault.again ? "again" : ""});
    EXPECT_TRUE(worker.waitForFinished());
    EXPECT_EQ(worker.exitStatus(), QProcess::NormalExit);
    Struck result;
    QFile written(report);
    if (written.open(QIODevice::ReadOnly)) result.at = QString::fromLocal8Bit(written.readAll()).remove(folder + '/');
    result.struck = !result.at.endsWith(QLatin1String("changes"));
    result.died = worker.exitCode() == exitCodeOfDeath;
    result.told = QString::fromLocal8Bit(worker.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    EXPECT_TRUE(result.died || worker.exitCode() == 0);
    return result;
}

/// No file that nobody asked for. Where the program could not remove it, a half-made one may be left under its mark,
/// and a journal that never counted: with that beside it the data file was found whole.
void expectNoStrayFile(const Aftermath& aftermath, const Fault& fault, const Struck& result) {
    const QLatin1String kind(fault.kind);
    const bool removesNothing = kind == u"die" || kind == u"stays-broken";
    for (const QString& name : aftermath.folder.entryList(QDir::Files | QDir::Hidden)) {
        const bool mayLeave = removesNothing || result.at.endsWith(QStringLiteral("unlink ") + name);
        EXPECT_TRUE(aftermath.before.contains(name) || aftermath.after.contains(name) || name == u"Journal.Dat" ||
                    (mayLeave && (name.endsWith('~') || name.endsWith(QLatin1String("-journal")) ||
                                  name.endsWith(QLatin1String(".CPT")))))
            << name.toStdString();
    }
}

void expectAnAnswer(const Struck& result, const Fault& fault, bool saidDone) {
    const QLatin1String kind(fault.kind);
    EXPECT_EQ(result.died, kind == u"die" && result.struck);
    EXPECT_EQ(result.told.empty(), result.died);
    EXPECT_TRUE(!fault.again || saidDone) << "a second try failed";
    const bool isFull = result.at.contains("write") && kind == u"full";
    const auto saysFull = [&] {
        for (const char* text : {"no space left", "Insufficient Disk Space", "is full"})
            if (result.told.last().contains(QLatin1String(text))) return true;
        return false;
    };
    EXPECT_TRUE(!isFull || saidDone || saysFull());
}

QStringList names() {
    QStringList names;
    for (const FaultJob& job : faultJobs()) names << job.name;
    return names;
}

class FaultSweep : public testing::TestWithParam<QString> {
protected:
    void SetUp() override {
        for (const FaultJob& job : faultJobs())
            if (job.name == GetParam()) job_ = job;
        job_.prepare(originals_);
        before_ = originals_.contents();
        const QTemporaryDir folder;
        copyFiles(originals_, folder.path());
        const Struck result = run(job_, faults[0], 0, folder.path());
        ASSERT_EQ(result.told, QStringList{FaultJob::done});
        after_ = LeagueFolder(folder.path()).contents();
        changes_ = result.at.section(' ', 0, 0).toInt();
    }

    void strike(int change, const Fault& fault) {
        const QTemporaryDir temporary;
        const LeagueFolder folder(temporary.path());
        copyFiles(originals_, folder);
        const Struck result = run(job_, fault, change, temporary.path());
        SCOPED_TRACE(testing::Message() << fault.kind << (fault.again ? ", again" : "") << " at change " << change
                                        << ": " << result.at.toStdString() << "; told "
                                        << testing::PrintToString(result.told));
        try {
            const QMap<QString, QString> now = folder.contents();
            const Aftermath aftermath{before_, after_, now, folder, result.died, result.told};
            expectNoStrayFile(aftermath, fault, result);
            expectAnAnswer(result, fault, aftermath.saidDone());
            job_.judge(aftermath);
            const QString state = now.value("Kestrelmoor.kmr") + QString::number(now.size());
            if (!job_.next || tried_.contains(state)) return;
            tried_ << state;
            job_.next(aftermath);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }

    FaultJob job_;
    QTemporaryDir originalsFolder_;
    LeagueFolder originals_{originalsFolder_.path()};
    QMap<QString, QString> before_;
    QMap<QString, QString> after_;
    QSet<QString> tried_;  ///< states from which the user went on
    int changes_ = 0;      ///< that the work makes when no fault strikes
};

TEST_P(FaultSweep, LeavesTheStateBeforeOrAfterAndTellsTheTruth) {
    ASSERT_GE(changes_, 3) << "the faults do not reach the work";
    if (isFullSweep()) {
        for (const Fault& fault : faults)
            for (int change = 1; change <= changes_; ++change) strike(change, fault);
    } else {
        const auto kind = size_t(names().indexOf(GetParam()));
        for (int i = 0; i < job_.samples; ++i)
            strike(1 + (2 * i + 1) * changes_ / (2 * job_.samples), faults[(kind + size_t(i)) % std::size(faults)]);
    }
    RecordProperty("changes", changes_);
}

INSTANTIATE_TEST_SUITE_P(All, FaultSweep, testing::ValuesIn(names()),
                         [](const auto& about) { return about.param.toStdString(); });

}  // namespace
