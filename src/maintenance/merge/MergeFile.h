#pragma once

#include "platform/archive/Archive.h"
#include "platform/datafile/DataFile.h"
#include "store/StoreContext.h"

#include <functional>
#include <optional>

/// The data file that is to be merged: a copy of it, checked, so that nothing is ever written to the file that the user
/// chose, not even to bring a journal beside it to its end. The copy is the user's alone and lies beside the data file,
/// where there is room for one and where such data belongs; nothing of it stays.
class MergeFile {
public:
    enum class Code { Fits = 0, Older = 1, NotOurs = 2 };

    /// Raises datafile::Error when the file cannot be copied, is being written, or is damaged.
    /// `progress` is told how far it has come, 0 to 100.
    MergeFile(StoreContext& context, const QString& path, const datafile::Progress& progress = {});

    /// Whether it can be merged: a data file of "Version 1.38" or later, with every table and column that is merged.
    Code code() const { return code_; }
    /// Of a file that fits.
    const datafile::Database& database() const { return *database_; }

private:
    static Code judge(const datafile::Database& database);

    datafile::Scrap copy_;
    std::optional<datafile::Database> database_;
    Code code_ = Code::NotOurs;
};

/// Unpacks the data file in a backup archive as the file `to`, in a folder that is made when it is missing. A file that
/// is there is deleted first.
archive::Fault unpackForMerge(const QString& archive, const QString& to, const archive::Progress& progress = {});
