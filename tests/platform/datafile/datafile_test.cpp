#include "platform/datafile/DataFile.h"
#include "platform/datafile/Workspace.h"
#include "support/Printing.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace datafile;

namespace {

FieldDef key(const char* name) { return {.name = name, .type = ColumnType::AutoKey}; }
FieldDef text(const char* name, int size, bool required = false) {
    return {.name = name, .size = size, .required = required};
}
FieldDef column(const char* name, ColumnType type) { return {.name = name, .type = type}; }

class DataFileTest : public testing::Test {
protected:
    DataFileTest() : database(workspace.createDatabase(path())) {
        database.createTable(
            {.name = "tblDivision",
             .fields = {key("DivisionId"), text("DivName", 10, true), column("DeletedFlag", ColumnType::Boolean)},
             .indexes = {{"DivisionName", {"DivName"}}}});
        database.createTable(
            {.name = "tblPlayer",
             .fields = {key("PlayerId"), column("DivisionId", ColumnType::Long), text("LastName", 30),
                        text("FirstName", 30), column("BirthDate", ColumnType::Date),
                        column("Age", ColumnType::Integer), column("DeletedFlag", ColumnType::Boolean)},
             .indexes = {{"Name", {"LastName", "FirstName", "BirthDate", "DeletedFlag"}}}});
    }

    QString path() const { return folder.filePath("league.kmr"); }

    void addPlayer(const QString& last, const QString& first, QDate birth, int division = 1, bool deleted = false) {
        Recordset players = database.openRecordset("tblPlayer");
        players.addNew();
        players.set("LastName", last);
        players.set("FirstName", first);
        players.set("BirthDate", birth);
        players.set("DivisionId", division);
        players.set("DeletedFlag", deleted);
        players.update();
    }

    void addDivision(const QString& name) {
        Recordset divisions = database.openRecordset("tblDivision");
        divisions.addNew();
        divisions.set("DivName", name);
        divisions.update();
    }

    template <class Work>
    static Fault faultOf(Work work, QString* said = nullptr) {
        try {
            work();
        } catch (const Error& error) {
            if (said) *said = error.text();
            return error.fault();
        }
        ADD_FAILURE() << "nothing was raised";
        return Fault::State;
    }

