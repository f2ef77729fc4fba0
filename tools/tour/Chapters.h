#pragma once

#include "tour/Guide.h"

// The tour's further chapters, one file each. A chapter begins and ends at the navigator.

/// A team with its staff and players, a field of its division, and the ratings of a player and of the coach.
void visitTeams(Guide& guide);

/// An item of the equipment goes out to that team and comes back in part.
void visitEquipment(Guide& guide);

/// A registration form, a roster and the balance report in their previews.
void visitReports(Guide& guide);

/// A game in the schedule, the result of another, and the standings.
void visitGames(Guide& guide);

/// A second officer's file is made and merged.
void mergeSecondFile(Guide& guide);

/// Backs the data file up into the archive, and then opens the season of the year after it, which leaves little of the
/// league as it was.
void visitMaintenance(Guide& guide, const QString& archive);
