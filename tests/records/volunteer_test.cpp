#include "registration/clsVolunteer.h"

#include "support/LeagueFile.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace {

class VolunteerTest : public testing::Test {
protected:
    void add(const QString& last, const QString& first, const QString& phone) {
        volunteer.NewVolRecord();
        volunteer.VolLastName = last;
        volunteer.VolFirstName = first;
        volunteer.VolHomePhone = phone;
        volunteer.VolActive = true;
        volunteer.SaveVolRecord();
    }
    LeagueFile league;
    clsVolunteer volunteer{league.context};
    bool found = false;
};

TEST_F(VolunteerTest, VolunteersAreFoundByTheTextOfTheirEntry) {
    bool any = true;
    volunteer.FindNewVolRecord("Smith, Ann - 555-1234", any);
    EXPECT_FALSE(any) << "an empty table is silent";
    const VolunteerKey people[]{{"Smith", "Ann", "555-1234"},
                                {"Smith", "Ann", "555-9999"},
                                {"Smith-Jones", "Mary-Ann", "555-1234"},
                                {"van der Berg", "Jo - El", "555-1234"},
                                {"O\"Neil", "D'Arcy", "5551234"}};
    for (const VolunteerKey& key : people) add(key.lastName, key.firstName, key.phone);
    EXPECT_EQ(volunteer.recordCount(), 5);
    for (const VolunteerKey& key : people) {
        volunteer.GetVolId(key.text(), found);
        EXPECT_TRUE(found) << key.text().toStdString();
        EXPECT_EQ(volunteer.VolFirstName(), key.firstName);
        EXPECT_EQ(volunteer.VolHomePhone(), key.phone);
    }
    for (const char* none : {"Smith", "Smith, Ann", "Smith, Ann - ", ""})
        EXPECT_FALSE(volunteer.FindVolRecord(none, false, true)) << none;
    league.dialogs.expectInformation({}, "No Records found for Smith, Bob.");
    volunteer.GetVolRecord("Smith, Bob - 555-1234", true, found);
}

TEST_F(VolunteerTest, ADeletedVolunteerComesBackUnderTheOldKey) {
    add("Smith", "Ann", "555-1234");
    const int id = volunteer.VolId;
    volunteer.AddRegVolRecord(5, id, "Dad");
    volunteer.FindActiveVolunteer("Smith", "Ann", "555-1234", found);
    EXPECT_TRUE(found);
    volunteer.DeleteVolRecord();
    EXPECT_EQ(league.value("tblVolunteer", "VolActive"), "0");
    int count = 0;
    volunteer.CountRegVolRecords(id, count);
    EXPECT_EQ(count, 1) << "the link outlives the volunteer";
    volunteer.FindActiveVolunteer("Smith", "Ann", "555-1234", found);
    EXPECT_FALSE(found);
    volunteer.FindVolRecordByVolId(id, found);
    EXPECT_FALSE(found);
    volunteer.FindVolRecord2("Smith", "Ann", "555-1234", true, found);
    EXPECT_TRUE(found) << "a merge finds deleted volunteers";
    volunteer.FindDeletedVolRecord("Smith, Ann - 555-1234", false, true, found);
    EXPECT_TRUE(found);
    add("smith", "ann", "555-1234");
    EXPECT_EQ(volunteer.VolId, id);
    EXPECT_EQ(league.count("tblVolunteer"), 1);
    volunteer.FindDeletedVolRecord("Smith, Ann - 555-1234", false, false, found);
    EXPECT_FALSE(found);
}

