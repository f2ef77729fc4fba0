#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include "faults/FaultJob.h"
#include "maintenance/work/Backup.h"
#include "maintenance/work/Codes.h"
#include "maintenance/work/NewSeason.h"
#include "platform/datafile/DataFile.h"
#include "store/CorrectVersion.h"
#include "store/Housekeeping.h"
#include "support/Printing.h"

// Every writer of files on a disk that is really full, or soon is. Needs the right to mount one.

namespace {

constexpr qint64 diskSize = qint64{8} << 20;
const QString archiveName = QStringLiteral("Kestrelmoor.zip");

/// A small disk of its own, as long as it lives.
struct SmallDisk {
    SmallDisk() : mounted(::mount("tmpfs", QFile::encodeName(folder.path()), "tmpfs", 0, "size=8m") == 0) {}
    ~SmallDisk() {
        if (mounted) ::umount2(QFile::encodeName(folder.path()), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    QTemporaryDir folder;
    bool mounted;
};

struct Writer {
    const char* name;
    std::function<bool(StoreContext&, const LeagueFolder&)> write;  ///< whether the user is told that it is done
};

template <class Work>
bool passes(Work work) {
    try {
        work();
        return true;
    } catch (const datafile::Error& error) {
        EXPECT_EQ(error.fault(), datafile::Fault::Full) << error.what();
        return false;
    }
}

bool passes(int code, int full) {
    EXPECT_TRUE(code == 0 || code == full) << code;
    return code == 0;
}

const Writer writers[] = {
    {"safety copy", [](StoreContext& context, const LeagueFolder&) { return MakeSafetyCopy(context); }},
    {"compact", [](StoreContext& context, const LeagueFolder&) { return passes([&] { CompactDataFile(context); }); }},
    {"backup",
     [](StoreContext& context, const LeagueFolder& folder) {
         return passes(backUp(context, folder.filePath(archiveName), {}, {}), 14);
     }},
    {"restore",
     [](StoreContext& context, const LeagueFolder& folder) {
         return passes(restore(context, folder.filePath(archiveName), folder.path(), {}), 50);
     }},
    {"new season",
     [](StoreContext& context, const LeagueFolder&) {
         const auto nothing = [](const QString&) {};
         return passes([&] {
             for (const SeasonStep& step : seasonSteps())
                 runSeasonStep(step, context, "2026", {nothing, nothing, [](int) {}});
         });
     }},
};

/// An older archive and safety copy beside a data file with many rows in it.
void prepare(const LeagueFolder& folder) {
    folder.makeLeague([](StoreContext& context) {
        const datafile::Database database = context.database();
        for (int i = 0; i < 300; ++i)
            database.execute(QString("INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], "
                                     "[PlayerBirthDate], [PlayerActive], [PlayerComments]) VALUES (\"L%1\", \"F%1\", "
                                     "#4-2-2012#, True, \"%2\")")
                                 .arg(i)
                                 .arg(QString(200, 'c')));
    });
    ASSERT_TRUE(QFile::copy(folder.dataFile(), folder.safetyCopy()));
    ASSERT_EQ(archive::pack(folder.dataFile(), folder.filePath(archiveName)), archive::Fault::None);
    folder.with([](StoreContext& context) { context.database().execute("DELETE FROM tblState WHERE True"); });
}

/// Leaves so many bytes free.
void fill(const LeagueFolder& folder, qint64 free) {
    QFile filler(folder.filePath("filler"));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const qint64 size = QStorageInfo(folder.path()).bytesAvailable() - free;
    ASSERT_EQ(filler.write(QByteArray(size, 'x')), size);
}

TEST(SmallDisk, LosesNothingWhateverIsWritten) {
    const QTemporaryDir originals;
    const LeagueFolder original(originals.path());
    prepare(original);
    const QMap<QString, QString> before = original.contents();
    const qint64 size = QFileInfo(original.dataFile()).size();
    ASSERT_LT(size * 6, diskSize);
    const qint64 stride = isFullSweep() ? size / 12 : size / 2;
    for (const Writer& writer : writers) {
        int failures = 0;
        int successes = 0;
        for (qint64 free = 0; free <= 3 * size; free += stride) {
            SCOPED_TRACE(testing::Message() << writer.name << " with " << free << " bytes free");
            const SmallDisk disk;
            if (!disk.mounted) GTEST_SKIP() << "needs the right to mount a disk";
            const LeagueFolder folder(disk.folder.path());
            for (const QString& name : original.entryList(QDir::Files))
                ASSERT_TRUE(QFile::copy(original.filePath(name), folder.filePath(name)));
            fill(folder, free);
            bool done = false;
            folder.with([&](StoreContext& context) { done = writer.write(context, folder); });
            ++(done ? successes : failures);
            ASSERT_TRUE(QFile::remove(folder.filePath("filler")));
            QFile::remove(folder.filePath("Journal.Dat"));
            const QMap<QString, QString> now = folder.contents();  // checks each data file
            EXPECT_EQ(now.keys(), before.keys());
            if (done || writer.name == QLatin1String("new season")) continue;  // which goes step by step
            for (const QString& name : before.keys())
                EXPECT_TRUE(now[name] == before[name] ||
                            (name.endsWith(".BKM") && now[name] == before[QStringLiteral("Kestrelmoor.kmr")]))
                    << name.toStdString();
        }
        EXPECT_GT(failures, 0) << writer.name;
        EXPECT_GT(successes, 0) << writer.name;
    }
}

}  // namespace
