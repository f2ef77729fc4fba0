#pragma once

#include "store/RecordClass.h"

/// One certification that a volunteer can hold, and the links that say who holds it. Row of tblCertifications, found
/// again by its name.
class clsCertifications final : public RecordClass {
public:
    explicit clsCertifications(StoreContext& context);

    Key CertificationId{this, "CertificationId"};
    Text CertName{this, "CertificationName"};
    Text CertOrg{this, "CertifyingOrganization"};
    Text CertComments{this, "CertificationComments"};
    Stamps CertStamps{this};

    void CertMove(int code) { move(code); }
    void SaveCertRecord() { save(); }
    void SaveCertMergeRecord() { saveMerge(); }
    bool IsCertValid(bool showError) const { return isValid(showError); }
    void UndoCertRecord() { undo(); }
    void NewCertRecord() { newRecord(); }
    void DeleteCertRecord() { deleteRecord(); }
    void SetIsCertDirty(bool dirty) { setDirty(dirty); }
    void SetIsCertNew(bool isNew) { setNew(isNew); }
    bool FindCertRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindCertMergeRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    bool FindDeletedCertRecord(const QString& name) { return findDeletedByName(name); }
    bool FindCertRecordById(int id, bool show, bool load) { return findById(CertificationId, id, show, load); }

    /// Links the volunteer to the certification; a link that was removed comes back.
    void AddVolCertificationRecord(int volunteerId, int certificationId);
    /// Soft-deletes the volunteer's link; nothing when there is none.
    void DeleteVolCertificationRecord(int volunteerId, int certificationId);
    bool FindDeletedVolCertRecord(int volunteerId, int certificationId);
    /// Soft-deletes every volunteer's link to the certification, in one transaction.
    void DeleteAllVolCertificationRecords(int certificationId);

private:
    datafile::Recordset links_;
};
