#include "platform/datafile/DataFile.h"

#include "platform/datafile/Error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <sqlite3.h>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }
constexpr qsizetype headerSize = 100;
constexpr qsizetype applicationIdAt = 68;

}  // namespace

Scrap::~Scrap() {
    QFile::remove(path);
    removeSidecars(path);
}

void removeSidecars(const QString& path) {
    for (const char* sidecar : {"-journal", "-wal", "-shm"}) QFile::remove(path + QLatin1String(sidecar));
}

void inspectDataFile(const QString& path) {
    const QString name = QDir::toNativeSeparators(path);
    const QFileInfo about(path);
    if (!about.exists()) throw Error(Fault::NotFound, tr("The data file %1 does not exist.").arg(name));
    QFile file(path);
    if (!about.isFile() || !file.open(QIODevice::ReadOnly))
        throw Error(Fault::ReadOnly, tr("The data file %1 cannot be read.").arg(name));
    const QByteArray header = file.read(headerSize);
    const bool ours = header.size() == headerSize && header.startsWith("SQLite format 3") &&
                      qFromBigEndian<qint32>(header.constData() + applicationIdAt) == applicationId;
    if (!ours) throw Error(Fault::NotADataFile, tr("The file %1 is not a Kestrelmoor data file.").arg(name));
}

void checkIntegrity(const QString& path, Check kind) {
    inspectDataFile(path);
    sqlite3* handle = nullptr;
    sqlite3_stmt* check = nullptr;
    QString finding;
    const char* pragma = kind == Check::Quick ? "PRAGMA quick_check(1)" : "PRAGMA integrity_check(1)";
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(handle, pragma, -1, &check, nullptr) != SQLITE_OK || sqlite3_step(check) != SQLITE_ROW)
        finding = QString::fromUtf8(sqlite3_errmsg(handle));
    else
        finding = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(check, 0)));
    sqlite3_finalize(check);
    sqlite3_close_v2(handle);
    if (finding != QLatin1String("ok"))
        throw Error(Fault::Damaged, tr("The data file %1 is damaged: %2").arg(QDir::toNativeSeparators(path), finding));
}

}  // namespace datafile
