#include <gtest/gtest.h>

#include "equipment/clsEquip.h"
#include "equipment/clsEquipmentAssignment.h"
#include "league/clsDivision.h"
#include "league/clsFieldInfo.h"
#include "league/clsTeam.h"
#include "league/clsTeamField.h"
#include "ratings/clsAbilityRating.h"
#include "registration/clsRegistration.h"
#include "registration/clsSponsors.h"
#include "registration/clsVolunteer.h"
#include "schedule/clsResults.h"
#include "schedule/clsSchedule.h"
#include "setup/ClsVolPos.h"
#include "setup/clsCertifications.h"
#include "setup/clsDifficultyRating.h"
#include "setup/clsHowFeePaid.h"
#include "setup/clsInsurance.h"
#include "setup/clsOptions.h"
#include "setup/clsRating.h"
#include "setup/clsSchoolName.h"
#include "setup/clsUniform.h"
#include "setup/clsVendor.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

/// What a class refuses to do without: the column, the last two digits of the error's number, its text.
struct Required {
    Text* column;
    quint32 number;
    const char* text;
};

/// A class, the table of which it holds every column, and its own words.
struct Class {
    const char* table;
    RecordClass& record;
    const char* tag;
    std::vector<Required> required{};
};

/// One record of every class.
struct Records {
    StoreContext& context;
    clsRegistration player{context};
    clsVolunteer volunteer{context};
    clsSponsors sponsor{context};
    clsDivision division{context};
    clsTeam team{context};
    clsFieldInfo field{context};
    clsAbilityRating ability{context};
    clsEquip item{context};
    clsEquipmentAssignment assignment{context};
    clsResults result{context};
    clsSchedule game{context};
    clsCertifications certification{context};
    ClsVolPos position{context};
    clsRating rating{context};
    clsDifficultyRating difficulty{context};
    clsInsurance insurance{context};
    clsVendor vendor{context};
    clsSchoolName school{context};
    clsHowFeePaid how{context};
    clsUniform uniform{context};
    clsOptions options{context};

    std::vector<Class> people() {
        return {{"tblRegistration",
                 player,
                 ".clsPlayer",
                 {{&player.PlayerLastName, 13, "Missing the Player Last Name."},
                  {&player.PlayerFirstName, 14, "Missing the Player First Name."}}},
                {"tblVolunteer",
                 volunteer,
                 ".clsVol",
                 {{&volunteer.VolLastName, 13, "Missing the Volunteer Last Name."},
                  {&volunteer.VolFirstName, 14, "Missing the VolunteerFirst Name."},
                  {&volunteer.VolHomePhone, 16, "Missing the Volunteer Home Phone."}}},
                {"tblSponsor",
                 sponsor,
                 ".clsSponsor",
                 {{&sponsor.SponsorName, 13, "Missing the Sponsor Name."},
                  {&sponsor.SponsorPledgeYear, 14, "Missing the Pledge Year."},
                  {&sponsor.SponsorPledgeAmount, 16, "Missing the Pledge Amount."}}},
                {"tblDivision", division, ".clsDiv", {{&division.DivName, 13, "Missing the Division Name."}}},
                {"tblTeam", team, ".clsTeam", {{&team.TeamName, 13, "Missing the Team Name."}}},
                {"tblField", field, ".clsField", {{&field.FieldName, 13, "Missing the Certification Name."}}},
                {"tblAbilityRating", ability, ".clsAbilityRating"}};
    }
    std::vector<Class> things() {
        return {
            {"tblEquipment", item, ".clsEquip", {{&item.EquipmentName, 13, "Missing the Equipment Name."}}},
            {"tblEquipmentAssignment", assignment, ".clsEquip"},
            {"tblResults", result, ".clsResults"},
            {"tblSchedule", game, ""},
            {"tblCertifications",
             certification,
             ".clsCertification",
             {{&certification.CertName, 13, "Missing the Certification Name."},
              {&certification.CertOrg, 14, "Missing the name of the Certifying Organization."}}},
            {"tblVolunteerPositions",
             position,
             ".clsVolPos",
             {{&position.VolPosName, 13, "Missing the Volunteer Position Name."}}},
            {"tblRating", rating, ".clsRating", {{&rating.RatingText, 13, "Missing the Rating Text Field."}}},
            {"tblDifficultyRating",
             difficulty,
             ".clsDifficultyRatings",
             {{&difficulty.DifficultyRatingText, 13, "Missing the Difficulty Ratings Description."}}},
            {"tblInsurance",
             insurance,
             ".clsVendor",
             {{&insurance.InsAgencyName, 13, "Missing the Insurancy Agency Name."}}},
            {"tblVendor", vendor, ".clsVendor", {{&vendor.VendorName, 13, "Missing the Vendor Name."}}},
            {"tblSchoolInfo", school, ".clsSchoolName", {{&school.SchoolName, 13, "Missing the School Name."}}},
            {"tblHowFeePaid", how, ".clsHowFeePaid", {{&how.HowFeePaidText, 13, "Missing the How Fee Paid Text."}}}};
    }
    std::vector<Class> sizesAndOptions() {
        std::vector<Class> classes{{"tblOptions", static_cast<OptionsRecord&>(options), ".clsOptions"},
                                   {"tblDefaults", static_cast<DefaultsRecord&>(options), ".clsOptions"}};
        const struct {
            const char* table;
            UniformSize& size;
            quint32 first;
            const char* designator;
            const char* description;
        } sizes[]{{"tblPantSize", uniform.PantSize, 13, "Missing the Pants Size Designator.",
                   "Missing the Pants Size Description."},
                  {"tblShirtSize", uniform.ShirtSize, 15, "Missing the Shirt Size Designator.",
                   "Missing the Shirt Size Description."},
                  {"tblHatSize", uniform.HatSize, 17, "Missing the Hat Size Designator.",
                   "Missing the Hat Size Description."},
                  {"tblSocksSize", uniform.SocksSize, 19, "Missing the Socks Size Designator.",
                   "Missing the Socks Size Description."},
                  {"tblShoeSize", uniform.ShoeSize, 21, "Missing the Shoe Size Designator.",
                   "Missing the Shoe Size Description."}};
        for (const auto& each : sizes)
            classes.push_back({each.table,
                               each.size,
                               ".clsUniform",
                               {{&each.size.Size, each.first, each.designator},
                                {&each.size.SizeText, each.first + 1, each.description}}});
        return classes;
    }
};

