#pragma once

#include <QDir>
#include <QFile>

#include "maintenance/merge/MergeSteps.h"
#include "platform/datafile/Workspace.h"
#include "sample_league/SampleLeague.h"

inline constexpr char localFile[] = "Kestrelmoor.kmr";
inline constexpr char otherFile[] = "Other.kmr";

/// Two copies of a league, such that every step of a merge of the other file has something to write: its rows are
/// newer, and the local file lacks those that are only ever added.
inline void makeOfficers(const QDir& folder, int players) {
    makeSampleLeague(folder.filePath(localFile), {.players = players});
    QFile::copy(folder.filePath(localFile), folder.filePath(otherFile));
    datafile::Workspace workspace;
    const datafile::Database local = workspace.openDatabase(folder.filePath(localFile));
    const datafile::Database other = workspace.openDatabase(folder.filePath(otherFile));
    for (const MergeStep& step : mergeSteps())
        for (const MergeTable& table : step.tables) {
            const QString name = QString::fromLatin1(table.name);
            if (table.existing == Existing::Stays)
                local.execute("DELETE FROM " + name);
            else
                other.execute("UPDATE " + name + " SET [DateStamp] = #5-20-2026#, [TimeStamp] = 4711");
        }
}
