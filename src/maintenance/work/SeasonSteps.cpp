#include <QCoreApplication>

#include "maintenance/work/NewSeason.h"
#include "maintenance/work/SeasonGrades.h"

using datafile::Database;

namespace {

QString tr(const char* text) { return QCoreApplication::translate("NewSeason", text); }

bool always(const SeasonBoxes&) { return true; }
template <SeasonBox box>
bool checked(const SeasonBoxes& boxes) {
    return boxes.isChecked(box);
}
template <SeasonBox box>
bool checkedAndEnabled(const SeasonBoxes& boxes) {
    return boxes.isChecked(box) && boxes.isEnabled(box);
}
template <SeasonBox box, SeasonBox other>
bool checkedWithout(const SeasonBoxes& boxes) {
    return boxes.isChecked(box) && !boxes.isChecked(other);
}

/// The first row of the options; and the program's own copy in any case.
void setSeasonYear(StoreContext& context, const Database& database, const QString& year) {
    context.globals.currentSeasonYear = year;
    datafile::Recordset options = database.openRecordset("tblOptions");
    if (options.eof()) return;
    options.edit();
    options.set("CurrentSeasonYear", datafile::Value{year});
    options.update();
}

SeasonChange change(const char* statement) { return {QLatin1String(statement)}; }
SeasonChange ofPlayers(const char* changed) {
    return {QStringLiteral("UPDATE tblRegistration SET {stamps}, ") + QLatin1String(changed)};
}
SeasonChange softDelete(const char* table) {
    return {QStringLiteral("UPDATE %1 SET {stamps}, [DeletedFlag] = True").arg(QLatin1String(table))};
}
/// The condition keeps the engine from writing to a table that is empty anyhow.
SeasonChange remove(const char* table) {
    return {QStringLiteral("DELETE FROM %1 WHERE True").arg(QLatin1String(table))};
}

/// Ratings are cleared on deleted rows too, which come back by it.
SeasonChange clearRatings(const QString& rows, const QStringList& numbers, const QStringList& flags) {
    QString statement = QStringLiteral("UPDATE tblAbilityRating SET {stamps}, [DeletedFlag] = False");
    for (const QString& column : numbers) statement += QStringLiteral(", [%1] = 0").arg(column);
    for (const QString& column : flags) statement += QStringLiteral(", [%1] = False").arg(column);
    return {statement + QStringLiteral(" WHERE ") + rows};
}
SeasonChange clearPlayerRatings() {
    return clearRatings("[PlayerId] <> 0",
                        {"PitcherRating", "CatcherRating", "InfieldRating", "OutfieldRating", "ThrowingRating",
                         "RunningRating", "BattingRating", "KnowledgeRating"},
                        {"PositionPitcher", "PositionCatcher", "PositionFirstBase", "PositionSecondBase",
                         "PositionShortStop", "PositionThirdBase", "PositionLeftField", "PositionCenterField",
                         "PositionRightField", "PositionAllPositions"});
}
SeasonChange clearVolunteerRatings(const char* rows) {
    return clearRatings(QLatin1String(rows),
                        {"UmpireHomePlateRating", "UmpireFieldRating", "UmpireKnowledgeRating", "CoachAbilityRating",
                         "CoachAttitudeRating", "CoachKnowledgeRating", "CoachReturn"},
                        {});
}

SeasonPart deletionOfTeams() { return {tr("Deleting All Teams..."), {softDelete("tblTeam"), remove("tblSchedule")}}; }

std::vector<SeasonStep> playerSteps() {
    using Box = SeasonBox;
    return {
        {checked<Box::MarkPlayersInactive>,
         {{tr("Marking Players Inactive..."), {ofPlayers("[PlayerActive] = False WHERE [PlayerActive] = True")}}}},
        {checked<Box::ChangePlayerRegistrationDate>,
         {{tr("Changing Player Registration Date..."), {ofPlayers("[PlayerRegistrationDate] = {today}")}}}},
        {checked<Box::RemoveUmpireCheck>,
         {{tr("Removing Umpire Check Marks..."),
           {ofPlayers("[PlayerIsUmpire] = False WHERE [PlayerIsUmpire] = True")}}}},
        {checked<Box::RemoveTryoutNumber>,
         {{tr("Removing Tryout Numbers..."), {ofPlayers("[PlayerTryoutNumber] = \"\"")}}}},
        {checked<Box::RemoveDivisionAssignment>,
         {{tr("Removing Division Assignments..."),
           {ofPlayers("[PlayerDivisionId] = 0, [PlayerTeamId] = 0 WHERE [PlayerDivisionId] <> 0")}}}},
        {checkedWithout<Box::RemoveTeamAssignment, Box::RemoveDivisionAssignment>,
         {{tr("Removing Team Assignments..."), {ofPlayers("[PlayerTeamId] = 0 WHERE [PlayerTeamId] <> 0")}}}},
        {checked<Box::RemovePlayerComments>,
         {{tr("Removing Player Comments..."), {ofPlayers("[PlayerComments] = \"\"")}}}},
        {checked<Box::RemoveOtherFeesAmount>,
         {{tr("Setting Other Fees to $0.00 ..."),
           {ofPlayers("[PlayerOtherFees] = \"\", [PlayerFundRaiserFee] = \"\"")}}}},
        {checked<Box::ClearFeePaidAmount>,
         {{tr("Removing Fee Paid Amount..."), {ofPlayers("[PlayerAmountPaid] = \"\", [PlayerHowFeePaid] = \"\"")}}}},
        {checked<Box::ClearPlayerRatings>, {{tr("Clearing Player Ratings..."), {clearPlayerRatings()}}}},
        {checked<Box::IncreaseGradeLevel>, {{tr("Increasing Grade Level..."), {{{}, increaseGrades}}}}},
        {checked<Box::IncreaseYearsExperience>,
         {{tr("Increasing Years of Experience..."), {{{}, increaseExperience}}}}},
        {checked<Box::DeleteEquipmentAssignments>,
         {{tr("Deleting Equipment Assignments..."), {softDelete("tblEquipmentAssignment")}}}},
    };
}

/// Where all volunteers go, the boxes of the steps behind that one are disabled.
std::vector<SeasonStep> volunteerSteps() {
    using Box = SeasonBox;
    return {
        {checked<Box::DeleteAllVolunteers>,
         {{tr("Deleting Volunteer Records..."),
           {softDelete("tblVolunteer"), softDelete("tblVolToPosition"), softDelete("tblVolunteerCertifications"),
            softDelete("tblRegistrationVolunteer"),
            ofPlayers("[PlayerDadVolunteer] = 1, [PlayerMomVolunteer] = 1 WHERE [PlayerDadVolunteer] = 0 OR "
                      "[PlayerMomVolunteer] = 0")}}}},
        {checkedAndEnabled<Box::MarkVolunteersInactive>,
         {{tr("Marking Volunteers Inactive..."), {change("UPDATE tblVolunteer SET {stamps}, [VolActive] = False")}}}},
        {checkedAndEnabled<Box::ChangeVolunteerRegistrationDate>,
         {{tr("Updating Volunteer Registration Date..."),
           {change("UPDATE tblVolunteer SET {stamps}, [VolRegistrationDate] = {today}")}}}},
        {checkedAndEnabled<Box::RemoveVolunteerPlayerAssociations>,  // the positions, whatever the name says
         {{tr("Removing Vol/Player Associations..."), {softDelete("tblVolToPosition")}}}},
        {checkedAndEnabled<Box::RemoveVolunteerPositions>,
         {{tr("Removing Volunteer Positions..."), {softDelete("tblVolToPosition"), softDelete("tblTeamVolunteer")}}}},
        {checkedAndEnabled<Box::RemoveVolunteerCertifications>,
         {{tr("Removing Volunteer Certifications..."), {remove("tblVolunteerCertifications")}}}},
    };
}

std::vector<SeasonStep> teamSteps() {
    using Box = SeasonBox;
    return {
        {checked<Box::DeleteDivisions>,
         {deletionOfTeams(), {tr("Deleting All Divisions"), {softDelete("tblDivision")}}}},
        {checkedWithout<Box::DeleteTeams, Box::DeleteDivisions>, {deletionOfTeams()}},
        {checked<Box::DeleteFieldAssignments>, {{tr("Deleting Field Assignments..."), {remove("tblTeamField")}}}},
        {checked<Box::ResetTeamSponsors>,
         {{tr("Removing Sponsor Assignments..."), {change("UPDATE tblTeam SET {stamps}, [SponsorId] = 0")}}}},
        {checked<Box::DeleteGameResults>, {{tr("Deleting Game Results..."), {remove("tblResults")}}}},
        {checked<Box::ClearVolunteerRatings>,
         {{tr("Clearing Volunteer Ratings..."),
           {clearVolunteerRatings("[VolId] <> 0"),
            clearVolunteerRatings(
                "[PlayerId] IN (SELECT [PlayerId] FROM tblRegistration WHERE [PlayerIsUmpire] = True)")}}}},
        {checked<Box::ResetTeamCoachInformation>,
         {{tr("Clearing Coach and Team Parent Info..."), {softDelete("tblTeamVolunteer")}}}},
    };
}

}  // namespace

std::vector<SeasonStep> seasonSteps() {
    std::vector<SeasonStep> steps{{always, {{tr("Updating New Season Year..."), {{{}, setSeasonYear}}}}}};
    for (const auto& some : {playerSteps(), volunteerSteps(), teamSteps()})
        steps.insert(steps.end(), some.begin(), some.end());
    return steps;
}
