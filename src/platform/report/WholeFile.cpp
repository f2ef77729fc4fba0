#include "platform/report/WholeFile.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

#include "platform/report/ReportError.h"

namespace report {

namespace {

constexpr auto usualPermissions =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;

/// The file behind a symbolic link, so that the link itself stays.
QString realTarget(const QString& target) {
    const QFileInfo info(target);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

}  // namespace

WholeFile::WholeFile(const QString& target)
    : target_(realTarget(target)), shownName_(QDir::toNativeSeparators(target)) {
    const QFileInfo info(target_);
    if (info.isDir()) fail(QCoreApplication::translate("report", "There is a folder of that name."));
    setFileTemplate(info.absolutePath() % QLatin1String("/.") % info.fileName() % QLatin1String(".XXXXXX"));
    if (!open()) fail(errorString());
}

qint64 WholeFile::writeData(const char* data, qint64 length) {
    const qint64 written = QTemporaryFile::writeData(data, length);
    if (written != length) failed_ = true;
    return written;
}

void WholeFile::commit() {
    const qint64 length = pos();
    if (failed_ || !flush() || error() != NoError || fsync(handle()) != 0 || QFileInfo(fileName()).size() != length)
        giveUp();
    const QFileInfo old(target_);
    setPermissions(old.exists() ? old.permissions() : usualPermissions);
    const QByteArray from = QFile::encodeName(fileName());
    if (std::rename(from.constData(), QFile::encodeName(target_).constData()) != 0) fail(qt_error_string());
    setAutoRemove(false);
    close();
}

void WholeFile::giveUp() const { fail(error() != NoError ? errorString() : qt_error_string()); }

void WholeFile::fail(const QString& reason) const {
    throw ReportError(
        QCoreApplication::translate("report", "The file \"%1\" could not be written.\n%2").arg(shownName_, reason));
}

}  // namespace report
