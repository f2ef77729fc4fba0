#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "maintenance/work/Backup.h"
#include "maintenance/work/Codes.h"
#include "platform/datafile/DataFile.h"
#include "store/CorrectVersion.h"
#include "store/Housekeeping.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

constexpr int wholeNumbers = 100;

class Backup : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(folder.path()).mkdir("home"));
        league.database().execute("INSERT INTO tblSchoolInfo ([SchoolName]) VALUES (\"Elm\")");
    }
    QString at(const QString& name) const { return folder.filePath(name); }
    static QByteArray bytes(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void renameSchool(const QString& name) {
        league.database().execute("UPDATE tblSchoolInfo SET [SchoolName] = " + datafile::quoted(name));
    }
    QString school() { return league.value("tblSchoolInfo", "SchoolName"); }
    int backUpTo(const QString& archive) { return backUp(league.context, archive, {}, {}); }
    int restoreFrom(const QString& archive) { return restore(league.context, archive, home, {}); }
    QStringList filesIn(const QString& folderPath) const {
        return QDir(folderPath).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    LeagueFile league;
    QTemporaryDir folder;
    QString home = league.folder.path();
};

TEST_F(Backup, IsNeverTheDataFileOrItsSafetyCopy) {
    write(safetyCopyPath(league.context), "copy");
    const QByteArray data = bytes(league.path());
    for (const QString& target : {league.path(), safetyCopyPath(league.context)}) EXPECT_EQ(backUpTo(target), 9);
    ASSERT_TRUE(QFile::link(league.path(), at("link.zip")));
    EXPECT_EQ(backUpTo(at("link.zip")), 9);
    EXPECT_EQ(backUpTo(at("no folder/a.zip")), 10);
    EXPECT_EQ(bytes(league.path()), data);
    EXPECT_EQ(bytes(safetyCopyPath(league.context)), QByteArray("copy"));
}

TEST_F(Backup, ComesBackUnderOpenHandlesAndBesideStaleJournals) {
    ASSERT_EQ(backUpTo(at("a.zip")), 0);
    const datafile::Database database = league.database();
    datafile::Recordset open = database.openRecordset("tblSchoolInfo");
    renameSchool("Oak");
    EXPECT_EQ(open.text("SchoolName"), QString("Oak"));
    const QByteArray now = bytes(league.path());
    write(league.path() + "-wal", "of another file");
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(league.path(), permissions | QFile::ReadGroup));
    int told = 0;
    EXPECT_EQ(restore(league.context, at("a.zip"), home, [&](int percent) { told = percent; }), 0);
    EXPECT_EQ(told, wholeNumbers);
    EXPECT_EQ(QFile::permissions(league.path()), permissions | QFile::ReadGroup);
    EXPECT_EQ(open.text("SchoolName"), QString("Elm"));
    EXPECT_EQ(bytes(safetyCopyPath(league.context)), now);
    EXPECT_EQ(filesIn(home), (QStringList{"Kestrelmoor.BKM", "Kestrelmoor.kmr"}));
    datafile::checkIntegrity(league.path());
}

/// The archive goes into the home folder and to the data file, under whichever name that has.
TEST_F(Backup, FindsADataFileElsewhereAndByItsOwnName) {
    home = at("home");
    ASSERT_EQ(backUpTo(at("a.zip")), 0);
    renameSchool("Oak");
    EXPECT_EQ(restoreFrom(at("a.zip")), 0);
    EXPECT_EQ(school(), QString("Elm"));
    EXPECT_EQ(bytes(at("home/Kestrelmoor.kmr")), bytes(league.path()));
    EXPECT_EQ(filesIn(home), QStringList{"Kestrelmoor.kmr"});

    ASSERT_TRUE(QFile::copy(league.path(), at("League of Elm.kmr")));
    league.context.dataFilePath = at("League of Elm.kmr");
    ASSERT_EQ(backUpTo(at("own.zip")), 0);
    write(league.context.dataFilePath, "damaged beyond recognition");
    ASSERT_EQ(restoreFrom(at("own.zip")), 0);
    datafile::checkIntegrity(league.context.dataFilePath);
    EXPECT_EQ(bytes(at("League of Elm.BKM")), QByteArray("damaged beyond recognition"));
    ASSERT_TRUE(QFile::remove(league.context.dataFilePath));
    EXPECT_EQ(restoreFrom(at("own.zip")), 0) << "a file that is gone comes back";
    datafile::checkIntegrity(league.context.dataFilePath);
}