    QTemporaryDir folder;
    Workspace workspace;
    Database database;
};

TEST_F(DataFileTest, CursorMovesFindsAndKeepsItsPlace) {
    for (const char* name : {"Minors", "Majors", "T-Ball"}) addDivision(name);
    Recordset divisions = database.openRecordset("SELECT * FROM tblDivision ORDER BY [DivName]");
    EXPECT_EQ(divisions.text("DivName"), "Majors");
    EXPECT_EQ(divisions.recordCount(), 3);
    divisions.moveLast();
    EXPECT_EQ(divisions.text("DivName"), "T-Ball");
    EXPECT_EQ(divisions.absolutePosition(), 2);
    divisions.moveNext();
    EXPECT_TRUE(divisions.eof());
    EXPECT_EQ(faultOf([&] { divisions.text("DivName"); }), Fault::NoCurrentRecord);
    divisions.movePrevious();
    divisions.movePrevious();
    EXPECT_EQ(divisions.text("DivName"), "Minors");

    divisions.findFirst("DeletedFlag = False AND DivName = \"t-BALL\"");
    EXPECT_FALSE(divisions.noMatch());
    EXPECT_EQ(divisions.absolutePosition(), 2);
    divisions.findFirst("DivName = \"Nobody\"");
    EXPECT_TRUE(divisions.noMatch());
    EXPECT_EQ(divisions.text("DivName"), "T-Ball") << "a miss leaves the current row";

    Recordset second = database.openRecordset("tblDivision");
    EXPECT_EQ(second.recordCount(), 3);
    divisions.moveFirst();
    divisions.remove();
    divisions.moveNext();
    EXPECT_EQ(divisions.text("DivName"), "Minors");
    EXPECT_EQ(divisions.recordCount(), 2);
}

TEST_F(DataFileTest, SnapshotStaysAsItWasAndCanBeSearched) {
    addDivision("Minors");
    addPlayer("Smith", "Zoe", QDate(2011, 12, 3));
    addPlayer("Smith", "Al", QDate(2012, 1, 1));
    Recordset joined = database.openRecordset(
        "SELECT tblPlayer.*, tblDivision.* FROM tblPlayer, tblDivision WHERE "
        "tblPlayer![DivisionId] = tblDivision![DivisionId] ORDER BY [FirstName]");
    database.execute("DELETE FROM tblPlayer");
    EXPECT_EQ(joined.recordCount(), 2);
    joined.findFirst("LastName = \"smith\" AND BirthDate = #12-3-2011#");
    ASSERT_FALSE(joined.noMatch());
    EXPECT_EQ(joined.text("FirstName"), "Zoe");
    EXPECT_EQ(joined.absolutePosition(), 1);
    joined.findFirst("FirstName = \"Bob\"");
    EXPECT_TRUE(joined.noMatch());
    EXPECT_EQ(joined.text("DivName"), "Minors");
    EXPECT_EQ(faultOf([&] { joined.edit(); }), Fault::State);
}

TEST_F(DataFileTest, EmptyTableHasNoCurrentRecord) {
    Recordset divisions = database.openRecordset("tblDivision");
    EXPECT_TRUE(divisions.bof() && divisions.eof());
    EXPECT_EQ(divisions.recordCount(), 0);
    EXPECT_EQ(faultOf([&] { divisions.moveNext(); }), Fault::NoCurrentRecord);
    EXPECT_EQ(faultOf([&] { divisions.edit(); }), Fault::NoCurrentRecord);
    divisions.findFirst("DivName = \"x\"");
    EXPECT_TRUE(divisions.noMatch());
}

TEST_F(DataFileTest, AddedRowIsCurrentByItsBookmarkAndOthersSeeItAfterRequery) {
    addDivision("A");
    Recordset one = database.openRecordset("tblDivision");
    Recordset other = database.openRecordset("tblDivision");
    other.moveLast();
    EXPECT_EQ(other.recordCount(), 1);
    one.addNew();
    one.set("DivName", QStringLiteral("B"));
    EXPECT_EQ(one.editMode(), Recordset::EditMode::Add);
    one.update();
    EXPECT_EQ(one.text("DivName"), "A");
    one.setBookmark(one.lastModified());
    EXPECT_EQ(one.text("DivName"), "B");
    EXPECT_EQ(other.recordCount(), 1);
    other.requery();
    EXPECT_EQ(other.recordCount(), 2);
    EXPECT_FALSE(one.flag("DeletedFlag")) << "a flag that nobody set is false";
}

TEST_F(DataFileTest, UpdateWritesOnlyWhatWasSet) {
    addPlayer("Peña", "Ana", QDate(2012, 4, 2));
    Recordset one = database.openRecordset("tblPlayer");
    Recordset other = database.openRecordset("tblPlayer");
    EXPECT_EQ(one.text("FirstName"), "Ana");
    other.edit();
    other.set("FirstName", QStringLiteral("Anna"));
    other.update();
    one.edit();
    one.set("LastName", QStringLiteral("Pena"));
    one.update();
    EXPECT_EQ(one.text("FirstName"), "Anna");
    EXPECT_EQ(one.date("BirthDate"), QDate(2012, 4, 2));
}

TEST_F(DataFileTest, WalkingManyRowsShowsWritesMadeMeanwhile) {
    for (int i = 0; i < 200; ++i) addPlayer(QStringLiteral("P%1").arg(i, 3, 10, QChar('0')), "x", QDate(2012, 1, 1));
    Recordset players = database.openRecordset("SELECT * FROM tblPlayer ORDER BY [LastName]");
    int changed = 0;
    for (int i = 0; !players.eof(); players.moveNext(), ++i) {
        EXPECT_EQ(players.text("LastName"), QStringLiteral("P%1").arg(i, 3, 10, QChar('0')));
        changed += players.text("FirstName") == u"y";
        if (i == 50) database.execute("UPDATE tblPlayer SET [FirstName] = \"y\"");
    }
    EXPECT_EQ(changed, 149);

    for (int walk = 0; walk < 3; ++walk) {
        players.moveFirst();
        for (int i = 0; i < 40; ++i, players.moveNext())
            ASSERT_EQ(players.text("LastName"), QStringLiteral("P%1").arg(i, 3, 10, QChar('0'))) << "walk " << walk;
    }
    database.execute("DELETE FROM tblPlayer WHERE [LastName] = \"P041\"");
    players.moveNext();
    EXPECT_EQ(faultOf([&] { players.text("LastName"); }), Fault::NoCurrentRecord);
    players.moveNext();
    EXPECT_EQ(players.text("LastName"), "P042");
}

TEST_F(DataFileTest, RulesOfColumnsAreErrorsThatNameTheColumn) {
    addDivision("A");
    const std::vector<std::tuple<const char*, const char*, Value, Fault>> cases{
        {"tblDivision", "DivName", QStringLiteral("12345678901"), Fault::TooLong},
        {"tblDivision", "DivName", Value{}, Fault::Required},
        {"tblPlayer", "Age", QStringLiteral("ten"), Fault::NotAllowed},
        {"tblPlayer", "Age", QStringLiteral("40000"), Fault::NotAllowed},
        {"tblPlayer", "BirthDate", QStringLiteral("soon"), Fault::NotAllowed}};
    for (const auto& [table, name, value, fault] : cases) {
        Recordset rows = database.openRecordset(table);
        QString said;
        EXPECT_EQ(faultOf(
                      [&, table = table, name = name, value = value] {
                          rows.addNew();
                          rows.set(name, value);
                          rows.update();
                      },
                      &said),
                  fault)
            << name;
        EXPECT_TRUE(said.contains(name)) << said.toStdString();
    }
    EXPECT_EQ(database.openRecordset("tblDivision").recordCount(), 1);
    database.createTable({.name = "tblTeamField",
                          .fields = {column("DivisionId", ColumnType::Long)},
                          .relations = {{"DivisionCheck", "tblDivision", "DivisionId", "tblTeamField", "DivisionId"}}});
    QString said;
    EXPECT_EQ(faultOf([&] { database.execute("INSERT INTO tblTeamField ([DivisionId]) VALUES (77)"); }, &said),
              Fault::Relation);
    EXPECT_TRUE(said.contains("tblTeamField.DivisionId")) << said.toStdString();
    database.execute("INSERT INTO tblTeamField ([DivisionId]) SELECT [DivisionId] FROM tblDivision");
    EXPECT_EQ(faultOf([&] { database.execute("DELETE FROM tblDivision"); }), Fault::Relation);
}

TEST_F(DataFileTest, ListsReadDisplayTextsFromTheIndexAlone) {
    addPlayer("Smith", "Zoe", QDate(2011, 12, 3));
    addPlayer("O\"Neil", "Bo", QDate(1999, 1, 20));
    addPlayer("Gone", "Al", QDate(2010, 1, 1), 1, true);
    const QString query =
        "SELECT *, ([LastName] & \", \" & [FirstName] & \" - \" & [BirthDate]) as Name FROM tblPlayer "
        "WHERE tblPlayer![DeletedFlag] = False ORDER BY [LastName], [FirstName], [BirthDate]";
    EXPECT_EQ(database.readList(query, "Name"),
              (std::vector<QString>{"O\"Neil, Bo - 1/20/1999", "Smith, Zoe - 12/3/2011"}));
    Recordset players = database.openRecordset("tblPlayer");
    players.findFirst("LastName = " + quoted(QStringLiteral("O\"Neil")) + " AND BirthDate = #1-20-99#");
    EXPECT_FALSE(players.noMatch());
}

TEST_F(DataFileTest, QueriesOrderAccentedNamesBesidePlainOnesAndTheFileStaysReadable) {
    for (const auto& [last, first] : {std::pair("Zwick", "Al"), {"Pena", "Zoe"}, {"Peña", "Al"}, {"Éclair", "Bo"}})
        addPlayer(last, first, QDate(2011, 1, 1));
    const QString byNames = " ORDER BY A![LastName] COLLATE Names, A.[FirstName]";
    for (const QString& from : {QString("tblPlayer AS A"), QString("tblPlayer AS A LEFT JOIN tblDivision AS B ON "
                                                                   "A.DivisionId = B.DivisionId")}) {
        Recordset rows = database.openRecordset("SELECT A.LastName, A.FirstName FROM " + from + byNames);
        QStringList names;
        for (; !rows.eof(); rows.moveNext()) names << rows.text("LastName");
        EXPECT_EQ(names, (QStringList{"Éclair", "Peña", "Pena", "Zwick"})) << from.toStdString();
    }
    QProcess tool;
    tool.start("sqlite3", {path(), "PRAGMA integrity_check; SELECT LastName FROM tblPlayer ORDER BY LastName LIMIT 1;"});
    ASSERT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.readAllStandardOutput(), "ok\nPena\n");
}

