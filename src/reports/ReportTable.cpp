#include "reports/Reports.h"

namespace {

/// The same text for each of the lists.
std::vector<Demand> demand(std::initializer_list<int> lists, const QString& message) {
    std::vector<Demand> demands;
    for (const int list : lists) demands.push_back({list, message});
    return demands;
}

}  // namespace

/// "You must select a Field from the list before" over the second line that nearly all these texts share.
QString Reports::mustSelect(const QString& firstLine) {
    return firstLine + u'\n' + tr("the report can be printed or displayed.");
}
QString Reports::mustSelectBefore(const QString& firstLine) {
    return firstLine + u'\n' + tr("before the report can be printed or displayed.");
}

std::vector<ReportCategory> Reports::table() {
    return {playerReports(),   volunteerReports(), sponsorReports(),
            divisionReports(), teamReports(),      fieldReports(),
            ratingReports(),   {tr("Equipment")},  {tr("Game/Match Results")},
            mailingLabels(),   scheduleReports(),  uniformReports(),
            leagueReports(),   balanceReports()};
}

ReportCategory Reports::playerReports() {
    constexpr bool comparesAges = true;
    const QString player = mustSelect(tr("You must select a player from the list before"));
    const QString both = mustSelectBefore(tr("You must select a Division and Team option"));
    const QString school = mustSelect(tr("You must select a School Name from the list before"));
    const QString division = mustSelect(tr("You must select a Division from the list before"));
    return {tr("Player"),
            {{tr("Single Player"), rptPlayerReport1, ListKind::Players, Scope::League, demand({1}, player)},
             {tr("By Division"), rptPlayerReport2, ListKind::None, Scope::Division},
             {tr("By Division/Team"), rptPlayerReport3, ListKind::None, Scope::Team, demand({2, 3}, both)},
             {tr("Not Assigned to a Team"), rptPlayerReport4},
             {tr("Player Report by School"), rptPlayerReport5, ListKind::Schools, Scope::Division, demand({1}, school)},
             {tr("Player Report by Age"), rptPlayerReport6, ListKind::None, Scope::Division, demand({2}, division)},
             {tr("Player Age Exception Report"), rptPlayerReport9, ListKind::None, Scope::Division,
              demand({2}, division), false, comparesAges}}};
}

ReportCategory Reports::volunteerReports() {
    const QString volunteer = mustSelect(tr("You must select a Volunteer from the list before"));
    const QString category = mustSelectBefore(tr("You must select a Volunteer Category from the list"));
    return {tr("Volunteer"),
            {{tr("Single Volunteer"), rptVolunteerReport1, ListKind::Volunteers, Scope::League, demand({1}, volunteer)},
             {tr("By Division"), rptVolunteerReport2, ListKind::None, Scope::Division},
             {tr("By Division/Team"), rptVolunteerReport3, ListKind::None, Scope::Team},
             {tr("By Category"), rptVolunteerReport5, ListKind::Categories, Scope::League, demand({1}, category)}}};
}

ReportCategory Reports::sponsorReports() {
    const QString sponsor = mustSelect(tr("You must select a Sponsor from the list before"));
    return {tr("Sponsor"),
            {{tr("Single Sponsor"), rptSponsorReport1, ListKind::Sponsors, Scope::League, demand({1}, sponsor)},
             {tr("By Division"), rptSponsorReport2, ListKind::None, Scope::Division},
             {tr("By Division/Team"), rptSponsorReport3, ListKind::None, Scope::Team},
             {tr("Unassigned Sponsors"), rptSponsorReport4},
             {tr("Sponsor List"), rptSponsorReport5}}};
}

ReportCategory Reports::divisionReports() {
    const QString any = mustSelect(tr("You must select a Division name or All Divisions"));
    const QString division = mustSelect(tr("You must select a Division from the list before"));
    return {tr("Division"),
            {{tr("Division Info."), rptDivisionReport1, ListKind::None, Scope::Division},
             {tr("Team Info by Division"), rptDivisionReport2, ListKind::None, Scope::Division},
             {tr("Division Standings"), rptDivisionReport3, ListKind::None, Scope::Division, demand({2}, any)},
             {tr("Division Schedule"), rptDivisionReport4, ListKind::None, Scope::Division, demand({2}, division)},
             {tr("Coach/Team Parent List"), rptDivisionReport5, ListKind::None, Scope::Team}}};
}

ReportCategory Reports::teamReports() {
    return {tr("Team"),
            {{tr("Division/Team Info"), rptTeamReport1, ListKind::None, Scope::Team},
             {tr("Team/Sponsor Info"), rptSponsorReport3, ListKind::None, Scope::Team},
             {tr("Team Rosters"), rptPlayerReport3, ListKind::None, Scope::Team},
             {tr("Team Schedule"), rptTeamReport4, ListKind::None, Scope::Team},
             {tr("Fee Report by Division/Team"), rptFeeReport2, ListKind::None, Scope::Team},
             {tr("Team Medical Report"), rptTeamMedical, ListKind::None, Scope::Team},
             {tr("Team Roster Sorted by Age"), rptPlayerReport3ByAge, ListKind::None, Scope::Team}}};
}

