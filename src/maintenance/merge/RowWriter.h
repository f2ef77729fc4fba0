#pragma once

#include "maintenance/merge/MergeSteps.h"
#include "maintenance/merge/MergeWork.h"
#include "store/AgeRule.h"

#include <QHash>
#include <optional>
#include <span>

/// The league age of a player as a save computes it.
class PlayerAges {
public:
    explicit PlayerAges(MergeWork& work);
    int age(const QDate& birthDate, qint64 division) const;

private:
    QHash<qint64, CutOff> divisions_;
    CutOff standard_;
    QString season_;
};

/// Copies rows of one table from the merge file to the local file, column by column by the column's type.
class RowWriter {
public:
    RowWriter(MergeWork& work, const MergeTable& table);

    /// Writes the row over the local row of that key, or as a new one where the key is 0. `references` stand in the
    /// place of the row's own. The local row's key. Raises datafile::Error, and nothing was written then.
    qint64 write(qint64 source, std::span<const qint64> references, qint64 local);

private:
    enum class Content { AsStored, Reference, Day, Moment, Time, Age };
    struct Column {
        QString name;
        datafile::ColumnType type;
        Content content = Content::AsStored;
        size_t reference = 0;
        const char* unlessNumber = nullptr;  ///< what a new row gets in the place of a text that is no number
    };
    Column describe(const datafile::FieldDef& field) const;
    datafile::Value converted(const Column& column, const datafile::Value& stored, bool adding) const;

    MergeWork& work_;
    const MergeTable& table_;
    std::vector<Column> columns_;
    size_t birthDate_ = 0;
    std::optional<PlayerAges> ages_;
    QString read_;
    QString insert_;
    QString update_;
    datafile::Values row_;
};
