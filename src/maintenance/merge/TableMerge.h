#pragma once

#include "maintenance/merge/LocalRows.h"
#include "maintenance/merge/MergeSteps.h"
#include "maintenance/merge/MergeWork.h"

#include <QSet>
#include <array>
#include <functional>

/// The merge of one table: reads both files, decides row by row, and writes what was decided. Nothing is open between
/// its operations.
class TableMerge {
public:
    TableMerge(MergeWork& work, const MergeTable& table) : work_(work), table_(table) {}

    using Failed = std::function<void(const datafile::Error&)>;

    void readLocal();
    /// Rows in their order, with their keys translated. Parents must have been merged. `failed` is told of rows with a
    /// name that are left away because they lack what such a row must have.
    void readSource(const Failed& failed);
    void decide();
    /// Writes within the caller's transaction. A row that the file refuses costs that row; `failed` is told why. Calls
    /// `progress` with the number of rows written at every few rows.
    void write(const Failed& failed, const std::function<void(size_t)>& progress = {});
    size_t writes() const { return writes_.size(); }
    /// Nothing was written: what was decided is dropped, and the local rows are known as they stand in the file.
    void drop();
    /// Lets later tables find the rows of this one.
    void remember();

private:
    static constexpr size_t mostReferences = 5;
    struct SourceRow {
        qint64 id = 0;
        QString key{};
        QString finer{};
        QString exactKey{};  ///< the key by which a row that has no usable list entry takes over the same person
        QDate day{};         ///< invalid when the stamp is missing
        int time = -1;       ///< -1 when it is missing
        bool deleted = false;
        bool skipped = false;
        std::array<qint64, mostReferences> references{};
        qint64 sourceDivision = 0;  ///< of a team
        QString teamName{};
    };
    struct Write {
        size_t source;
        int local;
    };
    struct Choice {
        int local = -1;
        bool wins = false;  ///< whatever the stamps
    };
    class Reader;

    bool translate(const Reader& rows, SourceRow& row);
    Choice choose(const SourceRow& row) const;
    static bool isNewer(const SourceRow& row, const LocalRows::Row& local);
    static bool isCopy(const SourceRow& row, const LocalRows::Row& local);
    LocalRows::Row asWritten(const SourceRow& row) const;

    MergeWork& work_;
    const MergeTable& table_;
    LocalRows local_;
    std::vector<SourceRow> source_;
    QSet<QString> finerOfSource_;
    QSet<QString> liveOfSource_;
    std::vector<Write> writes_;
    bool incomplete_ = false;
};
