#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/datafile/DataFile.h"
#include "registration/clsRegistration.h"
#include "store/BaseFile.h"
#include "support/LeagueFile.h"
#include "support/OlderFile.h"
#include "support/Printing.h"

// Each test lets one kind of fault strike at the first change that a piece of work makes to the league's files, then at
// the second (or, in long work, a few further on), and so on until the work completes untouched. Whatever happens, what
// is found afterwards is either the state before the work or the state after it, and never the other than the one the
// user was told. Of an upgrade that holds for each step, and the next start ends it.

namespace {

constexpr int exitCodeOfDeath = 86;
constexpr int olderVersion = 34;  ///< a file that five steps, the end of the chain and a compact must raise

struct Case {
    const char* task;
    const char* kind;
    const char* again = "";
};

void PrintTo(const Case& sweep, std::ostream* out) { *out << sweep.task << ' ' << sweep.kind << ' ' << sweep.again; }

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// All players, each with all columns. Raises when the file cannot be opened.
QStringList playersOf(const QString& path) {
    QStringList players;
    datafile::Workspace workspace;
    datafile::Recordset rows = workspace.openDatabase(path).openRecordset("tblRegistration");
    for (; !rows.eof(); rows.moveNext()) {
        QString player;
        for (int field = 0; field < rows.fieldCount(); ++field) player += datafile::toText(rows.value(field)) + '|';
        players << player;
    }
    return players;
}

class FaultSweep : public testing::TestWithParam<Case> {
protected:
    struct Result {
        bool struck = false;
        bool died = false;
        QString at;        ///< the change that failed
        QStringList told;  ///< what the user was told, in order
    };

    void SetUp() override {
        LeagueFile league;
        ASSERT_TRUE(QFile::copy(league.path(), original(".BKM")));
        if (isUpgrade()) {
            olderfile::make(original(".kmr"), olderVersion);
        } else {
            makeLeague(league);
        }
        before_ = playersOf(original(".kmr"));
        ASSERT_EQ(work(0).told, QStringList{"done"});
        after_ = playersOf(file(".kmr"));
    }

    static bool isUpgrade() { return GetParam().task == QLatin1String("upgrade"); }

    void makeLeague(LeagueFile& league) const {
        clsRegistration player(league.context);
        datafile::Transaction transaction(league.database());
        for (int i = 0; i < 30; ++i) {
            player.NewPlayerRecord();
            player.PlayerLastName = i == 17 ? QStringLiteral("Smith") : QStringLiteral("Player%1").arg(i);
            player.PlayerFirstName = "Ann";
            player.PlayerBirthDate = QDate(2012, 4, 2);
            player.PlayerComments = QString(200, 'c');
            player.SavePlayerRecord();
        }
        transaction.commit();
        ASSERT_TRUE(QFile::copy(league.path(), original(".kmr")));
    }

    QString original(const char* suffix) const { return originals_.filePath(QLatin1String("Kestrelmoor") + suffix); }
    QString file(const char* suffix) const { return folder_->filePath(QLatin1String("Kestrelmoor") + suffix); }

    /// Does the work on a fresh copy of the league; the change of that number fails.
    Result work(int change) {
        folder_.emplace();
        for (const char* suffix : {".kmr", ".BKM"}) EXPECT_TRUE(QFile::copy(original(suffix), file(suffix)));
        return workOn(change);
    }

