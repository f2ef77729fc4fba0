/* A disk that fails on demand. Preloaded into a program (LD_PRELOAD), it counts the changes that the program makes to
 * files under one folder and lets one of them fail. The environment says which:
 *
 *   FAULTY_DISK_FOLDER  the folder, an absolute path without a slash at its end
 *   FAULTY_DISK_AT      the change that fails, counted from 1; 0 for none
 *   FAULTY_DISK_KIND    die          the program ends there at once, with exit code 86
 *                       full, error  the change fails with ENOSPC or EIO
 *                       stays-full   it fails with ENOSPC, and so does every write and every new file from then on
 *                       stays-broken it fails with EIO, and so does every change from then on
 *   FAULTY_DISK_REPORT  a file outside the folder that is made when the fault strikes and names the change; a program
 *                       that ends without a fault leaves the number of its changes there
 *
 * Of a write that fails, half the bytes reach the file. Syncs are counted and not carried out. */
#define _GNU_SOURCE
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

enum { exitCode = 86 };
enum change { Write, NewFile, Other };
enum outcome { Carry, Fail };

static long changes;
static int struck;

static const char* setting(const char* name) {
    const char* value = getenv(name);
    return value ? value : "";
}

static int isKind(const char* kind) { return strcmp(setting("FAULTY_DISK_KIND"), kind) == 0; }

static int isInFolder(const char* path) {
    const char* folder = setting("FAULTY_DISK_FOLDER");
    const size_t length = strlen(folder);
    return length > 0 && strncmp(path, folder, length) == 0 && (path[length] == '/' || path[length] == '\0');
}

/* The path of an open file, or of a name as the program gave it. */
static const char* pathOfFile(int file, char* into) {
    char link[64];
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const long length = syscall(SYS_readlinkat, AT_FDCWD, link, into, (size_t)PATH_MAX - 1);
    into[length > 0 ? length : 0] = '\0';
    return into;
}

static const char* pathOfName(const char* name, char* into) {
    if (name[0] == '/') return name;
    char folder[PATH_MAX];
    if (!getcwd(folder, sizeof folder)) return name;
    snprintf(into, PATH_MAX, "%.*s/%s", PATH_MAX / 2, folder, name);
    return into;
}

static void report(const char* what, const char* of) {
    const long file = syscall(SYS_openat, AT_FDCWD, setting("FAULTY_DISK_REPORT"), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0) return;
    for (const char *part[] = {what, " ", of, NULL}, **each = part; *each; ++each)
        syscall(SYS_write, file, *each, strlen(*each));
    syscall(SYS_close, file);
}

__attribute__((destructor)) static void reportNumber(void) {
    char number[32];
    snprintf(number, sizeof number, "%ld", changes);
    if (!struck) report(number, "changes");
}

/* Decides on the next change. When it is to fail, errno is set; a write is then still to be carried out by half. */
static enum outcome judge(enum change change, const char* call, const char* path) {
    if (!isInFolder(path)) return Carry;
    if (++changes == atol(setting("FAULTY_DISK_AT"))) {
        struck = 1;
        report(call, path);
    } else if (!struck || !(isKind("stays-broken") || (isKind("stays-full") && change != Other))) {
        return Carry;
    }
    if (isKind("die") && change != Write) _exit(exitCode);
    errno = isKind("full") || isKind("stays-full") ? ENOSPC : EIO;
    return Fail;
}

/* The end of a write that failed, of which half was carried out. */
static ssize_t failed(int code) {
    if (isKind("die")) _exit(exitCode);
    errno = code;
    return -1;
}

ssize_t write(int file, const void* bytes, size_t size) {
    char path[PATH_MAX];
    if (judge(Write, "write", pathOfFile(file, path)) == Carry) return syscall(SYS_write, file, bytes, size);
    const int code = errno;
    syscall(SYS_write, file, bytes, size / 2);
    return failed(code);
}

ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t at) {
    char path[PATH_MAX];
    if (judge(Write, "pwrite", pathOfFile(file, path)) == Carry) return syscall(SYS_pwrite64, file, bytes, size, at);
    const int code = errno;
    syscall(SYS_pwrite64, file, bytes, size / 2, at);
    return failed(code);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t at) { return pwrite64(file, bytes, size, at); }

