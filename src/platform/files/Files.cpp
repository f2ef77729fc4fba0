#include "platform/files/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("files", text); }

[[noreturn]] void fail(const QString& what, const QString& path, int code) {
    const QString reason = code == ENOSPC || code == EDQUOT ? tr("There is no space left on the disk.")
                                                            : QString::fromLocal8Bit(std::strerror(code));
    throw Error(what.arg(QDir::toNativeSeparators(path)) + u'\n' + reason, code);
}

constexpr qsizetype blockSize = 1 << 18;

/// The file behind a symbolic link, so that the link itself stays.
QString realTarget(const QString& to) {
    const QFileInfo about(to);
    return about.exists() ? about.canonicalFilePath() : about.absoluteFilePath();
}

/// Of a file that takes the place of `to`.
mode_t modeFor(const QString& to) {
    struct stat about {};
    return ::stat(QFile::encodeName(to), &about) == 0 ? about.st_mode & 0777 : 0644;
}

}  // namespace

/// An open file that closes itself; every failure raises, under the name that the user knows it by.
class Handle {
public:
    Handle(const QString& path, int flags, mode_t mode = 0, const QString& shownName = {})
        : path_(shownName.isEmpty() ? path : shownName), id_(::open(QFile::encodeName(path), flags | O_CLOEXEC, mode)) {
        if (id_ < 0)
            fail(flags & O_CREAT ? tr("The file %1 could not be written.") : tr("The file %1 could not be read."),
                 path_, errno);
    }
    ~Handle() {
        if (id_ >= 0) ::close(id_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    qint64 read(char* into, size_t size) {
        const ssize_t count = ::read(id_, into, size);
        if (count < 0) fail(tr("The file %1 could not be read."), path_, errno);
        return count;
    }
    void write(const char* from, qint64 size) {
        while (size > 0) {
            const ssize_t count = ::write(id_, from, static_cast<size_t>(size));
            if (count <= 0) fail(tr("The file %1 could not be written."), path_, count < 0 ? errno : ENOSPC);
            from += count;
            size -= count;
        }
    }
    void finish(qint64 expected) {
        if (::fsync(id_) != 0) fail(tr("The file %1 could not be written."), path_, errno);
        struct stat about {};
        if (::fstat(id_, &about) != 0 || about.st_size != expected)
            fail(tr("The file %1 could not be written."), path_, EIO);
        const int id = id_;
        id_ = -1;
        if (::close(id) != 0) fail(tr("The file %1 could not be written."), path_, errno);
    }
    void seek(qint64 place) {
        if (::lseek(id_, place, SEEK_SET) != place) fail(tr("The file %1 could not be written."), path_, errno);
    }
    mode_t mode() const {
        struct stat about {};
        return ::fstat(id_, &about) == 0 ? about.st_mode & 0777 : 0644;
    }

private:
    QString path_;
    int id_;
};

bool Error::full() const { return code_ == ENOSPC || code_ == EDQUOT; }
bool Error::readOnly() const { return code_ == EACCES || code_ == EPERM || code_ == EROFS; }

QString temporaryName(const QString& path) {
    QString name;
    do {
        name = path +
               QStringLiteral(".%1~").arg(QRandomGenerator::global()->generate() % 0xfffff, 5, 16, QLatin1Char('0'));
    } while (QFileInfo::exists(name));
    return name;
}

bool sameFile(const QString& one, const QString& other) {
    struct stat a {};
    struct stat b {};
    return ::stat(QFile::encodeName(one), &a) == 0 && ::stat(QFile::encodeName(other), &b) == 0 &&
           a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool canWriteFolder(const QString& folder) { return ::access(QFile::encodeName(folder), W_OK | X_OK) == 0; }

void replaceWith(const QString& made, const QString& to) {
    if (::rename(QFile::encodeName(made), QFile::encodeName(to)) != 0)
        fail(tr("The file %1 could not be replaced."), to, errno);
    const int folder = ::open(QFile::encodeName(QFileInfo(to).absolutePath()), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
}

NewFile::NewFile(const QString& target, int permissions) : target_(realTarget(target)), path_(temporaryName(target_)) {
    if (QFileInfo(target_).isDir()) fail(tr("The file %1 could not be written."), target, EISDIR);
    const mode_t mode = permissions == usualMode ? modeFor(target_) : static_cast<mode_t>(permissions);
    handle_ = std::make_unique<Handle>(path_, O_WRONLY | O_CREAT | O_EXCL, mode, target);
}

NewFile::~NewFile() {
    handle_.reset();
    if (!path_.isEmpty()) QFile::remove(path_);
}

void NewFile::write(const char* from, qint64 size) {
    handle_->write(from, size);
    place_ += size;
    size_ = std::max(size_, place_);
}

void NewFile::seek(qint64 place) {
    if (place < 0 || place > size_) fail(tr("The file %1 could not be written."), target_, EINVAL);
    handle_->seek(place);
    place_ = place;
}

void NewFile::finish() {
    if (!handle_) return;
    handle_->finish(size_);
    handle_.reset();
}

void NewFile::commit() {
    finish();
    replaceWith(path_, target_);
    path_.clear();
}

WholeFile::WholeFile(const QString& to) : file_(to) { open(QIODevice::WriteOnly); }

qint64 WholeFile::writeData(const char* data, qint64 length) {
    if (failure_) return -1;
    try {
        waiting_.append(data, length);
        if (waiting_.size() >= blockSize) flush();
    } catch (...) {
        failure_ = std::current_exception();
        return -1;
    }
    return length;
}

void WholeFile::flush() {
    file_.write(waiting_.constData(), waiting_.size());
    waiting_.resize(0);
}

void WholeFile::check() const {
    if (failure_) std::rethrow_exception(failure_);
}

void WholeFile::commit() {
    check();
    flush();
    file_.commit();
    close();
}

void copyWhole(const QString& from, const QString& to) {
    if (sameFile(from, to)) throw Error(tr("A file cannot be copied onto itself."), EINVAL);
    Handle source(from, O_RDONLY);
    NewFile target(to, static_cast<int>(source.mode()));
    QByteArray block(blockSize, Qt::Uninitialized);
    while (const qint64 count = source.read(block.data(), static_cast<size_t>(block.size())))
        target.write(block.constData(), count);
    target.commit();
}

void writeWhole(const QString& to, const QByteArray& bytes) {
    NewFile target(to);
    target.write(bytes.constData(), bytes.size());
    target.commit();
}

}  // namespace files
