#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>

#include "platform/archive/Faults.h"
#include "platform/archive/Meter.h"

namespace archive {

namespace {

/// What the archive library writes to: a file of ours, where every write is checked and a failure keeps its reason.
struct Sink {
    files::NewFile& file;
    std::optional<files::Error> failure{};
    zip_error_t error{};

    template <class Work>
    zip_int64_t attempt(Work work) {
        try {
            work();
            return 0;
        } catch (const files::Error& caught) {
            failure = caught;
            zip_error_set(&error, ZIP_ER_WRITE, caught.code());
            return -1;
        }
    }
};

/// The library's calls on the sink. There is nothing to read: the archive is new.
zip_int64_t serve(void* state, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    auto& sink = *static_cast<Sink*>(state);
    switch (command) {
        case ZIP_SOURCE_SUPPORTS: return ZIP_SOURCE_SUPPORTS_WRITABLE;
        case ZIP_SOURCE_BEGIN_WRITE:
        case ZIP_SOURCE_COMMIT_WRITE:
        case ZIP_SOURCE_ROLLBACK_WRITE:
        case ZIP_SOURCE_FREE: return 0;
        case ZIP_SOURCE_WRITE: {
            const auto size = static_cast<qint64>(length);
            return sink.attempt([&] { sink.file.write(static_cast<const char*>(data), size); }) < 0 ? -1 : size;
        }
        case ZIP_SOURCE_SEEK_WRITE: {
            const zip_int64_t place =
                zip_source_seek_compute_offset(static_cast<zip_uint64_t>(sink.file.place()),
                                               static_cast<zip_uint64_t>(sink.file.size()), data, length, &sink.error);
            return place < 0 ? -1 : sink.attempt([&] { sink.file.seek(place); });
        }
        case ZIP_SOURCE_TELL_WRITE: return sink.file.place();
        case ZIP_SOURCE_ERROR: return zip_error_to_data(&sink.error, data, length);
        case ZIP_SOURCE_STAT: zip_error_set(&sink.error, ZIP_ER_READ, ENOENT); return -1;
        default: zip_error_set(&sink.error, ZIP_ER_OPNOTSUPP, 0); return -1;
    }
}

struct Discard {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};

/// The file that the archive library reads, which tells how far that has come: the library itself would set what it has
/// written against what there is to read.
struct Source {
    QFile file;
    Meter meter;
    zip_error_t error{};

    zip_int64_t fail(int code) {
        zip_error_set(&error, code, errno);
        return -1;
    }
    zip_int64_t read(void* data, zip_uint64_t length) {
        const qint64 got = file.read(static_cast<char*>(data), static_cast<qint64>(length));
        if (got < 0) return fail(ZIP_ER_READ);
        if (got > 0) meter.show(std::min(1.0, double(file.pos()) / double(file.size())));
        return got;
    }
    zip_int64_t describe(zip_stat_t& about) const {
        zip_stat_init(&about);
        about.size = static_cast<zip_uint64_t>(file.size());
        about.mtime = QFileInfo(file).lastModified().toSecsSinceEpoch();
        about.valid |= ZIP_STAT_SIZE | ZIP_STAT_MTIME;
        return sizeof about;
    }
};

/// The library's calls on the source.
zip_int64_t supply(void* state, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    auto& source = *static_cast<Source*>(state);
    switch (command) {
        case ZIP_SOURCE_SUPPORTS: return ZIP_SOURCE_SUPPORTS_READABLE;
        case ZIP_SOURCE_OPEN: return source.file.open(QIODevice::ReadOnly) ? 0 : source.fail(ZIP_ER_OPEN);
        case ZIP_SOURCE_READ: return source.read(data, length);
        case ZIP_SOURCE_CLOSE: source.file.close(); return 0;
        case ZIP_SOURCE_STAT: return source.describe(*static_cast<zip_stat_t*>(data));
        case ZIP_SOURCE_ERROR: return zip_error_to_data(&source.error, data, length);
        case ZIP_SOURCE_FREE: return 0;
        default: zip_error_set(&source.error, ZIP_ER_OPNOTSUPP, 0); return -1;
    }
}

/// Adds the file to the empty archive; what fails is left in the archive's error.
bool addFile(zip_t* zip, Source& source) {
    zip_source_t* content = zip_source_function(zip, &supply, &source);
    if (!content) return false;
    const QByteArray name = QFileInfo(source.file).fileName().toUtf8();
    const zip_int64_t member = zip_file_add(zip, name.constData(), content, ZIP_FL_ENC_UTF_8);
    if (member < 0) {
        zip_source_free(content);
        return false;
    }
    constexpr zip_uint32_t highestLevel = 9;
    return zip_set_file_compression(zip, static_cast<zip_uint64_t>(member), ZIP_CM_DEFLATE, highestLevel) == 0;
}

Fault writeArchive(const QString& file, Sink& sink, const Progress& progress) {
    zip_error_t error{};
    zip_source_t* target = zip_source_function_create(&serve, &sink, &error);
    if (!target) return faultOf(error);
    Source source{.file = QFile(file), .meter = Meter(progress)};  // outlives the archive
    std::unique_ptr<zip_t, Discard> zip(zip_open_from_source(target, ZIP_CREATE | ZIP_TRUNCATE, &error));
    if (!zip) {
        zip_source_free(target);
        return faultOf(error);
    }
    if (!addFile(zip.get(), source)) return faultOf(*zip_get_error(zip.get()));
    if (zip_close(zip.get()) != 0)
        return sink.failure ? faultOfWriting(*sink.failure) : faultOf(*zip_get_error(zip.get()));
    zip.release();
    return Fault::None;
}

/// Writes the archive under another name and, when `check` found nothing, puts it in its place.
template <class Check>
Fault packInto(const QString& file, const QString& archive, const Progress& progress, Check check) {
    if (!QFileInfo(file).isFile()) return Fault::Missing;
    if (files::sameFile(file, archive)) return Fault::SameFile;
    try {
        files::NewFile made(archive);
        Sink sink{made};
        Fault fault = writeArchive(file, sink, progress);
        if (fault != Fault::None) return fault;
        made.finish();
        fault = check(made.path());
        if (fault == Fault::None) made.commit();
        return fault;
    } catch (const files::Error& error) {
        return faultOfWriting(error);
    }
}

}  // namespace

Fault pack(const QString& file, const QString& made, const Progress& progress) {
    return packInto(file, made, progress, [](const QString&) { return Fault::None; });
}

Fault packAndCompare(const QString& file, const QString& archive, const Progress& packing, const Progress& comparing) {
    return packInto(file, archive, packing, [&](const QString& made) { return compare(made, file, comparing); });
}

}  // namespace archive