class ClassesTest : public testing::Test {
protected:
    std::vector<Class> classes() {
        std::vector<Class> all = records_.people();
        for (const Class& each : records_.things()) all.push_back(each);
        for (const Class& each : records_.sizesAndOptions()) all.push_back(each);
        return all;
    }
    LeagueFile league_;
    Records records_{league_.context};
};

template <class Work>
QString raisedBy(Work work) {
    try {
        work();
    } catch (const RecordError& error) {
        return QStringLiteral("%1 %2 %3").arg(error.number() - 0x80040000u).arg(error.source(), error.text());
    }
    return {};
}

TEST_F(ClassesTest, EachHoldsEveryColumnOfItsTable) {
    for (const Class& each : classes()) {
        QStringList expected;
        for (const datafile::FieldDef& field : league_.database().table(each.table)->fields)
            expected << field.name.toLower();
        QStringList columns;
        for (const Column* column : each.record.columns()) columns << QString::fromLatin1(column->name()).toLower();
        expected.sort();
        columns.sort();
        EXPECT_EQ(columns, expected) << each.table;
    }
}

TEST_F(ClassesTest, EachRefusesInItsOwnNumbersAndWords) {
    for (const Class& each : classes()) {
        SCOPED_TRACE(each.table);
        const QString source = QStringLiteral("Kestrelmoor") + QLatin1String(each.tag);
        const bool isOptions = QLatin1String(each.tag) == u".clsOptions";
        const QString move = !isOptions                                   ? "Invalid move operation."
                             : QLatin1String(each.table) == u"tblOptions" ? "Invalid Options Move Operation."
                                                                          : "Invalid Defaults Move Operation.";
        EXPECT_EQ(raisedBy([&] { each.record.move(9); }), "1011 " + source + ' ' + move);
        each.record.newRecord();
        for (const Required& required : each.required) *required.column = "";
        for (const Required& required : each.required) {
            EXPECT_EQ(raisedBy([&] { each.record.isValid(true); }),
                      QStringLiteral("10%1 ").arg(required.number) + source + ' ' + QLatin1String(required.text));
            *required.column = "x";
        }
        EXPECT_TRUE(each.record.isValid(true));
    }
    records_.player.PlayerBirthDate = QDate();
    EXPECT_EQ(raisedBy([&] { records_.player.IsPlayerValid(true); }),
              "1016 Kestrelmoor.clsPlayer Missing the Player Birth Date.");
    clsTeamField pair(league_.context);
    EXPECT_EQ(raisedBy([&] { pair.IsTeamFieldValid(true); }), "1013 Kestrelmoor.clsTeamField Missing the Team Name.");
}

TEST(SizesTest, SizesAreFoundAndRevivedByTheirDescriptionInTheirOwnTable) {
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
