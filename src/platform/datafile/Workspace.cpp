#include "platform/datafile/Workspace.h"

#include "platform/datafile/Connection.h"
#include "platform/datafile/TableSql.h"
#include "platform/datafile/Watch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }
QString keyOf(const QString& path) { return QDir::cleanPath(QFileInfo(path).absoluteFilePath()); }

[[noreturn]] void passOn(const files::Error& error) {
    const Fault fault = error.full() ? Fault::Full : error.readOnly() ? Fault::ReadOnly : Fault::InputOutput;
    throw Error(fault, error.text());
}

/// A journal left beside the old file would be played into the new one.
void putInPlace(const QString& made, const QString& path) {
    try {
        removeSidecars(path);
        files::replaceWith(made, path);
    } catch (const files::Error& error) {
        passOn(error);
    }
}

/// Bytes of a data file that are in use.
qint64 usedSize(Connection& connection) {
    Statement used(connection, QStringLiteral("SELECT (page_count - freelist_count) * page_size "
                                              "FROM pragma_page_count, pragma_freelist_count, pragma_page_size"));
    return used.step() ? used.number(0) : 0;
}

void writeAnew(Connection& connection, const QString& made, const Progress& progress) {
    const Watch watch(connection, [&, size = usedSize(connection)] {
        if (progress) progress(percentOf(QFileInfo(made).size(), size));
    });
    Statement(connection, QStringLiteral("VACUUM INTO ") + sql::literal(made)).run();
}

/// Keeps other processes from writing a data file, by the lock that readers of the engine hold; the file itself stays
/// as it is.
class QuietFile {
public:
    explicit QuietFile(const QString& path) : id_(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC)) {
        constexpr off_t pendingByte = 0x40000000;
        constexpr off_t sharedBytes = pendingByte + 2;
        constexpr off_t sharedSize = 510;
        if (id_ < 0) return;  // the copying says why
        const bool held = lock(F_RDLCK, pendingByte, 1) && lock(F_RDLCK, sharedBytes, sharedSize);
        lock(F_UNLCK, pendingByte, 1);
        if (held) return;
        ::close(id_);
        throw Error(Fault::Locked, tr("The data file %1 is in use by another program.  Close it there and try again.")
                                       .arg(QDir::toNativeSeparators(path)));
    }
    ~QuietFile() {
        if (id_ >= 0) ::close(id_);
    }
    QuietFile(const QuietFile&) = delete;
    QuietFile& operator=(const QuietFile&) = delete;

private:
    /// Held until this file is closed, whatever else opens and closes it. A file system without locks has none to
    /// respect.
    bool lock(short kind, off_t from, off_t size) const {
        struct flock range {};
        range.l_type = kind;
        range.l_whence = SEEK_SET;
        range.l_start = from;
        range.l_len = size;
        return ::fcntl(id_, F_OFD_SETLK, &range) == 0 || (errno != EACCES && errno != EAGAIN);
    }
    int id_;
};

}  // namespace

std::shared_ptr<Connection> Workspace::find(const QString& path) const {
    return connections_.value(keyOf(path)).lock();
}

Database Workspace::openDatabase(const QString& path) {
    auto connection = find(path);
    if (!connection) {
        connection = std::make_shared<Connection>(path, true);
        connections_.insert(keyOf(path), connection);
    }
    return Database(std::move(connection));
}

Database Workspace::createDatabase(const QString& path) {
    if (QFileInfo::exists(path))
        throw Error(Fault::State, tr("The file %1 exists already.").arg(QDir::toNativeSeparators(path)));
    auto connection = std::make_shared<Connection>(path, false);
    connections_.insert(keyOf(path), connection);
    return Database(std::move(connection));
}

void Workspace::copyDatabase(const QString& from, const QString& to) {
    try {
        const Database source = openDatabase(from);
        Transaction quiet(source);
        removeSidecars(to);
        files::copyWhole(from, to);
    } catch (const files::Error& error) {
        passOn(error);
    }
}

void Workspace::copyUntouched(const QString& from, const QString& to) {
    try {
        const QuietFile quiet(from);
        removeSidecars(to);
        for (const char* sidecar : {"", "-journal", "-wal"}) {
            const QString part = to + QLatin1String(sidecar);
            if (!QFileInfo::exists(from + QLatin1String(sidecar))) continue;
            files::copyWhole(from + QLatin1String(sidecar), part);
            QFile::setPermissions(part, QFile::ReadOwner | QFile::WriteOwner);
        }
    } catch (const files::Error& error) {
        passOn(error);
    }
}

void Workspace::createWhole(const QString& path, const std::function<void(const QString& made)>& make) {
    const Scrap made(path);
    make(made.path);
    putInPlace(made.path, path);
}

void Workspace::compactDatabase(const QString& from, const QString& to, const Progress& progress) {
    if (QFileInfo::exists(to))
        throw Error(Fault::State, tr("The file %1 exists already.").arg(QDir::toNativeSeparators(to)));
    createWhole(to, [&](const QString& made) {
        auto connection = find(from);
        if (!connection) connection = std::make_shared<Connection>(from, true);
        constexpr int written = 30;  // percent; to check it takes longer
        writeAnew(*connection, made, part(progress, 0, written));
        checkIntegrity(made, Check::Thorough, part(progress, written, 100));
        QFile::setPermissions(made, QFileInfo(from).permissions());
    });
}

void Workspace::replaceDatabase(const QString& path, const QString& made) {
    inspectDataFile(made);
    if (const QFileInfo older(path); older.exists()) QFile::setPermissions(made, older.permissions());
    if (const auto connection = find(path))
        connection->whileClosed([&] { putInPlace(made, path); });
    else
        putInPlace(made, path);
}

}  // namespace datafile
