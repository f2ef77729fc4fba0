#include "reports/Reports.h"

using namespace report;

QueryText Reports::teamRecords(const ReportInput& input) {
    return QueryText(
               "SELECT tblTeam!TeamId AS TeamId, DivName, TeamName, TeamGender, TeamLeagueName, TeamColors, "
               "TeamShirtColor, TeamPantsColor, TeamHatColor, TeamSocksColor, TeamFeeAmount, TeamFeePaid, "
               "TeamComments, tblTeam!SponsorId AS TeamSponsor, SponsorName, "
               "(SELECT VolFirstName & \" \" & VolLastName FROM tblTeamVolunteer INNER JOIN tblVolunteer "
               "ON tblTeamVolunteer!VolId = tblVolunteer!VolId AND tblVolunteer!DeletedFlag = False "
               "WHERE tblTeamVolunteer!TeamId = tblTeam!TeamId AND VolPosName = \"HeadCoach\" "
               "AND tblTeamVolunteer!DeletedFlag = False) AS HeadCoach "
               "FROM tblTeam "
               "INNER JOIN tblDivision ON tblTeam!DivisionId = tblDivision!DivisionId "
               "AND tblDivision!DeletedFlag = False "
               "LEFT JOIN tblSponsor ON tblTeam!SponsorId = tblSponsor!SponsorId AND tblSponsor!DeletedFlag = False")
        .where("tblTeam!DeletedFlag = False")
        .whereChosen("tblTeam!DivisionId", input.divisionId)
        .whereChosen("tblTeam!TeamId", input.teamId);
}

Group Reports::byTeamId() {
    Group team = byTeam();
    team.key = "TeamId";
    return team;
}

Field Reports::teamSponsor() {
    return computed([none = tr("Sponsor Not Assigned"), gone = tr("Sponsor Not Available")](const Row& row) {
        if (row["TeamSponsor"].toInt() == 0) return none;
        const QString name = row.text("SponsorName");
        return name.isEmpty() ? gone : name;
    });
}

Field Reports::staffPosition() {
    return computed(
        [coach = tr("Head Coach"), assistant = tr("Assistant Coach"), parent = tr("Team Parent")](const Row& row) {
            const QString position = row.text("VolPosName");
            if (position == QLatin1String("HeadCoach")) return coach;
            if (position.endsWith(QLatin1String("Assistant"))) return assistant;
            return position.startsWith(QLatin1String("TeamParent")) ? parent : position;
        });
}

Field Reports::yesIsZero(const QString& name) {
    return computed([name, yes = tr("Yes"), no = tr("No")](const Row& row) {
        return row[name].isNull() ? QString() : row[name].toInt() == 0 ? yes : no;
    });
}
