#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>

#include "merge/MergeInto.h"
#include "merge/PlainMerge.h"
#include "sample_league/SampleLeague.h"
#include "support/Printing.h"
#include "support/QuietDialogs.h"

// Two officers work on copies of one league, each at random. One merges the other's file, then the other way round;
// each time every row is compared with what the rules say, told a second time and plainly (PlainMerge.h).

namespace {

struct Edited {
    const char* table;
    std::vector<const char*> names{};       ///< texts that a row is recognised by
    std::vector<const char*> references{};  ///< columns and, behind each, the table and column that it leads to
};

const std::vector<Edited> editedTables{
    {"tblSponsor", {"SponsorName"}},
    {"tblSponsorPreviousPledge", {"PreviousPledgeYear"}, {"SponsorId", "tblSponsor", "SponsorId"}},
    {"tblDivision", {"DivName", "DivAgeCutOffMonth"}},
    {"tblTeam", {"TeamName"}, {"DivisionId", "tblDivision", "DivisionId", "SponsorId", "tblSponsor", "SponsorId"}},
    {"tblRegistration",
     {"PlayerLastName", "PlayerFirstName", "PlayerBirthDate"},
     {"PlayerDivisionId", "tblDivision", "DivisionId", "PlayerTeamId", "tblTeam", "TeamId"}},
    {"tblVolunteer", {"VolLastName", "VolFirstName", "VolHomePhone"}},
    {"tblAbilityRating", {}, {"PlayerId", "tblRegistration", "PlayerId"}},
    {"tblCertifications", {"CertificationName", "CertifyingOrganization"}},
    {"tblDifficultyRating", {"DifficultyRatingText"}},
    {"tblInsurance", {"InsAgencyName"}},
    {"tblVendor", {"VendorName"}},
    {"tblEquipment",
     {"ItemName", "Description"},
     {"VendorId", "tblVendor", "VendorId", "InsuranceId", "tblInsurance", "InsId"}},
    {"tblEquipmentAssignment",
     {"DistributionQuantity"},
     {"DivisionId", "tblDivision", "DivisionId", "TeamId", "tblTeam", "TeamId", "PlayerId", "tblRegistration",
      "PlayerId", "VolId", "tblVolunteer", "VolId", "EquipmentId", "tblEquipment", "EquipId"}},
    {"tblField", {"FieldName"}},
    {"tblHatSize", {"HatSizeText"}},
    {"tblPantSize", {"PantSizeText", "PantSize"}},
    {"tblShirtSize", {"ShirtSizeText"}},
    {"tblShoeSize", {"ShoeSizeText"}},
    {"tblSocksSize", {"SocksSizeText"}},
    {"tblRating", {"RatingText"}},
    {"tblResults",
     {"GameTime", "GameDate"},
     {"DivisionId", "tblDivision", "DivisionId", "HomeTeamId", "tblTeam", "TeamId", "VisitorTeamId", "tblTeam",
      "TeamId"}},
    {"tblSchoolInfo", {"SchoolName"}},
    {"tblTeamField"},
    {"tblRegistrationVolunteer",
     {"VolGender"},
     {"VolId", "tblVolunteer", "VolId", "PlayerId", "tblRegistration", "PlayerId"}},
    {"tblTeamVolunteer",
     {"VolPosName"},
     {"VolId", "tblVolunteer", "VolId", "DivisionId", "tblDivision", "DivisionId", "TeamId", "tblTeam", "TeamId"}},
    {"tblVolunteerPositions", {"VolPosName"}},
    {"tblVolToPosition",
     {},
     {"VolId", "tblVolunteer", "VolId", "PlayerId", "tblRegistration", "PlayerId", "VolPosId", "tblVolunteerPositions",
      "VolPosId"}},
    {"tblVolunteerCertifications",
     {},
     {"VolId", "tblVolunteer", "VolId", "CertificationId", "tblCertifications", "CertificationId"}},
};

/// Somebody at work on a data file: adds, edits, deletes, renames and moves rows, and leaves the odd gap. One who is
/// careless also gives a row the name that another one has.
class Officer {
    size_t upTo(size_t most) { return std::uniform_int_distribution<size_t>(0, most)(chance_); }
    template <class List>
    const auto& pick(const List& list) {
        return list[upTo(list.size() - 1)];
    }

public:
    Officer(datafile::Database database, unsigned seed, bool careless)
        : database_(std::move(database)), chance_(seed), seed_(seed), careless_(careless) {}

