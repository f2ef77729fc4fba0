#pragma once

#include "faults/FaultJob.h"

QList<FaultJob> recordJobs();
QList<FaultJob> startJobs();
QList<FaultJob> housekeepingJobs();
QList<FaultJob> mergeJobs();

/// Everything that the sweep goes through.
inline QList<FaultJob> faultJobs() { return recordJobs() + startJobs() + housekeepingJobs() + mergeJobs(); }
