#include "maintenance/merge/MergeFile.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/archive/Archive.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

/// The second file as another program left it or holds it.
class OtherProgram {
public:
    explicit OtherProgram(const QString& path) { sqlite3_open(QFile::encodeName(path).constData(), &handle_); }
    ~OtherProgram() { sqlite3_close(handle_); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    void run(const char* sql) {
        char* error = nullptr;
        EXPECT_EQ(sqlite3_exec(handle_, sql, nullptr, nullptr, &error), SQLITE_OK) << error;
    }

private:
    sqlite3* handle_ = nullptr;
};

/// Does it while another process is writing the file.
void whileWriting(const QString& path, const std::function<void()>& what) {
    int locked[2];
    int finished[2];
    ASSERT_TRUE(pipe(locked) == 0 && pipe(finished) == 0);
    char sign = 'x';
    const pid_t writer = fork();
    if (writer == 0) {
        close(finished[1]);
        OtherProgram other(path);
        other.run("BEGIN EXCLUSIVE");
        const bool met = write(locked[1], &sign, 1) == 1 && read(finished[0], &sign, 1) == 0;
        _exit(met ? 0 : 1);
    }
    EXPECT_EQ(read(locked[0], &sign, 1), 1);
    what();
    for (const int end : {locked[0], locked[1], finished[0], finished[1]}) close(end);
    int status = 1;
    EXPECT_EQ(waitpid(writer, &status, 0), writer);
    EXPECT_EQ(status, 0);
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;

class SecondFile : public testing::Test {
protected:
    SecondFile() { makeBaseFile(path); }
    MergeFile::Code code() { return MergeFile(local.context, path).code(); }
    ~SecondFile() override { EXPECT_EQ(copies(), QFileInfoList()) << "a copy of the league was left behind"; }
    QFileInfoList copies() const { return QDir(local.folder.path()).entryInfoList({"*~*"}, QDir::Files); }
    std::optional<datafile::Fault> fault() {
        try {
            code();
            return {};
        } catch (const datafile::Error& error) {
            return error.fault();
        }
    }

    LeagueFile local;
    const QString path = local.folder.filePath("second.kmr");
};

TEST_F(SecondFile, IsJudgedByItsVersionTablesAndColumns) {
    const struct {
        const char* change;
        MergeFile::Code code;
    } cases[] = {{"SELECT 1", MergeFile::Code::Fits},
                 {"UPDATE tblVersion SET DBVersion = 'Version 1.38'", MergeFile::Code::Fits},
                 {"UPDATE tblVersion SET DBVersion = 'Version 1.37'", MergeFile::Code::Older},
                 {"UPDATE tblVersion SET DBVersion = ''", MergeFile::Code::Older},
                 {"DELETE FROM tblVersion", MergeFile::Code::NotOurs},
                 {"DROP TABLE tblVersion", MergeFile::Code::NotOurs},
                 {"DROP TABLE tblShoeSize", MergeFile::Code::NotOurs},
                 {"ALTER TABLE tblTeam RENAME COLUMN TeamColors TO Colors", MergeFile::Code::NotOurs},
                 {"DROP TABLE tblSchedule", MergeFile::Code::Fits},  // is not merged
                 {"PRAGMA application_id = 7", MergeFile::Code::NotOurs}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.change);
        QFile::remove(path);
        makeBaseFile(path);
        OtherProgram(path).run(each.change);
        const QByteArray before = bytesOf(path);
        EXPECT_EQ(code(), each.code);
        EXPECT_EQ(bytesOf(path), before);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Dear Sirs,");
    file.close();
    EXPECT_EQ(code(), MergeFile::Code::NotOurs);
}

TEST_F(SecondFile, IsRefusedWhenMissingDamagedOrInUse) {
    whileWriting(path, [this] { EXPECT_EQ(fault(), datafile::Fault::Locked); });
    EXPECT_EQ(fault(), std::nullopt);
    QByteArray bytes = bytesOf(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.left(bytes.size() / 2));
    file.close();
    EXPECT_EQ(fault(), datafile::Fault::Damaged);
    bytes.replace(4096, 8000, QByteArray(8000, 'x'));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    EXPECT_EQ(fault(), datafile::Fault::Damaged);
    file.remove();
    EXPECT_EQ(fault(), datafile::Fault::NotFound);
}

/// A program that was ended while it saved leaves a journal, by which the next one takes back what was half saved.
TEST_F(SecondFile, JournalBesideItIsObeyedInTheCopyAlone) {
    const QString broken = local.folder.filePath("broken.kmr");
    OtherProgram other(path);
    other.run(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) INSERT INTO tblVendor "
        "(VendorName, VendorComments) SELECT 'Vendor ' || i, printf('%200d', i) FROM n");
    other.run("PRAGMA cache_size = 5; BEGIN; UPDATE tblVendor SET VendorName = 'half saved'");
    ASSERT_TRUE(QFile::copy(path, broken));
    ASSERT_TRUE(QFile::copy(path + "-journal", broken + "-journal"));
    other.run("ROLLBACK");

    const QByteArray before = bytesOf(broken);
    const QByteArray journal = bytesOf(broken + "-journal");
    ASSERT_TRUE(before.contains("half saved"));
    QFile::setPermissions(broken, QFile::ReadOwner | QFile::ReadOther);  // as on a medium that takes no writing
    const MergeFile file(local.context, broken);
    ASSERT_EQ(file.code(), MergeFile::Code::Fits);
    ASSERT_EQ(copies().size(), 1);
    EXPECT_TRUE(copies()[0].permission(QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_FALSE(copies()[0].permissions() & others);
    EXPECT_EQ(file.database().openRecordset("SELECT * FROM tblVendor WHERE VendorName = \"half saved\"").recordCount(),
              0);
    EXPECT_EQ(file.database().openRecordset("tblVendor").recordCount(), 3000);
    EXPECT_EQ(bytesOf(broken), before);
    EXPECT_EQ(bytesOf(broken + "-journal"), journal);
}

TEST_F(SecondFile, ComesOutOfABackup) {
    const QString zip = local.folder.filePath("backup.zip");
    const QString copy = local.folder.filePath("Merge File/Kestrelmoor.kmr");
    ASSERT_EQ(archive::pack(local.path(), zip), archive::Fault::None);
    for (const QString& stale : QStringList{copy, copy + "-journal"}) {
        QDir().mkpath(local.folder.filePath("Merge File"));
        QFile old(stale);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("of an earlier merge");
    }
    EXPECT_EQ(unpackForMerge(zip, copy), archive::Fault::None);
    EXPECT_EQ(bytesOf(copy), bytesOf(local.path()));
    EXPECT_FALSE(QFile::permissions(copy) & others);
    EXPECT_FALSE(QFile::exists(copy + "-journal"));

    ASSERT_EQ(archive::pack(path, zip), archive::Fault::None);  // holds "second.kmr"
    EXPECT_EQ(unpackForMerge(zip, copy), archive::Fault::NoMember);
    EXPECT_FALSE(QFile::exists(copy)) << "the one of the merge before would be merged again";
    EXPECT_EQ(unpackForMerge(path, copy), archive::Fault::NotAnArchive);
}

}  // namespace