    void work(int edits) {
        datafile::Transaction transaction(database_);
        for (int i = 0; i < edits; ++i) edit(pick(editedTables));
        transaction.commit();
    }

private:
    void run(const QString& sql) { database_.prepare(sql).run(); }

    qint64 anyRow(const QString& table) {
        std::vector<qint64> rows;
        datafile::Statement statement = database_.prepare("SELECT rowid FROM " + table + " ORDER BY rowid");
        while (statement.step()) rows.push_back(statement.number(0));
        return rows.empty() ? 0 : pick(rows);
    }

    void set(const Edited& edited, const char* column, const QString& value, qint64 row) {
        run(QString("UPDATE OR IGNORE %1 SET \"%2\" = %3 WHERE rowid = %4").arg(edited.table, column, value).arg(row));
    }

    /// A new name, often one that another row has, in capitals or not, or one that makes a key hard to read.
    QString name(const Edited& edited, const char* column) {
        if (!careless_) {
            ++names_;
            return QLatin1String(column) == u"GameTime"
                       ? QString("'%1:%2:00'").arg(names_ / 60, 2, 10, QChar('0')).arg(names_ % 60, 2, 10, QChar('0'))
                       : QString("'%1-%2'").arg(seed_).arg(names_);
        }
        if (QLatin1String(column) == u"PlayerBirthDate" || QLatin1String(column) == u"GameDate")
            return upTo(9) == 0 ? "'some day'" : QString("date('2014-05-01', '%1 days')").arg(upTo(3));
        if (QLatin1String(column) == u"GameTime") return upTo(9) == 0 ? "'late'" : QString("'1%1:30:00'").arg(upTo(2));
        const QString other = QString("(SELECT %1(\"%2\") FROM %3 WHERE rowid = %4)")
                                  .arg(pick(std::vector<QString>{"lower", "upper", "trim"}), column, edited.table)
                                  .arg(anyRow(edited.table));
        const std::vector<QString> names{
            other, other, "'Name " + QString::number(upTo(9)) + "'", "'A, B'", "'A - 5/5/2012'", "'Half-Time'"};
        return pick(names);
    }

    void edit(const Edited& edited) {
        qint64 row = anyRow(edited.table);
        if (row == 0) return;
        const size_t kind = upTo(11);
        if (kind <= 2 && (careless_ || !edited.names.empty())) row = copy(edited, row);
        if (kind <= 4 && !edited.names.empty()) {
            const char* column = careless_ ? pick(edited.names) : edited.names.front();
            set(edited, column, name(edited, column), row);
        } else if (kind == 5 || kind == 6) {
            set(edited, "DeletedFlag", kind == 5 ? "1" : "0", row);
        } else if (kind == 7 || kind == 8 || kind <= 2) {
            changeReference(edited, row);
        } else if (kind == 9) {
            leaveGap(edited, row);
        }
        stamp(edited, row);
        if (kind == 10) set(edited, "DateStamp", "NULL", row);
        if (kind == 11) set(edited, "TimeStamp", "NULL", row);
    }

    void stamp(const Edited& edited, qint64 row) {
        set(edited, "DateStamp", QString("date('2026-05-20', '%1 days')").arg(upTo(2)), row);
        set(edited, "TimeStamp", QString::number(upTo(2) * 1000), row);
    }

    qint64 copy(const Edited& edited, qint64 row) {
        QStringList columns;
        for (const datafile::FieldDef& field : database_.table(edited.table)->fields)
            if (field.type != datafile::ColumnType::AutoKey) columns << '"' + field.name + '"';
        const QString list = columns.join(',');
        const qint64 before = database_.changes();
        run(QString("INSERT OR IGNORE INTO %1 (%2) SELECT %2 FROM %1 WHERE rowid = %3")
                .arg(edited.table, list)
                .arg(row));
        return database_.changes() == before ? row : database_.lastKey();
    }

    void changeReference(const Edited& edited, qint64 row) {
        if (edited.references.empty() || !careless_) return;
        const size_t at = upTo(edited.references.size() / 3 - 1) * 3;
        const std::vector<QString> values{"0", "99999",
                                          QString("(SELECT %1 FROM %2 WHERE rowid = %3)")
                                              .arg(edited.references[at + 2], edited.references[at + 1])
                                              .arg(anyRow(edited.references[at + 1]))};
        run(QString("UPDATE OR IGNORE %1 SET %2 = %3 WHERE rowid = %4 AND %2 <> 0")
                .arg(edited.table, edited.references[at], values[std::min<size_t>(upTo(9), 2)])
                .arg(row));
    }

