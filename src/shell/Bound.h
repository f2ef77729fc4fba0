#pragma once

#include "platform/widgets/Binding.h"
#include "store/Columns.h"

// Lets a record's property stand as a form field's binding. The record outlives the form.

inline Binding textBinding(Text& text) {
    return {[&text] { return text(); }, [&text](const QString& value) { text = value; }, text.size()};
}
inline FlagBinding flagBinding(Flag& flag) {
    return {[&flag] { return flag(); }, [&flag](bool value) { flag = value; }};
}
inline DateBinding dateBinding(Day& day) {
    return {[&day] { return day(); }, [&day](QDate value) { day = value; }};
}
/// Masks of texts that are kept as the mask shows them.
inline constexpr char phoneMask[] = "(###) ###-####";
inline constexpr char zipMask[] = "#####-####";
/// A masked text of which an untouched mask is kept as nothing, and a zip without its extension without the dash.
inline Binding maskedBinding(Text& text) {
    return {[&text] { return text(); },
            [&text](const QString& shown) {
                QString kept = shown;
                while (!kept.isEmpty() && !kept.back().isLetterOrNumber()) kept.chop(1);
                text = kept;
            },
            text.size()};
}
/// A Yes/No pair kept as the place of its answer: 0 is Yes, 1 is No.
inline FlagBinding yesIsZero(Whole& choice) {
    return {[&choice] { return choice == 0; }, [&choice](bool yes) { choice = yes ? 0 : 1; }};
}
