#include "sample_league/SampleLeague.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include "platform/datafile/DataFile.h"
#include "platform/datafile/Workspace.h"
#include "platform/text/Dates.h"
#include "platform/text/Money.h"
#include "store/AgeRule.h"
#include "support/Printing.h"

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// A sample league in a folder of its own.
class Sample {
public:
    explicit Sample(const SampleOptions& options = {}) : database(open(options)) {}

    QString path() const { return folder.filePath("league.kmr"); }
    qint64 count(const QString& rows) {
        return database.openRecordset("SELECT COUNT(*) AS RowCount FROM " + rows).number("RowCount");
    }

    QTemporaryDir folder;
    datafile::Workspace workspace;
    datafile::Database database;

private:
    datafile::Database open(const SampleOptions& options) {
        makeSampleLeague(path(), options);
        return workspace.openDatabase(path());
    }
};

/// Leagues of any size, the smallest and an uneven one among them.
class SampleLeagueOfSize : public testing::TestWithParam<int> {
protected:
    Sample sample{{.players = GetParam()}};
};

TEST_P(SampleLeagueOfSize, HasThePlayersAskedForAndIsSound) {
    EXPECT_EQ(sample.count("tblRegistration"), GetParam());
    EXPECT_EQ(sample.count("tblDivision WHERE DeletedFlag = False"), 10);
    EXPECT_NO_THROW(datafile::checkIntegrity(sample.path()));
    EXPECT_EQ(QDir(sample.folder.path()).entryList(QDir::Files), QStringList("league.kmr"));
}

TEST_P(SampleLeagueOfSize, EveryIdNamesARow) {
    const struct {
        const char *table, *column, *other, *key;
        bool required = false;
    } relations[] = {{"tblTeam", "DivisionId", "tblDivision", "DivisionId", true},
                     {"tblTeam", "SponsorId", "tblSponsor", "SponsorId"},
                     {"tblRegistration", "PlayerDivisionId", "tblDivision", "DivisionId"},
                     {"tblRegistration", "PlayerTeamId", "tblTeam", "TeamId"},
                     {"tblRegistrationVolunteer", "PlayerId", "tblRegistration", "PlayerId", true},
                     {"tblRegistrationVolunteer", "VolId", "tblVolunteer", "VolId", true},
                     {"tblVolToPosition", "VolId", "tblVolunteer", "VolId", true},
                     {"tblVolToPosition", "PlayerId", "tblRegistration", "PlayerId"},
                     {"tblVolToPosition", "VolPosId", "tblVolunteerPositions", "VolPosId", true},
                     {"tblVolunteerCertifications", "VolId", "tblVolunteer", "VolId", true},
                     {"tblVolunteerCertifications", "CertificationId", "tblCertifications", "CertificationId", true},
                     {"tblTeamVolunteer", "VolId", "tblVolunteer", "VolId", true},
                     {"tblTeamVolunteer", "TeamId", "tblTeam", "TeamId", true},
                     {"tblSponsorPreviousPledge", "SponsorId", "tblSponsor", "SponsorId", true},
                     {"tblAbilityRating", "PlayerId", "tblRegistration", "PlayerId"},
                     {"tblAbilityRating", "VolId", "tblVolunteer", "VolId"},
                     {"tblEquipment", "VendorId", "tblVendor", "VendorId", true},
                     {"tblEquipment", "InsuranceId", "tblInsurance", "InsId"},
                     {"tblEquipmentAssignment", "EquipmentId", "tblEquipment", "EquipId", true},
                     {"tblEquipmentAssignment", "DivisionId", "tblDivision", "DivisionId"},
                     {"tblEquipmentAssignment", "TeamId", "tblTeam", "TeamId"},
                     {"tblEquipmentAssignment", "PlayerId", "tblRegistration", "PlayerId"},
                     {"tblEquipmentAssignment", "VolId", "tblVolunteer", "VolId"},
                     {"tblResults", "HomeTeamId", "tblTeam", "TeamId", true},
                     {"tblResults", "VisitorTeamId", "tblTeam", "TeamId", true}};
    for (const auto& each : relations) {
        const QString live = QString("SELECT %1 FROM %2 WHERE DeletedFlag = False").arg(each.key, each.other);
        const QString none = each.required ? "" : QString(" AND %1 <> 0").arg(each.column);
        EXPECT_EQ(sample.count(QString("%1 WHERE %2 NOT IN (%3)%4").arg(each.table, each.column, live, none)), 0)
            << each.table << "." << each.column;
        EXPECT_EQ(sample.count(QString("%1 WHERE %2 IS NULL").arg(each.table, each.column)), 0)
            << each.table << "." << each.column;
    }
}

