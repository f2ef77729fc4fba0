#include <fcntl.h>
#include <unistd.h>
#include <zip.h>

#include <QCoreApplication>
#include <QFile>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "maintenance/work/Backup.h"
#include "maintenance/work/NewSeason.h"
#include "platform/datafile/DataFile.h"

// A new season with every box checked beside the engine told to do the same, and backup and restore beside the archive
// library alone. Copies of the file that are made for a call do not count.

namespace {

constexpr int smallLeague = 10000;
constexpr int largeLeague = 100000;
constexpr int times = 3;
constexpr double mostSeasonTimes = 1.3;
constexpr double mostArchiveTimes = 1.1;

void must(bool holds, const char* what) {
    if (!holds) qFatal("%s failed.", what);
}

/// What the boxes ask for, all of them, in the engine's own language; each list is a transaction.
std::vector<std::vector<QString>> seasonByHand() {
    const QString stamps = "DateStamp = '2026-05-16', TimeStamp = 43200";
    const auto players = [&](const char* set) -> QString {
        return QString("UPDATE tblRegistration SET %1, ").arg(stamps) + set;
    };
    const auto marked = [&](const char* table) -> QString {
        return QString("UPDATE %1 SET %2, DeletedFlag = 1").arg(table, stamps);
    };
    const auto ratings = [&](const char* set) -> QString {
        return QString("UPDATE tblAbilityRating SET %1, DeletedFlag = 0, ").arg(stamps) + set;
    };
    const char* const ofVolunteers =
        "UmpireHomePlateRating = 0, UmpireFieldRating = 0, UmpireKnowledgeRating = 0, CoachAbilityRating = 0, "
        "CoachAttitudeRating = 0, CoachKnowledgeRating = 0, CoachReturn = 0 WHERE ";
    return {
        {"UPDATE tblOptions SET CurrentSeasonYear = '2027'"},
        {players("PlayerActive = 0 WHERE PlayerActive = 1")},
        {players("PlayerRegistrationDate = '2026-05-16'")},
        {players("PlayerIsUmpire = 0 WHERE PlayerIsUmpire = 1")},
        {players("PlayerTryoutNumber = ''")},
        {players("PlayerDivisionId = 0, PlayerTeamId = 0 WHERE PlayerDivisionId <> 0")},
        {players("PlayerComments = ''")},
        {players("PlayerOtherFees = '', PlayerFundRaiserFee = ''")},
        {players("PlayerAmountPaid = '', PlayerHowFeePaid = ''")},
        {ratings("PitcherRating = 0, CatcherRating = 0, InfieldRating = 0, OutfieldRating = 0, ThrowingRating = 0, "
                 "RunningRating = 0, BattingRating = 0, KnowledgeRating = 0, PositionPitcher = 0, PositionCatcher = 0, "
                 "PositionFirstBase = 0, PositionSecondBase = 0, PositionShortStop = 0, PositionThirdBase = 0, "
                 "PositionLeftField = 0, PositionCenterField = 0, PositionRightField = 0, PositionAllPositions = 0 "
                 "WHERE PlayerId <> 0")},
        {players("PlayerSchoolName = CASE PlayerGradeLevel WHEN '12' THEN '' ELSE PlayerSchoolName END, "
                 "PlayerGradeLevel = CASE WHEN PlayerGradeLevel IN ('12', '0') THEN '0' WHEN PlayerGradeLevel = 'K' "
                 "THEN '1' WHEN PlayerGradeLevel GLOB '[0-9]*' THEN CAST(PlayerGradeLevel + 1 AS TEXT) ELSE '' END")},
        {players("PlayerYearsExperience = CASE WHEN PlayerYearsExperience GLOB '[0-9]*' THEN "
                 "CAST(PlayerYearsExperience + 1 AS TEXT) ELSE '1' END")},
        {marked("tblEquipmentAssignment")},
        {marked("tblVolunteer"), marked("tblVolToPosition"), marked("tblVolunteerCertifications"),
         marked("tblRegistrationVolunteer"),
         players("PlayerDadVolunteer = 1, PlayerMomVolunteer = 1 WHERE PlayerDadVolunteer = 0 OR PlayerMomVolunteer = "
                 "0")},
        {marked("tblTeam"), "DELETE FROM tblSchedule WHERE 1", marked("tblDivision")},
        {"DELETE FROM tblTeamField WHERE 1"},
        {QString("UPDATE tblTeam SET %1, SponsorId = 0").arg(stamps)},
        {"DELETE FROM tblResults WHERE 1"},
        {ratings(ofVolunteers) + "VolId <> 0",
         ratings(ofVolunteers) + "PlayerId IN (SELECT PlayerId FROM tblRegistration WHERE PlayerIsUmpire = 1)"},
        {marked("tblTeamVolunteer")},
    };
}

void openSeasonByHand(const QString& path) {
    const RawFile file(path);
    for (const std::vector<QString>& step : seasonByHand()) {
        file.run("BEGIN IMMEDIATE");
        for (const QString& statement : step) file.run(statement);
        file.run("COMMIT");
    }
}

void openSeason(StoreContext& context) {
    SeasonBoxes boxes;
    for (size_t box = 0; box < seasonBoxCount; ++box) boxes.set(static_cast<SeasonBox>(box), true);
    const auto nothing = [](const QString&) {};
    runNewSeason(context, boxes, "2027", {nothing, nothing, [](int) {}});
}

/// What is written counts when it is on disk.
void sync(const QString& path) {
    const int file = ::open(QFile::encodeName(path), O_RDONLY | O_CLOEXEC);
    must(::fsync(file) == 0, "Syncing");
    ::close(file);
}

void zipByHand(const QString& file, const QString& archive) {
    zip_t* zip = zip_open(QFile::encodeName(archive), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    const zip_int64_t member =
        zip_file_add(zip, "Kestrelmoor.kmr", zip_source_file(zip, QFile::encodeName(file), 0, -1), 0);
    zip_set_file_compression(zip, static_cast<zip_uint64_t>(member), ZIP_CM_DEFLATE, 9);
    must(zip_close(zip) == 0, "Packing by hand");
    sync(archive);
}

void unzipByHand(const QString& archive, const QString& to) {
    zip_t* zip = zip_open(QFile::encodeName(archive), ZIP_RDONLY, nullptr);
    zip_file_t* member = zip_fopen(zip, "Kestrelmoor.kmr", 0);
    QFile file(to);
    must(member && (to.isEmpty() || file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)), "Unpacking by hand");
    QByteArray block(1 << 18, Qt::Uninitialized);
    while (const zip_int64_t count = zip_fread(member, block.data(), static_cast<zip_uint64_t>(block.size())))
        must(count > 0 && (to.isEmpty() || file.write(block.constData(), count) == count), "Unpacking by hand");
    zip_fclose(member);
    zip_discard(zip);
    if (!to.isEmpty()) sync(to);
}

void measureSeason(Comparison& comparison, int players) {
    comparison.addMeasured(
        {"new season, every box", players, {.times = mostSeasonTimes}}, times,
        [=] {
            SampleLeague league(players);
            return seconds([&] { openSeason(league.context); });
        },
        [=] {
            SampleLeague league(players);
            league.database.reset();
            return seconds([&] { openSeasonByHand(league.context.dataFilePath); });
        });
}

/// A large league and its archive, made when something is to be measured on them.
struct Packed {
    Packed() { must(archive::pack(file, archive) == archive::Fault::None, "Packing"); }
    QString at(const char* name) const { return league.files.filePath(name); }

