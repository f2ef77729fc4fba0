#pragma once

#include "store/RecordClass.h"

/// What a player, umpire or coach is graded. Row of tblAbilityRating, one a person: it has a PlayerId or a VolId and 0
/// in the other. Grades are values of the scale in tblRating; 0 is not rated.
///
/// Comments belong to the person: a save writes those that were assigned to the row of the player or the volunteer,
/// ahead of the grades, and leaves the comments in tblAbilityRating alone. A merge save writes no comments.
class clsAbilityRating final : public RecordClass {
public:
    explicit clsAbilityRating(StoreContext& context);

    Whole PlayerId{this, "PlayerId"};
    Whole VolId{this, "VolId"};
    Whole PitcherRating{this, "PitcherRating"};
    Whole CatcherRating{this, "CatcherRating"};
    Whole InfieldRating{this, "InfieldRating"};
    Whole OutfieldRating{this, "OutfieldRating"};
    Whole ThrowingRating{this, "ThrowingRating"};
    Whole RunningRating{this, "RunningRating"};
    Whole BattingRating{this, "BattingRating"};
    Whole KnowledgeRating{this, "KnowledgeRating"};
    Whole UmpireHomePlateRating{this, "UmpireHomePlateRating"};
    Whole UmpireFieldRating{this, "UmpireFieldRating"};
    Whole UmpireKnowledgeRating{this, "UmpireKnowledgeRating"};
    Whole CoachAbilityRating{this, "CoachAbilityRating"};
    Whole CoachAttitudeRating{this, "CoachAttitudeRating"};
    Whole CoachKnowledgeRating{this, "CoachKnowledgeRating"};
    Whole CoachReturn{this, "CoachReturn"};  ///< 0 yes, 1 no, 2 maybe
    Text PlayerComments{this, "PlayerComments", neverWritten};
    Text VolunteerComments{this, "VolunteerComments", neverWritten};
    Flag PositionPitcher{this, "PositionPitcher"};
    Flag PositionCatcher{this, "PositionCatcher"};
    Flag PositionFirstBase{this, "PositionFirstBase"};
    Flag PositionSecondBase{this, "PositionSecondBase"};
    Flag PositionShortStop{this, "PositionShortStop"};
    Flag PositionThirdBase{this, "PositionThirdBase"};
    Flag PositionLeftField{this, "PositionLeftField"};
    Flag PositionCenterField{this, "PositionCenterField"};
    Flag PositionRightField{this, "PositionRightField"};
    Flag PositionAllPositions{this, "PositionAllPositions"};
    Stamps ARStamps{this};

    void ARMove(int code) { move(code); }
    void SaveARRecord();
    void SaveARMergeRecord() { saveMerge(); }
    bool IsARValid(bool showError) const { return isValid(showError); }
    void UndoARRecord() { undo(); }
    void NewARRecord() { newRecord(); }
    void DeleteARRecord() { deleteRecord(); }
    bool IsARDirty() const { return isDirty(); }
    bool IsARNew() const { return isNew(); }
    void SetIsARDirty(bool dirty) { setDirty(dirty); }
    void SetIsARNew(bool isNew) { setNew(isNew); }

    // Deleted rows too.
    bool FindARPlayerRecord(int id, bool show, bool load) { return findOrTell(matches("PlayerId", id), show, load); }
    bool FindARVolunteerRecord(int id, bool show, bool load) { return findOrTell(matches("VolId", id), show, load); }
    bool FindARVolRecord(int id, bool show, bool load) { return FindARVolunteerRecord(id, show, load); }

    /// Blanks one half of the properties; the flags stay.
    void ResetPlayerRatings();
    void ResetVolunteerRatings();

    /// The value of a word of the scale; 0 when it is none.
    int FindRatingValue(const QString& text) const;
    /// The word for a value, or "Rating Not Found".
    QString FindRatingText(int value) const;
    // Names for display; "" for an id that is none.
    QString FindDivisionRecordById(int id) const;
    QString FindTeamName(int divisionId, int teamId) const;

    /// One row of tblTempSearchList. Of the two ids one is 0.
    struct TempRecord {
        int playerId = 0;
        int volId = 0;
        QString firstName{};
        QString middleInitial{};
        QString lastName{};
        QDate birthDate{1940, 1, 1};  ///< for a volunteer, who is listed without
        QString homePhone{};
    };
    void DeleteAllTempRecords();
    void AddNewTempRecord(const TempRecord& person);
    /// Makes tblTempSearchList the list of all who can be rated as volunteers: players who umpire, and volunteers.
    void FillTempRecords();

private:
    QString twinCriteria() const override;
    void saveComments(const char* table, const char* column, const char* key, int id, const Text& comments);
    QString read(const char* table, const char* column, const QString& criteria) const;
};
