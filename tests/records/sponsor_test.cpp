#include "registration/clsSponsors.h"

#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace {

class SponsorTest : public testing::Test {
protected:
    void add(const QString& name) {
        sponsor.NewSponsorRecord();
        sponsor.SponsorName = name;
        sponsor.SaveSponsorRecord();
    }
    LeagueFile league;
    clsSponsors sponsor{league.context};
    bool found = false;
};

TEST_F(SponsorTest, ANewSponsorPledgesTheDefaultFeeForTheSeason) {
    const struct {
        const char* season;
        const char* fee;
        const char* year;
        const char* amount;
    } cases[]{
        {"2025", "250.00", "2025", "250.00"}, {"", "$1,250.00", "2026", "$1,250.00"}, {"2026", "much", "2026", ""}};
    for (const auto& each : cases) {
        league.context.globals.currentSeasonYear = each.season;
        league.context.globals.defaultSponsorFee = each.fee;
        sponsor.NewSponsorRecord();
        EXPECT_EQ(sponsor.SponsorPledgeYear(), each.year);
        EXPECT_EQ(sponsor.SponsorPledgeAmount(), each.amount);
        EXPECT_FALSE(sponsor.IsSponsorDirty());
    }
    sponsor.SponsorPledgeYear = "";
    sponsor.SponsorName = "Acme";
    sponsor.SponsorPledgeAmount = "100";
    sponsor.SaveSponsorRecord();
    EXPECT_EQ(league.value("tblSponsor", "SponsorPledgeYear"), "2026") << "a missing year is this year";
}

TEST_F(SponsorTest, ADeletedSponsorComesBackWithItsPledges) {
    add("Acme");
    add("Bolt");
    const int id = 1;
    sponsor.NewSponsorPledgeRecord(id, "2024", "$100.00", "");
    sponsor.DeleteSponsorRecord("Nobody");
    sponsor.DeleteSponsorRecord("Acme");
    EXPECT_EQ(sponsor.SponsorName(), "Acme") << "the cursor walks over deleted rows";
    EXPECT_TRUE(sponsor.FindSponsorRecord("Acme", false, true));
    EXPECT_TRUE(sponsor.SponsorDeletedFlag);
    sponsor.FindDeletedSponsorRecord("Acme", false, false, found);
    EXPECT_TRUE(found);
    add("acme");
    EXPECT_EQ(sponsor.SponsorId, id);
    int count = 0;
    sponsor.CountSponsorRecords(count);
    EXPECT_EQ(count, 2);
    sponsor.FindPreviousPledge(id, "2024", found);
    EXPECT_TRUE(found);
    league.dialogs.expectWarning("Record Not Found...", "No Records found for Cobb.");
    EXPECT_FALSE(sponsor.FindSponsorRecord("Cobb", true, false));
}

TEST_F(SponsorTest, PledgesAreArchivedReplacedAndDeletedByTheirYear) {
    add("Acme");
    sponsor.NewSponsorPledgeRecord(1, "2026", "$100.00", "$50.00");
    sponsor.SetIsPledgeNew(true);
    EXPECT_EQ(sponsor.SponsorPledgeYear(), "");
    EXPECT_TRUE(sponsor.IsSponsorDirty());
    EXPECT_EQ(league.value("tblSponsor", "SponsorPledgeYear"), "2026") << "cleared in the row only by a save";
    sponsor.UndoSponsorRecord();
    EXPECT_EQ(sponsor.SponsorPledgeYear(), "2026");
    EXPECT_FALSE(sponsor.IsPledgeNew());

    sponsor.NewSponsorPledgeRecord(1, "2026", "$200.00", "");
    sponsor.FindPreviousPledge(1, "2026", found);
    sponsor.UpdatePreviousPledgeRecord(1, "2026", "$150.00", "$75.00");
    const QString live = QStringLiteral("SELECT * FROM tblSponsorPreviousPledge WHERE [DeletedFlag] = False");
    EXPECT_EQ(league.count(live), 2) << "one year may be archived twice";
    EXPECT_EQ(league.value(live, "PreviousPledgeAmount"), "$150.00");
    sponsor.DeletePreviousPledgeRecord(1, "2026");
    EXPECT_EQ(league.value(live, "PreviousPledgeAmount"), "$200.00");
    sponsor.DeletePreviousPledgeRecord(1, "2026");
    EXPECT_EQ(league.count(live), 0);
    sponsor.FindPreviousPledge(1, "2026", found);
    EXPECT_TRUE(found);
    sponsor.UpdatePreviousPledgeRecord(1, "2026", "$300.00", "");
    EXPECT_EQ(league.count(live), 1);
    sponsor.FindPreviousPledge(2, "2026", found);
    EXPECT_FALSE(found);
}

}  // namespace
