#include <QCoreApplication>
#include <algorithm>
#include <cstdio>

#include "faults/Jobs.h"

// Does one job on a league's folder, in a process of its own so that it may be ended midway:
//
//     fault_worker <job> <folder> [again]
//
// Prints a line with what the user is told: "done", or the text of the error. With "again" a user who was told an error
// tries a second time, and a second line says what came of it.

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    const QStringList words = application.arguments();
    const QList<FaultJob> jobs = faultJobs();
    const auto job = std::find_if(jobs.begin(), jobs.end(), [&](const auto& each) { return each.name == words[1]; });
    if (job == jobs.end()) return 1;
    LeagueFolder(words[2]).with([&](StoreContext& context) {
        const auto step = job->begin(context);
        QString told;
        for (int tries = words.value(3) == u"again" ? 2 : 1; tries > 0 && told != FaultJob::done; --tries) {
            try {
                told = step();
            } catch (const std::exception& error) {
                told = QString::fromUtf8(error.what());
            }
            std::puts(qPrintable(told.replace('\n', ' ')));
            std::fflush(stdout);
        }
    });
    return 0;
}
