#include <QCoreApplication>
#include <QFile>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "platform/datafile/TableSql.h"
#include "store/CorrectVersion.h"
#include "store/Housekeeping.h"
#include "support/OlderFile.h"

// Raising a file of the first version, and purging, beside the engine told to do the same. Every call begins with a
// fresh copy of the file; on both sides that copy counts.

namespace {

constexpr int players = 100000;
constexpr int startPlayers = 5;  ///< those that every older file comes with
constexpr double mostTimes = 1.3;

QString firstVersionFile(const QString& folder) {
    const QString path = folder + "/first.kmr";
    olderfile::make(path, 0);
    RawFile(path).run(
        QString(
            "INSERT INTO tblRegistration (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerDivisionId, "
            "PlayerTeamId, PlayerAddress1, PlayerCity, PlayerStateId, PlayerZipCode, PlayerZipCode4, PlayerPhone, "
            "PlayerGender, PlayerFeePaid, PlayerActive) "
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
            "SELECT 'Family ' || (i / 3), 'Child ' || i, date('1988-01-01', (i * 7 % 4000) || ' days'), i % 3, 0, "
            "i || ' Main Street', 'Oakland', 'PA', '15' || (100 + i % 900), CASE WHEN i % 2 THEN 1000 + i % 9000 END, "
            "'555-' || (1000 + i % 9000), CASE i % 4 WHEN 0 THEN 'm' WHEN 1 THEN 'Male' ELSE 'Female' END, '40.00', 1 "
            "FROM n")
            .arg(players - startPlayers));
    return path;
}

/// The age by a cut-off date, as the engine can say it.
QString ageBy(const char* month, const char* day) {
    return QString(
               "max(0, 2000 - (CAST(substr(PlayerBirthDate, 3, 2) AS INTEGER) + CASE WHEN CAST(substr(PlayerBirthDate, "
               "3, 2) AS "
               "INTEGER) >= 30 THEN 1900 ELSE 2000 END) - ((CAST(substr(PlayerBirthDate, 6, 2) AS INTEGER), "
               "CAST(substr(PlayerBirthDate, 9, 2) AS INTEGER)) > (%1, %2)))")
        .arg(month, day);
}

datafile::TableDef playersTable(const QList<datafile::TableDef>& tables) {
    for (const datafile::TableDef& table : tables)
        if (table.name == u"tblRegistration") return table;
    return {};
}

/// All that an upgrade does to the players, at the engine's best: new columns without touching a row, each change of
/// rows one statement, the new form of the table in one go, the compact and its check.
void upgradeByHand(const QString& path) {
    const datafile::TableDef end = playersTable(schema::tables());
    datafile::TableDef wide = playersTable(olderfile::tablesAt(0));
    QStringList names{"rowid"};
    for (datafile::FieldDef field : end.fields) {
        names << datafile::sql::identifier(field.name);
        if (wide.field(field.name)) continue;
        field.hasDefault = false;
        wide.fields << field;
    }
    QFile::copy(path, path + ".BKM");
    {
        const RawFile file(path);
        const auto step = [&](const QStringList& statements) {
            file.run("BEGIN IMMEDIATE");
            for (const QString& statement : statements) file.run(statement);
            file.run("COMMIT");
        };
        file.run("PRAGMA writable_schema = ON");
        step({"UPDATE sqlite_schema SET sql = " + datafile::sql::literal(datafile::sql::createTable(wide)) +
              " WHERE type = 'table' AND name = 'tblRegistration'"});
        file.run("PRAGMA writable_schema = RESET");
        step({"UPDATE tblRegistration SET PlayerAmountPaid = PlayerFeePaid"});
        step({"UPDATE tblRegistration SET PlayerSchoolName = '' WHERE PlayerSchoolName IS NULL"});
        step(
            {"UPDATE tblRegistration SET PlayerPostalCode = iif(PlayerZipCode4 <> '', PlayerZipCode || '-' || "
             "PlayerZipCode4, "
             "PlayerZipCode), PlayerZipCode = '', PlayerZipCode4 = ''"});
        for (const datafile::IndexDef& index : end.indexes.mid(0, 2))
            step({datafile::sql::createIndex("tblRegistration", index)});
        const QString age =
            "CASE WHEN PlayerDivisionId IN (1, 2) THEN " + ageBy("1", "1") + " ELSE " + ageBy("8", "1") + " END";
        step({"UPDATE tblRegistration SET PlayerAge = " + age});
        step(
            {"UPDATE tblRegistration SET PlayerGender = iif(PlayerGender = 'm', 'Male', iif(PlayerGender = 'f', "
             "'Female', '')) "
             "WHERE PlayerGender NOT IN ('Male', 'Female', '')"});
        step({"UPDATE tblRegistration SET PlayerAge = " + age + " WHERE PlayerAge <> " + age});
        datafile::TableDef made = end;
        made.name = "made";
        QStringList finish{datafile::sql::createTable(made),
                           QString("INSERT INTO made (%1) SELECT %1 FROM tblRegistration").arg(names.join(',')),
                           "DROP TABLE tblRegistration", "ALTER TABLE made RENAME TO tblRegistration"};
        for (const datafile::IndexDef& index : end.indexes)
            finish << datafile::sql::createIndex("tblRegistration", index);
        step(finish);
        file.run("VACUUM INTO " + datafile::sql::literal(path + ".CPT"));
        RawFile(path + ".CPT").run("PRAGMA integrity_check(1)");
    }
    QFile::remove(path);
    QFile::rename(path + ".CPT", path);
}

/// A folder with a copy of a file, for one call.
struct FreshCopy {
    explicit FreshCopy(const QString& from) {
        if (!QFile::copy(from, path)) qFatal("%s could not be copied.", qPrintable(from));
        context.dataFilePath = path;
    }
    QTemporaryDir folder;
    QString path = folder.filePath("Kestrelmoor.kmr");
    datafile::Workspace workspace;
    FixedClock clock{QDateTime(QDate(2026, 5, 16), QTime(12, 0))};
    QuietDialogs dialogs;
    StoreContext context{workspace, clock, dialogs};
};

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    const QTemporaryDir folder;
    const QString first = firstVersionFile(folder.path());
    const QString flagged = folder.filePath("flagged.kmr");
    if (!QFile::copy(sampleFile(players), flagged)) qFatal("The sample league could not be copied.");
    RawFile(flagged).run("UPDATE tblRegistration SET DeletedFlag = PlayerId % 2");

    Comparison comparison(&count, arguments);
    comparison.add(
        {"raise a Version 1.0 file", players, {.times = mostTimes}},
        [&] {
            FreshCopy copy(first);
            if (!CorrectVersion(copy.context)) qFatal("The upgrade failed.");
        },
        [&] { upgradeByHand(FreshCopy(first).path); });
    comparison.add(
        {"purge 50,000 players marked as deleted", players, {.times = mostTimes}},
        [&] {
            FreshCopy copy(flagged);
            DeleteRecords(copy.context, DeletedRows, "tblRegistration");
        },
        [&] {
            FreshCopy copy(flagged);
            RawFile(copy.path).run("DELETE FROM tblRegistration WHERE DeletedFlag = 1");
        });
    return comparison.run();
}
