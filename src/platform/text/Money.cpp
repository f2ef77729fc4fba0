#include "platform/text/Money.h"

#include "platform/text/Numbers.h"

std::optional<Money> Money::parse(QStringView text) {
    const auto number = Decimal::parse(text);
    if (!number) return {};
    const Decimal rounded = number->rounded(2);
    constexpr qsizetype mostWholeDigits = 13;
    if (rounded.whole.size() > mostWholeDigits) return {};
    const qint64 cents = QByteArray(rounded.whole + rounded.fraction).toLongLong();
    return Money{rounded.negative ? -cents : cents};
}

QString Money::text(const QString& pattern) const {
    const QByteArray digits = QByteArray::number(qAbs(cents)).rightJustified(3, '0');
    return formatNumber(Decimal{cents < 0, digits.chopped(2), digits.right(2)}, pattern);
}
