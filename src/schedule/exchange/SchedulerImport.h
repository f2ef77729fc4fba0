#pragma once

#include "schedule/exchange/ScheduleLines.h"
#include "store/StoreContext.h"

#include <vector>

/// Takes a file of the outside scheduler over into the schedule. Every line is read and judged, with its boxes, before
/// the first row is written; the rows that go and those that come are then one transaction. Raises datafile::Error.
class SchedulerImport {
public:
    explicit SchedulerImport(StoreContext& context) : context_(context) {}

    /// The lines of one file, which is that of the division on its first line. A division that has games is asked
    /// about; at the end the count of lines is told.
    void ImportScheduleFile(const QStringList& lines);

private:
    bool mayReplace(const QString& division) const;
    /// Judges every line and keeps the good ones.
    void judge(const QStringList& lines);
    void stayOn(LineFault fault);
    BoxAnswer tell(LineFault fault, BoxButtons buttons) const;

    StoreContext& context_;
    std::vector<Game> games_;
    int count_ = 0;
};
