#pragma once

#include <QString>
#include <exception>

namespace report {

/// What the operations of this folder raise. The text is for the user.
class ReportError : public std::exception {
public:
    explicit ReportError(QString text) : text_(std::move(text)), bytes_(text_.toUtf8()) {}
    const QString& text() const { return text_; }
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    QString text_;
    QByteArray bytes_;
};

/// There is no row at all, so there is nothing to write.
class NoDataError final : public ReportError {
public:
    NoDataError();
};

}  // namespace report
