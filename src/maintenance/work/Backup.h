#pragma once

#include "platform/archive/Archive.h"
#include "store/StoreContext.h"

/// No league's data file comes near this size; what unpacks to more is none.
inline constexpr qint64 largestDataFile = qint64{2} << 30;

/// Empties the work tables and writes the data file anew without its free space. When it raises datafile::Error the
/// file holds what it held.
void compactWithoutWorkTables(StoreContext& context, const datafile::Progress& progress = {});

/// Removes for good what is marked as deleted, table by table; what a table's rows failed with, one text a table.
QStringList purgeDeletedRows(StoreContext& context, const datafile::Progress& progress = {});

/// Packs the data file into the archive, which counts only after it was read back and compared. It never takes the
/// place of the data file or its safety copy. 0, or the code of what went wrong.
int backUp(StoreContext& context, const QString& archive, const archive::Progress& packing,
           const archive::Progress& comparing);

/// Makes the safety copy and replaces the data file by the one in the archive, which is unpacked under another name and
/// checked before anything is touched. The archive's "Kestrelmoor.kmr" counts, or else a member that has the data
/// file's own name. It comes to lie in `homeFolder`, and at the data file's path where that is elsewhere. 0, or the
/// code of what went wrong; then the data file is what it was.
int restore(StoreContext& context, const QString& archive, const QString& homeFolder,
            const archive::Progress& unpacking, const datafile::Progress& checking = {});
