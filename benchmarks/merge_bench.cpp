#include <QCoreApplication>
#include <QFile>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "maintenance/merge/MergeFile.h"
#include "maintenance/merge/MergeSteps.h"
#include "merge/MergeInto.h"
#include "platform/datafile/DataFile.h"
#include "store/Schema.h"

// The merge of two files of which a tenth differ, beside set-wise SQL over both files attached to each other: the same
// keys, references and stamps, one transaction a step. Each time a fresh copy of the local file is merged into; that
// copy does not count.

namespace {

constexpr double mostTimes = 2;
constexpr int times = 3;

/// Nine of a hundred rows of each table are newer there, and one of a hundred players is unknown here. Made on first
/// use.
QString otherFile(const QString& folder, const QString& league) {
    const QString path = folder + "/" + QFileInfo(league).completeBaseName() + "-other.kmr";
    if (QFile::exists(path)) return path;
    if (!QFile::copy(league, path)) qFatal("%s could not be copied.", qPrintable(league));
    const RawFile file(path);
    file.run("BEGIN");
    for (const MergeStep& step : mergeSteps())
        for (const MergeTable& table : step.tables)
            file.run(QString("UPDATE %1 SET DateStamp = '2026-05-15', TimeStamp = 86000 WHERE rowid % 100 < 9")
                         .arg(table.name));
    file.run("UPDATE tblRegistration SET PlayerComments = 'seen by the second officer' WHERE PlayerId % 100 < 9");
    file.run("UPDATE tblRegistration SET PlayerFirstName = PlayerFirstName || ' B' WHERE PlayerId % 100 = 50");
    file.run("COMMIT");
    return path;
}

/// The statements that merge one table from the attached file `theirs`.
class SetWise {
public:
    explicit SetWise(const MergeTable& table) : table_(table), name_(table.name) {
        for (const datafile::TableDef& each : schema::tables())
            if (each.name == name_) about_ = each;
    }

    QStringList statements() const {
        QStringList statements;
        if (!table_.needsReference) {
            statements << forRows(keys(table_.naturalKey), "1");
        } else {
            for (const char* column : table_.naturalKey)
                statements << forRows(keys({column}), QString("s.%1 <> 0").arg(column));
        }
        if (table_.id)
            statements << QString("CREATE TEMP TABLE map_%1 (theirs INTEGER PRIMARY KEY, ours INTEGER)").arg(name_)
                       << QString(
                              "INSERT INTO map_%1 SELECT s.%2, (SELECT l.%2 FROM main.%1 l WHERE %3 ORDER BY "
                              "l.DeletedFlag LIMIT 1) FROM theirs.%1 s")
                              .arg(name_, QLatin1String(table_.id), keys(table_.naturalKey));
        return statements;
    }

private:
    QString value(const QString& column) const {
        for (const ForeignKey& foreign : table_.foreign)
            if (column == QLatin1String(foreign.column))
                return QString("coalesce((SELECT ours FROM map_%1 WHERE theirs = s.%2), 0)")
                    .arg(foreign.parent, column);
        return "s." + column;
    }
    QString keys(std::vector<const char*> columns) const {
        if (table_.finer) columns.push_back(table_.finer);
        QStringList conditions;
        for (const char* column : columns) conditions << QString("l.%1 = %2").arg(column, value(column));
        return conditions.join(" AND ");
    }
    QStringList forRows(const QString& keys, QString wanted) const {
        for (const ForeignKey& foreign : table_.foreign)
            if (foreign.unknown == Unknown::Skips || foreign.unknown == Unknown::SkipsUnlessLive)
                wanted += QString(" AND %1 <> 0").arg(value(foreign.column));
        QStringList columns;
        QStringList values;
        for (const datafile::FieldDef& field : about_.fields) {
            if (field.type == datafile::ColumnType::AutoKey) continue;
            columns << field.name;
            values << value(field.name);
        }
        QStringList assigned;
        for (qsizetype i = 0; i < columns.size(); ++i) assigned << columns[i] + " = " + values[i];
        const QString newer = table_.existing == Existing::OlderYields
                                  ? " AND (s.DateStamp, s.TimeStamp) > (l.DateStamp, l.TimeStamp)"
                                  : "";
        const QString update = QString("UPDATE main.%1 AS l SET %2 FROM theirs.%1 AS s WHERE %3 AND %4%5")
                                   .arg(name_, assigned.join(','), wanted, keys, newer);
        const QString insert =
            QString(
                "INSERT INTO main.%1 (%2) SELECT %3 FROM theirs.%1 s WHERE %4%5 AND NOT EXISTS (SELECT 1 FROM "
                "main.%1 l WHERE %6)")
                .arg(name_, columns.join(','), values.join(','), wanted,
                     table_.addsDeleted ? "" : " AND s.DeletedFlag = 0", keys);
        return table_.existing == Existing::Stays ? QStringList{insert} : QStringList{update, insert};
    }

    const MergeTable& table_;
    QString name_;
    datafile::TableDef about_;
};

void mergeByHand(const QString& local, const QString& other) {
    const RawFile file(local);
    file.run("ATTACH '" + other + "' AS theirs");
    for (const MergeStep& step : mergeSteps()) {
        file.run("BEGIN IMMEDIATE");
        for (const MergeTable& table : step.tables)
            for (const QString& statement : SetWise(table).statements()) file.run(statement);
        file.run("COMMIT");
    }
}

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    const QTemporaryDir folder;
    Comparison comparison(&count, arguments);
    for (const int players : {10000, 100000}) {
        const auto other = [&folder, players] { return otherFile(folder.path(), sampleFile(players)); };
        comparison.addMeasured(
            {"merge the rows of a second file", players, {.times = mostTimes}}, times,
            [players, other] {
                const QString file = other();
                SampleLeague copy(players);
                const datafile::Database source = copy.workspace.openDatabase(file);
                return seconds([&] { mergeInto(copy.context, source); });
            },
            [players, other] {
                const QString file = other();
                const SampleLeague copy(players);
                return seconds([&] { mergeByHand(copy.context.dataFilePath, file); });
            });
        comparison.addMeasured(
            {"the same, copied and checked first", players, {.times = mostTimes}}, times,
            [players, other] {
                const QString file = other();
                SampleLeague copy(players);
                return seconds([&] {
                    const MergeFile checked(copy.context, file);
                    mergeInto(copy.context, checked.database());
                });
            },
            [players, other] {
                const QString file = other();
                const SampleLeague copy(players);
                return seconds([&] {
                    const QString work = copy.files.filePath("work.kmr");
                    QFile::copy(file, work);
                    RawFile(work).run("PRAGMA quick_check(1)");
                    mergeByHand(copy.context.dataFilePath, work);
                });
            });
    }
    return comparison.run();
}
