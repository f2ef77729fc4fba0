#include "reports/Reports.h"

using namespace report;

namespace {

/// The players of the teams, a line each.
ReportDefinition rptTeamReport1Sub1(Line columns, const QString& count, const QString& whenEmpty) {
    ReportDefinition list;
    list.query = QueryText(
                     "SELECT PlayerTeamId, PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerPhoneArea, "
                     "PlayerPhone, PlayerPostalCode, PlayerGender FROM tblRegistration")
                     .where("PlayerActive = True")
                     .where("DeletedFlag = False")
                     .orderBy("PlayerLastName, PlayerFirstName, PlayerBirthDate");
    list.columns = std::move(columns);
    list.totals = fixed(count);
    list.whenEmpty = whenEmpty;
    list.boundTo = QStringList{"TeamId"};
    list.keys = QStringList{"PlayerTeamId"};
    return list;
}

}  // namespace

LeagueReport Reports::rptTeamReport1(const ReportInput& input) {
    ReportDefinition report = headed(input, tr("Team Report by Division"));
    report.groups = {byDivision(), byTeamId()};
    const auto left = [](const QString& caption, const Field& field, double share = 10) {
        return Column{.caption = caption, .field = field, .share = share, .alignment = Alignment::Left};
    };
    report.groups[1].lines = {
        Line{left(tr("League Team Name:"), column("TeamLeagueName"), 13),
             left(tr("Head Coach:"), column("HeadCoach"), 9), left(tr("Sponsor:"), teamSponsor(), 13)},
        Line{left(tr("Gender:"), column("TeamGender")), left(tr("Colors:"), column("TeamColors")),
             left(tr("Team Fee:"), money("TeamFeeAmount")), left(tr("Fee Paid:"), money("TeamFeePaid"))},
        Line{left(tr("Shirt:"), column("TeamShirtColor")), left(tr("Pants:"), column("TeamPantsColor")),
             left(tr("Hat:"), column("TeamHatColor")), left(tr("Socks:"), column("TeamSocksColor"))}
            .ifFilled(),
        Line{{tr("Comments:"), column("TeamComments")}}.ifFilled(),
    };
    report.query = teamRecords(input).orderBy("DivName, TeamName, tblTeam!TeamId");
    report.subReports = {rptTeamReport1Sub1(
        {
            {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 34, {}, Total::Count},
            {tr("Phone"), phone("PlayerPhoneArea", "PlayerPhone"), 18},
            {tr("Zip/Postal"), column("PlayerPostalCode"), 18},
            {tr("Birth Date"), date("PlayerBirthDate"), 14},
            {tr("Gender"), column("PlayerGender"), 12},
        },
        tr("Players:"), tr("No players are assigned to this team."))};
    return report;
}
