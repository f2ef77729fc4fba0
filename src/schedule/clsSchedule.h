#pragma once

#include "schedule/Game.h"
#include "store/RecordClass.h"

/// One game to be played. Row of tblSchedule, which holds the names of division, teams and field as the schedule's
/// maker wrote them, and no ids.
class clsSchedule final : public RecordClass {
public:
    explicit clsSchedule(StoreContext& context) : RecordClass(context) {
        open({.source = "SELECT * FROM tblSchedule ORDER BY [Date], [Time]", .tag = "", .noRecords = ""});
    }

    Key ScheduleId{this, "ScheduleId"};
    Day ScheduleDate{this, "Date", NoDate::Today};
    Text ScheduleDay{this, "Day"};
    TimeOfDay ScheduleTime{this, "Time"};
    Text ScheduleDivision{this, "division"};
    Text ScheduleVisitorsTeam{this, "VisitorsTeam"};
    Text ScheduleHomeTeam{this, "HomeTeam"};
    Text ScheduleField{this, "Field"};
    Stamps ScheduleStamps{this};

    bool IsScheduleDirty() const { return isDirty(); }
    bool IsScheduleNew() const { return isNew(); }
    void SetScheduleIsDirty(bool dirty) { setDirty(dirty); }
    void SetScheduleIsNew(bool isNew) { setNew(isNew); }

    /// Whether the division has any game, deleted ones included.
    bool FindDivisionRecord(const QString& division) { return find(matches("division", division), false); }
    bool FindScheduleRecord(int id, bool show, bool load);
    /// The game with these seven values; deleted ones too.
    bool FindScheduleMergeRecord(QDate date, const QString& day, QTime time, const QString& division,
                                 const QString& visitors, const QString& home, const QString& field, bool load);

    /// Adds a game made of the properties; the same game may stand twice.
    void AddNewScheduleRecord();
    /// Writes the assigned properties over the row in hand.
    void UpdateScheduleRecord();
    void DeleteScheduleRecord() { deleteRecord(); }

    enum class Games { None, NotDeleted, All };
    /// Puts these games in the place of the division's, of which those that `replaced` names are removed for good; what
    /// AddNewScheduleRecord does for each game, fast enough for thousands. All of it is one transaction.
    void ReplaceDivisionSchedule(const QString& division, Games replaced, const std::vector<Game>& games);

private:
    void DeleteDivisionSchedule(const QString& division, Games which);
};
