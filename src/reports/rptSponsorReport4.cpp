#include "reports/Reports.h"

LeagueReport Reports::rptSponsorReport4(const ReportInput& input) {
    return allSponsors(sponsorList(input, tr("Unassigned Sponsors Report")),
                       sponsors().where("NOT EXISTS (SELECT TeamId FROM tblTeam WHERE tblTeam!SponsorId = "
                                        "tblSponsor!SponsorId AND tblTeam!DeletedFlag = False)"));
}
