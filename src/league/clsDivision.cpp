#include "league/clsDivision.h"

clsDivision::clsDivision(StoreContext& context)
    : RecordClass(context),
      teams_(database().openRecordset("SELECT * FROM tblTeam ORDER BY [TeamName]")),
      ratings_(database().openRecordset("SELECT * FROM tblDifficultyRating ORDER BY [DifficultyRatingText]")) {
    open({.source = "SELECT * FROM tblDivision ORDER BY [DivName]",
          .tag = ".clsDiv",
          .noRecords = "Division Table.  ",
          .required = {{&DivName, "Missing the Division Name."}},
          .naturalKey = {&DivName}});
}

namespace {
constexpr char findTitle[] = "Find Division Record...";
constexpr char noneAvailable[] = "There are no Division Records Available.";
}  // namespace

void clsDivision::FindDivisionRecord(const QString& name, bool show, bool load, bool& found) {
    found = findOrTell(live(matches("DivName", name)), name, show, load,
                       {findTitle, noneAvailable, "No Records found for %1."});
}

void clsDivision::FindDivisionMergeRecord(const QString& name, bool show, bool load, bool& found) {
    found =
        findOrTell(matches("DivName", name), name, show, load, {findTitle, noneAvailable, "No Records found for %1."});
}

void clsDivision::FindDivisionRecordById(int id, bool show, bool load, bool& found) {
    found =
        findOrTell(live(matches("DivisionId", id)), {}, show, load, {findTitle, noneAvailable, "No Records found."});
}

bool clsDivision::TeamsAssignedToDivision(int divisionId) {
    if (!standOn(teams_, live(matches("DivisionId", divisionId)))) return false;
    TeamDateStamp = teams_.date("DateStamp");
    TeamTimeStamp = static_cast<int>(teams_.number("TimeStamp", 1));
    TeamDeletedFlag = teams_.flag("DeletedFlag");
    return true;
}

void clsDivision::loadRating() {
    Rating = ratings_.text("DifficultyRatingText");
    RatingComments = ratings_.text("Comments");
    RatingDateStamp = ratings_.date("DateStamp");
    RatingTimeStamp = static_cast<int>(ratings_.number("TimeStamp", 1));
    RatingDeletedFlag = ratings_.flag("DeletedFlag");
}

void clsDivision::AddNewDifficultyRating(const QString& rating, const QString& comments) {
    if (FindDeletedRatingRecord(rating))
        ratings_.edit();
    else
        ratings_.addNew();
    ratings_.set("DifficultyRatingText", rating);
    ratings_.set("Comments", comments);
    updateStamped(ratings_, context().clock, false);
    loadRating();
}

bool clsDivision::FindDeletedRatingRecord(const QString& rating) {
    if (!standOn(ratings_, deleted(matches("DifficultyRatingText", rating)))) return false;
    loadRating();
    return true;
}
