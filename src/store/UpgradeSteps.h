#pragma once

#include "store/StoreContext.h"

/// One change of an upgrade step. Columns, indexes and tables are named here and spelled in the schema: a step gives
/// them the form that they have in a new file, and what once differed is noted beside the step.
struct Change {
    enum class Kind {
        AddColumns,
        DropColumns,
        FinalRules,   ///< width, required, zero length and default of columns become those of the schema
        CreateTable,  ///< without the columns in `names`, which later steps bring
        DropTable,
        AddIndexes,
        DropIndex,
        Work
    };
    using Operation = void (*)(StoreContext& context, const datafile::Database& database);

    Kind kind;
    QString table{};
    QStringList names{};
    Operation work = nullptr;
};

/// What raises a data file by one version.
struct UpgradeStep {
    const char* name;
    int lastVersion;  ///< files at "Version 1.<lastVersion>" and older need it
    QList<Change> changes;
};

/// Every step, in order. New ones are added at the end; those that stand are never changed, because files of every
/// version are still to be opened.
QList<UpgradeStep> upgradeSteps();
