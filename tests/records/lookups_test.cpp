#include <gtest/gtest.h>

#include "equipment/clsEquip.h"
#include "equipment/clsEquipmentAssignment.h"
#include "ratings/clsAbilityRating.h"
#include "schedule/clsResults.h"
#include "schedule/clsSchedule.h"
#include "setup/ClsVolPos.h"
#include "setup/clsDifficultyRating.h"
#include "setup/clsInsurance.h"
#include "setup/clsRating.h"
#include "setup/clsUniform.h"
#include "setup/clsVendor.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

TEST(RecordColumnsTest, EveryColumnOfATableIsAPropertyOfItsClass) {
    LeagueFile league;
    clsUniform uniform(league.context);
    ClsVolPos position(league.context);
    clsRating rating(league.context);
    clsDifficultyRating difficulty(league.context);
    clsVendor vendor(league.context);
    clsInsurance insurance(league.context);
    clsAbilityRating ability(league.context);
    clsEquip item(league.context);
    clsEquipmentAssignment assignment(league.context);
    clsSchedule game(league.context);
    clsResults result(league.context);
    const std::vector<std::pair<const char*, const RecordClass*>> records{{"tblPantSize", &uniform.PantSize},
                                                                          {"tblShirtSize", &uniform.ShirtSize},
                                                                          {"tblHatSize", &uniform.HatSize},
                                                                          {"tblSocksSize", &uniform.SocksSize},
                                                                          {"tblShoeSize", &uniform.ShoeSize},
                                                                          {"tblVolunteerPositions", &position},
                                                                          {"tblRating", &rating},
                                                                          {"tblDifficultyRating", &difficulty},
                                                                          {"tblVendor", &vendor},
                                                                          {"tblInsurance", &insurance},
                                                                          {"tblAbilityRating", &ability},
                                                                          {"tblEquipment", &item},
                                                                          {"tblEquipmentAssignment", &assignment},
                                                                          {"tblSchedule", &game},
                                                                          {"tblResults", &result}};
    for (const auto& [table, record] : records) {
        QStringList expected;
        for (const datafile::FieldDef& field : league.database().table(table)->fields) expected << field.name.toLower();
        QStringList columns;
        for (const Column* column : record->columns()) columns << QString::fromLatin1(column->name()).toLower();
        expected.sort();
        columns.sort();
        EXPECT_EQ(columns, expected) << table;
    }
}

struct Refusal {
    quint32 number;
    QString source;
    QString text;
    bool operator==(const Refusal&) const = default;
};
void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << refusal.number << ' ' << refusal.source.toStdString() << ' ' << refusal.text.toStdString();
}

Refusal refusalOf(RecordClass& record) {
    record.newRecord();
    try {
        record.isValid(true);
    } catch (const RecordError& error) {
        return {error.number(), error.source(), error.text()};
    }
    return {0, {}, {}};
}

TEST(LookupsTest, EachRefusesWhatHasNoNameInItsOwnWords) {
    LeagueFile league;
    clsUniform uniform(league.context);
    ClsVolPos position(league.context);
    clsRating rating(league.context);
    clsDifficultyRating difficulty(league.context);
    clsVendor vendor(league.context);
    clsInsurance insurance(league.context);
    clsEquip item(league.context);
    constexpr quint32 first = 0x800403F5;
    const std::vector<std::pair<RecordClass*, Refusal>> refusals{
        {&position, {first, "Kestrelmoor.clsVolPos", "Missing the Volunteer Position Name."}},
        {&rating, {first, "Kestrelmoor.clsRating", "Missing the Rating Text Field."}},
        {&difficulty, {first, "Kestrelmoor.clsDifficultyRatings", "Missing the Difficulty Ratings Description."}},
        {&vendor, {first, "Kestrelmoor.clsVendor", "Missing the Vendor Name."}},
        {&insurance, {first, "Kestrelmoor.clsVendor", "Missing the Insurancy Agency Name."}},
        {&item, {first, "Kestrelmoor.clsEquip", "Missing the Equipment Name."}},
        {&uniform.PantSize, {first, "Kestrelmoor.clsUniform", "Missing the Pants Size Designator."}},
        {&uniform.ShoeSize, {first + 8, "Kestrelmoor.clsUniform", "Missing the Shoe Size Designator."}}};
    for (const auto& [record, refusal] : refusals) EXPECT_EQ(refusalOf(*record), refusal);
    uniform.HatSize.NewSizeRecord();
    uniform.HatSize.Size = "Y";
    try {
        uniform.HatSize.IsSizeValid(true);
        FAIL();
    } catch (const RecordError& error) {
        EXPECT_EQ(error.number(), first + 5);
        EXPECT_EQ(error.text(), "Missing the Hat Size Description.");
    }
}

TEST(LookupsTest, SizesAreFoundAndRevivedByTheirDescriptionInTheirOwnTable) {
    LeagueFile league;
    clsUniform uniform(league.context);
    const int hats = uniform.HatSize.recordCount();
    uniform.HatSize.NewSizeRecord();
    uniform.HatSize.Size = "XY";
    uniform.HatSize.SizeText = "Extra Young";
    uniform.HatSize.SaveSizeRecord();
    EXPECT_FALSE(uniform.ShoeSize.FindSizeRecord("Extra Young", false, false));
    ASSERT_TRUE(uniform.HatSize.FindSizeRecord("extra young", false, true));
    uniform.HatSize.DeleteSizeRecord();
    EXPECT_TRUE(uniform.HatSize.FindDeletedSizeRecord("Extra Young"));
    uniform.HatSize.UndoSizeRecord();
    EXPECT_EQ(uniform.HatSize.Size(), "XY") << "a deleted size can still be looked at";
    uniform.HatSize.NewSizeRecord();
    uniform.HatSize.Size = "EY";
    uniform.HatSize.SizeText = "Extra Young";
    uniform.HatSize.SaveSizeRecord();
    EXPECT_EQ(league.count("tblHatSize"), hats + 1);
    EXPECT_EQ(league.value("SELECT * FROM tblHatSize WHERE [HatSizeText] = \"Extra Young\" AND [DeletedFlag] = False",
                           "HatSize"),
              "EY");
}

}  // namespace
