#include "reports/Reports.h"

using namespace report;

/// The division counts for those who have a team in it; who has none has no division.
LeagueReport Reports::rptLabelFormat3(const ReportInput& input) {
    QueryText sponsors(
        "SELECT SponsorName, SponsorAddress1 AS Address1, SponsorAddress2 AS Address2, SponsorCity AS City, "
        "SponsorStateId AS State, SponsorPostalCode AS PostalCode, SponsorCountryCode AS CountryCode "
        "FROM tblSponsor");
    sponsors.where("tblSponsor!DeletedFlag = False");
    QString teams =
        "EXISTS (SELECT TeamId FROM tblTeam WHERE tblTeam!SponsorId = tblSponsor!SponsorId "
        "AND tblTeam!DeletedFlag = False";
    if (input.labels.choice == LabelOptions::UnassignedSponsors)
        sponsors.where("NOT " + teams + u')');
    else if (input.divisionId)
        sponsors.where(teams + " AND tblTeam!DivisionId = ?)", {*input.divisionId});
    else if (input.labels.choice == LabelOptions::AssignedSponsors)
        sponsors.where(teams + u')');
    return labels(input, column("SponsorName"), sponsors.orderBy("SponsorName"));
}
