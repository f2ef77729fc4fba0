#include "store/CorrectVersion.h"

#include "platform/datafile/DataFile.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

class CorrectVersionTest : public testing::Test {
protected:
    void SetUp() override { QDir::setCurrent(league.folder.path()); }
    void TearDown() override { QDir::setCurrent(QStringLiteral("/")); }
    QString journal() {
        QFile file(league.folder.filePath("Journal.Dat"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    LeagueFile league;
};

TEST_F(CorrectVersionTest, CurrentFileIsCopiedAndItsWorkTablesEmptied) {
    league.database().execute("INSERT INTO tblTempResults ([TeamName]) VALUES (\"Owls\")");
    EXPECT_TRUE(CorrectVersion(league.context));
    EXPECT_EQ(league.count("tblTempResults"), 0);
    datafile::checkIntegrity(league.folder.filePath("Kestrelmoor.BKM"));
    league.database().execute("UPDATE tblVersion SET [DBVersion] = \"Version 7\"");
    EXPECT_TRUE(CorrectVersion(league.context)) << "an unknown version passes as current";
    EXPECT_EQ(journal(), "");
}

TEST_F(CorrectVersionTest, SafetyCopyThatFailsIsReportedAndTheStartGoesOn) {
    ASSERT_TRUE(QDir(league.folder.path()).mkpath("Kestrelmoor.BKM/in the way"));
    league.dialogs.expectError("Kestrelmoor");
    EXPECT_TRUE(CorrectVersion(league.context));
    EXPECT_TRUE(journal().contains("Backup")) << journal().toStdString();
}

/// Left by a program that was ended while it wrote them. What is younger may still be in the making, and what has
/// another name is not ours.
TEST_F(CorrectVersionTest, HalfMadeFilesGoWhenTheyAreOld) {
    const QStringList stale{"Kestrelmoor.kmr.0a1b2~", "Kestrelmoor.kmr.0a1b2~-journal", "Kestrelmoor.CPT.fffff~"};
    const QStringList kept{"Kestrelmoor.kmr.12345~", "Kestrelmoor.kmr~", "Other.kmr.0a1b2~", "Kestrelmoor.kmr.mine"};
    for (const QString& name : stale + kept) {
        QFile file(league.folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        const int days = name == kept.front() ? 0 : -2;
        ASSERT_TRUE(file.setFileTime(league.clock.now().addDays(days), QFile::FileModificationTime));
    }
    EXPECT_TRUE(CorrectVersion(league.context));
    for (const QString& name : stale) EXPECT_FALSE(QFile::exists(league.folder.filePath(name))) << name.toStdString();
    for (const QString& name : kept) EXPECT_TRUE(QFile::exists(league.folder.filePath(name))) << name.toStdString();
}

}  // namespace