ssize_t writev(int file, const struct iovec* parts, int count) {
    char path[PATH_MAX];
    if (judge(Write, "writev", pathOfFile(file, path)) == Carry) return syscall(SYS_writev, file, parts, count);
    const int code = errno;
    if (count > 0) syscall(SYS_write, file, parts[0].iov_base, parts[0].iov_len / 2);
    return failed(code);
}

ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, size_t size, unsigned flags) {
    char path[PATH_MAX];
    const enum outcome outcome = judge(Write, "copy_file_range", pathOfFile(to, path));
    const int code = errno;
    const ssize_t count =
        syscall(SYS_copy_file_range, from, fromAt, to, toAt, outcome == Carry ? size : size / 2, flags);
    return outcome == Carry ? count : failed(code);
}

ssize_t sendfile64(int to, int from, off64_t* fromAt, size_t size) {
    char path[PATH_MAX];
    const enum outcome outcome = judge(Write, "sendfile", pathOfFile(to, path));
    const int code = errno;
    const ssize_t count = syscall(SYS_sendfile, to, from, fromAt, outcome == Carry ? size : size / 2);
    return outcome == Carry ? count : failed(code);
}

ssize_t sendfile(int to, int from, off_t* fromAt, size_t size) { return sendfile64(to, from, fromAt, size); }

static int sync_(int file, const char* call) {
    char path[PATH_MAX];
    return judge(Other, call, pathOfFile(file, path)) == Carry ? 0 : -1;
}

int fsync(int file) { return sync_(file, "fsync"); }
int fdatasync(int file) { return sync_(file, "fdatasync"); }

int ftruncate64(int file, off64_t size) {
    char path[PATH_MAX];
    return judge(Other, "ftruncate", pathOfFile(file, path)) == Carry ? (int)syscall(SYS_ftruncate, file, size) : -1;
}

int ftruncate(int file, off_t size) { return ftruncate64(file, size); }

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    char path[PATH_MAX];
    if (judge(Other, "rename", pathOfName(to, path)) == Fail) return -1;
    return (int)syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags);
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) {
    return renameat2(fromFolder, from, toFolder, to, 0);
}

int rename(const char* from, const char* to) { return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0); }

int unlinkat(int folder, const char* name, int flags) {
    char path[PATH_MAX];
    return judge(Other, "unlink", pathOfName(name, path)) == Carry ? (int)syscall(SYS_unlinkat, folder, name, flags)
                                                                   : -1;
}

int unlink(const char* name) { return unlinkat(AT_FDCWD, name, 0); }

static int open_(int folder, const char* name, int flags, mode_t mode) {
    char path[PATH_MAX];
    const int makes = (flags & O_CREAT) != 0 && syscall(SYS_faccessat, folder, name, F_OK) != 0;
    if (makes && judge(NewFile, "create", pathOfName(name, path)) == Fail) return -1;
    return (int)syscall(SYS_openat, folder, name, flags, mode);
}

#define MODE_ARGUMENT(flags, mode)           \
    mode_t mode = 0;                         \
    if ((flags) & (O_CREAT | __O_TMPFILE)) { \
        va_list rest;                        \
        va_start(rest, flags);               \
        mode = va_arg(rest, mode_t);         \
        va_end(rest);                        \
    }

int open(const char* name, int flags, ...) {
    MODE_ARGUMENT(flags, mode)
    return open_(AT_FDCWD, name, flags, mode);
}

int open64(const char* name, int flags, ...) {
    MODE_ARGUMENT(flags, mode)
    return open_(AT_FDCWD, name, flags | O_LARGEFILE, mode);
}

int openat(int folder, const char* name, int flags, ...) {
    MODE_ARGUMENT(flags, mode)
    return open_(folder, name, flags, mode);
}
