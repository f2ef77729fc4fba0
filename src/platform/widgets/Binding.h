#pragma once

#include <QDate>
#include <QString>
#include <concepts>
#include <functional>

/// Ties a field of a form to a value kept elsewhere. `read` gives what the field shows, `write` takes what the user
/// entered. Both are called whenever the form likes, so they are cheap.
///
/// A type with a function textBinding(column), flagBinding(column) or dateBinding(column) beside it can stand wherever
/// the matching binding is asked for:
///
///     Binding textBinding(Column& column);          // next to the class Column
///     form.text("txtCity", tr("City"), record.City);  // City is a Column
struct Binding {
    std::function<QString()> read;
    std::function<void(const QString&)> write;
    int maxLength = 0;  ///< 0: without limit

    Binding(std::function<QString()> reader, std::function<void(const QString&)> writer, int length = 0)
        : read(std::move(reader)), write(std::move(writer)), maxLength(length) {}
    template <class Column>
    requires requires(Column& column) {
        { textBinding(column) } -> std::same_as<Binding>;
    }
    Binding(Column& column) : Binding(textBinding(column)) {}
};

struct FlagBinding {
    std::function<bool()> read;
    std::function<void(bool)> write;

    FlagBinding(std::function<bool()> reader, std::function<void(bool)> writer)
        : read(std::move(reader)), write(std::move(writer)) {}
    template <class Column>
    requires requires(Column& column) {
        { flagBinding(column) } -> std::same_as<FlagBinding>;
    }
    FlagBinding(Column& column) : FlagBinding(flagBinding(column)) {}
};

/// The place of an answer in its row, counted from 0.
struct IndexBinding {
    std::function<int()> read;
    std::function<void(int)> write;
};

/// A null date stands for none.
struct DateBinding {
    std::function<QDate()> read;
    std::function<void(const QDate&)> write;

    DateBinding(std::function<QDate()> reader, std::function<void(const QDate&)> writer)
        : read(std::move(reader)), write(std::move(writer)) {}
    template <class Column>
    requires requires(Column& column) {
        { dateBinding(column) } -> std::same_as<DateBinding>;
    }
    DateBinding(Column& column) : DateBinding(dateBinding(column)) {}
};
