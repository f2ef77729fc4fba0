#pragma once

#include <QChar>
#include <string_view>

// Which keys a box takes. Every box picks one filter; the double quote is in none of them.

/// A filter as a function: the key code when its character is allowed or is backspace, otherwise 0.
struct KeyFilter {
    std::string_view characters;

    constexpr int operator()(int keyCode) const {
        const bool known = keyCode > 0 && keyCode < 128 && characters.find(char(keyCode)) != characters.npos;
        return known || keyCode == backspace ? keyCode : 0;
    }

    static constexpr int backspace = 8;
};

/// A filter that can be told to let the return key through.
struct KeyFilterWithReturn : KeyFilter {
    using KeyFilter::operator();
    constexpr int operator()(int keyCode, bool returnPasses) const {
        return returnPasses && keyCode == carriageReturn ? keyCode : KeyFilter::operator()(keyCode);
    }

    static constexpr int carriageReturn = 13;
};

inline constexpr KeyFilter FilterNumeric{"1234567890"};
inline constexpr KeyFilter FilterMoney{"1234567890$."};
inline constexpr KeyFilter FilterFileName{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_!()$+=?@/. "};
inline constexpr KeyFilter FilterTextWide{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_!()$+=*#?@/.,';: "};
inline constexpr KeyFilter FilterTextNoDash{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_!*()$+=?#@/.';: "};
inline constexpr KeyFilterWithReturn FilterTextFull{
    {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_!()$#+=?*@/.';: "}};
inline constexpr KeyFilter FilterTextPercent{
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_!()$+=?@*#%/.';: "};
inline constexpr KeyFilter FilterTime{"1234567890:aApPmM "};

/// Whether a box with this filter takes the character, typed or pasted: what the filter passes and, where it passes
/// all letters, any letter or combining mark beyond ASCII ("Québec", "Peña").
inline bool admits(const KeyFilter& filter, QChar character) {
    if (character.unicode() < 128) return filter(character.unicode()) != 0;
    return filter('z') != 0 && (character.isLetter() || character.isMark() || character.isSurrogate());
}
