#include "platform/report/CompoundFile.h"

#include <QtEndian>
#include <algorithm>

namespace report {

namespace {

constexpr qint64 sectorSize = 512;
constexpr qint64 entriesInSector = sectorSize / 4;
constexpr qint64 entriesInHeader = 109;  ///< of the list of table sectors
constexpr quint32 noSector = 0xffffffff;
constexpr quint32 chainEnd = 0xfffffffe;
constexpr quint32 tableMark = 0xfffffffd;
constexpr quint32 extensionMark = 0xfffffffc;

// What opens files of this kind by their content goes by the class of the root: a workbook.
constexpr char workbookClass[] = "\x20\x08\x02\x00\x00\x00\x00\x00\xC0\x00\x00\x00\x00\x00\x00\x46";

qint64 sectorsFor(qint64 bytes) { return (bytes + sectorSize - 1) / sectorSize; }

template <typename Number>
void put(QByteArray& bytes, qsizetype at, Number number) {
    qToLittleEndian<Number>(number, bytes.data() + at);
}

void add(QByteArray& bytes, quint32 number) {
    bytes.resize(bytes.size() + 4);
    put<quint32>(bytes, bytes.size() - 4, number);
}

void fill(QByteArray& bytes, quint32 number) {
    while (bytes.size() % sectorSize != 0) add(bytes, number);
}

/// An entry of the directory.
QByteArray entry(const QString& name, char kind, quint32 child, quint32 start, quint32 size) {
    QByteArray bytes(128, '\0');
    for (qsizetype index = 0; index < name.size(); ++index) put<quint16>(bytes, 2 * index, name[index].unicode());
    put<quint16>(bytes, 64, name.isEmpty() ? quint16(0) : quint16(2 * (name.size() + 1)));
    bytes[66] = kind;
    bytes[67] = 1;  // black, in the tree that the entries form
    for (const int sibling : {68, 72}) put<quint32>(bytes, sibling, noSector);
    put<quint32>(bytes, 76, child);
    put<quint32>(bytes, 116, start);
    put<quint32>(bytes, 120, size);
    return bytes;
}

}  // namespace

CompoundFile::CompoundFile(QIODevice& file, qint64 length)
    : file_(file), length_(length), streamSectors_(sectorsFor(length)), tableSectors_(0), extensionSectors_(0) {
    // The tables hold an entry for each of their own sectors too.
    for (qint64 all = -1; all != streamSectors_ + 1 + tableSectors_ + extensionSectors_;) {
        all = streamSectors_ + 1 + tableSectors_ + extensionSectors_;
        tableSectors_ = (all + entriesInSector - 1) / entriesInSector;
        const qint64 beyond = std::max<qint64>(0, tableSectors_ - entriesInHeader);
        extensionSectors_ = (beyond + entriesInSector - 2) / (entriesInSector - 1);
    }
}

void CompoundFile::begin() {
    const qint64 firstTable = streamSectors_ + 1;
    const qint64 firstExtension = firstTable + tableSectors_;
    QByteArray header = QByteArray::fromHex("d0cf11e0a1b11ae1").leftJustified(sectorSize, '\0');
    put<quint16>(header, 24, 0x3e);
    put<quint16>(header, 26, 3);
    put<quint16>(header, 28, 0xfffe);
    put<quint16>(header, 30, 9);  // 512 bytes
    put<quint16>(header, 32, 6);
    put<quint32>(header, 44, quint32(tableSectors_));
    put<quint32>(header, 48, quint32(streamSectors_));  // the directory
    put<quint32>(header, 56, quint32(leastLength));
    put<quint32>(header, 60, chainEnd);
    put<quint32>(header, 68, extensionSectors_ > 0 ? quint32(firstExtension) : chainEnd);
    put<quint32>(header, 72, quint32(extensionSectors_));
    for (qint64 index = 0; index < entriesInHeader; ++index)
        put<quint32>(header, 76 + 4 * index, index < tableSectors_ ? quint32(firstTable + index) : noSector);
    file_.write(header);
}

void CompoundFile::finish(const QString& streamName) {
    file_.write(QByteArray(streamSectors_ * sectorSize - length_, '\0'));
    QByteArray directory = entry(QStringLiteral("Root Entry"), 5, 1, chainEnd, 0);
    directory.replace(80, 16, QByteArray(workbookClass, 16));
    directory += entry(streamName, 2, noSector, 0, quint32(length_));
    while (directory.size() < sectorSize) directory += entry({}, 0, noSector, 0, 0);
    file_.write(directory);

    QByteArray table;
    for (qint64 sector = 0; sector < streamSectors_; ++sector)
        add(table, sector + 1 < streamSectors_ ? quint32(sector + 1) : chainEnd);
    add(table, chainEnd);
    for (qint64 sector = 0; sector < tableSectors_; ++sector) add(table, tableMark);
    for (qint64 sector = 0; sector < extensionSectors_; ++sector) add(table, extensionMark);
    fill(table, noSector);
    file_.write(table);

    const qint64 firstTable = streamSectors_ + 1;
    const qint64 firstExtension = firstTable + tableSectors_;
    QByteArray extension;
    for (qint64 index = entriesInHeader; index < tableSectors_; ++index) {
        add(extension, quint32(firstTable + index));
        const qint64 sector = extension.size() / sectorSize;
        if (extension.size() % sectorSize == sectorSize - 4)
            add(extension, sector + 1 < extensionSectors_ ? quint32(firstExtension + sector + 1) : chainEnd);
    }
    if (extensionSectors_ > 0 && extension.size() % sectorSize != 0) {
        while (extension.size() % sectorSize != sectorSize - 4) add(extension, noSector);
        add(extension, chainEnd);
    }
    file_.write(extension);
}

}  // namespace report
