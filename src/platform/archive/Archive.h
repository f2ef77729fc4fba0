#pragma once

#include <QString>
#include <functional>
#include <vector>

/// Zip archives that any other zip tool reads and writes. What an archive holds is not trusted: a name in it never
/// becomes a path, and what it unpacks to is bounded. Every operation gives its failure as a value.
namespace archive {

enum class Fault {
    None,
    Missing,      ///< no such archive, or no such file to be packed
    Unreachable,  ///< no such folder, a medium that is not there or write-protected, no permission
    Full,         ///< no space left where it is written
    OutOfMemory,
    ReadFailed,  ///< the system reported a failure
    WriteFailed,
    NotAnArchive,
    Damaged,       ///< an archive, but cut off or changed
    NoMember,      ///< the archive does not hold what is asked for
    TooLarge,      ///< it holds more than the caller allows
    NotSupported,  ///< encrypted, split, or compressed in a way of its own
    Different,     ///< the archive does not hold what the file holds
    SameFile       ///< the archive would take the place of the file that it is to hold
};

/// Told how far the work has come, 0 to 100, at each change.
using Progress = std::function<void(int percent)>;

struct Member {
    QString name;
    qint64 size;  ///< as the archive has it; it may lie
};

struct Listing {
    Fault fault = Fault::None;
    std::vector<Member> members{};
};

/// The members of an archive whose directory is sound.
Listing list(const QString& archive);

/// Writes the new archive `made`, with `file` as its one member under the file's own name, at the highest level. What
/// stood at `made` is replaced when the new one is whole and on disk, and else untouched.
Fault pack(const QString& file, const QString& made, const Progress& progress = {});

/// Reads the member that has the file's name back from the disk and compares it with the file.
Fault compare(const QString& archive, const QString& file, const Progress& progress = {});

/// Packs under another name beside `archive`, compares that with the file, and only then puts it in its place.
Fault packAndCompare(const QString& file, const QString& archive, const Progress& packing = {},
                     const Progress& comparing = {});

/// Unpacks the member of that name, whatever its case, as the file `to`, checked against the archive's own sum. A
/// member in a folder of the archive has another name. What stood at `to` is replaced at the end or else untouched;
/// the new file is the user's alone.
Fault unpack(const QString& archive, const QString& member, const QString& to, qint64 mostBytes,
             const Progress& progress = {});

}  // namespace archive
