#include <gtest/gtest.h>
#include <zip.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include "platform/archive/Archive.h"
#include "support/Printing.h"

using archive::Fault;

namespace {

constexpr qint64 noLimit = qint64{1} << 40;

class Archive : public testing::Test {
protected:
    QString at(const QString& name) const { return folder_.filePath("work/" + name); }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray bytes(const QString& name) const {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    /// An archive as another tool would write it, with these members.
    void zip(const QString& name, const std::vector<std::pair<QByteArray, QByteArray>>& members) const {
        zip_t* made = zip_open(QFile::encodeName(at(name)), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
        for (const auto& [member, content] : members)
            zip_file_add(made, member, zip_source_buffer(made, content.data(), size_t(content.size()), 0), 0);
        ASSERT_EQ(zip_close(made), 0);
    }
    QStringList files() const { return QDir(at(".")).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name); }

    void SetUp() override { ASSERT_TRUE(QDir(folder_.path()).mkdir("work")); }

    QTemporaryDir folder_;
    /// Compresses, but not to a block: long enough for several reads.
    const QByteArray content_ = [] {
        QByteArray text;
        for (int i = 0; text.size() < 700'000; ++i) text += QByteArray::number(i * 7919 % 100'003);
        return text;
    }();
};

TEST_F(Archive, HoldsTheFileUnderItsOwnNameForEveryTool) {
    write("Peña's league.kmr", content_);
    std::vector<int> packing;
    std::vector<int> comparing;
    const auto into = [](std::vector<int>& list) { return [&list](int percent) { list.push_back(percent); }; };
    ASSERT_EQ(archive::packAndCompare(at("Peña's league.kmr"), at("a.zip"), into(packing), into(comparing)),
              Fault::None);
    for (const std::vector<int>& percents : {packing, comparing}) {
        EXPECT_GE(percents.size(), 3u);
        EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
        EXPECT_EQ(percents.back(), 100);
    }
    const archive::Listing listing = archive::list(at("a.zip"));
    ASSERT_EQ(listing.members.size(), 1u);
    EXPECT_EQ(listing.members[0].name, QString("Peña's league.kmr"));
    EXPECT_EQ(listing.members[0].size, content_.size());
    EXPECT_LT(bytes("a.zip").size(), content_.size() / 2);

    ASSERT_EQ(archive::unpack(at("a.zip"), "PEÑA'S LEAGUE.KMR", at("out"), noLimit), Fault::NoMember)
        << "only plain letters have another case";
    ASSERT_EQ(archive::unpack(at("a.zip"), "Peña's LEAGUE.KMR", at("out"), noLimit), Fault::None);
    EXPECT_EQ(bytes("out"), content_);
    EXPECT_EQ(files(), (QStringList{"Peña's league.kmr", "a.zip", "out"}));

    QProcess other;
    other.start("python3", {"-c",
                            "import sys, zipfile; sys.stdout.buffer.write(zipfile.ZipFile(sys.argv[1]).read("
                            "\"Pe\\u00f1a's league.kmr\"))",
                            at("a.zip")});
    if (!other.waitForStarted()) GTEST_SKIP() << "no other reader of archives here";
    other.waitForFinished();
    EXPECT_EQ(other.readAllStandardOutput(), content_);
}

TEST_F(Archive, FailingToPackLeavesTheOlderArchive) {
    write("a.kmr", content_);
    write("old.zip", "older archive");
    EXPECT_EQ(archive::packAndCompare(at("none.kmr"), at("old.zip")), Fault::Missing);
    EXPECT_EQ(archive::packAndCompare(at("a.kmr"), at("a.kmr")), Fault::SameFile);
    EXPECT_EQ(archive::packAndCompare(at("a.kmr"), at("no folder/a.zip")), Fault::Unreachable);
    EXPECT_EQ(archive::packAndCompare(at("a.kmr"), "/proc/a.zip"), Fault::Unreachable);
    ASSERT_TRUE(QDir(at(".")).mkdir("folder.zip"));
    EXPECT_EQ(archive::packAndCompare(at("a.kmr"), at("folder.zip")), Fault::Unreachable);
    QFile changing(at("a.kmr"));
    ASSERT_TRUE(changing.open(QIODevice::ReadWrite));
    const auto change = [&](int percent) {
        if (percent == 100) changing.seek(5), changing.write("X"), changing.flush();
    };
    EXPECT_EQ(archive::packAndCompare(at("a.kmr"), at("old.zip"), change), Fault::Different);
    EXPECT_EQ(bytes("old.zip"), QByteArray("older archive"));
    EXPECT_EQ(files(), (QStringList{"a.kmr", "old.zip"}));
    ASSERT_EQ(archive::pack(at("a.kmr"), at("old.zip")), Fault::None);
    EXPECT_EQ(archive::compare(at("old.zip"), at("a.kmr")), Fault::None);
    changing.resize(changing.size() + 1);
    EXPECT_EQ(archive::compare(at("old.zip"), at("a.kmr")), Fault::Different) << "the file goes on behind the member";
}

TEST_F(Archive, TakesNothingOutOfABadOne) {
    zip("good.zip", {{"a.kmr", content_}});
    const QByteArray good = bytes("good.zip");
    write("empty", "");
    write("text", "no archive at all");
    write("cut", good.first(good.size() / 2));
    write("short", good.chopped(10));
    QByteArray changed = good;
    changed[good.size() / 2] = static_cast<char>(~changed[good.size() / 2]);
    write("changed", changed);
    zip("other", {{"b.kmr", content_}});
    zip("outside", {{"../a.kmr", content_}});
    zip("inside", {{"folder/a.kmr", content_}, {"/a.kmr", content_}});
    const QByteArray zeros(8 << 20, '\0');
    zip("bomb", {{"a.kmr", zeros}});
    // The directories of these lie about how long the member is.
    for (const auto& [name, size] : {std::pair<const char*, quint32>{"modest", 1000}, {"boastful", 3'000'000'000}}) {
        QByteArray lying = bytes("bomb");
        const auto say = [&](qsizetype header, int place) { qToLittleEndian(size, lying.data() + header + place); };
        say(lying.indexOf("PK\x03\x04"), 22);
        say(lying.indexOf("PK\x01\x02"), 24);
        write(name, lying);
    }
    struct Case {
        const char* name;
        Fault fault;
        qint64 limit = noLimit;
    };
    for (const Case& each :
         {Case{"none", Fault::Missing}, Case{"empty", Fault::NotAnArchive}, Case{"text", Fault::NotAnArchive},
          Case{"cut", Fault::NotAnArchive}, Case{"short", Fault::NotAnArchive}, Case{"changed", Fault::Damaged},
          Case{"other", Fault::NoMember}, Case{"outside", Fault::NoMember}, Case{"inside", Fault::NoMember},
          Case{"bomb", Fault::TooLarge, (8 << 20) - 1}, Case{"modest", Fault::Damaged},
          Case{"boastful", Fault::TooLarge, 2'000'000'000}}) {
        SCOPED_TRACE(each.name);
        write("target", "as it was");
        const QStringList before = files();
        EXPECT_EQ(archive::unpack(at(each.name), "a.kmr", at("target"), each.limit), each.fault);
        EXPECT_EQ(bytes("target"), QByteArray("as it was"));
        EXPECT_EQ(files(), before);
        EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList()) << "left its folder";
    }
}

}  // namespace
