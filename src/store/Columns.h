#pragma once

#include "platform/datafile/Recordset.h"

#include <QDate>
#include <QString>

class RecordClass;

/// One property of a record class: the copy of one column of the current row. Assigning marks the record dirty and
/// the column as assigned; loading does neither. Assigning from another property copies its value.
class Column {
public:
    Column(RecordClass* owner, const char* name);
    virtual ~Column() = default;
    Column(const Column&) = delete;
    Column& operator=(const Column&) = delete;

    const char* name() const { return name_; }
    /// Most characters that the column takes; 0 when it is no text.
    int size() const { return size_; }
    bool assigned() const { return assigned_; }

    /// Whether a required property counts as given.
    virtual bool isFilled() const = 0;
    virtual void blank() = 0;
    /// Whether a save writes it at all.
    virtual bool isWritten() const { return true; }

protected:
    void touch();
    /// The value as it is to be stored; `adding` tells a new row from an update.
    virtual datafile::Value stored(bool adding) const = 0;
    virtual void read(const datafile::Value& value) = 0;

private:
    friend class RecordClass;
    RecordClass* owner_;
    const char* name_;
    int size_ = 0;
    int field_ = -1;
    bool assigned_ = false;
};

/// The row's auto-increment key; 0 while the row is not stored. Never written.
class Key final : public Column {
public:
    using Column::Column;
    operator int() const { return value_; }
    int operator()() const { return value_; }
    bool isFilled() const override { return value_ != 0; }
    void blank() override { value_ = 0; }
    bool isWritten() const override { return false; }

private:
    friend class RecordClass;
    datafile::Value stored(bool) const override { return {}; }
    void read(const datafile::Value& value) override { value_ = static_cast<int>(datafile::toNumber(value)); }
    int value_ = 0;
};

/// How a text property reads what is stored.
struct TextRule {
    enum class Kind { AsStored, NumericElse, FilledElse, NeverWritten } kind = Kind::AsStored;
    const char* otherwise = "";
};
/// A text that is no number reads, blanks and is added as `otherwise`.
constexpr TextRule numericElse(const char* otherwise) { return {TextRule::Kind::NumericElse, otherwise}; }
/// An empty text reads as `otherwise`.
constexpr TextRule filledElse(const char* otherwise) { return {TextRule::Kind::FilledElse, otherwise}; }
/// Read from the row, but kept elsewhere when it is edited.
constexpr TextRule neverWritten{TextRule::Kind::NeverWritten};

/// A text, money or number-like property, whatever the column's type.
class Text final : public Column {
public:
    Text(RecordClass* owner, const char* name, TextRule rule = {}) : Column(owner, name), rule_(rule) {}
    Text& operator=(const QString& value) { return value_ = value, touch(), *this; }
    Text& operator=(const char* value) { return *this = QString::fromUtf8(value); }
    Text& operator=(const Text& other) { return *this = other.value_; }
    operator const QString&() const { return value_; }
    const QString& operator()() const { return value_; }
    bool isFilled() const override { return !value_.isEmpty(); }
    void blank() override;
    bool isWritten() const override { return rule_.kind != TextRule::Kind::NeverWritten; }

private:
    datafile::Value stored(bool adding) const override;
    void read(const datafile::Value& value) override;
    TextRule rule_;
    QString value_;
};

/// A whole number, such as a foreign key or a choice's index.
class Whole final : public Column {
public:
    struct Rule {
        int otherwise = 0;  ///< what a stored value that is no number reads as
        int blank = 0;
        int (*reading)(int) = nullptr;  ///< applied to what was stored
    };
    Whole(RecordClass* owner, const char* name) : Whole(owner, name, Rule()) {}
    Whole(RecordClass* owner, const char* name, Rule rule) : Column(owner, name), rule_(rule) {}
    Whole& operator=(int value) { return value_ = value, touch(), *this; }
    Whole& operator=(const Whole& other) { return *this = other.value_; }
    operator int() const { return value_; }
    int operator()() const { return value_; }
    bool isFilled() const override { return value_ != 0; }
    void blank() override { value_ = rule_.blank; }

private:
    friend class RecordClass;
    datafile::Value stored(bool) const override { return datafile::Value{qint64{value_}}; }
    void read(const datafile::Value& value) override;
    Rule rule_;
    int value_ = 0;
};

class Flag final : public Column {
public:
    using Column::Column;
    Flag& operator=(bool value) { return value_ = value, touch(), *this; }
    Flag& operator=(const Flag& other) { return *this = other.value_; }
    operator bool() const { return value_; }
    bool operator()() const { return value_; }
    bool isFilled() const override { return true; }
    void blank() override { value_ = false; }

private:
    friend class RecordClass;
    datafile::Value stored(bool) const override { return datafile::fromFlag(value_); }
    void read(const datafile::Value& value) override { value_ = datafile::toNumber(value) != 0; }
    bool value_ = false;
};

/// What a date property reads, blanks and is written as where there is no date.
enum class NoDate {
    Empty,  ///< stays without a date
    Today,
    Stamp  ///< 1/1/1940, older than any save
};

class Day final : public Column {
public:
    Day(RecordClass* owner, const char* name, NoDate rule = NoDate::Empty) : Column(owner, name), rule_(rule) {}
    Day& operator=(QDate value) { return value_ = value, touch(), *this; }
    Day& operator=(const Day& other) { return *this = other.value_; }
    operator QDate() const { return value_; }
    QDate operator()() const { return value_; }
    bool isFilled() const override { return value_.isValid(); }
    void blank() override;

private:
    friend class RecordClass;
    datafile::Value stored(bool adding) const override;
    void read(const datafile::Value& value) override;
    QDate today() const;
    NoDate rule_;
    QDate value_;
};

/// A time of day, to the minute; where there is none it reads, blanks and is written as now.
class TimeOfDay final : public Column {
public:
    using Column::Column;
    TimeOfDay& operator=(QTime value) { return value_ = toMinute(value), touch(), *this; }
    TimeOfDay& operator=(const TimeOfDay& other) { return *this = other.value_; }
    operator QTime() const { return value_; }
    QTime operator()() const { return value_; }
    bool isFilled() const override { return value_.isValid(); }
    void blank() override { value_ = now(); }

    static QTime toMinute(QTime time) { return time.isValid() ? QTime(time.hour(), time.minute()) : time; }

private:
    datafile::Value stored(bool) const override { return datafile::fromTime(value_.isValid() ? value_ : now()); }
    void read(const datafile::Value& value) override;
    QTime now() const;
    QTime value_;
};

/// The three columns that nearly every table ends with: when a row was last saved, and whether it is deleted.
struct Stamps {
    explicit Stamps(RecordClass* owner, int timeOtherwise = 1)
        : DateStamp(owner, "DateStamp", NoDate::Stamp),
          TimeStamp(owner, "TimeStamp", {.otherwise = timeOtherwise}),
          DeletedFlag(owner, "DeletedFlag") {}
    Day DateStamp;
    Whole TimeStamp;
    Flag DeletedFlag;
};
