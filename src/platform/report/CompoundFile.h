#pragma once

#include <QIODevice>

namespace report {

/// The container of older office files: one named stream in a file of sectors, with the chain of its sectors.
class CompoundFile {
public:
    /// `length` is that of the whole stream, at least CompoundFile::leastLength.
    CompoundFile(QIODevice& file, qint64 length);
    /// Writes what comes before the stream. The stream's bytes follow, straight into the file.
    void begin();
    /// Writes what comes after the stream: what fills its last sector, the directory, and the tables of sectors.
    void finish(const QString& streamName);

    static constexpr qint64 leastLength = 4096;  ///< shorter streams would be kept in another way

private:
    QIODevice& file_;
    qint64 length_;
    qint64 streamSectors_;
    qint64 tableSectors_;      ///< of the table that chains all sectors
    qint64 extensionSectors_;  ///< of the list of table sectors, as far as it has no room in the header
};

}  // namespace report
