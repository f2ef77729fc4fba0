#include "equipment/frmEquipment.h"

#include "equipment/AssignmentPane.h"
#include "equipment/InventoryPane.h"

frmEquipment::frmEquipment(Program& program) : RecordScreen(program, QStringLiteral("frmEquipment"), {980, 660}) {
    addPane(new InventoryPane(program));
    addPane(new AssignmentPane(program));
}