TEST_F(DataFileTest, DefinitionsChangeAndKeepRowsAndRules) {
    addDivision("A");
    database.addFields("tblDivision", {text("DivSport", 20), column("Umpires", ColumnType::Boolean)});
    FieldDef fee = text("Fee", 12);
    fee.hasDefault = true;
    fee.defaultValue = "$0.00";
    database.addFields("tblDivision", {fee});
    EXPECT_EQ(faultOf([&] { database.addFields("tblDivision", {fee}); }), Fault::Statement);
    Recordset old = database.openRecordset("tblDivision");
    EXPECT_TRUE(isNull(old.value("DivSport")));
    EXPECT_TRUE(isNull(old.value("Fee")));
    EXPECT_FALSE(old.flag("Umpires"));
    EXPECT_FALSE(isNull(old.value("Umpires")));
    addDivision("B");
    Recordset added = database.openRecordset("SELECT * FROM tblDivision ORDER BY [DivisionId]");
    added.moveLast();
    EXPECT_EQ(added.text("Fee"), "$0.00");
    EXPECT_EQ(added.number("DivisionId"), 2);

    database.execute("DELETE FROM tblDivision WHERE [DivisionId] = 2");
    TableDef wider = *database.table("tblDivision");
    wider.fields[1] = {.name = "DivName", .size = 40};
    database.changeTable(wider);
    Recordset third = database.openRecordset("tblDivision");
    third.addNew();
    third.set("DivName", QStringLiteral("C"));
    third.update();
    third.setBookmark(third.lastModified());
    EXPECT_EQ(third.number("DivisionId"), 3) << "a key was given out a second time";
    database.execute("UPDATE tblDivision SET [DivName] = \"a name of more than ten characters\"");
    const TableDef* table = database.table("TBLDIVISION");
    ASSERT_TRUE(table);
    EXPECT_EQ(table->field("divname")->size, 40);
    EXPECT_FALSE(table->field("DivName")->required);
    EXPECT_EQ(*table->field("Fee"), fee);
    EXPECT_EQ(table->indexes.size(), 1);
    database.deleteField("tblDivision", "DivSport");
    EXPECT_EQ(faultOf([&] { database.deleteField("tblDivision", "DivSport"); }), Fault::Statement);
    database.deleteIndex("tblDivision", "DivisionName");
    database.addIndex("tblDivision", {"PrimaryKey", {"DivName", "Fee"}, true, true});
    EXPECT_TRUE(database.table("tblDivision")->indexes.front().primary);
    EXPECT_EQ(faultOf([&] { addDivision("a name of more than ten characters"); }), Fault::Duplicate);
}

