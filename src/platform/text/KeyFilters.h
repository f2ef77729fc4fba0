#pragma once

#include <QChar>
#include <string_view>

// Which keys a box takes. Every box picks one filter; the double quote is in none of them.

/// A filter as a function: the key code when its character is allowed or is backspace, otherwise 0.
struct KeySet {
    std::string_view characters;

    constexpr int operator()(int keyCode) const {
        const bool known = keyCode > 0 && keyCode < 128 && characters.find(char(keyCode)) != characters.npos;
        return known || keyCode == backspace ? keyCode : 0;
    }

    static constexpr int backspace = 8;
};

/// A filter that can be told to let the return key through.
struct KeySetWithReturn : KeySet {
    using KeySet::operator();
    constexpr int operator()(int keyCode, bool returnPasses) const {
        return returnPasses && keyCode == carriageReturn ? keyCode : KeySet::operator()(keyCode);
    }

    static constexpr int carriageReturn = 13;
};

inline constexpr KeySet FilterNumeric{"1234567890"};
inline constexpr KeySet FilterMoney{"1234567890$."};
inline constexpr KeySet FilterFileName{"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_!()$+=?@/. "};
inline constexpr KeySet FilterTextWide{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_!()$+=*#?@/.,';: "};
inline constexpr KeySet FilterTextNoDash{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_!*()$+=?#@/.';: "};
inline constexpr KeySetWithReturn FilterTextFull{
    {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_!()$#+=?*@/.';: "}};
inline constexpr KeySet FilterTextPercent{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_!()$+=?@*#%/.';: "};
inline constexpr KeySet FilterTime{"1234567890:aApPmM "};

/// Whether a box with this filter takes the character, typed or pasted: what the filter passes and, where it passes
/// all letters, any letter or combining mark beyond ASCII ("Québec", "Peña").
inline bool admits(const KeySet& filter, QChar character) {
    if (character.unicode() < 128) return filter(character.unicode()) != 0;
    return filter('z') != 0 && (character.isLetter() || character.isMark() || character.isSurrogate());
}
