#include "reports/Reports.h"

using namespace report;

QueryText Reports::sponsors(const QString& moreColumns, const QString& joins) {
    return QueryText(
               "SELECT tblSponsor!SponsorId AS SponsorId, SponsorName, SponsorContactName, SponsorAddress1, "
               "SponsorAddress2, SponsorCity, SponsorStateId, SponsorPostalCode, SponsorCountryCode, "
               "SponsorPhoneArea, SponsorPhone, SponsorFaxPhoneArea, SponsorFaxPhone, SponsorPledgeYear, "
               "SponsorPledgeAmount, SponsorPaidAmount, SponsorColorRequest, SponsorNbrOfTeams, SponsorComments" +
               moreColumns + " FROM tblSponsor" + joins)
        .where("tblSponsor!DeletedFlag = False");
}

QueryText Reports::sponsorsOfTeams(const ReportInput& input) {
    return sponsors(", DivName, TeamName, tblTeam!TeamId AS TeamId",
                    " INNER JOIN tblTeam ON tblTeam!SponsorId = tblSponsor!SponsorId AND tblTeam!DeletedFlag = False "
                    "INNER JOIN tblDivision ON tblTeam!DivisionId = tblDivision!DivisionId "
                    "AND tblDivision!DeletedFlag = False")
        .whereChosen("tblTeam!DivisionId", input.divisionId)
        .whereChosen("tblTeam!TeamId", input.teamId);
}

ReportDefinition Reports::sponsorList(const ReportInput& input, const QString& title) {
    ReportDefinition list = headed(input, title);
    list.landscape = true;
    list.points = 8.5;
    list.columns = {
        {tr("Sponsor Name"), column("SponsorName"), 24, {}, Total::Count},
        {tr("Contact"), column("SponsorContactName"), 18},
        {tr("Phone"), phone("SponsorPhoneArea", "SponsorPhone"), 14},
        {tr("Address"), joined({"SponsorAddress1", "SponsorAddress2"}), 20},
        {tr("City"), cityLine("SponsorCity", "SponsorStateId", "SponsorPostalCode", "SponsorCountryCode"), 20},
        {tr("Year"), column("SponsorPledgeYear"), 6, Alignment::Center},
        {tr("Pledge"), money("SponsorPledgeAmount"), 11},
        {tr("Paid"), money("SponsorPaidAmount"), 11},
    };
    return list;
}

LeagueReport Reports::allSponsors(ReportDefinition list, const QueryText& rows) {
    list.query = rows.orderBy("SponsorName");
    for (Column& column : list.columns)
        if (column.field.format == Format::Money) column.total = Total::Sum;
    list.totals = fixed(tr("Sponsors:"));
    return list;
}
