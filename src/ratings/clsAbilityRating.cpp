#include "ratings/clsAbilityRating.h"

#include "platform/text/Numbers.h"
#include "store/Lookup.h"

clsAbilityRating::clsAbilityRating(StoreContext& context) : RecordClass(context) {
    open({.source = "tblAbilityRating",
          .tag = ".clsAbilityRating",
          .noRecords = "Volunteer Positions Table.  ",
          .required = {{&PlayerId, "Missing the Rating Text Field.", false}}});
}

/// The comments go first: should the grades fail, the record is still unsaved and saving again does no harm.
void clsAbilityRating::SaveARRecord() {
    if (!isChanged()) return;
    saveComments("tblRegistration", "PlayerComments", "PlayerId", PlayerId, PlayerComments);
    saveComments("tblVolunteer", "VolComments", "VolId", VolId, VolunteerComments);
    save();
}

void clsAbilityRating::saveComments(const char* table, const char* column, const char* key, int id,
                                    const Text& comments) {
    if (id == 0 || !comments.assigned()) return;
    datafile::Recordset person = database().openRecordset(
        QStringLiteral("SELECT * FROM %1 WHERE %2").arg(QLatin1String(table), matches(key, id)));
    if (person.eof()) return;
    person.edit();
    person.set(QLatin1String(column), datafile::Value{comments()});
    person.update();
}

QString clsAbilityRating::twinCriteria() const {
    if (PlayerId == 0 && VolId == 0) return {};
    return QStringLiteral("DeletedFlag = True AND ") +
           (PlayerId != 0 ? matches("PlayerId", PlayerId) : matches("VolId", VolId));
}

void clsAbilityRating::ResetPlayerRatings() {
    for (Column* column : std::initializer_list<Column*>{
             &PitcherRating, &CatcherRating, &InfieldRating, &OutfieldRating, &ThrowingRating, &RunningRating,
             &BattingRating, &KnowledgeRating, &PlayerComments, &PositionPitcher, &PositionCatcher, &PositionFirstBase,
             &PositionSecondBase, &PositionShortStop, &PositionThirdBase, &PositionLeftField, &PositionCenterField,
             &PositionRightField, &PositionAllPositions})
        column->blank();
}

void clsAbilityRating::ResetVolunteerRatings() {
    for (Column* column : std::initializer_list<Column*>{
             &UmpireHomePlateRating, &UmpireFieldRating, &UmpireKnowledgeRating, &CoachAbilityRating,
             &CoachAttitudeRating, &CoachKnowledgeRating, &CoachReturn, &VolunteerComments})
        column->blank();
}

QString clsAbilityRating::read(const char* table, const char* column, const QString& criteria) const {
    return ReadFieldValue(context(), context().dataFilePath, QLatin1String(column), QLatin1String(table), criteria);
}

namespace {

/// A word that was deleted still tells what was graded with it, where no other one does.
constexpr char scale[] = "SELECT * FROM tblRating ORDER BY [DeletedFlag]";

}  // namespace

int clsAbilityRating::FindRatingValue(const QString& text) const {
    return toWhole(read(scale, "RatingValue", matches("RatingText", text))).value_or(0);
}

QString clsAbilityRating::FindRatingText(int value) const {
    const QString text = read(scale, "RatingText", matches("RatingValue", value));
    return text.isEmpty() ? QStringLiteral("Rating Not Found") : text;
}

QString clsAbilityRating::FindDivisionRecordById(int id) const {
    return read("tblDivision", "DivName", matches("DivisionId", id));
}

QString clsAbilityRating::FindTeamName(int divisionId, int teamId) const {
    return read("tblTeam", "TeamName",
                matches("DivisionId", divisionId) + QStringLiteral(" AND ") + matches("TeamId", teamId));
}

void clsAbilityRating::DeleteAllTempRecords() { database().execute("DELETE FROM tblTempSearchList"); }

void clsAbilityRating::AddNewTempRecord(const TempRecord& person) {
    datafile::Recordset rows = database().openRecordset("tblTempSearchList");
    rows.addNew();
    rows.set("PlayerId", person.playerId);
    rows.set("VolId", person.volId);
    rows.set("FirstName", datafile::Value{person.firstName});
    rows.set("MiddleInitial", datafile::Value{person.middleInitial});
    rows.set("LastName", datafile::Value{person.lastName});
    rows.set("BirthDate", person.birthDate);
    rows.set("HomePhone", datafile::Value{person.homePhone});
    rows.update();
}

void clsAbilityRating::FillTempRecords() {
    const QString insert = QStringLiteral(
        "INSERT INTO tblTempSearchList ([PlayerId], [VolId], [FirstName], [MiddleInitial], "
        "[LastName], [BirthDate], [HomePhone]) ");
    datafile::Transaction transaction(database());
    DeleteAllTempRecords();
    database().execute(
        insert +
        "SELECT [PlayerId], 0, [PlayerFirstName], [PlayerMiddleInitial], [PlayerLastName], [PlayerBirthDate], \"\" "
        "FROM tblRegistration WHERE [PlayerIsUmpire] = True AND [DeletedFlag] = False");
    database().execute(insert +
                       "SELECT 0, [VolId], [VolFirstName], \"\", [VolLastName], #01/01/1940#, [VolHomePhone] "
                       "FROM tblVolunteer WHERE [DeletedFlag] = False");
    transaction.commit();
}