ReportCategory Reports::fieldReports() {
    const QString name = mustSelect(tr("You must select a Field Name from the list before"));
    const QString division = mustSelect(tr("You must select a Division Name from the list before"));
    const QString field = mustSelect(tr("You must select a Field from the list before"));
    return {tr("Fields"),
            {{tr("Single Field Report"), rptFieldReport1, ListKind::Fields, Scope::League, demand({1}, name)},
             {tr("All Fields Report"), rptFieldReport1},
             {tr("Field/Team Assignment"), rptFieldReport3, ListKind::None, Scope::Division, demand({2}, division)},
             {tr("Field Schedule"), rptFieldReport4, ListKind::Fields, Scope::League, demand({1}, field)}}};
}

ReportCategory Reports::ratingReports() {
    const QString player = mustSelect(tr("You must select a Player from the list before"));
    const QString volunteer = mustSelect(tr("You must select a Volunteer from the list before"));
    const QString team = mustSelect(tr("You must select a Team option before"));
    return {
        tr("Ability Ratings"),
        {{tr("Player Rating"), rptAbilityRating1, ListKind::RatedPlayers, Scope::League, demand({1}, player)},
         {tr("Volunteer Rating"), rptAbilityRating2, ListKind::RatedVolunteers, Scope::League, demand({1}, volunteer)},
         {tr("Player By Division"), rptAbilityReport5, ListKind::None, Scope::Division},
         {tr("Player By Division/Team"), rptAbilityReport4, ListKind::None, Scope::Team, demand({3}, team)}}};
}

ReportCategory Reports::mailingLabels() {
    constexpr bool mayNarrow = true;
    return {tr("Mailing Labels"),
            {{tr("All Players"), rptLabelFormat1, ListKind::None, Scope::Division, {}, mayNarrow},
             {tr("All Volunteers"), rptLabelFormat2, ListKind::Categories, Scope::League, {}, mayNarrow},
             {tr("All Sponsors"), rptLabelFormat3, ListKind::None, Scope::Division, {}, mayNarrow}}};
}

ReportCategory Reports::scheduleReports() {
    const QString field = mustSelect(tr("You must select a Field from the list before"));
    return {tr("Schedules"),
            {{tr("Master Schedule"), rptMasterSchedule},
             {tr("Division Schedule"), rptDivisionReport4, ListKind::None, Scope::Division},
             {tr("Team Schedule"), rptTeamReport4, ListKind::None, Scope::Team},
             {tr("Field Schedule"), rptFieldReport4, ListKind::Fields, Scope::League, demand({1}, field)}}};
}

ReportCategory Reports::uniformReports() {
    return {tr("Uniforms"),
            {{tr("Uniform Sizes -- All Teams"), rptUniformReport1},
             {tr("Division/Team Uniform Summary"), rptUniformReport2, ListKind::None, Scope::Team},
             {tr("Uniform Sizes by Team"), rptUniformReport3, ListKind::None, Scope::Team},
             {tr("Pants/Shirts Size Summary"), rptUniformReport4},
             {tr("Pants/Shirts Summary by Division"), rptUniformReport5}}};
}

ReportCategory Reports::leagueReports() {
    const QString player = mustSelect(tr("You must select a player from the list before"));
    const QString division = mustSelectBefore(tr("You must select a Division option"));
    return {
        tr("League Reports and Forms"),
        {{tr("Registration Count"), rptSummaryReport1},
         {tr("Fee Summary"), rptSummaryReport2},
         {tr("Active Player List"), rptPlayerReport7},
         {tr("Inactive Player List"), rptPlayerReport8},
         {tr("Blank Registration Form"), blankRegistration},
         {tr("Player Registration Form(s)"), playerRegistration, ListKind::Players, Scope::League, demand({1}, player)},
         {tr("Registration Form (Active Players)"), playerRegistration, ListKind::None, Scope::Division,
          demand({2}, division)}}};
}

ReportCategory Reports::balanceReports() {
    const QString team = mustSelect(tr("You must select a Team option before"));
    const QString both = mustSelectBefore(tr("You must select a Division and Team option"));
    return {tr("Refund/Balance Due"),
            {{tr("Refund Due Summary"), rptFeeReport3},
             {tr("Refund Due by Division/Team"), rptFeeReport4, ListKind::None, Scope::Team, demand({3}, team)},
             {tr("Balance Due Summary"), rptFeeReport5},
             {tr("Balance Due by Division/Team"), rptFeeReport6, ListKind::None, Scope::Team, {{2, both}, {3, team}}},
             {tr("Team Fee Report"), rptFeeReport7},
             {tr("Balance Due Invoice")}}};
}
