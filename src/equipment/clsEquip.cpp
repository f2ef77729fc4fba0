#include "equipment/clsEquip.h"

namespace {

QString criteriaOf(const QString& name, const QString& description) {
    return matches({{"ItemName", name}, {"Description", description}});
}

/// The entry cut at its first hyphen.
QString criteriaOf(const QString& entry) {
    const qsizetype hyphen = entry.indexOf(u'-');
    QString name = entry.left(hyphen);
    QString description = hyphen < 0 ? QString() : entry.mid(hyphen + 1);
    if (hyphen > 0 && name.endsWith(u' ')) name.chop(1);
    if (description.startsWith(u' ')) description.remove(0, 1);
    return criteriaOf(name, description);
}

}  // namespace

clsEquip::clsEquip(StoreContext& context) : RecordClass(context) {
    open({.source = "tblEquipment",
          .tag = ".clsEquip",
          .noRecords = "Equipment Table.  ",
          .required = {{&EquipmentName, "Missing the Equipment Name."}},
          .naturalKey = {&EquipmentName, &EquipmentDescription}});
}

bool clsEquip::findEntry(const QString& criteria, const QString& entry, bool show, bool load) {
    return findOrTell(criteria, entry, show, load,
                      {"Record Not Found...", "No Records found for %1", "No Records found for %1"});
}

bool clsEquip::FindEquipmentRecord(const QString& entry, bool show, bool load) {
    return findEntry(live(criteriaOf(entry)), entry, show, load);
}

bool clsEquip::FindEquipmentMergeRecord(const QString& entry, bool show, bool load) {
    const QString between = QStringLiteral(" - ");
    for (qsizetype at = entry.indexOf(between); at >= 0; at = entry.indexOf(between, at + 1))
        if (find(criteriaOf(entry.left(at), entry.mid(at + between.size())), load)) return true;
    return findEntry(criteriaOf(entry), entry, show, load);
}