TEST_F(DataFileTest, TransactionIsAllOrNothing) {
    {
        Transaction transaction(database);
        addDivision("A");
    }
    EXPECT_EQ(database.openRecordset("tblDivision").recordCount(), 0);
    Transaction transaction(database);
    addDivision("B");
    {
        Transaction inner(database);
        addDivision("C");
        inner.commit();
    }
    transaction.commit();
    EXPECT_EQ(database.openRecordset("tblDivision").recordCount(), 2);
}

TEST_F(DataFileTest, CompactCopyAndReplaceReachOpenCursors) {
    addDivision("A");
    addDivision("B");
    Recordset divisions = database.openRecordset("SELECT * FROM tblDivision ORDER BY [DivName]");
    divisions.moveLast();
    const auto leaveJournal = [](const QString& beside) {
        QFile stale(beside + "-journal");
        return stale.open(QIODevice::WriteOnly) && stale.write("stale") == 5;
    };
    ASSERT_TRUE(leaveJournal(folder.filePath("copy.BKM")));
    workspace.copyDatabase(path(), folder.filePath("copy.BKM"));
    EXPECT_FALSE(QFile::exists(folder.filePath("copy.BKM-journal")));
    EXPECT_EQ(faultOf([&] { workspace.copyDatabase(path(), path()); }), Fault::InputOutput);
    ASSERT_TRUE(QFile::link(path(), folder.filePath("same.BKM")));
    EXPECT_EQ(faultOf([&] { workspace.copyDatabase(path(), folder.filePath("same.BKM")); }), Fault::InputOutput);
    database.execute("DELETE FROM tblDivision WHERE [DivName] = \"B\"");
    workspace.compactDatabase(path(), folder.filePath("small.CPT"));
    checkIntegrity(folder.filePath("small.CPT"));

    ASSERT_TRUE(leaveJournal(path()));
    workspace.replaceDatabase(path(), folder.filePath("copy.BKM"));
    EXPECT_EQ(divisions.text("DivName"), "B") << "the row of the same key in the file put back";
    EXPECT_EQ(divisions.recordCount(), 2);
    EXPECT_FALSE(QFile::exists(path() + "-journal"));
}

