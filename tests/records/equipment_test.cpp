#include <gtest/gtest.h>

#include "equipment/clsEquip.h"
#include "equipment/clsEquipmentAssignment.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

class EquipmentTest : public testing::Test {
protected:
    int addItem(const QString& name, const QString& description, int number = 1) {
        item.NewEquipmentRecord();
        item.EquipmentName = name;
        item.EquipmentDescription = description;
        item.EquipmentNbrItems = number;
        item.SaveEquipmentRecord();
        return item.EquipmentId;
    }
    void give(const EquipmentHolder& holder, int equipmentId, const QString& given, const QString& returned = "0") {
        assignment.NewAssignmentRecord();
        assignment.DivisionId = holder.divisionId;
        assignment.TeamId = holder.teamId;
        assignment.PlayerId = holder.playerId;
        assignment.VolId = holder.volId;
        assignment.EquipmentId = equipmentId;
        assignment.DistributionQuantity = given;
        assignment.ReturnQuantity = returned;
        assignment.SaveAssignmentRecord();
    }
    LeagueFile league;
    clsEquip item{league.context};
    clsEquipmentAssignment assignment{league.context};
};

TEST_F(EquipmentTest, ItemsAreFoundByTheTextOfTheirEntry) {
    const int bat = addItem("Bat", "Long - 29\"");
    addItem("T-Ball Tee", "Rubber");
    const struct {
        const char* entry;
        bool found;
        bool inMerge;
    } cases[]{{"T-Ball Tee - Rubber", false, true},
              {"T-Ball Tee - Wood", false, false},
              {"Bat", false, false},
              {"bat-long - 29\"", true, true},
              {"Bat - Long - 29\"", true, true}};
    for (const auto& each : cases) {
        EXPECT_EQ(item.FindEquipmentMergeRecord(each.entry, false, true), each.inMerge) << each.entry;
        EXPECT_EQ(item.FindEquipmentRecord(each.entry, false, true), each.found) << each.entry;
    }
    EXPECT_EQ(item.EquipmentId, bat);
    item.DeleteEquipmentRecord();
    league.dialogs.expectWarning("Record Not Found...", "No Records found for Bat - Long - 29\"");
    EXPECT_FALSE(item.FindEquipmentRecord("Bat - Long - 29\"", true, true));
    league.dialogs.expectWarning("Record Not Found...", "No Records found.");
    EXPECT_FALSE(item.FindEquipmentRecordById(bat, true, true));
    EXPECT_TRUE(item.FindEquipmentMergeRecord("Bat - Long - 29\"", false, true));
    EXPECT_NE(addItem("Bat", "Short"), bat) << "another item of that name leaves the deleted one alone";
    EXPECT_EQ(addItem("Bat", "Long - 29\""), bat);
}

TEST_F(EquipmentTest, NewRecordsStartFromOneItemAndToday) {
    item.NewEquipmentRecord();
    EXPECT_EQ(item.EquipmentNbrItems, 1);
    EXPECT_EQ(item.EquipmentInsured, 1) << "not insured";
    EXPECT_EQ(item.EquipmentWarrantyExpiration(), QDate(2026, 4, 22));
    EXPECT_FALSE(item.IsEquipmentDirty());
    assignment.NewAssignmentRecord();
    EXPECT_EQ(assignment.DistributionQuantity(), "0");
    EXPECT_EQ(assignment.ReturnDate(), QDate(2026, 4, 22));
    league.database().execute(
        "INSERT INTO tblEquipmentAssignment ([DivisionId], [DistributionQuantity]) VALUES (1, \"some\")");
    const clsEquipmentAssignment loaded(league.context);
    EXPECT_EQ(loaded.DistributionQuantity(), "0");
    EXPECT_EQ(loaded.ReturnDate(), QDate(2026, 4, 22));
}

TEST_F(EquipmentTest, HoldersAreToldApart) {
    const EquipmentHolder division{.divisionId = 1};
    const EquipmentHolder team{.divisionId = 1, .teamId = 2};
    league.dialogs.expectWarning("Find Assignment...", "No Assignment Records available.");
    EXPECT_FALSE(assignment.FindEquipmentAssignment(division, true, false));
    give(team, 7, "3");
    league.dialogs.expectWarning("Find Assignment...", "No Records found.");
    EXPECT_FALSE(assignment.FindEquipmentAssignment(division, true, false)) << "a team's row is none of its division";
    EXPECT_TRUE(assignment.FindEquipmentAssignment(team, false, false));
    EXPECT_FALSE(assignment.FindAssignmentRecord(team, 8, false, false));
    ASSERT_TRUE(assignment.FindAssignmentRecord(team, 7, false, true));
    const int key = assignment.AssignmentId;
    assignment.DeleteAssignmentRecord();
    EXPECT_FALSE(assignment.FindEquipmentAssignment(team, false, false)) << "what was deleted is not held";
    EXPECT_TRUE(assignment.FindAssignmentMergeRecord(team, 7, false, false));
    give({.playerId = 2}, 7, "1");
    give(team, 7, "5");
    EXPECT_EQ(assignment.AssignmentId, key) << "the deleted row comes back";
    EXPECT_EQ(league.count("tblEquipmentAssignment"), 2);
    assignment.SetIsAssignmentNew(true);
    EXPECT_TRUE(assignment.IsAssignmentValid(true));
}

TEST_F(EquipmentTest, AvailabilityFollowsWhatIsOutAndBack) {
    const struct {
        const char* numbers;  ///< owned
        std::vector<std::pair<const char*, const char*>> moves;
        int total, distributed, left;
    } cases[]{{"5", {{"7", "1"}}, 5, 6, 0},
              {"5", {}, 5, 0, 5},
              {"5", {{"2", "0"}, {"1", ""}}, 5, 3, 2},
              {"5", {{"1", "3"}}, 5, -2, 7},
              {"NULL", {{"1", "3"}}, 0, -2, 0}};
    int id = 0;
    for (const auto& each : cases) {
        league.database().execute(
            QStringLiteral("INSERT INTO tblEquipment ([ItemName], [NbrItems]) VALUES (\"x\", %1)").arg(each.numbers));
        ++id;
        int player = 0;
        for (const auto& [given, returned] : each.moves) give({.playerId = ++player}, id, given, returned);
    }
    give({.divisionId = 1}, 2, "4");
    assignment.DeleteAssignmentRecord();
    league.database().execute(
        "INSERT INTO tblEquipment ([ItemName], [NbrItems], [DeletedFlag]) VALUES (\"gone\", 9, True)");
    for (int run = 0; run < 2; ++run) assignment.RebuildEquipmentAvailable();
    EXPECT_EQ(league.count("tblEquipmentAvailable"), id);
    id = 0;
    for (const auto& each : cases) {
        const auto available = assignment.FindEquipmentAvailable(++id);
        EXPECT_EQ(available.total, each.total) << id;
        EXPECT_EQ(available.toDistribute, each.left) << id;
        EXPECT_EQ(league.value(QStringLiteral("SELECT * FROM tblEquipmentAvailable WHERE [EquipmentId] = %1").arg(id),
                               "TotalDistributed"),
                  QString::number(each.distributed))
            << id;
    }
    EXPECT_EQ(assignment.FindEquipmentAvailable(99).total, 0);
}

}  // namespace
