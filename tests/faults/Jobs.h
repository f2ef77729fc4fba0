#pragma once

#include "faults/FaultJob.h"

QList<FaultJob> recordJobs();
QList<FaultJob> startJobs();
QList<FaultJob> housekeepingJobs();
QList<FaultJob> newSeasonJobs();
QList<FaultJob> backupJobs();
QList<FaultJob> mergeJobs();
QList<FaultJob> scheduleJobs();

/// A league with rows in every table of the purge, every second one marked as deleted.
void prepareEveryTable(const LeagueFolder& folder);

/// Everything that the sweep goes through.
inline QList<FaultJob> faultJobs() {
    return recordJobs() + startJobs() + housekeepingJobs() + newSeasonJobs() + backupJobs() + mergeJobs() +
           scheduleJobs();
}
