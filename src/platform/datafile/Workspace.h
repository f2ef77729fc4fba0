#pragma once

#include "platform/datafile/DataFile.h"
#include "platform/datafile/Database.h"

#include <QHash>
#include <functional>

namespace datafile {

/// Opens data files, and does what is done to a file as a whole. One for the program. Raises Error.
class Workspace {
public:
    /// A file that is missing, none of ours, damaged, locked or not to be written is refused and left as it is.
    Database openDatabase(const QString& path);
    /// Makes an empty data file; an existing file of that name is an Error.
    Database createDatabase(const QString& path);

    /// Copies a data file, when no other process is writing it, under another name that is renamed when whole.
    /// A copy onto itself is an Error.
    void copyDatabase(const QString& from, const QString& to);
    /// Copies a file that is not to be touched in any way, with the journal that may lie beside it: opening the copy
    /// brings it to the state that the file is in. The copy is the user's alone, to read and to write. Raises
    /// Error(Locked) while another process is writing the file.
    static void copyUntouched(const QString& from, const QString& to);
    /// Lets `make` write a data file under another name, and puts it in the place of `path` then. When that raises,
    /// nothing of it stays and an older file is what it was.
    static void createWhole(const QString& path, const std::function<void(const QString& made)>& make);
    /// Writes the file's content without its free space as the new file `to`, checked and on disk.
    void compactDatabase(const QString& from, const QString& to, const Progress& progress = {});
    /// Puts the finished file `made`, from the same folder, in the place of the data file at `path`, whose
    /// permissions stay. The connection is closed for it and opened again; open cursors take their keys anew.
    void replaceDatabase(const QString& path, const QString& made);

private:
    std::shared_ptr<Connection> find(const QString& path) const;

    QHash<QString, std::weak_ptr<Connection>> connections_;  ///< by path
};

}  // namespace datafile
