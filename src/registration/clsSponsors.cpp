#include "registration/clsSponsors.h"

#include "platform/text/Numbers.h"

clsSponsors::clsSponsors(StoreContext& context)
    : RecordClass(context), pledges_(database().openRecordset("tblSponsorPreviousPledge")) {
    open({.source = "tblSponsor",
          .tag = ".clsSponsor",
          .noRecords = "Sponsor Table.  ",
          .required = {{&SponsorName, "Missing the Sponsor Name."},
                       {&SponsorPledgeYear, "Missing the Pledge Year."},
                       {},
                       {&SponsorPledgeAmount, "Missing the Pledge Amount."}},
          .naturalKey = {&SponsorName}});
}

void clsSponsors::newRecord() {
    RecordClass::newRecord();
    const Globals& globals = context().globals;
    SponsorPledgeYear = globals.currentSeasonYear.isEmpty() ? QString::number(context().clock.today().year())
                                                            : globals.currentSeasonYear;
    if (isNumeric(globals.defaultSponsorFee)) SponsorPledgeAmount = globals.defaultSponsorFee;
    setDirty(false);
}

void clsSponsors::undo() {
    RecordClass::undo();
    pledgeNew_ = false;
}

void clsSponsors::SaveSponsorRecord() {
    if (isNew() && SponsorPledgeYear().isEmpty()) SponsorPledgeYear = QString::number(context().clock.today().year());
    save();
}

void clsSponsors::DeleteSponsorRecord(const QString& name) {
    if (find(live(matches("SponsorName", name)), true)) deleteRecord();
}

void clsSponsors::FindDeletedSponsorRecord(const QString& name, bool show, bool load, bool& found) {
    found = findOrTell(deleted(matches("SponsorName", name)), name, show, load,
                       {"Record Not Found...", "No Records found for %1.", "No Records found for %1."});
}

void clsSponsors::FindPreviousPledge(int sponsorId, const QString& year, bool& found) {
    const QString criteria = matches({{"SponsorId", sponsorId}, {"PreviousPledgeYear", year}});
    found = standOn(pledges_, live(criteria)) || standOn(pledges_, criteria);
}

void clsSponsors::writePledge(int sponsorId, const QString& year, const QString& amount, const QString& paid) {
    pledges_.set("SponsorId", sponsorId);
    pledges_.set("PreviousPledgeYear", year);
    pledges_.set("PreviousPledgeAmount", amount);
    pledges_.set("PreviousPaidAmount", paid);
    updateStamped(pledges_, context().clock, false);
}

void clsSponsors::NewSponsorPledgeRecord(int sponsorId, const QString& year, const QString& amount,
                                         const QString& paid) {
    pledges_.addNew();
    writePledge(sponsorId, year, amount, paid);
    for (Text* text : {&SponsorPledgeYear, &SponsorPledgeAmount, &SponsorPaidAmount}) *text = QString();
}

void clsSponsors::UpdatePreviousPledgeRecord(int sponsorId, const QString& year, const QString& amount,
                                             const QString& paid) {
    pledges_.edit();
    writePledge(sponsorId, year, amount, paid);
}

void clsSponsors::DeletePreviousPledgeRecord(int sponsorId, const QString& year) {
    if (standOn(pledges_, live(matches({{"SponsorId", sponsorId}, {"PreviousPledgeYear", year}}))))
        softDelete(pledges_, context().clock);
}
