#include "setup/frmSetup.h"

#include "setup/ClsVolPos.h"
#include "setup/LookupPane.h"
#include "setup/UniformPage.h"
#include "setup/clsCertifications.h"
#include "setup/clsDifficultyRating.h"
#include "setup/clsHowFeePaid.h"
#include "setup/clsInsurance.h"
#include "setup/clsRating.h"
#include "setup/clsSchoolName.h"
#include "setup/clsVendor.h"

frmSetup::frmSetup(Program& program) : RecordScreen(program, QStringLiteral("frmSetup"), {1060, 660}) {
    addCertifications(program);
    addPositions(program);
    addRatings(program);
    addVendors(program);
    addInsurance(program);
    addSchools(program);
    addDifficultyRatings(program);
    auto* uniforms = new UniformPage(program, checkTitle());
    addPage(tr("Uniform Sizes"), uniforms, uniforms->panes());
    addWaysToPay(program);
}

QString frmSetup::checkTitle() { return tr("Critical Error - Defaults Setup"); }

void frmSetup::addCertifications(Program& program) {
    addPane(new LookupPane<clsCertifications>(
        program,
        {.text = {.tag = "Cert",
                  .caption = tr("Certifications"),
                  .searchName = "cboCertSearchList",
                  .searchCaption = tr("C&urrent Certification"),
                  .moveName = "cmdCertMove",
                  .listQuery =
                      "SELECT *, ([CertificationName]) as Name FROM tblCertifications WHERE [DeletedFlag] = False "
                      "ORDER BY [CertificationName]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  Certfication Name not found in Search List")},
         .find = &clsCertifications::FindCertRecord,
         .key = &clsCertifications::CertName,
         .boxes = {{"txtCertName", tr("Certification N&ame *"), &clsCertifications::CertName,
                    tr("The Certification Name is a required entry.")},
                   {"txtCertOrg", tr("Certifying Or&ganization *"), &clsCertifications::CertOrg,
                    tr("The Certifying Organization is a required entry.")},
                   {"txtCertOrgComments", tr("Co&mments"), &clsCertifications::CertComments, {}, BoxAs::Comments}},
         .cascade = [](clsCertifications& record) {
             record.DeleteAllVolCertificationRecords(record.CertificationId);
         }}));
}

void frmSetup::addPositions(Program& program) {
    addPane(new LookupPane<ClsVolPos>(
        program,
        {.text = {.tag = "VolPos",
                  .caption = tr("Volunteer Positions"),
                  .searchName = "cboVolPosSearchList",
                  .searchCaption = tr("C&urrent Position"),
                  .moveName = "cmdVolPosMove",
                  .listQuery =
                      "SELECT *, ([VolPosName]) as Name FROM tblVolunteerPositions WHERE [DeletedFlag] = False "
                      "ORDER BY [VolPosName]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  Volunteer Position Name not found in Search List")},
         .find = &ClsVolPos::FindVolPosRecord,
         .key = &ClsVolPos::VolPosName,
         // The second line is none of a position's; it has always come with the first.
         .boxes = {{"txtVolPosName", tr("Position Title N&ame *"), &ClsVolPos::VolPosName,
                    tr("The Volunteer Position Title Name is a required entry.\nThe Certification Name is a required "
                       "entry.")},
                   {"txtVolPosResponsibility",
                    tr("Responsib&ilities"),
                    &ClsVolPos::VolPosResponsibility,
                    {},
                    BoxAs::Comments},
                   {"txtVolPosComments", tr("Co&mments"), &ClsVolPos::VolPosComments, {}, BoxAs::Comments}},
         .cascade = [](ClsVolPos& record) { record.DeleteAllVolToPositionRecords(record.VolPosId); }}));
}

void frmSetup::addRatings(Program& program) {
    addPane(new LookupPane<clsRating>(
        program,
        {.text =
             {.tag = "Rating",
              .caption = tr("Ability Ratings"),
              .searchName = "cboRatingSearchList",
              .searchCaption = tr("C&urrent Rating"),
              .moveName = "cmdRatingMove",
              .listQuery =
                  "SELECT *, ([RatingText]) as Name FROM tblRating WHERE [DeletedFlag] = False ORDER BY [RatingText]",
              .checkTitle = checkTitle(),
              .missingText = tr("Error!  Rating Text not found in Search List")},
         .find = &clsRating::FindRatingRecord,
         .key = &clsRating::RatingText,
         .boxes = {{"txtRatingText", tr("Ratin&g Text *"), &clsRating::RatingText,
                    tr("The Rating Text field is a required entry.")},
                   {"txtRatingValue", tr("R&ating Value *"), &clsRating::RatingValue,
                    tr("The Rating Value field is a required entry.")},
                   {"txtRatingComments", tr("Co&mments"), &clsRating::RatingComments, {}, BoxAs::Comments}}}));
}

