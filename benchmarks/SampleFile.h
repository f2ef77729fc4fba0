#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/datafile/Workspace.h"
#include "sample_league/SampleLeague.h"
#include "store/StoreContext.h"
#include "support/QuietDialogs.h"

/// The sizes of the leagues that everything is measured with.
inline constexpr int leagueSizes[] = {1000, 100000};

/// The file of a made-up league, made on first use and kept beside the programs until one that is newer than it asks
/// for it.
inline QString sampleFile(int players) {
    const QString path = QString("%1/sample-%2.kmr").arg(QCoreApplication::applicationDirPath()).arg(players);
    const QFileInfo program(QStringLiteral("/proc/self/exe"));
    if (QFileInfo(path).lastModified() < QFileInfo(program.symLinkTarget()).lastModified()) {
        QFile::remove(path);
        makeSampleLeague(path, {.players = players});
    }
    return path;
}

/// A copy of a made-up league that a measurement may write to, and all that record classes need to work on it.
struct SampleLeague {
    explicit SampleLeague(int players) : size(players) {
        const QString path = files.filePath("Kestrelmoor.kmr");
        if (!QFile::copy(sampleFile(players), path)) qFatal("The sample league could not be copied.");
        context.dataFilePath = path;
        context.globals.currentSeasonYear = "2026";
        database.emplace(workspace.openDatabase(path));
    }

    int size;
    QTemporaryDir files;
    datafile::Workspace workspace;
    FixedClock clock{QDateTime(QDate(2026, 5, 16), QTime(12, 0))};
    QuietDialogs dialogs;
    StoreContext context{workspace, clock, dialogs};
    std::optional<datafile::Database> database;  ///< held, so that the file stays open
};