TEST_P(SampleLeagueOfSize, NoRowBreaksARuleOfTheLeague) {
    const std::pair<const char*, const char*> broken[] = {
        {"player's team is of another division",
         "tblRegistration, tblTeam WHERE PlayerTeamId = TeamId AND PlayerDivisionId <> DivisionId"},
        {"staff's team is of another division",
         "tblTeamVolunteer, tblTeam WHERE tblTeamVolunteer.TeamId = tblTeam.TeamId AND tblTeamVolunteer.DivisionId <> "
         "tblTeam.DivisionId"},
        {"holder's team is of another division",
         "tblEquipmentAssignment, tblTeam WHERE tblEquipmentAssignment.TeamId = tblTeam.TeamId AND "
         "tblEquipmentAssignment.DivisionId <> tblTeam.DivisionId"},
        {"result between divisions",
         "tblResults, tblTeam WHERE (HomeTeamId = TeamId OR VisitorTeamId = TeamId) AND tblResults.DivisionId <> "
         "tblTeam.DivisionId"},
        {"unknown role", "tblRegistrationVolunteer WHERE VolGender NOT IN (\"Dad\", \"Mom\", \"Other\")"},
        {"unknown staff position",
         "tblTeamVolunteer WHERE VolPosName NOT IN (\"HeadCoach\", \"FirstAssistant\", \"SecondAssistant\", "
         "\"TeamParent\", \"TeamParent2\")"},
        {"one position filled twice",
         "(SELECT TeamId FROM tblTeamVolunteer WHERE DeletedFlag = False GROUP BY TeamId, VolPosName HAVING COUNT(*) > "
         "1)"},
        {"one coach in two positions",
         "(SELECT TeamId FROM tblTeamVolunteer WHERE VolPosName NOT IN (\"TeamParent\", \"TeamParent2\") GROUP BY "
         "TeamId, VolId HAVING COUNT(*) > 1)"},
        {"two players alike",
         "(SELECT PlayerId FROM tblRegistration GROUP BY PlayerLastName, PlayerFirstName, PlayerBirthDate HAVING "
         "COUNT(*) > 1)"},
        {"two volunteers alike",
         "(SELECT VolId FROM tblVolunteer GROUP BY VolLastName, VolFirstName, VolHomePhone HAVING COUNT(*) > 1)"},
        {"two teams of a division alike",
         "(SELECT TeamId FROM tblTeam GROUP BY DivisionId, TeamName HAVING COUNT(*) > 1)"},
        {"jersey worn twice",
         "(SELECT PlayerId FROM tblRegistration WHERE PlayerTeamId <> 0 GROUP BY PlayerTeamId, PlayerJerseyNumber "
         "HAVING COUNT(*) > 1)"},
        {"unknown size", "tblRegistration WHERE PlayerShirtSize NOT IN (SELECT ShirtSizeText FROM tblShirtSize)"},
        {"unknown way of payment",
         "tblRegistration WHERE PlayerHowFeePaid <> \"\" AND PlayerHowFeePaid NOT IN (SELECT HowFeePaidText FROM "
         "tblHowFeePaid)"},
        {"game of an unknown team",
         "tblSchedule WHERE HomeTeam NOT IN (SELECT TeamName FROM tblTeam, tblDivision WHERE tblTeam.DivisionId = "
         "tblDivision.DivisionId AND DivName = tblSchedule.division)"},
        {"two games at once on one field",
         "(SELECT ScheduleId FROM tblSchedule WHERE DeletedFlag = False GROUP BY Date, Time, Field HAVING COUNT(*) > "
         "1)"},
        {"result of a day to come", "tblResults WHERE GameDate >= #5-16-2026#"},
        {"saved after today", "tblRegistration WHERE DateStamp > #5-16-2026#"},
        {"both a player's and a volunteer's rating", "tblAbilityRating WHERE (PlayerId = 0) = (VolId = 0)"}};
    for (const auto& [what, rows] : broken) EXPECT_EQ(sample.count(rows), 0) << what;
}

