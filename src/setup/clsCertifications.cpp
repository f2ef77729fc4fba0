#include "setup/clsCertifications.h"

clsCertifications::clsCertifications(StoreContext& context)
    : RecordClass(context), links_(database().openRecordset("tblVolunteerCertifications")) {
    open({.source = "tblCertifications",
          .tag = ".clsCertification",
          .noRecords = "Certifications Table.  ",
          .required = {{&CertName, "Missing the Certification Name."},
                       {&CertOrg, "Missing the name of the Certifying Organization."}},
          .naturalKey = {&CertName},
          .loadsDeleted = false});
}

bool clsCertifications::FindDeletedVolCertRecord(int volunteerId, int certificationId) {
    return standOn(links_, deleted(matches({{"VolId", volunteerId}, {"CertificationId", certificationId}})));
}

void clsCertifications::AddVolCertificationRecord(int volunteerId, int certificationId) {
    addOrRevive(links_, context().clock, {{"VolId", volunteerId}, {"CertificationId", certificationId}});
}

void clsCertifications::DeleteVolCertificationRecord(int volunteerId, int certificationId) {
    if (standOn(links_, live(matches({{"VolId", volunteerId}, {"CertificationId", certificationId}}))))
        softDelete(links_, context().clock);
}

void clsCertifications::DeleteAllVolCertificationRecords(int certificationId) {
    softDeleteRows("SELECT * from tblVolunteerCertifications WHERE tblVolunteerCertifications![CertificationId] = " +
                   QString::number(certificationId));
}
