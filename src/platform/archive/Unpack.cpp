#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cstring>
#include <memory>

#include "platform/archive/Faults.h"
#include "platform/archive/Meter.h"

namespace archive {

namespace {

struct Discard {
    void operator()(zip_t* zip) const { zip_discard(zip); }
    void operator()(zip_file_t* member) const { zip_fclose(member); }
};

/// An archive open for reading, its directory checked.
struct Opened {
    explicit Opened(const QString& path) {
        int code = 0;
        zip.reset(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &code));
        if (zip) return;
        zip_error_t error{};
        zip_error_init_with_code(&error, code);
        fault = faultOf(error);
        zip_error_fini(&error);
    }
    std::unique_ptr<zip_t, Discard> zip;
    Fault fault = Fault::None;
};

/// One member, read from its beginning to its end.
class Reader {
public:
    Reader(const QString& archive, const QString& member) : opened_(archive) {
        fault_ = opened_.fault;
        if (fault_ != Fault::None) return;
        zip_t* zip = opened_.zip.get();
        const zip_int64_t place = zip_name_locate(zip, member.toUtf8().constData(), ZIP_FL_NOCASE | ZIP_FL_ENC_GUESS);
        if (place < 0) {
            fault_ = Fault::NoMember;
            return;
        }
        const auto index = static_cast<zip_uint64_t>(place);
        zip_stat_t about;
        zip_stat_init(&about);
        if (zip_stat_index(zip, index, 0, &about) == 0 && (about.valid & ZIP_STAT_SIZE) != 0)
            size_ = static_cast<qint64>(about.size);
        file_.reset(zip_fopen_index(zip, index, 0));
        if (!file_) fault_ = faultOf(*zip_get_error(zip));
    }

    Fault fault() const { return fault_; }
    qint64 size() const { return size_; }

    /// The next bytes; none at the end of the member and at a fault. What it gives in all is as long as it was said
    /// to be and meets the archive's sum, or the last read is a fault.
    qint64 read(char* into, qint64 most) {
        const zip_int64_t count = zip_fread(file_.get(), into, static_cast<zip_uint64_t>(most));
        if (count < 0) fault_ = faultOf(*zip_file_get_error(file_.get()));
        read_ += std::max<zip_int64_t>(count, 0);
        if (read_ > size_ || (count == 0 && read_ != size_)) fault_ = Fault::Damaged;
        return fault_ == Fault::None ? count : 0;
    }
    double part() const { return size_ == 0 ? 1.0 : static_cast<double>(read_) / static_cast<double>(size_); }

private:
    Opened opened_;
    std::unique_ptr<zip_file_t, Discard> file_;
    Fault fault_ = Fault::None;
    qint64 size_ = 0;
    qint64 read_ = 0;
};

constexpr qint64 blockSize = 1 << 18;

/// Lets the next reading take the file from the disk and not from what the system remembers of it.
void forgetCached(const QString& path) {
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    ::close(file);
}

}  // namespace

Listing list(const QString& archive) {
    const Opened opened(archive);
    Listing listing{opened.fault};
    if (opened.fault != Fault::None) return listing;
    const zip_int64_t count = zip_get_num_entries(opened.zip.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t about;
        zip_stat_init(&about);
        if (zip_stat_index(opened.zip.get(), static_cast<zip_uint64_t>(i), 0, &about) != 0)
            return {faultOf(*zip_get_error(opened.zip.get()))};
        listing.members.push_back({QString::fromUtf8(about.name), static_cast<qint64>(about.size)});
    }
    return listing;
}

Fault compare(const QString& archive, const QString& file, const Progress& progress) {
    forgetCached(archive);
    QFile original(file);
    if (!original.open(QIODevice::ReadOnly)) return QFileInfo::exists(file) ? Fault::Unreachable : Fault::Missing;
    Reader reader(archive, QFileInfo(file).fileName());
    if (reader.fault() != Fault::None) return reader.fault();
    Meter meter(progress);
    QByteArray packed(blockSize, Qt::Uninitialized);
    QByteArray wanted(blockSize, Qt::Uninitialized);
    while (const qint64 count = reader.read(packed.data(), blockSize)) {
        if (original.read(wanted.data(), count) != count)
            return original.error() == QFile::NoError ? Fault::Different : Fault::ReadFailed;
        if (std::memcmp(packed.constData(), wanted.constData(), static_cast<size_t>(count)) != 0)
            return Fault::Different;
        meter.show(reader.part());
    }
    return reader.fault() == Fault::None && !original.atEnd() ? Fault::Different : reader.fault();
}

Fault unpack(const QString& archive, const QString& member, const QString& to, qint64 mostBytes,
             const Progress& progress) {
    if (files::sameFile(archive, to)) return Fault::SameFile;
    Reader reader(archive, member);
    if (reader.fault() != Fault::None) return reader.fault();
    if (reader.size() > mostBytes) return Fault::TooLarge;
    try {
        constexpr int forOwner = 0600;
        files::NewFile target(to, forOwner);
        Meter meter(progress);
        QByteArray block(blockSize, Qt::Uninitialized);
        while (const qint64 count = reader.read(block.data(), blockSize)) {
            target.write(block.constData(), count);
            meter.show(reader.part());
        }
        if (reader.fault() == Fault::None) target.commit();
        return reader.fault();
    } catch (const files::Error& error) {
        return faultOfWriting(error);
    }
}

}  // namespace archive
