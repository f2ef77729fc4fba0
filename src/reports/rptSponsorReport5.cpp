#include "reports/Reports.h"

LeagueReport Reports::rptSponsorReport5(const ReportInput& input) {
    return allSponsors(sponsorList(input, tr("Sponsor List")), sponsors());
}
