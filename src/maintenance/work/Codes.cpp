#include "maintenance/work/Codes.h"

#include <QCoreApplication>
#include <algorithm>
#include <initializer_list>

using archive::Fault;

namespace {

constexpr int unknownCode = 99;

QString tr(const char* text) { return QCoreApplication::translate("Backup", text); }

bool isOneOf(int code, std::initializer_list<int> codes) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

}  // namespace

int backupCode(Fault fault) {
    switch (fault) {
        case Fault::None: return 0;
        case Fault::Missing: return 2;
        case Fault::ReadFailed: return 3;
        case Fault::OutOfMemory: return 4;
        case Fault::SameFile: return 9;
        case Fault::Unreachable: return 10;
        case Fault::WriteFailed: return 11;
        case Fault::Different: return 12;
        case Fault::NotAnArchive:  // on reading it back, as those below
        case Fault::NoMember:
        case Fault::Damaged: return 13;
        case Fault::Full: return 14;
        default: return unknownCode;
    }
}

int restoreCode(Fault fault) {
    switch (fault) {
        case Fault::None: return 0;
        case Fault::SameFile: return 2;
        case Fault::OutOfMemory: return 4;
        case Fault::Missing:
        case Fault::NoMember: return 9;
        case Fault::Unreachable: return 10;
        case Fault::ReadFailed: return 11;
        case Fault::WriteFailed: return 12;
        case Fault::NotAnArchive: return 39;
        case Fault::Damaged: return 41;
        case Fault::TooLarge: return 42;
        case Fault::Full: return 50;
        default: return unknownCode;
    }
}

int restoreCode(const datafile::Error& error) {
    switch (error.fault()) {
        case datafile::Fault::OutOfMemory: return 4;
        case datafile::Fault::ReadOnly: return 10;
        case datafile::Fault::InputOutput: return 12;
        case datafile::Fault::NotADataFile: return wrongContentCode;
        case datafile::Fault::Damaged: return 45;
        case datafile::Fault::Locked: return 47;
        case datafile::Fault::Full: return 50;
        default: return unknownCode;
    }
}

ResultBox backupResult(int code) {
    const QString failed = tr("Backup Error");
    if (code == 0) return {BoxKind::Information, tr("Backup Complete"), tr("Backup Operation Complete!")};
    if (isOneOf(code, {1, 2, 3, 6, 7, 8, 9, 11, 12, 13, 17, 19}))
        return {BoxKind::Error, failed,
                tr("Backup Error %1: An Error occurred during the backup.\n"
                   "Please try the backup process again.  If this error continues to occur, \n"
                   "please report the error number to Kestrelmoor Support.")
                    .arg(code)};
    if (code == 4)
        return {BoxKind::Error, failed,
                tr("Backup Error: Out of Memory.  Please close open applications\nand try the backup operation "
                   "again.")};
    if (isOneOf(code, {10, 15}))
        return {BoxKind::Error, failed,
                tr("Backup Error: Please make sure that a floppy disk\nis in Drive A: and is not write protected.")};
    if (isOneOf(code, {14, 18}))
        return {BoxKind::Error, tr("Backup Write Failure"),
                tr("Backup Error %1: Insufficient Disk Space.\n"
                   "Please delete some files from the floppy disk to free\ndisk space and try the operation again.")
                    .arg(code)};
    return {BoxKind::Error, failed,
            tr("Backup Error %1: Please report this\nerror number to Kestrelmoor Support.").arg(code)};
}

ResultBox restoreResult(int code) {
    const QString failed = tr("Restore Error");
    if (code == 0)
        return {BoxKind::Information, tr("Restore Complete"),
                tr("Restore Operation Complete!\n\nPlease Restart Kestrelmoor to\ninitialize with the new data.")};
    if (isOneOf(code, {2, 3, 11, 12, 47}))
        return {BoxKind::Error, failed,
                tr("Restore Error %1: An Error occurred during the restore.\n"
                   "Please try the restore process again.  If this error continues to occur, \n"
                   "please report the error to Kestrelmoor Software.")
                    .arg(code)};
    if (isOneOf(code, {4, 5}))
        return {BoxKind::Error, failed,
                tr("Restore Error: Out of Memory.  Please close open applications\nand try the restore operation "
                   "again.")};
    if (code == 9)
        return {BoxKind::Error, tr("Restore File Not Found"),
                tr("Restore Error %1: File Not Found.  A backup file could\n"
                   "not be located on this floppy.  Please make sure\nyou have a Kestrelmoor Backup in Drive A:")
                    .arg(code)};
    if (isOneOf(code, {10, 29}))
        return {BoxKind::Error, failed,
                tr("Restore Error: Please make sure that a floppy disk\nis in Drive A: and is not write protected.")};
    if (isOneOf(code, {39, 41, 42, 44, 45, 46}))
        return {BoxKind::Error, failed,
                tr("Restore Error %1: The file you are trying to restore\n"
                   "is corrupted.  Please try to restore another backup file.")
                    .arg(code)};
    if (code == 50)
        return {BoxKind::Error, tr("Restore Destination Full"),
                tr("Restore Error %1: The destination disk you are trying\n"
                   "to restore to is full.  Please delete files from the destination\n"
                   "disk to free disk space and try the Restore again.")
                    .arg(code)};
    return {BoxKind::Error, failed,
            tr("Restore Error %1: Please report this\nerror to Kestrelmoor Support.").arg(code)};
}
