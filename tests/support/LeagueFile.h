#pragma once

#include "platform/datafile/Workspace.h"
#include "store/BaseFile.h"
#include "store/StoreContext.h"
#include "support/ScriptedDialogs.h"

#include <QTemporaryDir>

/// A new, empty league in a folder of its own, with a clock that stands at noon of 22 April 2026 and the season 2026.
struct LeagueFile {
    LeagueFile() {
        makeBaseFile(path());
        context.dataFilePath = path();
        context.globals.currentSeasonYear = QStringLiteral("2026");
    }
    QString path() const { return folder.filePath(QStringLiteral("Kestrelmoor.kmr")); }
    datafile::Database database() { return workspace.openDatabase(path()); }
    /// One value of a query's first row, as text.
    QString value(const QString& query, const QString& column) { return database().openRecordset(query).text(column); }
    int count(const QString& query) { return database().openRecordset(query).recordCount(); }

    QTemporaryDir folder;
    datafile::Workspace workspace;
    FixedClock clock{QDateTime(QDate(2026, 4, 22), QTime(12, 0))};
    ScriptedDialogs dialogs;
    StoreContext context{workspace, clock, dialogs};
};