TEST_F(DataFileTest, CompactingTellsHowFarItHasCome) {
    constexpr int written = 30;
    addPlayer("Some name", "or other", QDate(2012, 1, 1));
    for (int doubled = 0; doubled < 18; ++doubled)
        database.execute("INSERT INTO tblPlayer ([LastName], [FirstName], [BirthDate]) SELECT [LastName], [FirstName], "
                         "[BirthDate] FROM tblPlayer");
    QList<int> told;
    workspace.compactDatabase(path(), folder.filePath("small.CPT"), [&told](int percent) {
        if (told.isEmpty() || percent != told.last()) told << percent;
    });
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end())) << "it never goes back";
    EXPECT_LT(told.first(), written);
    EXPECT_GT(told.last(), written) << "the check counts too";
    EXPECT_LE(told.last(), 100);
    EXPECT_GT(told.size(), 10);
}

TEST_F(DataFileTest, WhatIsNoGoodDataFileIsRefusedAndLeftAlone) {
    for (int i = 0; i < 300; ++i) addPlayer("Some name", "or other", QDate(2012, 1, 1));
    QFile good(path());
    ASSERT_TRUE(good.open(QIODevice::ReadOnly));
    const QByteArray whole = good.readAll();
    QByteArray foreign = whole;
    foreign[70] = 'x';
    const std::vector<std::tuple<const char*, QByteArray, Fault>> cases{
        {"empty", QByteArray(), Fault::NotADataFile},
        {"text", QByteArray("Dear coach,\n").repeated(40), Fault::NotADataFile},
        {"another program's", foreign, Fault::NotADataFile},
        {"cut in the header", whole.left(60), Fault::NotADataFile},
        {"cut", whole.left(whole.size() / 2), Fault::Damaged},
        {"scribbled over", whole.left(100) + QByteArray(whole.size() - 100, '\x55'), Fault::Damaged}};
    for (const auto& [name, bytes, fault] : cases) {
        const QString file = folder.filePath(QString::fromLatin1(name) + ".kmr");
        QFile written(file);
        ASSERT_TRUE(written.open(QIODevice::WriteOnly) && written.write(bytes) == bytes.size());
        written.close();
        EXPECT_EQ(faultOf([&] { workspace.openDatabase(file); }), fault) << name;
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        EXPECT_TRUE(written.readAll() == bytes) << name;
        EXPECT_FALSE(QFile::exists(file + "-journal")) << name;
    }
    EXPECT_EQ(faultOf([&] { workspace.openDatabase(folder.filePath("none.kmr")); }), Fault::NotFound);
    EXPECT_EQ(faultOf([&] { workspace.openDatabase(folder.path()); }), Fault::ReadOnly);
}

TEST_F(DataFileTest, FileThatCannotBeWrittenIsRefused) {
    const QString locked = folder.filePath("locked.kmr");
    workspace.copyDatabase(path(), locked);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(locked), 0444), 0);
    const bool asRoot = ::geteuid() == 0;
    ASSERT_EQ(::seteuid(asRoot ? 65534 : ::geteuid()), 0);
    const Fault fault = faultOf([&] { Workspace().openDatabase(locked); });
    ASSERT_EQ(::seteuid(asRoot ? 0 : ::geteuid()), 0);
    EXPECT_EQ(fault, Fault::ReadOnly);
}

TEST_F(DataFileTest, FileHeldByAnotherProcessIsLocked) {
    addDivision("A");
    QProcess other;
    other.start("sqlite3", {path()});
    ASSERT_TRUE(other.waitForStarted());
    other.write("BEGIN EXCLUSIVE; SELECT 'held';\n");
    ASSERT_TRUE(other.waitForReadyRead());
    QString said;
    EXPECT_EQ(faultOf([&] { addDivision("B"); }, &said), Fault::Locked);
    EXPECT_TRUE(said.contains("in use")) << said.toStdString();
    other.write("ROLLBACK;\n.quit\n");
    ASSERT_TRUE(other.waitForFinished());
    addDivision("B");
    EXPECT_EQ(database.openRecordset("tblDivision").recordCount(), 2);
}

}  // namespace