    void leaveGap(const Edited& edited, qint64 row) {
        const auto& fields = database_.table(edited.table)->fields;
        const datafile::FieldDef& field = fields[static_cast<qsizetype>(upTo(size_t(fields.size()) - 1))];
        const bool isReference =
            field.type == datafile::ColumnType::Long || field.type == datafile::ColumnType::AutoKey;
        if (!isReference) set(edited, field.name.toLatin1(), "NULL", row);
    }

    datafile::Database database_;
    std::mt19937 chance_;
    unsigned seed_;
    bool careless_;
    int names_ = 0;
};

/// An officer's file, and what is needed to merge another into it.
struct Desk {
    Desk(const QString& league, const char* name) {
        context.dataFilePath = folder.filePath(name);
        EXPECT_TRUE(QFile::copy(league, context.dataFilePath));
        context.globals.currentSeasonYear = "2026";
        database.emplace(workspace.openDatabase(context.dataFilePath));
        database->prepare("PRAGMA synchronous = OFF").step();
    }
    plain::File read() const {
        plain::File file;
        for (const Edited& edited : editedTables) file[edited.table] = plain::readTable(*database, edited.table);
        file["tblDefaults"] = plain::readTable(*database, "tblDefaults");
        return file;
    }
    void merge(const Desk& other) { mergeInto(context, *other.database); }

    QTemporaryDir folder;
    datafile::Workspace workspace;
    FixedClock clock{QDateTime(QDate(2026, 6, 1), QTime(12, 0))};
    QuietDialogs dialogs;  // a gap in a row may cost it
    StoreContext context{workspace, clock, dialogs};
    std::optional<datafile::Database> database;
};

QString differences(const plain::File& merged, const plain::File& expected) {
    QString text;
    for (const Edited& edited : editedTables) {
        const plain::Rows& is = merged.at(edited.table);
        const plain::Rows& should = expected.at(edited.table);
        if (is.size() != should.size())
            text += QString("%1: %2 rows, expected %3\n").arg(edited.table).arg(is.size()).arg(should.size());
        for (size_t i = 0; i < std::min(is.size(), should.size()); ++i)
            for (const QString& column : is[i].values.keys())
                if (is[i].values[column] != should[i].values[column])
                    text += QString("%1 %2 %3: '%4', expected '%5'\n")
                                .arg(edited.table)
                                .arg(is[i].rowid)
                                .arg(column, is[i].values[column], should[i].values[column]);
    }
    return text.left(2000);
}

/// Merges, and holds the outcome against the rules. The other's file stays what it was.
void mergeAndCompare(Desk& local, const Desk& other) {
    plain::File expected = local.read();
    const plain::File source = other.read();
    plain::Merge(expected, source, *local.database, local.clock.now(), "2026").run();
    local.merge(other);
    EXPECT_EQ(differences(local.read(), expected), "");
    EXPECT_EQ(differences(other.read(), source), "");
}

QMap<QString, size_t> sizes(const plain::File& file) {
    QMap<QString, size_t> counts;
    for (const auto& [table, rows] : file) counts[table] = rows.size();
    return counts;
}

class TwoOfficers : public testing::TestWithParam<unsigned> {
protected:
    static QString league() {
        static const QTemporaryDir folder;
        const QString path = folder.filePath("league.kmr");
        if (!QFile::exists(path)) makeSampleLeague(path, {.players = 16});
        return path;
    }
};

TEST_P(TwoOfficers, MergeEachOthersFilesByTheRules) {
    constexpr int edits = 120;
    Desk one(league(), "one.kmr");
    Desk other(league(), "other.kmr");
    const bool careless = GetParam() % 2 == 0;
    Officer(*one.database, GetParam() * 2, careless).work(edits);
    Officer(*other.database, GetParam() * 2 + 1, careless).work(edits);

    mergeAndCompare(one, other);
    const auto merged = sizes(one.read());
    one.merge(other);
    EXPECT_EQ(sizes(one.read()), merged) << "merging the same file again added rows";
    mergeAndCompare(other, one);
}

INSTANTIATE_TEST_SUITE_P(Seeds, TwoOfficers, testing::Range(1u, 51u));

}  // namespace
