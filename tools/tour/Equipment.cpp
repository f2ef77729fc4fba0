#include <QTest>

#include "platform/widgets/Grid.h"
#include "tour/Chapters.h"

// An item joins the inventory, goes out to the tour's team and comes back in part.

namespace {

void addItem(Guide& guide) {
    guide.begin("An item of the equipment");
    guide.click("cmdEquipment");
    guide.waitForScreen("frmEquipment");
    guide.key(Qt::Key_N, Qt::AltModifier);
    guide.waitForFocus("txtItemName");
    guide.fill("txtItemName", "Helmet bag");
    guide.fill("txtDescription", "Blue, for six helmets");
    guide.fill("txtNbrItems", "4");
    guide.picture("equipment-new");
    guide.key(Qt::Key_S, Qt::AltModifier);
    guide.waitForStatus("Record \"Helmet bag\" Added.");
}

void checkOut(Guide& guide) {
    guide.begin("The item goes out to the team");
    guide.clickTab("Equipment Assignment");
    guide.click("optAssignTo1");
    guide.fill("cboDivisionList", "Rookie Ball");
    guide.fill("cboTeamList", "Orchard Owls");
    guide.fill("cboEquipmentList", "Helmet bag");
    guide.fill("txtDistributionQuantity", "4");
    guide.picture("equipment-out");
    guide.key(Qt::Key_S, Qt::AltModifier);
    guide.waitForStatus("Assignment Added.");
}

void checkIn(Guide& guide) {
    guide.begin("One of them comes back");
    auto& grid = guide.control<Grid>("flxGridAssignedItems");
    guide.require(grid.rows().size() == 1, "The team's one item");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(0, 0)).center());
    guide.waitForFocus("txtReturnQuantity");
    guide.type("1");
    guide.key(Qt::Key_S, Qt::AltModifier);
    guide.waitForStatus("Assignment Updated.");
    guide.require(grid.text(0, 3) == QLatin1String("1"), "The one that came back");
    guide.picture("equipment-back");
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}

}  // namespace

void visitEquipment(Guide& guide) {
    addItem(guide);
    checkOut(guide);
    checkIn(guide);
}
