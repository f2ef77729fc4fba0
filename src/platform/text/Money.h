#pragma once

#include <QString>
#include <compare>
#include <optional>

/// An amount of money in whole cents.
struct Money {
    qint64 cents = 0;

    /// The amount in a text as people type it, rounded to whole cents. Nothing when the text is not numeric, which
    /// is not the same as zero, or beyond a million million dollars.
    static std::optional<Money> parse(QStringView text);
    /// As parse, but what is not an amount counts as none.
    static Money orZero(QStringView text) { return parse(text).value_or(Money{}); }
    /// In a pattern of formatNumber, such as "0.00" or "$0.00"; by itself as in boxes and on reports.
    QString text(const QString& pattern = QStringLiteral("$#,##0.00;($#,##0.00)")) const;

    Money& operator+=(Money other) { return cents += other.cents, *this; }
    Money& operator-=(Money other) { return cents -= other.cents, *this; }
    friend Money operator+(Money left, Money right) { return left += right; }
    friend Money operator-(Money left, Money right) { return left -= right; }
    friend auto operator<=>(Money, Money) = default;
};
