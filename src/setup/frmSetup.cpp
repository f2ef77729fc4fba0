#include "setup/frmSetup.h"

#include "setup/ClsVolPos.h"
#include "setup/LookupPane.h"
#include "setup/clsCertifications.h"
#include "setup/clsDifficultyRating.h"
#include "setup/clsRating.h"
#include "setup/clsSchoolName.h"

frmSetup::frmSetup(Program& program) : RecordScreen(program, QStringLiteral("frmSetup"), {820, 600}) {
    const QString checkTitle = tr("Critical Error - Defaults Setup");
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
                  .checkTitle = checkTitle,
                  .missingText = tr("Error!  Certfication Name not found in Search List")},
         .find = &clsCertifications::FindCertRecord,
         .key = &clsCertifications::CertName,
         .boxes = {{"txtCertName", tr("Certification N&ame *"), &clsCertifications::CertName,
                    tr("The Certification Name is a required entry.")},
                   {"txtCertOrg", tr("Certifying Or&ganization *"), &clsCertifications::CertOrg,
                    tr("The Certifying Organization is a required entry.")},
                   {"txtCertOrgComments", tr("Co&mments"), &clsCertifications::CertComments, {}, true}},
         .cascade = [](clsCertifications& record) {
             record.DeleteAllVolCertificationRecords(record.CertificationId);
         }}));
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
                  .checkTitle = checkTitle,
                  .missingText = tr("Error!  Volunteer Position Name not found in Search List")},
         .find = &ClsVolPos::FindVolPosRecord,
         .key = &ClsVolPos::VolPosName,
         // The second line is none of a position's; it has always come with the first.
         .boxes = {{"txtVolPosName", tr("Position Title N&ame *"), &ClsVolPos::VolPosName,
                    tr("The Volunteer Position Title Name is a required entry.\nThe Certification Name is a required "
                       "entry.")},
                   {"txtVolPosResponsibility", tr("Responsib&ilities"), &ClsVolPos::VolPosResponsibility, {}, true},
                   {"txtVolPosComments", tr("Co&mments"), &ClsVolPos::VolPosComments, {}, true}},
         .cascade = [](ClsVolPos& record) { record.DeleteAllVolToPositionRecords(record.VolPosId); }}));
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
              .checkTitle = checkTitle,
              .missingText = tr("Error!  Rating Text not found in Search List")},
         .find = &clsRating::FindRatingRecord,
         .key = &clsRating::RatingText,
         .boxes = {{"txtRatingText", tr("Ratin&g Text *"), &clsRating::RatingText,
                    tr("The Rating Text field is a required entry.")},
                   {"txtRatingValue", tr("R&ating Value *"), &clsRating::RatingValue,
                    tr("The Rating Value field is a required entry.")},
                   {"txtRatingComments", tr("Co&mments"), &clsRating::RatingComments, {}, true}}}));
    addPane(new LookupPane<clsSchoolName>(
        program,
        {.text = {.tag = "School",
                  .caption = tr("Schools"),
                  .searchName = "cboSchoolList",
                  .searchCaption = tr("C&urrent School"),
                  .moveName = "cmdSchoolMove",
                  .listQuery = "SELECT *, ([SchoolName]) as Name FROM tblSchoolInfo WHERE [DeletedFlag] = False "
                               "ORDER BY [SchoolName]",
                  .checkTitle = checkTitle,
                  .missingText = tr("Error!  School Name not found in Search List")},
         .find = &clsSchoolName::FindSchoolRecord,
         .key = &clsSchoolName::SchoolName,
         .boxes = {{"txtSchoolName", tr("School N&ame *"), &clsSchoolName::SchoolName,
                    tr("The School Name is a required entry.")},
                   {"txtSchoolComments", tr("Co&mments"), &clsSchoolName::SchoolComments, {}, true}}}));
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
                  .checkTitle = checkTitle,
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
              true}}}));
}
