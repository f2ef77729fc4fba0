#pragma once

#include <QIODevice>
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

/// A file in the making, under another name beside its target. It is removed when the object ends without commit(); an
/// older file stays as it is until then. A symbolic link and the permissions of an older file stay for good.
class NewFile {
public:
    static constexpr int usualMode = -1;  ///< that of the older file; 0644 where there is none

    /// Raises Error where the folder does not take a file.
    explicit NewFile(const QString& target, int permissions = usualMode);
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
    /// Puts the finished file in the place of the target.
    void commit();

private:
    QString target_;
    QString path_;
    std::unique_ptr<Handle> handle_;
    qint64 place_ = 0;
    qint64 size_ = 0;
};

/// A new file as a device of the toolkit's, written from its beginning to its end.
class WholeFile final : public QIODevice {
public:
    explicit WholeFile(const QString& to);
    /// Puts the file in its place when everything was written and is on disk; raises Error otherwise.
    void commit();
    /// Raises what made writing fail, if anything did: for long runs, which need not go on then.
    void check() const;
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    /// Gives -1 on failure, now or earlier: whoever writes through Qt cannot be raised through.
    qint64 writeData(const char* data, qint64 length) override;

private:
    void flush();

    NewFile file_;
    QByteArray waiting_;
    std::exception_ptr failure_;
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