    SampleLeague league{largeLeague};
    QString file = league.context.dataFilePath;
    QString archive = at("ours.zip");
};

void measureArchive(Comparison& comparison) {
    const auto made = std::make_shared<std::unique_ptr<Packed>>();
    const auto packed = [made]() -> Packed& {
        if (!*made) *made = std::make_unique<Packed>();
        return **made;
    };
    const auto measure = [&](const char* what, const Aim& aim, void (*ours)(Packed&), void (*raw)(Packed&)) {
        const auto timed = [packed](void (*work)(Packed&)) {
            return [packed, work] {
                Packed& league = packed();
                return seconds([&] { work(league); });
            };
        };
        comparison.addMeasured({what, largeLeague, aim}, times, timed(ours), timed(raw));
    };
    measure(
        "back up: pack", {.times = mostArchiveTimes},
        [](Packed& all) { must(archive::pack(all.file, all.at("made.zip")) == archive::Fault::None, "Packing"); },
        [](Packed& all) { zipByHand(all.file, all.at("raw.zip")); });
    measure(
        "back up: read back and compare", {},
        [](Packed& all) { must(archive::compare(all.archive, all.file) == archive::Fault::None, "Comparing"); },
        [](Packed& all) { unzipByHand(all.archive, {}); });
    measure(
        "restore: unpack", {.times = mostArchiveTimes},
        [](Packed& all) {
            must(archive::unpack(all.archive, "Kestrelmoor.kmr", all.at("ours.kmr"), largestDataFile) ==
                     archive::Fault::None,
                 "Unpacking");
        },
        [](Packed& all) { unzipByHand(all.archive, all.at("raw.kmr")); });
    measure(
        "restore: copy, unpack, check and swap", {},
        [](Packed& all) {
            must(restore(all.league.context, all.archive, all.league.files.path(), {}) == 0, "Restoring");
        },
        [](Packed& all) {
            QFile::remove(all.at("raw.BKM"));
            QFile::copy(all.file, all.at("raw.BKM"));
            unzipByHand(all.archive, all.at("raw.kmr"));
            datafile::checkIntegrity(all.at("raw.kmr"));
        });
}

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    for (const int players : {smallLeague, largeLeague}) measureSeason(comparison, players);
    measureArchive(comparison);
    return comparison.run();
}
