#pragma once

#include "maintenance/merge/MergeWork.h"

#include <QCoreApplication>
#include <memory>

class TableMerge;

/// Is told how far a merge has come.
class MergeProgress {
public:
    virtual ~MergeProgress() = default;
    /// A step begins; nothing is open in either file, so the event loop may run.
    virtual void begin(const QString& text) = 0;
    /// 0 to 1 of the whole merge. With `writing` a transaction is open: the window may be painted, no more.
    virtual void reached(double part, bool writing) = 0;
};

/// An error of the data file as a box tells it: its number, "-" and its text.
QString numbered(const datafile::Error& error);

/// Brings the rows of a second data file into the local one, table by table. Each step is one transaction. A row that
/// the file refuses costs that row, a step that cannot be written costs that step; either is told in a box when the
/// step has ended, and the merge goes on. Rows that belong to such a row are left for the next merge.
class MergeRun {
    Q_DECLARE_TR_FUNCTIONS(Merge)

public:
    /// `source` must have the tables and columns (MergeFile sees to it) and is only read.
    MergeRun(StoreContext& context, const datafile::Database& source, MergeProgress& progress);
    void run();
    /// The steps from `first` on and before `last`, counted from 0. Those before are taken as done.
    void run(size_t first, size_t last);

private:
    using Tables = std::vector<std::unique_ptr<TableMerge>>;
    void takeAsDone(const MergeStep& step);
    void runStep(const MergeStep& step);
    bool decide(const Tables& tables, QStringList& errors);
    void write(const MergeStep& step, const Tables& tables, QStringList& errors);
    void finishStep(const char* statement);
    void tell(const QStringList& errors);

    MergeWork work_;
    MergeProgress& progress_;
    double from_ = 0;  ///< where the step begins, 0 to 1
    double size_ = 0;  ///< how much of the whole it is
};
