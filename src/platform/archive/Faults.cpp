#include "platform/archive/Faults.h"

#include <cerrno>

namespace archive {

namespace {

Fault faultOfSystem(int code, Fault otherwise) {
    switch (code) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return Fault::Full;
        case ENOMEM: return Fault::OutOfMemory;
        case ENOENT:
        case ENOTDIR:
        case EISDIR:
        case EACCES:
        case EPERM:
        case EROFS:
        case ENODEV:
        case ENXIO:
        case ENAMETOOLONG:
        case ENOMEDIUM: return Fault::Unreachable;
        default: return otherwise;
    }
}

}  // namespace

Fault faultOf(const zip_error_t& error) {
    switch (zip_error_code_zip(&error)) {
        case ZIP_ER_OK: return Fault::None;
        case ZIP_ER_MEMORY: return Fault::OutOfMemory;
        case ZIP_ER_NOENT: return zip_error_code_system(&error) == EACCES ? Fault::Unreachable : Fault::Missing;
        case ZIP_ER_NOZIP: return Fault::NotAnArchive;
        case ZIP_ER_INCONS:
        case ZIP_ER_CRC:
        case ZIP_ER_ZLIB:
        case ZIP_ER_EOF: return Fault::Damaged;
        case ZIP_ER_MULTIDISK:
        case ZIP_ER_COMPNOTSUPP:
        case ZIP_ER_ENCRNOTSUPP:
        case ZIP_ER_NOPASSWD:
        case ZIP_ER_WRONGPASSWD: return Fault::NotSupported;
        case ZIP_ER_WRITE:
        case ZIP_ER_CLOSE:
        case ZIP_ER_RENAME:
        case ZIP_ER_TMPOPEN: return faultOfSystem(zip_error_code_system(&error), Fault::WriteFailed);
        default: return faultOfSystem(zip_error_code_system(&error), Fault::ReadFailed);
    }
}

Fault faultOfWriting(const files::Error& error) { return faultOfSystem(error.code(), Fault::WriteFailed); }

}  // namespace archive
