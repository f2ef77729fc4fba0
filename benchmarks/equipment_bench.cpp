#include <QCoreApplication>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "equipment/clsEquipmentAssignment.h"

// What is left of each item, worked out of inventory and assignments, beside the engine told to do the same.

namespace {

constexpr int items = 5000;
constexpr int assignments = 50000;

void fill(const QString& path) {
    const RawFile file(path);
    file.run("BEGIN; DELETE FROM tblEquipment; DELETE FROM tblEquipmentAssignment");
    file.run(QString("INSERT INTO tblEquipment (ItemName, Description, NbrItems, DeletedFlag) WITH RECURSIVE n(i) AS "
                     "(SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) SELECT 'Item ' || i, 'Kind', i % 40, "
                     "i % 50 = 0 FROM n")
                 .arg(items));
    file.run(QString("INSERT INTO tblEquipmentAssignment (DivisionId, TeamId, PlayerId, VolId, EquipmentId, "
                     "DistributionQuantity, ReturnQuantity, DeletedFlag) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
                     "SELECT i + 1 FROM n WHERE i < %1) SELECT 0, 0, i, 0, i % %2 + 1, '2', '1', i % 20 = 0 FROM n")
                 .arg(assignments)
                 .arg(items));
    file.run("COMMIT");
}

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    SampleLeague ours(1000);
    SampleLeague raw(1000);
    for (const SampleLeague* league : {&ours, &raw}) fill(league->context.dataFilePath);
    clsEquipmentAssignment assignment(ours.context);
    const RawFile file(raw.context.dataFilePath);
    Comparison comparison(&count, arguments);
    comparison.add(
        {"what is left of 5,000 items", 1000, {.times = 1.3}}, [&] { assignment.RebuildEquipmentAvailable(); },
        [&] {
            file.run("BEGIN IMMEDIATE");
            file.run("DELETE FROM tblEquipmentAvailable");
            file.run(
                "INSERT INTO tblEquipmentAvailable SELECT EquipId, NbrItems, coalesce(given - back, 0), "
                "max(0, NbrItems - coalesce(given - back, 0)) FROM tblEquipment LEFT JOIN (SELECT EquipmentId, "
                "sum(DistributionQuantity) AS given, sum(ReturnQuantity) AS back FROM tblEquipmentAssignment WHERE "
                "DeletedFlag = 0 GROUP BY EquipmentId) AS held ON held.EquipmentId = EquipId WHERE DeletedFlag = 0");
            file.run("COMMIT");
        });
    return comparison.run();
}
