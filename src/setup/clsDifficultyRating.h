#pragma once

#include "store/RecordClass.h"

/// One level of play that a division can have. Row of tblDifficultyRating, found again by its text.
class clsDifficultyRating final : public RecordClass {
public:
    explicit clsDifficultyRating(StoreContext& context) : RecordClass(context) {
        open({.source = "tblDifficultyRating",
              .tag = ".clsDifficultyRatings",
              .noRecords = "Difficulty Ratings Table.  ",
              .required = {{&DifficultyRatingText, "Missing the Difficulty Ratings Description."}},
              .naturalKey = {&DifficultyRatingText},
              .loadsDeleted = false});
    }

    Key DifficultyRatingId{this, "DifficultyRatingId"};
    Text DifficultyRatingText{this, "DifficultyRatingText"};
    Text DifficultyRatingComments{this, "Comments"};
    Stamps DifficultyRatingStamps{this};

    void DifficultyRatingMove(int code) { move(code); }
    void SaveDifficultyRatingRecord() { save(); }
    void SaveDifficultyRatingMergeRecord() { saveMerge(); }
    bool IsDifficultyRatingValid(bool showError) const { return isValid(showError); }
    void UndoDifficultyRatingRecord() { undo(); }
    void NewDifficultyRatingRecord() { newRecord(); }
    void DeleteDifficultyRatingRecord() { deleteRecord(); }
    void SetIsDifficultyRatingDirty(bool dirty) { setDirty(dirty); }
    void SetIsDifficultyRatingNew(bool isNew) { setNew(isNew); }
    bool FindDifficultyRatingRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindDifficultyRatingMergeRecord(const QString& name, bool show, bool load) {
        return findAnyByName(name, show, load);
    }
    bool FindDeletedDifficultyRatingRecord(const QString& name) { return findDeletedByName(name); }
    bool FindDifficultyRatingRecordById(int id, bool show, bool load) {
        return findById(DifficultyRatingId, id, show, load);
    }
};
