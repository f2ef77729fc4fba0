#include "platform/datafile/DataFile.h"
#include "store/CorrectVersion.h"
#include "store/Schema.h"
#include "support/LeagueFile.h"
#include "support/OlderFile.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace datafile;

namespace {

constexpr char nothing[] = "(nothing)";

/// A league at an older version, in the folder that is current while the test runs.
class OlderLeague : public LeagueFile {
public:
    explicit OlderLeague(int version) {
        QDir::setCurrent(folder.path());
        EXPECT_TRUE(QFile::remove(path()));
        olderfile::make(path(), version);
    }
    ~OlderLeague() { QDir::setCurrent(QStringLiteral("/")); }

    QByteArray bytes() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

QList<IndexDef> sorted(QList<IndexDef> indexes) {
    std::sort(indexes.begin(), indexes.end(), [](const IndexDef& a, const IndexDef& b) { return a.name < b.name; });
    return indexes;
}

void expectSchemaOfNewFile(const Database& database) {
    EXPECT_EQ(database.tableNames().size(), schema::tables().size());
    for (const TableDef& end : schema::tables()) {
        SCOPED_TRACE(end.name.toStdString());
        const TableDef* table = database.table(end.name);
        ASSERT_TRUE(table);
        QStringList own;
        for (const FieldDef& field : table->fields.mid(end.fields.size())) own << field.name;
        EXPECT_TRUE(own.isEmpty() || own == QStringList{"Remarks"}) << own.join(' ').toStdString();
        for (int i = 0; i < end.fields.size(); ++i)
            EXPECT_TRUE(table->fields[i] == end.fields[i]) << end.fields[i].name.toStdString();
        EXPECT_TRUE(sorted(table->indexes) == sorted(end.indexes));
        EXPECT_TRUE(table->relations == end.relations);
    }
}

/// The rows of a lookup, without the stamps that a newer file's rows have and an older one's lack.
QStringList rowsOf(const Database& database, const QString& table) {
    QStringList list;
    Recordset rows = database.openRecordset(table);
    for (; !rows.eof(); rows.moveNext())
        list << toText(rows.value(0)) + '|' + (rows.fieldCount() > 1 ? toText(rows.value(1)) : QString());
    list.sort();
    return list;
}

/// What a planted value has become: the first entry whose version is not below that of the file, or else `later`.
struct Expected {
    const char* table;
    const char* criteria;
    const char* column;
    std::vector<std::pair<int, const char*>> until;
    const char* later;
};

const std::vector<Expected> expectations{
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerPostalCode", {{17, "12345-6789"}}, ""},
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerZipCode", {{17, ""}}, "12345"},
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerZipCode4", {{17, ""}}, "6789"},
    {"tblRegistration", "[PlayerLastName] = \"Birch\"", "PlayerPostalCode", {{17, "90210"}}, ""},
    {"tblRegistration", "[PlayerLastName] = \"Daphne\"", "PlayerPostalCode", {{17, "-6789"}}, ""},
    {"tblVolunteer", "[VolLastName] = \"Vine\"", "VolPostalCode", {{17, "12345-6789"}}, ""},
    {"tblField", "[FieldName] = \"Oak\"", "FieldPostalCode", {{17, "12345-6789"}}, ""},
    {"tblSponsor", "[SponsorName] = \"Baker\"", "SponsorPostalCode", {{17, "12345-6789"}}, ""},
    {"tblVendor", "[VendorName] = \"Bats & Co\"", "VendorPostalCode", {{17, "12345"}}, ""},
    {"tblInsurance", "[InsAgencyName] = \"Safe\"", "InsPostalCode", {{17, "12345"}}, ""},
    {"tblOptions", "[OptionId] = 1", "PostalCode", {{17, "12345"}}, ""},
    {"tblOptions", "[OptionId] = 1", "ZipCode", {{17, ""}}, "12345"},
    {"tblOptions", "[OptionId] = 1", "CurrentSeasonYear", {{0, "2000"}}, "2001"},
    {"tblDefaults", "[DefaultsId] = 1", "DefaultPostalCode", {{19, "12345"}}, ""},
    {"tblDefaults", "[DefaultsId] = 1", "DefaultZipCode", {{19, ""}}, "12345"},
    {"tblDefaults", "[DefaultsId] = 1", "DefaultDateFormat", {{36, nothing}}, "MM/dd/yy"},
    {"tblDivision", "[DivName] = \"Minors\"", "DivAgeCutOffMonth", {{17, "1"}}, "8"},
    {"tblDivision", "[DivName] = \"Minors\"", "DivRegistrationFee", {{17, nothing}}, "$0.00"},
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerAmountPaid", {{8, "40.00"}}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerSchoolName", {{6, ""}}, "Oak School"},
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerGender", {{31, "Male"}}, "m"},
    {"tblRegistration", "[PlayerLastName] = \"Birch\"", "PlayerGender", {{31, "Female"}}, "F"},
    {"tblRegistration", "[PlayerLastName] = \"Cedar\"", "PlayerGender", {{31, ""}}, "X"},
    {"tblRegistration", "[PlayerLastName] = \"Daphne\"", "PlayerGender", {}, "Female"},
    {"tblRegistration", "[PlayerLastName] = \"Ash\"", "PlayerAge", {{0, "9"}, {17, "10"}, {33, "11"}}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Birch\"", "PlayerAge", {{0, "9"}, {17, "10"}, {33, "11"}}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Cedar\"", "PlayerAge", {{0, "9"}, {33, "10"}}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Daphne\"", "PlayerAge", {}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Elm\"", "PlayerAge", {{0, "9"}, {33, "10"}}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Elm\"", "PlayerCustomField1", {{20, nothing}}, ""},
    {"tblRegistration", "[PlayerLastName] = \"Elm\"", "PlayerSchoolName", {}, ""},
    {"tblRegistration", "[PlayerLastName] = \"Elm\"", "PlayerHandLeft", {}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Elm\"", "DeletedFlag", {}, "0"},
    {"tblRegistration", "[PlayerLastName] = \"Elm\"", "TimeStamp", {{14, nothing}}, "0"},
    {"tblVolunteer", "[VolLastName] = \"Vine\"", "VolWorkPhone", {{13, ""}}, "   -    "},
    {"tblVolunteer", "[VolLastName] = \"Vine\"", "VolFaxPhone", {{13, ""}}, "   -    "},
    {"tblVolunteer", "[VolLastName] = \"Willow\"", "VolHomePhone", {}, "   -    "},
    {"tblVolunteer", "[VolLastName] = \"Willow\"", "VolWorkPhone", {}, "555-9876"},
    {"tblSchedule", "[division] = \"Minors\"", "HomeTeam", {{3, nothing}}, "Owls"},
    {"tblSchedule", "[division] = \"Minors\"", "Field", {{3, nothing}}, "Oak"},
    {"tblSponsorPreviousPledge", "[SponsorId] = 1", "PreviousPledgeAmount", {}, "5"},
    {"tblTeamVolunteer", "[TeamId] = 1", "VolPosName", {}, "Coach"},
};

void expectRowsToBeAsTold(const Database& database, int version) {
    for (const Expected& expected : expectations) {
        SCOPED_TRACE(testing::Message() << expected.table << ' ' << expected.criteria << ' ' << expected.column);
        const char* value = expected.later;
        for (auto entry = expected.until.rbegin(); entry != expected.until.rend(); ++entry)
            if (version <= entry->first) value = entry->second;
        Recordset row =
            database.openRecordset(QString("SELECT * FROM %1 WHERE %2").arg(expected.table, expected.criteria));
        ASSERT_FALSE(row.eof());
        EXPECT_EQ(isNull(row.value(expected.column)) ? nothing : row.text(expected.column), value);
    }
    EXPECT_EQ(database.openRecordset("tblTeamField").recordCount(), version <= 4 ? 0 : 1);
    EXPECT_EQ(database.openRecordset("tblTempResults").recordCount(), 0);
    EXPECT_EQ(database.openRecordset("tblVersion").recordCount(), 1);
    EXPECT_EQ(database.openRecordset("tblVersion").text("DBVersion"), "Version 1.39");
}

class EveryVersion : public testing::TestWithParam<int> {};

TEST_P(EveryVersion, BecomesWhatANewFileIsAndKeepsItsRows) {
    OlderLeague league(GetParam());
    LeagueFile fresh;
    ASSERT_TRUE(CorrectVersion(league.context));
    expectSchemaOfNewFile(league.database());
    expectRowsToBeAsTold(league.database(), GetParam());
    for (const char* lookup : {"tblState", "tblSport", "tblOfficialDivisionNames"})
        EXPECT_EQ(rowsOf(league.database(), lookup), rowsOf(fresh.database(), lookup)) << lookup;
    checkIntegrity(league.path());
    checkIntegrity(league.folder.filePath("Kestrelmoor.BKM"));
    EXPECT_EQ(QDir(league.folder.path()).entryList(QDir::Files), (QStringList{"Kestrelmoor.BKM", "Kestrelmoor.kmr"}));

    const QByteArray before = league.bytes();
    EXPECT_TRUE(CorrectVersion(league.context));
    EXPECT_EQ(league.bytes(), before) << "a second start changed the file";
}

INSTANTIATE_TEST_SUITE_P(All, EveryVersion, testing::Range(-1, 39));

TEST(UpgradeTest, StepThatMeetsWhatItWouldCreateEndsAndTheChainGoesOn) {
    OlderLeague league(17);
    const Database database = league.database();
    database.execute("INSERT INTO tblState ([StateId], [StateName]) VALUES (\"ON\", \"Ontario\")");
    database.addFields("tblRegistration", {{.name = "PlayerHandLeft", .type = ColumnType::Text, .size = 5}});
    database.createTable({"tblSport", {{.name = "SportName", .size = 20}}});
    database.execute("INSERT INTO tblSport VALUES (\"Curling\")");
    database.execute("UPDATE tblRegistration SET [PlayerHandLeft] = \"0\"");
    ASSERT_TRUE(CorrectVersion(league.context));
    expectSchemaOfNewFile(database);
    EXPECT_EQ(league.value("tblSport", "SportName"), "Curling");
    EXPECT_EQ(league.count("tblSport"), 1) << "the step went on behind what failed";
    EXPECT_EQ(league.count("tblState"), 51 + 1 + 5) << "what a step did before it failed stays";
    EXPECT_EQ(league.value("SELECT * FROM tblRegistration WHERE [PlayerLastName] = \"Ash\"", "PlayerGender"), "Male");
}

/// As after a crash behind any step: all that ran is there, and the version still says the old one.
TEST(UpgradeTest, ChainThatBeginsAgainEndsAsOneThatRanThrough) {
    OlderLeague league(8);
    ASSERT_TRUE(CorrectVersion(league.context));
    league.database().execute("UPDATE tblVersion SET [DBVersion] = \"Version 1.8\"");
    league.database().execute("UPDATE tblRegistration SET [PlayerAmountPaid] = \"1\", [PlayerPostalCode] = \"2\"");
    ASSERT_TRUE(CorrectVersion(league.context));
    expectSchemaOfNewFile(league.database());
    EXPECT_EQ(league.value("tblRegistration", "PlayerAmountPaid"), "1");
    EXPECT_EQ(league.value("tblRegistration", "PlayerPostalCode"), "2");
    EXPECT_EQ(league.count("tblSport"), 5);
}

TEST(UpgradeTest, TableWhoseRowsBreakANewRuleIsKept) {
    OlderLeague league(20);
    const Database database = league.database();
    TableDef wide = *database.table("tblSponsor");
    for (FieldDef& field : wide.fields) field.size = field.type == ColumnType::Text ? 200 : 0;
    database.changeTable(wide);
    database.execute("UPDATE tblSponsor SET [SponsorName] = \"" + QString(120, 'n') + "\"");
    ASSERT_TRUE(CorrectVersion(league.context));
    EXPECT_EQ(league.value("tblSponsor", "SponsorName"), QString(120, 'n'));
    EXPECT_EQ(league.value("tblVersion", "DBVersion"), "Version 1.39");
}

TEST(UpgradeTest, FileThatCannotBeOpenedIsReported) {
    OlderLeague league(38);
    ASSERT_TRUE(QFile::remove(league.path()));
    league.dialogs.expectError("Kestrelmoor");
    EXPECT_FALSE(CorrectVersion(league.context));
    EXPECT_TRUE(QFile::exists("Journal.Dat"));
}

TEST(UpgradeTest, CompactThatFailsIsReportedAndTheNextStartPasses) {
    OlderLeague league(38);
    ASSERT_TRUE(QDir(league.folder.path()).mkpath("Kestrelmoor.CPT/in the way"));
    league.dialogs.expectError("Kestrelmoor");
    EXPECT_FALSE(CorrectVersion(league.context));
    EXPECT_TRUE(CorrectVersion(league.context));
    EXPECT_EQ(league.value("tblVersion", "DBVersion"), "Version 1.39");
}

}  // namespace
