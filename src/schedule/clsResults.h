#pragma once

#include "store/RecordClass.h"

/// A team's place in the standings.
struct Standing {
    int rank;  ///< equal percentages share one; the next takes the next whole number
    QString teamName;
    QString sponsorName;
    int wins;
    int losses;
    int ties;
    QString winPercentage;  ///< "66.667"
};

/// One game that was played. Row of tblResults, found again by division, teams, date and time. Also keeps
/// tblTempResults, the work table of the standings.
class clsResults final : public RecordClass {
public:
    explicit clsResults(StoreContext& context) : RecordClass(context) {
        open({.source = "tblResults", .tag = ".clsResults", .noRecords = "Volunteer Positions Table.  "});
    }

    Key GameId{this, "GameId"};
    Whole DivisionId{this, "DivisionId"};
    Whole HomeTeamId{this, "HomeTeamId"};
    Whole VisitorTeamId{this, "VisitorTeamId"};
    Day GameDate{this, "GameDate", NoDate::Today};
    TimeOfDay GameTime{this, "GameTime"};
    Whole HomeTeamScore{this, "HomeTeamScore"};
    Whole VisitorTeamScore{this, "VisitorTeamScore"};
    Text ResultsComments{this, "Comments"};
    Stamps ResultsStamps{this};

    void ResultsMove(int code) { move(code); }
    void SaveResultsRecord() { save(); }
    void SaveResultsMergeRecord() { saveMerge(); }
    void UndoResultsRecord() { undo(); }
    void NewResultsRecord() { newRecord(); }
    /// Removes the row for good.
    void DeleteResultsRecord() { removeRecord(); }
    bool IsResultDirty() const { return isDirty(); }
    bool IsResultNew() const { return isNew(); }
    void SetIsResultDirty(bool dirty) { setDirty(dirty); }
    void SetIsResultNew(bool isNew) { setNew(isNew); }

    /// The first game of these teams on that day.
    bool FindResults(int divisionId, int homeTeamId, int visitorTeamId, QDate date, bool show, bool load);
    bool FindResultsWithTime(int divisionId, int homeTeamId, int visitorTeamId, QDate date, QTime time, bool show,
                             bool load);
    /// As FindResultsWithTime; the seconds do not count.
    bool FindResultToDelete(int divisionId, int homeTeamId, int visitorTeamId, QDate date, QTime time, bool show,
                            bool load);

    /// Fills tblTempResults with the teams of a division, deleted ones included, and counts their games, wherever they
    /// were played. False when there is no team, or when it failed; `show` tells why.
    bool BuildStandings(int divisionId, bool show);
    /// The same with the teams of all divisions that are not deleted.
    bool BuildAllStandings(bool show);
    /// What BuildStandings left, the best team first.
    std::vector<Standing> standings() const;

    // Rows of tblTempResults. A percentage has three places: two wins and a tie are 66.667.
    void AddRecordToTempResults(int teamId, const QString& teamName, int sponsorId, const QString& sponsorName) {
        AddRecordToTempResults2(teamId, teamName, sponsorId, sponsorName, 0, {});
    }
    void AddRecordToTempResults2(int teamId, const QString& teamName, int sponsorId, const QString& sponsorName,
                                 int divisionId, const QString& divisionName);
    void UpdateTempResultRecord(int teamId, int wins, int losses, int ties);

private:
    bool buildStandings(const QString& divisions, bool show);
    void countGames();
};
