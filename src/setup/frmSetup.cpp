#include "setup/frmSetup.h"

#include "setup/LookupPane.h"
#include "setup/clsCertifications.h"
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
                  .listQuery = "SELECT *, ([CertificationName]) as Name FROM tblCertifications WHERE [DeletedFlag] = False "
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
         .cascade = [](clsCertifications& record) { record.DeleteAllVolCertificationRecords(record.CertificationId); }}));
    addPane(new LookupPane<clsSchoolName>(
        program, {.text = {.tag = "School",
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
}
