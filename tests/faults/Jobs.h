#pragma once

#include "faults/FaultJob.h"

QList<FaultJob> recordJobs();
QList<FaultJob> startJobs();
QList<FaultJob> housekeepingJobs();

/// Everything that the sweep goes through.
inline QList<FaultJob> faultJobs() { return recordJobs() + startJobs() + housekeepingJobs(); }
