#include <gtest/gtest.h>

#include <QFile>

#include "faults/Jobs.h"
#include "maintenance/work/Backup.h"
#include "maintenance/work/Codes.h"

// Backup, with an older one in its place, and restore: under the data file's usual name, and where it is another file.

namespace {

const QString archiveName = QStringLiteral("Kestrelmoor.zip");
const QString elsewhere = QStringLiteral("League.kmr");

QString besideOf(const StoreContext& context, const QString& name) {
    return QFileInfo(context.dataFilePath).dir().filePath(name);
}

void emptyStates(StoreContext& context) { context.database().execute("DELETE FROM tblState WHERE True"); }

/// The archive and the safety copy are older than the data file.
void prepare(const LeagueFolder& folder) {
    folder.makeLeague();
    QFile::copy(folder.dataFile(), folder.safetyCopy());
    ASSERT_EQ(archive::pack(folder.dataFile(), folder.filePath(archiveName)), archive::Fault::None);
    folder.with(emptyStates);
}

void prepareElsewhere(const LeagueFolder& folder) {
    prepare(folder);
    QFile::copy(folder.dataFile(), folder.filePath(elsewhere));
    folder.with([](StoreContext& context) { context.database().execute("DELETE FROM tblHowFeePaid WHERE True"); });
}

std::function<QString()> backUpStep(StoreContext& context) {
    return [&context] {
        const int code = backUp(context, besideOf(context, archiveName), {}, {});
        return code == 0 ? FaultJob::done : backupResult(code).text;
    };
}

std::function<QString()> restoreStep(StoreContext& context) {
    return [&context] {
        const QString archive = besideOf(context, archiveName);
        const int code = restore(context, archive, QFileInfo(archive).path(), {});
        return code == 0 ? FaultJob::done : restoreResult(code).text;
    };
}

/// An archive that is not the older one holds the data file. Its bytes tell the time, too.
void judgeBackup(const Aftermath& aftermath) {
    QMap<QString, QString> now = aftermath.now;
    if (now[archiveName] != aftermath.before[archiveName]) {
        EXPECT_EQ(archive::compare(aftermath.folder.filePath(archiveName), aftermath.folder.dataFile()),
                  archive::Fault::None);
        now[archiveName] = aftermath.after[archiveName];
    }
    FaultJob::expectBeforeOrAfter(
        {aftermath.before, aftermath.after, now, aftermath.folder, aftermath.died, aftermath.told});
}

/// What is told is told of the data file at `name`; other files may have come so far already.
std::function<void(const Aftermath&)> judgeRestore(const QString& name) {
    return [name](const Aftermath& aftermath) {
        const auto only = [&](QMap<QString, QString> files) {
            files.removeIf([&](const auto& file) { return file.key() != name; });
            return files;
        };
        FaultJob::expectBeforeOrAfter({only(aftermath.before), only(aftermath.after), only(aftermath.now),
                                       aftermath.folder, aftermath.died, aftermath.told});
        for (const QString& file : aftermath.after.keys()) {
            const QString now = aftermath.now.value(file);
            EXPECT_TRUE(now == aftermath.before.value(file) || now == aftermath.after[file]) << file.toStdString();
        }
    };
}

}  // namespace

QList<FaultJob> backupJobs() {
    return {{.name = "backup", .samples = 12, .prepare = prepare, .begin = backUpStep, .judge = judgeBackup},
            {.name = "restore",
             .samples = 12,
             .prepare = prepare,
             .begin = restoreStep,
             .judge = judgeRestore(QStringLiteral("Kestrelmoor.kmr"))},
            {.name = "restore_elsewhere",
             .samples = 12,
             .prepare = prepareElsewhere,
             .begin =
                 [](StoreContext& context) {
                     context.dataFilePath = besideOf(context, elsewhere);
                     return restoreStep(context);
                 },
             .judge = judgeRestore(elsewhere)}};
}