    /// The same on the league as it stands.
    Result workOn(int change) const {
        const QString report = originals_.filePath("report");
        QFile::remove(report);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_PRELOAD", FAULTY_DISK);
        environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
        environment.insert("FAULTY_DISK_FOLDER", folder_->path());
        environment.insert("FAULTY_DISK_AT", QString::number(change));
        environment.insert("FAULTY_DISK_KIND", GetParam().kind);
        environment.insert("FAULTY_DISK_REPORT", report);
        QProcess worker;
        worker.setProcessEnvironment(environment);
        worker.setWorkingDirectory(folder_->path());
        worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        worker.start(FAULT_WORKER, {GetParam().task, file(".kmr"), GetParam().again});
        EXPECT_TRUE(worker.waitForFinished());
        EXPECT_EQ(worker.exitStatus(), QProcess::NormalExit);
        Result result;
        result.struck = QFile::exists(report);
        result.died = worker.exitCode() == exitCodeOfDeath;
        result.at = QString::fromLocal8Bit(bytesOf(report)).remove(folder_->path() + '/');
        result.told = QString::fromLocal8Bit(worker.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        EXPECT_TRUE(result.died || worker.exitCode() == 0);
        return result;
    }

    static bool saidDone(const Result& result) { return !result.told.empty() && result.told.last() == u"done"; }

    /// The data file after the work: whole, and in the state that the user was told.
    void checkDataFile(const Result& result) {
        const QStringList players = playersOf(file(".kmr"));
        datafile::checkIntegrity(file(".kmr"));
        const bool was = players == before_;
        const bool is = players == after_;
        EXPECT_TRUE(was || is) << "the work is there in part";
        EXPECT_TRUE(result.died || (saidDone(result) ? is : was)) << "the user was told otherwise";
    }

    /// The data file after an upgrade: whole, and such that the next start ends it. What a single step did is compared
    /// by way of that: a part of a step would stand in its way.
    void checkUpgrade(const Result& result) {
        datafile::checkIntegrity(file(".kmr"));
        datafile::checkIntegrity(file(".BKM"));
        const QString version =
            datafile::Workspace().openDatabase(file(".kmr")).openRecordset("tblVersion").text("DBVersion");
        EXPECT_TRUE(!saidDone(result) || version == GetCurrentDBVersion()) << "the user was told otherwise";
        EXPECT_EQ(playersOf(file(".kmr")).size(), before_.size());
        EXPECT_EQ(workOn(0).told, QStringList{"done"}) << "the next start failed";
        EXPECT_EQ(playersOf(file(".kmr")), after_);
    }

    void checkSafetyCopy(const Result& result) {
        const QByteArray copy = bytesOf(file(".BKM"));
        const bool was = copy == bytesOf(original(".BKM"));
        const bool is = copy == bytesOf(file(".kmr"));
        EXPECT_TRUE(was || is) << "the copy is cut or mixed";
        const bool copied = saidDone(result) && GetParam().task == QLatin1String("copy");
        EXPECT_TRUE(result.died || (copied ? is : was)) << "the user was told otherwise";
        if (!was) datafile::checkIntegrity(file(".BKM"));
    }

    /// No file that nobody asked for. Where the program could not remove it, a half-made one may be left under its
    /// mark, and a journal that never counted: with that beside it the data file was found whole.
    void checkFolder() {
        const QLatin1String kind(GetParam().kind);
        const bool mayLeave = kind == u"die" || kind == u"stays-broken";
        for (const QString& name : QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden))
            EXPECT_TRUE(name == u"Kestrelmoor.kmr" || name == u"Kestrelmoor.BKM" || name == u"Journal.Dat" ||
                        (mayLeave && (name.endsWith('~') || name.endsWith(QLatin1String("-journal")) ||
                                      name == u"Kestrelmoor.CPT")))
                << name.toStdString();
    }

    QTemporaryDir originals_;
    std::optional<QTemporaryDir> folder_;
    QStringList before_;
    QStringList after_;
};

TEST_P(FaultSweep, LeavesTheStateBeforeOrAfterAndTellsTheTruth) {
    const bool ends = GetParam().kind == QLatin1String("die");
    const bool again = *GetParam().again != '\0';
    const int stride = isUpgrade() ? 17 : GetParam().task == QLatin1String("compact") ? 7 : 1;  // long work is sampled
    int change = 1 + static_cast<int>(qstrlen(GetParam().kind)) % stride;
    for (;; change += stride) {
        const Result result = work(change);
        SCOPED_TRACE(testing::Message() << "change " << change << ": " << result.at.toStdString() << "; told "
                                        << testing::PrintToString(result.told));
        try {
            if (isUpgrade())
                checkUpgrade(result);
            else
                checkDataFile(result), checkSafetyCopy(result);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        checkFolder();
        EXPECT_EQ(result.died, ends && result.struck);
        EXPECT_EQ(result.told.empty(), result.died);
        EXPECT_TRUE(!again || saidDone(result)) << "a second try failed";
        const bool isFull = result.at.contains("write") && QString(GetParam().kind).endsWith("full");
        EXPECT_TRUE(!isFull || saidDone(result) || result.told.last().contains("no space left"));
        if (!result.struck) break;
        ASSERT_LT(change, 2000);
    }
    RecordProperty("changes", change - 1);
    EXPECT_GT(change, 5) << "the faults did not reach the work";
}

std::vector<Case> cases() {
    std::vector<Case> all;
    for (const char* task : {"save", "add", "bulk", "copy", "upgrade", "compact"}) {
        for (const char* kind : {"die", "full", "error", "stays-full", "stays-broken"}) all.push_back({task, kind});
        all.push_back({task, "error", "again"});
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(All, FaultSweep, testing::ValuesIn(cases()), [](const auto& about) {
    return QString(QLatin1String(about.param.task) + '_' + about.param.kind + '_' + about.param.again)
        .replace('-', '_')
        .toStdString();
});

}  // namespace
