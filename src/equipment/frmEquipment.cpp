#include "equipment/frmEquipment.h"

#include "equipment/AssignmentPane.h"
#include "equipment/InventoryPane.h"

frmEquipment::frmEquipment(Program& program) : RecordScreen(program, QStringLiteral("frmEquipment"), {980, 660}) {
    showPurpose(tr("Kestrelmoor - Equipment CheckOut/CheckIn"));
    addPane(new InventoryPane(program));
    addPane(new AssignmentPane(program));
}
