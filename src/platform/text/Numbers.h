#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// Numbers as people type them. Rounding is always to the nearest, halves away from zero, and is done on the decimal
// digits themselves: 1.125 gives 1.13, 1.005 gives 1.01.

/// An exact decimal number.
struct Decimal {
    bool negative = false;
    QByteArray whole = "0";  ///< digits without leading zeros; "0" for none
    QByteArray fraction{};   ///< digits behind the point

    /// Reads what isNumeric accepts.
    static std::optional<Decimal> parse(QStringView text);
    /// By the 15 digits that a double carries safely; nothing for infinity and not-a-number.
    static std::optional<Decimal> from(double value);
    /// With exactly this many digits behind the point. Zero has no sign.
    Decimal rounded(int places) const;
    double toDouble() const;
};

/// Whether the text counts as a number: blanks around it, one sign, "$" before or after the sign, commas among the
/// whole digits, a decimal point, an exponent, or parentheses for a negative amount. Empty text is not numeric.
bool isNumeric(QStringView text);
/// The value; nothing when the text is not numeric.
std::optional<double> toNumber(QStringView text);
/// The value rounded to a whole number; nothing when the text is not numeric or the value is out of range.
std::optional<int> toWhole(QStringView text);

/// A number in a pattern such as "0.00", "##0.000" or "$#,##0.00;($#,##0.00)": "0" is a digit that always shows, a
/// comma groups thousands, what stands around the digits is copied, and the part behind ";" is for negative numbers
/// (without one they get a "-" in front). A number that rounds to zero shows as zero. Empty for a double that is no
/// number.
QString formatNumber(const Decimal& number, const QString& pattern);
QString formatNumber(double number, const QString& pattern);