TEST_F(VolunteerTest, LinksComeAndGoSoftlyInTheirRole) {
    volunteer.FindRegVolRecord(5, 1, found);
    EXPECT_FALSE(found);
    volunteer.DeleteRegVolRecord();
    volunteer.AddRegVolRecord(5, 1, "Dad");
    volunteer.AddRegVolRecord(5, 1, "Other");
    volunteer.AddRegVolRecord(5, 1, "Other");
    volunteer.AddRegVolRecord(6, 1, "Dad");
    EXPECT_EQ(league.count("tblRegistrationVolunteer"), 3);
    volunteer.FindVolIdInRegVol(5, "Mom", found);
    EXPECT_FALSE(found);
    volunteer.DeleteRegVolRecord();
    volunteer.FindVolIdInRegVol(5, "Dad", found);
    EXPECT_EQ(volunteer.RegVolVolId, 1);
    volunteer.DeleteRegVolRecord();
    EXPECT_EQ(league.count("SELECT * FROM tblRegistrationVolunteer WHERE [DeletedFlag] = True"), 1)
        << "only what was found";
    volunteer.FindRegVolRecord(5, 1, found);
    EXPECT_EQ(volunteer.RegVolRole, "Other");
    int count = 0;
    volunteer.CountRegVolRecords(1, count);
    EXPECT_EQ(count, 2);
    volunteer.FindDeletedRegVolRecord(5, 1, "Other", found);
    EXPECT_FALSE(found);

    QList<int> players;
    for (volunteer.FindFirstPlayerIdInRegVol(1, "Dad", found); found; volunteer.FindNextPlayerIdInRegVol(found)) {
        players << volunteer.RegVolPlayerId;
        if (volunteer.RegVolPlayerId == 6) volunteer.UpdateRegVolRecord(2);
    }
    EXPECT_EQ(players, (QList<int>{5, 6}));
    volunteer.FindVolIdInRegVol(6, "Dad", found);
    EXPECT_EQ(volunteer.RegVolVolId, 2);
    volunteer.AddRegVolRecord(5, 1, "Dad");
    EXPECT_EQ(league.count("tblRegistrationVolunteer"), 3) << "a removed link comes back";
}

TEST_F(VolunteerTest, PositionsBelongToAVolunteerAndAPlayer) {
    for (int position : {3, 4}) volunteer.AddVolToPositionRecord(1, 5, position);
    volunteer.AddVolToPositionRecord(1, 0, 3);
    volunteer.DeleteVolToPositionRecord(1, 5, 3);
    league.dialogs.expectWarning("Record Not Found", "Volunteer Position Record NOT found.");
    volunteer.DeleteVolToPositionRecord(1, 5, 3);
    volunteer.AddVolToPositionRecord(1, 5, 3);
    EXPECT_EQ(league.count("tblVolToPosition"), 3);
    volunteer.DeleteAllVolToPositionRecords(1, 5);
    const QString live = QStringLiteral("SELECT * FROM tblVolToPosition WHERE [DeletedFlag] = False");
    EXPECT_EQ(league.count(live), 1);
    EXPECT_EQ(league.value(live, "PlayerId"), "0");
}

TEST_F(VolunteerTest, AnotherAdultOfTheFamilyKeepsWhatTheyShare) {
    add("Smith", "Ann", "555-1234");
    volunteer.VolCity = "Oakville";
    volunteer.VolOccupation = "Baker";
    volunteer.SaveVolRecord();
    volunteer.NewSiblingVolRecord();
    EXPECT_TRUE(volunteer.IsVolNew());
    EXPECT_EQ(volunteer.VolFirstName(), "");
    EXPECT_EQ(volunteer.VolOccupation(), "");
    EXPECT_EQ(volunteer.VolCity(), "Oakville");
    EXPECT_EQ(volunteer.VolHomePhone(), "555-1234");
    volunteer.UndoVolRecord();
    EXPECT_EQ(volunteer.VolFirstName(), "Ann");

    league.database().execute(
        "INSERT INTO tblDivision ([DivName], [DivRegistrationFee]) VALUES (\"Minors\", \"$85.00\")");
    QString name;
    volunteer.FindDivisionRecordById(1, name, found);
    EXPECT_EQ(name, "Minors");
    EXPECT_EQ(volunteer.DivRegistrationFee, "$85.00");
}

}  // namespace
