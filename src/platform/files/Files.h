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
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    QString text_;
    QByteArray bytes_;
    int code_;
};

class Handle;

/// A file that is written bit by bit and appears whole or not at all: made beside its target and put in the target's
/// place by commit(). Until then, and for good when the object ends without a commit, an older file stays as it is.
/// A symbolic link and the permissions of an older file stay too.
class WholeFile final : public QIODevice {
public:
    /// Raises Error where the folder does not take a file.
    explicit WholeFile(const QString& to, int mode = usualMode);
    ~WholeFile() override;
    /// Puts the file in its place when everything was written and is on disk; raises Error otherwise.
    void commit();
    /// Raises what made writing fail, if anything did: for long runs, which need not go on then.
    void check() const;
    bool isSequential() const override { return true; }

    static constexpr int usualMode = -1;  ///< that of the older file; 0644 where there is none

protected:
    qint64 readData(char*, qint64) override { return -1; }
    /// Gives -1 on failure, now or earlier: whoever writes through Qt cannot be raised through.
    qint64 writeData(const char* data, qint64 length) override;

private:
    void flush();

    QString to_;
    QString made_;
    std::unique_ptr<Handle> handle_;
    QByteArray waiting_;
    qint64 written_ = 0;
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
