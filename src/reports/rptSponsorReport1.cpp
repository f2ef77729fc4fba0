#include "reports/Reports.h"

using namespace report;

LeagueReport Reports::rptSponsorReport1(const ReportInput& input) {
    ReportDefinition record = headed(input, tr("Sponsor Report"));
    record.query = sponsors().where("SponsorName = ?", {input.lists[0]}).orderBy("SponsorName");
    record.lines = {
        Line{{.field = column("SponsorName"), .share = 50, .bold = true, .larger = 2},
             {tr("Contact:"), column("SponsorContactName"), 50}},
        Line{{.field = joined({"SponsorAddress1", "SponsorAddress2"}), .share = 50},
             {.field = cityLine("SponsorCity", "SponsorStateId", "SponsorPostalCode", "SponsorCountryCode"),
              .share = 50}},
        Line{{tr("Phone:"), phone("SponsorPhoneArea", "SponsorPhone"), 50},
             {tr("Fax:"), phone("SponsorFaxPhoneArea", "SponsorFaxPhone"), 50}},
        Line{{tr("Color Request:"), column("SponsorColorRequest"), 50},
             {tr("Number of Teams:"), column("SponsorNbrOfTeams"), 50}},
        Line{{tr("Pledge Year:"), column("SponsorPledgeYear"), 50},
             {tr("Pledge:"), money("SponsorPledgeAmount"), 25, Alignment::Left},
             {tr("Paid:"), money("SponsorPaidAmount"), 25, Alignment::Left}},
        Line{{tr("Comments:"), column("SponsorComments")}}.ifFilled(),
    };
    ReportDefinition pledges;
    pledges.title = tr("Previous Pledges");
    pledges.query = QueryText(
                        "SELECT SponsorId, PreviousPledgeYear, PreviousPledgeAmount, PreviousPaidAmount "
                        "FROM tblSponsorPreviousPledge")
                        .where("DeletedFlag = False")
                        .orderBy("PreviousPledgeYear DESC");
    pledges.columns = {
        {tr("Year"), column("PreviousPledgeYear"), 10},
        {tr("Pledge"), money("PreviousPledgeAmount"), 20, {}, Total::Sum},
        {tr("Paid"), money("PreviousPaidAmount"), 20, {}, Total::Sum},
        {.share = 60},
    };
    pledges.totals = fixed(tr("Totals:"));
    pledges.boundTo = pledges.keys = QStringList{"SponsorId"};
    record.subReports = {pledges};
    return record;
}