TEST_F(Backup, BadArchiveLeavesAllAsItWas) {
    ASSERT_EQ(backUpTo(at("good.zip")), 0);
    const QByteArray good = bytes(at("good.zip"));
    write(at("cut.zip"), good.chopped(good.size() / 3));
    const auto pack = [&](const char* archive, const char* name, const QByteArray& content) {
        write(at(name), content);
        ASSERT_EQ(archive::pack(at(name), at(archive)), archive::Fault::None);
    };
    pack("other.zip", "other.txt", "no league");
    pack("text.zip", "Kestrelmoor.kmr", "no league");
    QByteArray damaged = bytes(league.path());
    damaged.replace(damaged.size() / 2, 20'000, QByteArray(20'000, 'x'));
    pack("damaged.zip", "Kestrelmoor.kmr", damaged);
    QFile::remove(at("Kestrelmoor.kmr"));
    {
        datafile::Workspace workspace;
        workspace.createDatabase(at("Kestrelmoor.kmr"));
    }
    ASSERT_EQ(archive::pack(at("Kestrelmoor.kmr"), at("bare.zip")), archive::Fault::None);
    const QByteArray before = bytes(league.path());
    for (const auto& [name, code] : {std::pair("none.zip", 9),
                                     {"cut.zip", 39},
                                     {"other.zip", 9},
                                     {"text.zip", 44},
                                     {"damaged.zip", 45},
                                     {"bare.zip", 44},
                                     {"good.zip", 10}}) {
        SCOPED_TRACE(name);
        home = code == 10 ? at("no such folder") : league.folder.path();
        EXPECT_EQ(restoreFrom(at(name)), code);
        EXPECT_EQ(bytes(league.path()), before);
        EXPECT_EQ(bytes(safetyCopyPath(league.context)), before);
        EXPECT_EQ(filesIn(league.folder.path()), (QStringList{"Kestrelmoor.BKM", "Kestrelmoor.kmr"}));
        EXPECT_EQ(school(), QString("Elm"));
    }
}

/// What a code stands for, and that it is said.
TEST_F(Backup, EveryCodeHasItsBox) {
    struct Class {
        QString title;
        QString begins;
        QList<int> codes;
    };
    const auto check = [](ResultBox (*result)(int), const std::vector<Class>& classes) {
        for (int code = 0; code <= wholeNumbers; ++code) {
            const auto found = std::find_if(classes.begin(), classes.end() - 1,
                                            [code](const Class& each) { return each.codes.contains(code); });
            EXPECT_EQ(result(code).title, found->title) << code;
            EXPECT_TRUE(result(code).text.startsWith(QString(found->begins).replace("%1", QString::number(code))))
                << code;
            EXPECT_EQ(result(code).kind, code == 0 ? BoxKind::Information : BoxKind::Error);
        }
    };
    check(backupResult, {{"Backup Complete", "Backup Operation Complete!", {0}},
                         {"Backup Error", "Backup Error %1: An Error", {1, 2, 3, 6, 7, 8, 9, 11, 12, 13, 17, 19}},
                         {"Backup Error", "Backup Error: Out of Memory.", {4}},
                         {"Backup Error", "Backup Error: Please make sure", {10, 15}},
                         {"Backup Write Failure", "Backup Error %1: Insufficient", {14, 18}},
                         {"Backup Error", "Backup Error %1: Please report this", {}}});
    check(restoreResult, {{"Restore Complete", "Restore Operation Complete!", {0}},
                          {"Restore Error", "Restore Error %1: An Error", {2, 3, 11, 12, 47}},
                          {"Restore Error", "Restore Error: Out of Memory.", {4, 5}},
                          {"Restore File Not Found", "Restore Error %1: File Not Found.", {9}},
                          {"Restore Error", "Restore Error: Please make sure", {10, 29}},
                          {"Restore Error", "Restore Error %1: The file you", {39, 41, 42, 44, 45, 46}},
                          {"Restore Destination Full", "Restore Error %1: The destination", {50}},
                          {"Restore Error", "Restore Error %1: Please report this", {}}});
    EXPECT_EQ(backupCode(archive::Fault::Full), 14);
    EXPECT_EQ(restoreCode(archive::Fault::Full), 50);
    EXPECT_EQ(restoreCode(archive::Fault::TooLarge), 42);
}

TEST_F(Backup, PurgeTellsWhatStayedAndGoesOn) {
    league.database().execute("INSERT INTO tblField ([FieldId], [DeletedFlag]) VALUES (1, True)");
    league.database().execute("INSERT INTO tblDivision ([DivisionId], [DivName]) VALUES (1, \"A\")");
    league.database().execute("INSERT INTO tblTeamField ([FieldId], [DivisionId]) VALUES (1, 1)");
    league.database().execute("INSERT INTO tblVendor ([DeletedFlag]) VALUES (True)");
    const QStringList failures = purgeDeletedRows(league.context);
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].startsWith("tblField: ")) << failures[0].toStdString();
    EXPECT_EQ(league.count("SELECT * FROM tblVendor WHERE [DeletedFlag] = True"), 0);
    league.database().execute("DELETE FROM tblTeamField WHERE True");
    EXPECT_EQ(purgeDeletedRows(league.context), QStringList());
    league.database().execute("INSERT INTO tblTempResults ([TeamId]) VALUES (1)");
    compactWithoutWorkTables(league.context);
    EXPECT_EQ(league.count("tblTempResults"), 0);
}

}  // namespace
