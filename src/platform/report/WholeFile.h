#pragma once

#include <QTemporaryFile>

namespace report {

/// A file that appears whole or not at all: written beside its target and put in the target's place by commit(). An
/// existing file stays as it was until then, and for good when the object ends without a commit.
class WholeFile final : public QTemporaryFile {
public:
    /// Opens for writing. Raises ReportError where the folder does not take a file.
    explicit WholeFile(const QString& target);
    /// Raises ReportError when anything was not written, or cannot be put in place; then the target is untouched.
    void commit();
    /// Raises what made writing fail.
    [[noreturn]] void giveUp() const;

protected:
    qint64 writeData(const char* data, qint64 length) override;

private:
    [[noreturn]] void fail(const QString& reason) const;

    QString target_;
    QString shownName_;
    bool failed_ = false;
};

}  // namespace report
