#pragma once

#include "store/RecordClass.h"

/// One word of the scale that players and volunteers are graded on, and its value. Row of tblRating, found again by the
/// word.
class clsRating final : public RecordClass {
public:
    explicit clsRating(StoreContext& context) : RecordClass(context) {
        open({.source = "tblRating",
              .tag = ".clsRating",
              .noRecords = "Volunteer Positions Table.  ",
              .required = {{&RatingText, "Missing the Rating Text Field."}},
              .naturalKey = {&RatingText},
              .loadsDeleted = false});
    }

    Key RatingId{this, "RatingId"};
    Text RatingText{this, "RatingText"};
    Text RatingValue{this, "RatingValue"};
    Text RatingComments{this, "RatingComments"};
    Stamps RatingStamps{this};

    void RatingMove(int code) { move(code); }
    void SaveRatingRecord() { save(); }
    void SaveRatingMergeRecord() { saveMerge(); }
    bool IsRatingValid(bool showError) const { return isValid(showError); }
    void UndoRatingRecord() { undo(); }
    void NewRatingRecord() { newRecord(); }
    void DeleteRatingRecord() { deleteRecord(); }
    void SetIsRatingDirty(bool dirty) { setDirty(dirty); }
    void SetIsRatingNew(bool isNew) { setNew(isNew); }
    bool FindRatingRecord(const QString& name, bool show, bool load) { return findByName(name, show, load); }
    bool FindRatingMergeRecord(const QString& name, bool show, bool load) { return findAnyByName(name, show, load); }
    bool FindDeletedRatingRecord(const QString& name) { return findDeletedByName(name); }
    bool FindRatingRecordById(int id, bool show, bool load) { return findById(RatingId, id, show, load); }
};
