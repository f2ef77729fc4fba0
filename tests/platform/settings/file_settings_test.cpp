#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/settings/FileSettings.h"
#include "support/Printing.h"

TEST(FileSettings, KeepsEveryTextBySectionAndKey) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("new folder/Kestrelmoor.ini");
    const QStringList texts = {"/home/peña/my league, 2026.kmr", R"(C:\Leagues\"A".kmr)", " spaced ", "", "@at;=%"};
    for (const QString& text : texts) {
        EXPECT_TRUE(FileSettings(path).write("Database", "Path", text));
        EXPECT_EQ(FileSettings(path).read("Database", "Path", "otherwise"), text);
    }
    FileSettings settings(path);
    EXPECT_TRUE(settings.write(R"(WindowSettings\frmSetup)", "State", "2"));
    EXPECT_EQ(settings.read(R"(WindowSettings\frmSetup)", "State"), QString("2"));
    EXPECT_EQ(settings.read(R"(WindowSettings\frmTeams)", "State", "0"), QString("0"));
}

TEST(FileSettings, IsStoredBeforeTheCallReturns) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("Kestrelmoor.ini");
    FileSettings settings(path);
    ASSERT_TRUE(settings.write(R"(WindowSettings\frmSetup)", "State", "2"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    EXPECT_TRUE(content.contains("[WindowSettings%5CfrmSetup]\nState=2")) << content.toStdString();
}

TEST(FileSettings, ReadsWhatWasEditedByHand) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("Kestrelmoor.ini");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Database]\nPath=/srv/north, south/league.kmr\n");
    file.close();
    EXPECT_EQ(FileSettings(path).read("Database", "Path"), QString("/srv/north, south/league.kmr"));
}

TEST(FileSettings, ReportsWhatCouldNotBeStored) {
    const QTemporaryDir folder;
    const QString obstacle = folder.filePath("file");
    QFile file(obstacle);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_FALSE(FileSettings(obstacle + "/Kestrelmoor.ini").write("Database", "Path", "a.kmr"));
}
