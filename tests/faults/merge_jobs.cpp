#include <QTemporaryDir>

#include "faults/Jobs.h"
#include "maintenance/merge/MergeFile.h"
#include "maintenance/merge/MergeRun.h"
#include "merge/MergeInto.h"
#include "merge/Officers.h"
#include "support/QuietDialogs.h"

// Each step of the merge of a second officer's file, whose rows are all newer.

namespace {

constexpr int players = 6;

/// The two files before the merge.
const LeagueFolder& officers() {
    static const QTemporaryDir temporary;
    static const LeagueFolder folder(temporary.path());
    if (!folder.exists(otherFile)) makeOfficers(folder, players);
    return folder;
}

/// The files as they are before a step: those before it are merged.
void prepare(const LeagueFolder& folder, size_t step) {
    for (const QString& name : officers().entryList(QDir::Files))
        QFile::copy(officers().filePath(name), folder.filePath(name));
    folder.with([&](StoreContext& context) {
        Unwatched progress;
        const datafile::Database other = context.workspace.openDatabase(folder.filePath(otherFile));
        MergeRun(context, other, progress).run(0, step);
    });
}

/// What the user is told at the end of a step.
QString told(StoreContext& context) {
    QString& last = static_cast<QuietDialogs&>(context.dialogs).last;
    return last.isEmpty() ? FaultJob::done : std::exchange(last, {});
}

FaultJob jobFor(size_t step) {
    return {.name = "merge_" + QString::number(step + 1),
            .samples = 2,
            .prepare = [step](const LeagueFolder& folder) { prepare(folder, step); },
            .begin =
                [step](StoreContext& context) {
                    return [&context, step] {
                        const MergeFile file(context, QFileInfo(context.dataFilePath).dir().filePath(otherFile));
                        Unwatched progress;
                        MergeRun(context, file.database(), progress).run(step, step + 1);
                        return told(context);
                    };
                }};
}

}  // namespace

QList<FaultJob> mergeJobs() {
    QList<FaultJob> jobs;
    for (size_t step = 0; step < mergeSteps().size(); ++step) jobs << jobFor(step);
    return jobs;
}
