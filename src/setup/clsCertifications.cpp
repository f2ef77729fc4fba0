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

bool clsCertifications::findLink(int volunteerId, int certificationId, bool deleted) {
    links_.findFirst(matches("VolId", volunteerId) + QStringLiteral(" AND ") + matches("CertificationId", certificationId) +
                     (deleted ? QStringLiteral(" AND DeletedFlag = True") : QStringLiteral(" AND DeletedFlag = False")));
    return !links_.noMatch();
}

void clsCertifications::stampLink(bool deleted) {
    links_.set("DateStamp", context().clock.today());
    links_.set("TimeStamp", context().clock.secondsSinceMidnight());
    links_.set("DeletedFlag", deleted);
    links_.update();
}

bool clsCertifications::FindDeletedVolCertRecord(int volunteerId, int certificationId) {
    return findLink(volunteerId, certificationId, true);
}

void clsCertifications::AddVolCertificationRecord(int volunteerId, int certificationId) {
    if (findLink(volunteerId, certificationId, false)) return;
    if (findLink(volunteerId, certificationId, true)) {
        links_.edit();
    } else {
        links_.addNew();
        links_.set("VolId", volunteerId);
        links_.set("CertificationId", certificationId);
    }
    stampLink(false);
}

void clsCertifications::DeleteVolCertificationRecord(int volunteerId, int certificationId) {
    if (!findLink(volunteerId, certificationId, false)) return;
    links_.edit();
    stampLink(true);
}

void clsCertifications::DeleteAllVolCertificationRecords(int certificationId) {
    softDeleteRows("SELECT * from tblVolunteerCertifications WHERE tblVolunteerCertifications![CertificationId] = " +
                   QString::number(certificationId));
}
