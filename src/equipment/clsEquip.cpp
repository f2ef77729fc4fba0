#include "equipment/clsEquip.h"

namespace {

QString criteriaOf(const QString& entry) {
    const qsizetype hyphen = entry.indexOf(u'-');
    QString name = entry.left(hyphen);
    QString description = hyphen < 0 ? QString() : entry.mid(hyphen + 1);
    if (hyphen > 0 && name.endsWith(u' ')) name.chop(1);
    if (description.startsWith(u' ')) description.remove(0, 1);
    return matches("ItemName", name) + QStringLiteral(" AND ") + matches("Description", description);
}

}  // namespace

clsEquip::clsEquip(StoreContext& context) : RecordClass(context) {
    open({.source = "tblEquipment",
          .tag = ".clsEquip",
          .noRecords = "Equipment Table.  ",
          .required = {{&EquipmentName, "Missing the Equipment Name."}},
          .naturalKey = {&EquipmentName, &EquipmentDescription}});
}

bool clsEquip::FindEquipmentRecord(const QString& entry, bool show, bool load) {
    return findOrTell(live(criteriaOf(entry)), entry, show, load);
}

bool clsEquip::FindEquipmentMergeRecord(const QString& entry, bool show, bool load) {
    return findOrTell(criteriaOf(entry), entry, show, load);
}
