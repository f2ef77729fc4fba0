#pragma once

#include "store/StoreContext.h"

/// What DeleteRecords removes. The numbers are those by which callers know them.
enum RecordKind {
    InactivePlayers = 1,  ///< marked as deleted, as are the inactive volunteers; their rows stay until the purge
    InactiveVolunteers = 2,
    Schedule = 3,
    TempResults = 4,
    TempSearchList = 5,
    TempFeeReport = 6,
    DivisionSchedule = 7,  ///< the games of the division named `text`; none when it is ""
    LostTeams = 8,         ///< no row goes: players of a team that has no row any more get team 0
    DeletedRows = 9,       ///< the rows of the table named `text` that are marked as deleted, for good
    TempFamilyLabels = 10,
    EquipmentAvailable = 11
};

/// Removes rows in bulk; all of them or, when it raises datafile::Error, none. Another kind does nothing. No question
/// is asked.
void DeleteRecords(StoreContext& context, int kind, const QString& text = {});

/// The tables from which rows marked as deleted are removed for good, those that refer to others first.
QStringList purgedTables();

/// Empties the work tables that an upgrade may have filled.
void ClearUpgradeWork(StoreContext& context);

/// Writes the data file anew without its free space, by way of a ".CPT" file beside it that is checked completely
/// before it takes the old one's place; permissions stay. When it raises datafile::Error, the old file is as it was.
void CompactDataFile(StoreContext& context, const datafile::Progress& progress = {});
