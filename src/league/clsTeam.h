#pragma once

#include "store/RecordClass.h"

/// One team of a division, perhaps with a sponsor. Row of tblTeam, found again by its name within its division.
class clsTeam final : public RecordClass {
public:
    explicit clsTeam(StoreContext& context);

    Key TeamId{this, "TeamId"};
    Whole TeamDivisionId{this, "DivisionId"};
    Whole TeamSponsorId{this, "SponsorId"};
    Text TeamName{this, "TeamName"};
    Text TeamGender{this, "TeamGender"};
    Text TeamLeagueName{this, "TeamLeagueName"};
    Text TeamColors{this, "TeamColors"};
    Text TeamShirtColor{this, "TeamShirtColor"};
    Text TeamPantsColor{this, "TeamPantsColor"};
    Text TeamHatColor{this, "TeamHatColor"};
    Text TeamSocksColor{this, "TeamSocksColor"};
    Text TeamFeeAmount{this, "TeamFeeAmount", numericElse("0")};
    Text TeamFeePaid{this, "TeamFeePaid", numericElse("0")};
    Text TeamComments{this, "TeamComments"};
    Text TeamLarkfoldKey{this, "TeamLarkfoldKey"};
    Text TeamDivLarkfoldKey{this, "DivLarkfoldKey"};
    Day TeamDateStamp{this, "DateStamp", NoDate::Stamp};
    Whole TeamTimeStamp{this, "TimeStamp", {.otherwise = 1}};
    Flag TeamDeletedFlag{this, "DeletedFlag"};

    // The live division and the live sponsor that were looked up last; never written from here.
    int DivisionId = 0;
    QString DivisionName;
    QString DivisionAgeCutOffMonth;
    QString DivisionAgeCutOffDay;
    QString DivisionRegistrationFee;
    int SponsorId = 0;
    QString SponsorName;
    QString SponsorColorRequest;
    QString SponsorNbrOfTeams;

    void TeamMove(int code) { move(code); }
    void SaveTeamRecord() { save(); }
    void SaveMergeTeamRecord() { saveMerge(); }
    bool IsTeamValid(bool showError) const { return isValid(showError); }
    void UndoTeamRecord() { undo(); }
    void NewTeamRecord() { newRecord(); }
    /// Loads a live team of the same division afterwards, the one before if there is one; blank without any.
    void DeleteTeamRecord() { deleteRecord(); }
    bool IsTeamDirty() const { return isDirty(); }
    bool IsTeamNew() const { return isNew(); }
    void SetIsTeamDirty(bool dirty) { setDirty(dirty); }
    void SetIsTeamNew(bool isNew) { setNew(isNew); }

    bool FindTeamRecord(const QString& name, int divisionId, bool show, bool load);
    /// Deleted rows only.
    bool FindDeletedTeamRecord(const QString& name, int divisionId, bool show, bool load);
    bool FindDeletedTeamRecord2(const QString& name, int divisionId, bool show, bool load) {
        return FindDeletedTeamRecord(name, divisionId, show, load);
    }
    /// Deleted rows too.
    bool FindTeamMergeRecord(const QString& name, int divisionId, bool show, bool load);
    bool FindTeamRecordById(int id, bool show, bool load) { return findById(TeamId, id, show, load); }

    /// Look-ups that leave the record in hand alone: "" or 0 where there is no such row.
    QString FindTeamName(int teamId, int divisionId) const;
    int FindTeamId(const QString& name, int divisionId) const;
    /// These fill the properties of the division or of the sponsor, when there is such a live row.
    bool FindDivisionRecord(const QString& name);
    int FindDivisionId(const QString& name) { return FindDivisionRecord(name) ? DivisionId : 0; }
    bool FindSponsorRecordById(int id) { return loadSponsor(matches("SponsorId", id)); }
    int FindSponsorId(const QString& name) { return loadSponsor(matches("SponsorName", name)) ? SponsorId : 0; }
    QString GetSponsorNameById(int id) { return FindSponsorRecordById(id) ? SponsorName : QString(); }

    void TeamRequery() { requery(); }
    void DivisionRequery() { divisions_.requery(); }
    void SponsorRequery() { sponsors_.requery(); }

private:
    void loadNeighbour() override;
    QString twinCriteria() const override;
    bool findInDivision(const QString& criteria, const QString& name, bool show, bool load);
    bool loadSponsor(const QString& criteria);

    datafile::Recordset divisions_;
    datafile::Recordset sponsors_;
};
