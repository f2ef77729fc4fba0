#pragma once

#include "maintenance/merge/MergeRun.h"
#include "support/LeagueFile.h"

/// A merge that nobody watches.
struct Unwatched final : MergeProgress {
    void begin(const QString&) override {}
    void reached(double, bool) override {}
};

inline void mergeInto(StoreContext& local, const datafile::Database& source) {
    Unwatched progress;
    MergeRun(local, source, progress).run();
}
