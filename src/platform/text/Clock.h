#pragma once

#include <QDateTime>

/// Where everything that asks for "today" or "now" asks. Tests set it.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
    /// Hours times 3600 plus minutes times 60 plus seconds, as every time stamp of a row holds it.
    int secondsSinceMidnight() const { return now().time().msecsSinceStartOfDay() / 1000; }
};

/// The machine's own clock.
class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// A clock that stands still until it is set; for tests and for programs that must repeat exactly.
class FixedClock final : public Clock {
public:
    explicit FixedClock(QDateTime at) : at_(std::move(at)) {}
    QDateTime now() const override { return at_; }
    void set(QDateTime at) { at_ = std::move(at); }

private:
    QDateTime at_;
};
