#include "platform/datafile/DataFile.h"

#include "platform/datafile/Error.h"
#include "platform/datafile/Watch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <sqlite3.h>

namespace datafile {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("datafile", text); }
constexpr qsizetype headerSize = 100;
constexpr qsizetype applicationIdAt = 68;
constexpr qint64 pageSize = 4096;

qint64 pagesRead(sqlite3* handle) {
    int pages = 0;
    int highest = 0;
    sqlite3_db_status(handle, SQLITE_DBSTATUS_CACHE_MISS, &pages, &highest, 0);
    return pages;
}

}  // namespace

int percentOf(qint64 done, qint64 all) {
    constexpr qint64 whole = 100;
    return all <= 0 ? 0 : static_cast<int>(std::clamp<qint64>(done * whole / all, 0, whole));
}

Progress part(const Progress& whole, int from, int to) {
    if (!whole) return {};
    return [=](int percent) { whole(from + (to - from) * percent / 100); };
}

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

void checkIntegrity(const QString& path, Check kind, const Progress& progress) {
    inspectDataFile(path);
    sqlite3* handle = nullptr;
    sqlite3_stmt* check = nullptr;
    QString finding;
    const char* pragma = kind == Check::Quick ? "PRAGMA quick_check(1)" : "PRAGMA integrity_check(1)";
    const int opened = sqlite3_open_v2(QFile::encodeName(path).constData(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    {
        const Watch watch(handle, [&] {
            const qint64 timesRead = kind == Check::Quick ? 2 : 11;  // each page of a large file
            if (progress) progress(percentOf(pagesRead(handle), timesRead * QFileInfo(path).size() / pageSize));
        });
        if (opened != SQLITE_OK || sqlite3_prepare_v2(handle, pragma, -1, &check, nullptr) != SQLITE_OK ||
            sqlite3_step(check) != SQLITE_ROW)
            finding = QString::fromUtf8(sqlite3_errmsg(handle));
        else
            finding = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(check, 0)));
        sqlite3_finalize(check);
    }
    sqlite3_close_v2(handle);
    if (finding != QLatin1String("ok"))
        throw Error(Fault::Damaged, tr("The data file %1 is damaged: %2").arg(QDir::toNativeSeparators(path), finding));
}

}  // namespace datafile
