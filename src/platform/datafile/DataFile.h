#pragma once

#include "platform/files/Files.h"

#include <QString>
#include <functional>

namespace datafile {

/// Marks a file as a Kestrelmoor data file, in the header field that is meant for it ("KSTR").
inline constexpr int applicationId = 0x4b535452;

/// A data file under a name of its own beside another, of which nothing stays when the object ends.
struct Scrap {
    explicit Scrap(const QString& beside) : path(files::temporaryName(beside)) {}
    ~Scrap();
    Scrap(const Scrap&) = delete;
    Scrap& operator=(const Scrap&) = delete;

    const QString path;
};

/// Removes what the engine may have left beside a data file.
void removeSidecars(const QString& path);

/// Raises Error when there is no file, or one that is not ours (by its header; nothing is opened or written).
void inspectDataFile(const QString& path);

/// How far a long work on a file has come, 0 to 100. It is told in the midst of a statement: it may not use the file,
/// let anything else use it, or raise.
using Progress = std::function<void(int percent)>;
int percentOf(qint64 done, qint64 all);
/// Tells the progress of a part of a work as that of the whole, in which it goes from `from` to `to`.
Progress part(const Progress& whole, int from, int to);

/// Reads every page of a data file; raises Error(Damaged) on the first thing wrong with it. The thorough check also
/// looks up each row in each index, which takes four times as long.
enum class Check { Thorough, Quick };
void checkIntegrity(const QString& path, Check check = Check::Thorough, const Progress& progress = {});

}  // namespace datafile
