#include "equipment/clsEquipmentAssignment.h"

namespace {

QString criteriaOf(const EquipmentHolder& holder) {
    const QString both = QStringLiteral(" AND ");
    return matches("DivisionId", holder.divisionId) + both + matches("TeamId", holder.teamId) + both +
           matches("PlayerId", holder.playerId) + both + matches("VolId", holder.volId);
}

QString criteriaOf(const EquipmentHolder& holder, int equipmentId) {
    return criteriaOf(holder) + QStringLiteral(" AND ") + matches("EquipmentId", equipmentId);
}

}  // namespace

clsEquipmentAssignment::clsEquipmentAssignment(StoreContext& context) : RecordClass(context) {
    open({.source = "tblEquipmentAssignment",
          .tag = ".clsEquip",
          .noRecords = "Assignment Table.  ",
          .required = {{&EquipmentId, "Missing the Assignment Name.", false}}});
}

QString clsEquipmentAssignment::twinCriteria() const {
    return QStringLiteral("DeletedFlag = True AND ") + criteriaOf({DivisionId, TeamId, PlayerId, VolId}, EquipmentId);
}

bool clsEquipmentAssignment::findAssignment(const QString& criteria, bool show, bool load) {
    return findOrTell(criteria, {}, show, load,
                      {"Find Assignment...", "No Assignment Records available.", "No Records found."});
}

bool clsEquipmentAssignment::FindAssignmentRecord(const EquipmentHolder& holder, int equipmentId, bool show,
                                                  bool load) {
    return findAssignment(live(criteriaOf(holder, equipmentId)), show, load);
}

bool clsEquipmentAssignment::FindAssignmentMergeRecord(const EquipmentHolder& holder, int equipmentId, bool show,
                                                       bool load) {
    return findAssignment(criteriaOf(holder, equipmentId), show, load);
}

bool clsEquipmentAssignment::FindEquipmentAssignment(const EquipmentHolder& holder, bool show, bool load) {
    return findAssignment(live(criteriaOf(holder)), show, load);
}

void clsEquipmentAssignment::RebuildEquipmentAvailable() {
    datafile::Transaction transaction(database());
    database().execute("DELETE FROM tblEquipmentAvailable");
    database().execute(
        "INSERT INTO tblEquipmentAvailable ([EquipmentId], [TotalAvailable], [TotalDistributed], [QuantityAvailable]) "
        "SELECT [EquipId], COALESCE([NbrItems], 0), COALESCE([Given], 0) - COALESCE([Returned], 0), "
        "MAX(0, COALESCE([NbrItems] - COALESCE([Given], 0) + COALESCE([Returned], 0), 0)) "
        "FROM tblEquipment LEFT JOIN (SELECT [EquipmentId], SUM([DistributionQuantity]) as Given, "
        "SUM([ReturnQuantity]) as Returned "
        "FROM tblEquipmentAssignment WHERE [DeletedFlag] = False GROUP BY [EquipmentId]) as Held ON [EquipId] = "
        "Held![EquipmentId] "
        "WHERE [DeletedFlag] = False ORDER BY [EquipId]");
    transaction.commit();
}

clsEquipmentAssignment::Available clsEquipmentAssignment::FindEquipmentAvailable(int equipmentId) const {
    datafile::Recordset row = database().openRecordset("SELECT * FROM tblEquipmentAvailable WHERE [EquipmentId] = " +
                                                       QString::number(equipmentId));
    if (row.eof()) return {};
    return {static_cast<int>(row.number("TotalAvailable")), static_cast<int>(row.number("QuantityAvailable"))};
}
