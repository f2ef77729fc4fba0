#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "maintenance/work/Backup.h"
#include "maintenance/work/Codes.h"
#include "platform/datafile/DataFile.h"
#include "store/CorrectVersion.h"

namespace {

[[noreturn]] void passOn(const files::Error& error) {
    throw datafile::Error(error.full()       ? datafile::Fault::Full
                          : error.readOnly() ? datafile::Fault::ReadOnly
                                             : datafile::Fault::InputOutput,
                          error.text());
}

/// A data file that cannot be opened any more, the very reason for a restore, is copied as it is. False when there is
/// none.
bool makeCopy(StoreContext& context) {
    const QString& path = context.dataFilePath;
    try {
        context.workspace.copyDatabase(path, safetyCopyPath(context));
        return true;
    } catch (const datafile::Error& error) {
        if (error.fault() != datafile::Fault::Damaged && error.fault() != datafile::Fault::NotADataFile &&
            error.fault() != datafile::Fault::NotFound)
            throw;
    }
    if (!QFileInfo::exists(path)) return false;
    files::copyWhole(path, safetyCopyPath(context));
    return true;
}

void putCopyBack(StoreContext& context) {
    const datafile::Scrap made(context.dataFilePath);
    files::copyWhole(safetyCopyPath(context), made.path);
    context.workspace.replaceDatabase(context.dataFilePath, made.path);
}

archive::Fault unpackDataFile(const StoreContext& context, const QString& archive, const QString& to,
                              const archive::Progress& progress) {
    const archive::Fault fault =
        archive::unpack(archive, QStringLiteral("Kestrelmoor.kmr"), to, largestDataFile, progress);
    if (fault != archive::Fault::NoMember) return fault;
    return archive::unpack(archive, QFileInfo(context.dataFilePath).fileName(), to, largestDataFile, progress);
}

bool holdsLeague(StoreContext& context, const QString& path, const datafile::Progress& checking) {
    datafile::checkIntegrity(path, datafile::Check::Thorough, checking);
    const datafile::Database database = context.workspace.openDatabase(path);
    return database.table("tblVersion") && database.table("tblOptions") && database.table("tblRegistration");
}

/// Puts the finished file in its place, in the home folder and, where that is another, at the data file's path. What
/// may lack space comes first.
void putInPlace(StoreContext& context, const QString& made, const QString& home, bool hasCopy) {
    const QString& path = context.dataFilePath;
    const bool together = QFileInfo(home) == QFileInfo(path) || files::sameFile(home, path);
    const datafile::Scrap beside(path);
    if (!together) files::copyWhole(made, beside.path);
    if (!together) context.workspace.replaceDatabase(home, made);
    try {
        context.workspace.replaceDatabase(path, together ? made : beside.path);
    } catch (const datafile::Error&) {
        if (hasCopy) putCopyBack(context);
        throw;
    }
}

}  // namespace

int restore(StoreContext& context, const QString& archive, const QString& homeFolder,
            const archive::Progress& unpacking, const datafile::Progress& checking) {
    const QString home = QDir(homeFolder).filePath(QStringLiteral("Kestrelmoor.kmr"));
    try {
        try {
            const bool hasCopy = makeCopy(context);
            const datafile::Scrap made(home);
            if (const archive::Fault fault = unpackDataFile(context, archive, made.path, unpacking);
                fault != archive::Fault::None)
                return restoreCode(fault);
            if (!holdsLeague(context, made.path, checking)) return wrongContentCode;
            putInPlace(context, made.path, home, hasCopy);
            return 0;
        } catch (const files::Error& error) {
            passOn(error);
        }
    } catch (const datafile::Error& error) {
        return restoreCode(error);
    }
}