void frmSetup::addVendors(Program& program) {
    addPane(new LookupPane<clsVendor>(
        program,
        {.text = {.tag = "Vendor",
                  .caption = tr("Vendors"),
                  .searchName = "cboVendorSearchList",
                  .searchCaption = tr("C&urrent Vendor"),
                  .moveName = "cmdVendorMove",
                  .listQuery = "SELECT *, ([VendorName]) as Name FROM tblVendor WHERE [DeletedFlag] = False "
                               "ORDER BY [VendorName]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  Vendor Name not found in Search List")},
         .find = &clsVendor::FindVendorRecord,
         .key = &clsVendor::VendorName,
         .boxes = {{"txtVendorName", tr("Vendor N&ame *"), &clsVendor::VendorName,
                    tr("The Vendor Name is a required entry."), BoxAs::Text, tr("Vendor")},
                   {"txtVendorContactName", tr("Contact Name"), &clsVendor::VendorContactName},
                   {"mskedVendorContactPhone", tr("Contact &Phone"), &clsVendor::VendorContactPhone, {}, BoxAs::Phone},
                   {"mskedVendorCreditLimit", tr("Credit L&imit"), &clsVendor::VendorCreditLimit, {}, BoxAs::Money},
                   {"txtVendorAddress1", tr("Address &1"), &clsVendor::VendorAddress1, {}, BoxAs::Text, tr("Address")},
                   {"txtVendorAddress2", tr("Address &2"), &clsVendor::VendorAddress2},
                   {"txtVendorCity", tr("Cit&y"), &clsVendor::VendorCity},
                   {"cboVendorStateId", tr("State/Prov."), &clsVendor::VendorStateId, {}, BoxAs::State},
                   {"mskedVendorZipCode", tr("&Zip Code"), &clsVendor::VendorZipCode, {}, BoxAs::Zip},
                   {"txtVendorPostalCode", tr("or Postal Code"), &clsVendor::VendorPostalCode},
                   {"cboVendorCountryCode", tr("Country"), &clsVendor::VendorCountryCode, {}, BoxAs::Country},
                   {"txtVendorComments", tr("Co&mments"), &clsVendor::VendorComments, {}, BoxAs::Comments}},
         .sideBySide = true}));
}

void frmSetup::addInsurance(Program& program) {
    addPane(new LookupPane<clsInsurance>(
        program,
        {.text = {.tag = "Ins",
                  .caption = tr("Insurance"),
                  .searchName = "cboInsSearchList",
                  .searchCaption = tr("C&urrent Agency"),
                  .moveName = "cmdInsMove",
                  .listQuery = "SELECT *, ([InsAgencyName]) as Name FROM tblInsurance WHERE [DeletedFlag] = False "
                               "ORDER BY [InsAgencyName]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  Insurance Agency Name not found in Search List")},
         .find = &clsInsurance::FindInsRecord,
         .key = &clsInsurance::InsAgencyName,
         .boxes =
             {{"txtInsAgencyName", tr("A&gency Name *"), &clsInsurance::InsAgencyName,
               tr("The Insurance Agency Name is a required entry."), BoxAs::Text, tr("Agency and Policy")},
              {"txtInsCompanyName", tr("Company N&ame *"), &clsInsurance::InsCompanyName,
               tr("The Insurance Company Name is a required entry.")},
              {"txtInsContactName", tr("Contact Name"), &clsInsurance::InsContactName},
              {"txtInsPolicyNumber", tr("Polic&y Number"), &clsInsurance::InsPolicyNumber},
              {"mskedInsPhone", tr("&Phone"), &clsInsurance::InsPhone, {}, BoxAs::Phone},
              {"mskedInsFax", tr("FA&X"), &clsInsurance::InsFax, {}, BoxAs::Phone},
              {"mskedInsLiabilityLimit", tr("Liability L&imit"), &clsInsurance::InsLiabilityLimit, {}, BoxAs::Money},
              {"mskedInsDeductibleAmt", tr("Deducti&ble Amount"), &clsInsurance::InsDeductibleAmt, {}, BoxAs::Money},
              {"txtInsAddress1", tr("Address &1"), &clsInsurance::InsAddress1, {}, BoxAs::Text, tr("Address")},
              {"txtInsAddress2", tr("Address &2"), &clsInsurance::InsAddress2},
              {"txtInsCity", tr("City"), &clsInsurance::InsCity},
              {"cboInsStateId", tr("State/Prov."), &clsInsurance::InsStateId, {}, BoxAs::State},
              {"mskedInsZipCode", tr("&Zip Code"), &clsInsurance::InsZipCode, {}, BoxAs::Zip},
              {"txtInsPostalCode", tr("or Postal Code"), &clsInsurance::InsPostalCode},
              {"cboInsCountryCode", tr("Country"), &clsInsurance::InsCountryCode, {}, BoxAs::Country},
              {"txtInsComments", tr("Co&mments"), &clsInsurance::InsComments, {}, BoxAs::Comments}},
         .sideBySide = true}));
}

