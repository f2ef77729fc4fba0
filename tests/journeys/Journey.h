#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/ProgramParts.h"
#include "store/BaseFile.h"
#include "support/MemorySettings.h"
#include "support/ScriptedDialogs.h"

/// The whole program before its first start, in a new folder that is the current one too: `program` holds the base
/// file, `user` is yet to be made. The clock stands at noon of 22 April 2026.
class Journey : public testing::Test {
protected:
    Journey() {
        QDir(folder.path()).mkdir("program");
        makeBaseFile(folder.filePath("program/" + QString(baseFileName)));
        QDir::setCurrent(folder.path());
    }
    ~Journey() override { QDir::setCurrent(before); }

    QString leaguePath() const { return folder.filePath("user/" + QString(dataFileName)); }
    static QByteArray bytes(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    const QString before = QDir::currentPath();
    QTemporaryDir folder;
    FixedClock clock{QDateTime(QDate(2026, 4, 22), QTime(12, 0))};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    datafile::Workspace workspace;
    StoreContext store{workspace, clock, dialogs};
    ProgramParts parts{store, settings, folder.filePath("program"), folder.filePath("user")};
};