TEST_P(SampleLeagueOfSize, AgesFollowTheAgeRule) {
    datafile::Recordset players = sample.database.openRecordset(
        "SELECT PlayerBirthDate, PlayerAge, DivMinAge, DivMaxAge, DivAgeCutOffMonth, DivAgeCutOffDay FROM "
        "tblRegistration, tblDivision WHERE PlayerDivisionId = DivisionId");
    for (; !players.eof(); players.moveNext()) {
        const CutOff cutOff =
            cutOffByPair({players.text("DivAgeCutOffMonth"), players.text("DivAgeCutOffDay")}, {"8", "1"});
        const int age = CalculateAge(shortDate(players.date("PlayerBirthDate")), cutOff.month, cutOff.day, "2026");
        EXPECT_EQ(players.number("PlayerAge"), age);
        EXPECT_GE(age, players.text("DivMinAge").toInt());
        EXPECT_LE(age, players.text("DivMaxAge").toInt());
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, SampleLeagueOfSize, testing::Values(0, 1, 37, 600));

TEST(SampleLeague, HasWhatMakesScreensAndReportsStumble) {
    Sample sample;
    const std::pair<const char*, const char*> wanted[] = {
        {"apostrophe", "tblRegistration WHERE PlayerLastName LIKE \"%'%\""},
        {"hyphen", "tblRegistration WHERE PlayerLastName LIKE \"%-%\""},
        {"accent", "tblRegistration WHERE PlayerLastName LIKE \"%é%\" OR PlayerLastName LIKE \"%ñ%\""},
        {"quote", "tblRegistration WHERE PlayerComments LIKE \"%\"\"%\""},
        {"longest last name", "tblRegistration WHERE LENGTH(PlayerLastName) = 30"},
        {"longest first name", "tblRegistration WHERE LENGTH(PlayerFirstName) = 30"},
        {"longest comment", "tblRegistration WHERE LENGTH(PlayerMedicalComments) = 255"},
        {"longest e-mail", "tblRegistration WHERE LENGTH(PlayerEmailAddress) = 100"},
        {"longest division", "tblDivision WHERE LENGTH(DivName) = 30"},
        {"longest team", "tblTeam WHERE LENGTH(TeamName) = 35"},
        {"longest field", "tblField WHERE LENGTH(FieldName) = 30"},
        {"longest sponsor", "tblSponsor WHERE LENGTH(SponsorName) = 50"},
        {"longest item", "tblEquipment WHERE LENGTH(ItemName) = 50"},
        {"inactive player", "tblRegistration WHERE PlayerActive = False AND DeletedFlag = False"},
        {"deleted player", "tblRegistration WHERE DeletedFlag = True"},
        {"player without a team", "tblRegistration WHERE PlayerActive = True AND PlayerTeamId = 0"},
        {"player without a division", "tblRegistration WHERE PlayerActive = True AND PlayerDivisionId = 0"},
        {"twins", "(SELECT PlayerId FROM tblRegistration GROUP BY PlayerPhone, PlayerBirthDate HAVING COUNT(*) > 1)"},
        {"lone parent", "tblRegistration WHERE PlayerMomFirstName = \"\""},
        {"mother first",
         "tblRegistration WHERE PlayerGuardian1Relationship = \"Mother\" AND PlayerMomFirstName <> \"\""},
        {"inactive volunteer", "tblVolunteer WHERE VolActive = False AND DeletedFlag = False"},
        {"association by hand", "tblRegistrationVolunteer WHERE VolGender = \"Other\""},
        {"position for no player", "tblVolToPosition WHERE PlayerId = 0"},
        {"coach who left", "tblTeamVolunteer WHERE DeletedFlag = True"},
        {"team without a sponsor", "tblTeam WHERE SponsorId = 0 AND DeletedFlag = False"},
        {"division without a cut-off", "tblDivision WHERE DivAgeCutOffMonth = \"\""},
        {"earlier pledge", "tblSponsorPreviousPledge WHERE DeletedFlag = False"},
        {"item returned", "tblEquipmentAssignment WHERE ReturnQuantity <> \"0\" AND ReturnDate IS NOT NULL"},
        {"item of a player", "tblEquipmentAssignment WHERE PlayerId <> 0"},
        {"item of a division", "tblEquipmentAssignment WHERE DivisionId <> 0 AND TeamId = 0"},
        {"tie", "tblResults WHERE HomeTeamScore = VisitorTeamScore"},
        {"game to come", "tblSchedule WHERE Date > #5-16-2026#"},
        {"not every grade given", "tblAbilityRating WHERE PlayerId <> 0 AND PitcherRating = 0"},
        {"coach not to return", "tblAbilityRating WHERE VolId <> 0 AND CoachReturn = 1"}};
    for (const auto& [what, rows] : wanted) EXPECT_GT(sample.count(rows), 0) << what;
}

TEST(SampleLeague, HasEveryStateOfPayment) {
    Sample sample;
    QSet<QString> states;
    datafile::Recordset players = sample.database.openRecordset("tblRegistration");
    for (players.moveFirst(); !players.eof(); players.moveNext()) {
        const QString fee = players.text("PlayerFeeAmount");
        const Money other = Money::orZero(players.text("PlayerOtherFees"));
        const Money fundRaiser = Money::orZero(players.text("PlayerFundRaiserFee"));
        const Money due = Money::orZero(fee) + fundRaiser + other;
        const Money paid = Money::orZero(players.text("PlayerAmountPaid"));
        if (!Money::parse(fee)) states << "fee no number";
        if (other > Money{}) states << "other fees";
        if (fundRaiser > Money{}) states << "fund raiser";
        states << (paid > due ? "refund" : paid == due ? "settled" : paid == Money{} ? "nothing paid" : "balance");
    }
    EXPECT_EQ(states, QSet<QString>({"fee no number", "other fees", "fund raiser", "refund", "settled", "nothing paid",
                                     "balance"}));
}

TEST(SampleLeague, IsTheSameForTheSameArguments) {
    QTemporaryDir folder;
    const auto made = [&folder](const char* name, const SampleOptions& options) {
        makeSampleLeague(folder.filePath(name), options);
        return bytesOf(folder.filePath(name));
    };
    const QByteArray first = made("first", {.players = 60});
    EXPECT_TRUE(first == made("again", {.players = 60}));
    EXPECT_FALSE(first == made("seed", {.players = 60, .seed = 2}));
    EXPECT_FALSE(first == made("season", {.players = 60, .season = 2025}));
    EXPECT_FALSE(first == made("today", {.players = 60, .today = QDate(2026, 4, 20)}));
}

TEST(SampleLeague, RefusesWhatItCannotMakeAndLeavesNothingBehind) {
    QTemporaryDir folder;
    const QString path = folder.filePath("league.kmr");
    const auto isRefused = [](const QString& file, const SampleOptions& options) {
        try {
            makeSampleLeague(file, options);
        } catch (const datafile::Error& error) {
            return !error.text().isEmpty();
        }
        return false;
    };
    EXPECT_TRUE(isRefused(path, {.players = -1}));
    EXPECT_TRUE(isRefused(path, {.players = mostSamplePlayers + 1}));
    EXPECT_TRUE(isRefused(path, {.season = 2034}));
    EXPECT_TRUE(isRefused(folder.filePath("no/such/folder/league.kmr"), {.players = 1}));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());

    QFile own(path);
    ASSERT_TRUE(own.open(QIODevice::WriteOnly));
    own.write("a season's work");
    own.close();
    EXPECT_TRUE(isRefused(path, {.players = 1}));
    EXPECT_EQ(bytesOf(path), "a season's work");
}

}  // namespace
