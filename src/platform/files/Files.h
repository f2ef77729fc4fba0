#pragma once

#include <QByteArray>
#include <QString>
#include <exception>
#include <memory>

/// Files that are written whole or not at all. Everything is checked: each write's count, the flush, the sync and
/// the size afterwards, because a full disk may show itself in any of them.
namespace files {

/// What went wrong, in words the user can act on. `full` tells a disk without space from other failures.
class Error : public std::exception {
public:
    Error(QString text, int code) : text_(std::move(text)), bytes_(text_.toUtf8()), code_(code) {}
    const QString& text() const { return text_; }
    bool full() const;
    bool readOnly() const;
    int code() const { return code_; }  ///< the system's number for it
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    QString text_;
    QByteArray bytes_;
    int code_;
};

class Handle;  ///< an open file

/// A file in the making, under another name beside its target. It is removed when the object ends without commit().
class NewFile {
public:
    explicit NewFile(const QString& target, unsigned permissions = 0644);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const QString& path() const { return path_; }
    qint64 size() const { return size_; }
    void write(const char* from, qint64 size);
    /// The place of the next write; beyond the end is an Error.
    void seek(qint64 place);
    qint64 place() const { return place_; }
    /// Nothing more will be written: all of it is on disk now, and closed.
    void finish();
    /// Puts the finished file in the place of the target, which until then stays as it was.
    void commit();

private:
    QString target_;
    QString path_;
    std::unique_ptr<Handle> handle_;
    qint64 place_ = 0;
    qint64 size_ = 0;
};

/// Copies `from` over `to` by way of a file beside `to` that is renamed when whole and on disk. An older `to`
/// survives any failure. A file is never copied onto itself, by whatever name: that is an Error too.
void copyWhole(const QString& from, const QString& to);

/// Writes `bytes` as the file `to`, in the same manner.
void writeWhole(const QString& to, const QByteArray& bytes);

/// Puts the finished file `made` in the place of `to` (same folder) and syncs file and folder.
void replaceWith(const QString& made, const QString& to);

/// Whether both names lead to one file on disk.
bool sameFile(const QString& one, const QString& other);

/// Whether a file can be made in the folder.
bool canWriteFolder(const QString& folder);

/// A name beside `path` that no file has.
QString temporaryName(const QString& path);

}  // namespace files
