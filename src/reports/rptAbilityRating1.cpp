#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptAbilityRating1(const ReportInput& input) {
    ReportDefinition record = headed(input, tr("Player Ability Rating Report"));
    QueryText one = QueryText(
                        "SELECT PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerPhoneArea, PlayerPhone, "
                        "tblRegistration!PlayerComments AS Remarks, DivName, TeamName" +
                        gradesOfPlayers() +
                        " FROM tblRegistration "
                        "LEFT JOIN tblDivision ON PlayerDivisionId = tblDivision!DivisionId "
                        "AND tblDivision!DeletedFlag = False "
                        "LEFT JOIN tblTeam ON PlayerTeamId = tblTeam!TeamId AND tblTeam!DeletedFlag = False "
                        "LEFT JOIN tblAbilityRating ON tblAbilityRating!PlayerId = tblRegistration!PlayerId "
                        "AND tblAbilityRating!DeletedFlag = False")
                        .where("tblRegistration!DeletedFlag = False");
    record.query = wherePlayer(one, input.lists[0]).orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate");
    record.lines = {
        Line{{.field = lastFirst("PlayerLastName", "PlayerFirstName"), .share = 40, .bold = true, .larger = 2},
             {.field = column("DivName").orElse(tr("Not Assigned to a Division")), .share = 30},
             {.field = column("TeamName").orElse(tr("Not Assigned to a Team")), .share = 30}},
        Line{{tr("Birth Date:"), date("PlayerBirthDate"), 40},
             {tr("Phone:"), phone("PlayerPhoneArea", "PlayerPhone"), 60}}};
    for (const std::vector<Line>& lines : {playerGrades(), staffGrades(tr("Don't Know"))})
        record.lines.insert(record.lines.end(), lines.begin(), lines.end());
    record.lines.push_back(Line{{tr("Comments:"), column("Remarks")}}.spaced().ifFilled());
    return record;
}