void frmSetup::addSchools(Program& program) {
    addPane(new LookupPane<clsSchoolName>(
        program,
        {.text = {.tag = "School",
                  .caption = tr("Schools"),
                  .searchName = "cboSchoolList",
                  .searchCaption = tr("C&urrent School"),
                  .moveName = "cmdSchoolMove",
                  .listQuery = "SELECT *, ([SchoolName]) as Name FROM tblSchoolInfo WHERE [DeletedFlag] = False "
                               "ORDER BY [SchoolName]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  School Name not found in Search List")},
         .find = &clsSchoolName::FindSchoolRecord,
         .key = &clsSchoolName::SchoolName,
         .boxes = {{"txtSchoolName", tr("School N&ame *"), &clsSchoolName::SchoolName,
                    tr("The School Name is a required entry.")},
                   {"txtSchoolComments", tr("Co&mments"), &clsSchoolName::SchoolComments, {}, BoxAs::Comments}}}));
}

void frmSetup::addDifficultyRatings(Program& program) {
    addPane(new LookupPane<clsDifficultyRating>(
        program,
        {.text = {.tag = "DifficultyRating",
                  .caption = tr("Difficulty Ratings"),
                  .searchName = "cboDifficultyRatingSearchList",
                  .searchCaption = tr("C&urrent Difficulty Rating"),
                  .moveName = "cmdDifficultyRatingMove",
                  .listQuery =
                      "SELECT *, ([DifficultyRatingText]) as Name FROM tblDifficultyRating WHERE [DeletedFlag] = False "
                      "ORDER BY [DifficultyRatingText]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  Difficulty Rating Text not found in Search List")},
         .find = &clsDifficultyRating::FindDifficultyRatingRecord,
         .key = &clsDifficultyRating::DifficultyRatingText,
         .boxes = {
             {"txtDifficultyRatingText", tr("Difficult&y Rating Text *"), &clsDifficultyRating::DifficultyRatingText,
              tr("The Difficulty Rating Text field is a required entry.")},
             {"txtDifficultyRatingComments",
              tr("Co&mments"),
              &clsDifficultyRating::DifficultyRatingComments,
              {},
              BoxAs::Comments}}}));
}

void frmSetup::addWaysToPay(Program& program) {
    addPane(new LookupPane<clsHowFeePaid>(
        program,
        {.text = {.tag = "HowFeePaid",
                  .caption = tr("How Fee Paid"),
                  .searchName = "cboHowFeePaidSearchList",
                  .searchCaption = tr("C&urrent Text"),
                  .moveName = "cmdHowFeePaidMove",
                  .listQuery = "SELECT *, ([HowFeePaidText]) as Name FROM tblHowFeePaid WHERE [DeletedFlag] = False "
                               "ORDER BY [HowFeePaidText]",
                  .checkTitle = checkTitle(),
                  .missingText = tr("Error!  How Fee Paid Text not found in Search List")},
         .find = &clsHowFeePaid::FindHowFeePaidRecord,
         .key = &clsHowFeePaid::HowFeePaidText,
         .boxes = {{"txtHowFeePaidText", tr("How Fee P&aid *"), &clsHowFeePaid::HowFeePaidText,
                    tr("The How Fee Paid Text is a required entry.")}}}));
}
