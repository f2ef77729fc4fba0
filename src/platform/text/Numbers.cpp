#include "platform/text/Numbers.h"

#include <algorithm>
#include <limits>

namespace {

bool isDigit(QChar character) { return character >= u'0' && character <= u'9'; }

/// Reads along a text.
class Reader {
public:
    explicit Reader(QStringView text) : text_(text) {}
    bool atEnd() const { return position_ == text_.size(); }
    void skipBlanks() {
        while (!atEnd() && text_[position_].isSpace()) ++position_;
    }
    /// Takes the next character if it is one of these; a null character otherwise.
    QChar take(QStringView any) { return !atEnd() && any.contains(text_[position_]) ? text_[position_++] : QChar(); }
    QByteArray takeDigits(bool commas) {
        QByteArray digits;
        for (; !atEnd(); ++position_) {
            if (isDigit(text_[position_]))
                digits.append(char(text_[position_].unicode()));
            else if (!commas || digits.isEmpty() || text_[position_] != u',')
                break;
        }
        return digits;
    }

private:
    QStringView text_;
    qsizetype position_ = 0;
};

constexpr int largestExponent = std::numeric_limits<double>::max_exponent10;

/// Digits before the point, moved by an exponent. Nothing when the number is beyond what a double can hold.
std::optional<Decimal> placePoint(bool negative, QByteArray digits, qsizetype point) {
    const auto leading = std::find_if(digits.cbegin(), digits.cend(), [](char digit) { return digit != '0'; });
    const qsizetype zeros = leading - digits.cbegin();
    digits.remove(0, zeros);
    point -= zeros;
    if (digits.isEmpty() || point < -largestExponent) return Decimal{};
    if (point > largestExponent + 1) return {};
    if (point < 0) digits.prepend(QByteArray(-point, '0'));
    if (point > digits.size()) digits.append(QByteArray(point - digits.size(), '0'));
    point = std::max<qsizetype>(point, 0);
    return Decimal{negative, point == 0 ? QByteArray("0") : digits.left(point), digits.mid(point)};
}

}  // namespace

std::optional<Decimal> Decimal::parse(QStringView text) {
    text = text.trimmed();
    const bool parentheses = text.size() > 2 && text.front() == u'(' && text.back() == u')';
    if (parentheses) text = text.sliced(1, text.size() - 2);

    Reader reader(text);
    reader.skipBlanks();
    QChar sign = reader.take(u"+-");
    reader.skipBlanks();
    if (!reader.take(u"$").isNull()) {
        reader.skipBlanks();
        if (sign.isNull()) sign = reader.take(u"+-");
        reader.skipBlanks();
    }
    if (parentheses && !sign.isNull()) return {};

    const QByteArray whole = reader.takeDigits(true);
    const QByteArray fraction = reader.take(u".").isNull() ? QByteArray() : reader.takeDigits(false);
    if (whole.isEmpty() && fraction.isEmpty()) return {};

    int exponent = 0;
    if (!reader.take(u"eE").isNull()) {
        const bool down = reader.take(u"+-") == u'-';
        const QByteArray digits = reader.takeDigits(false);
        if (digits.isEmpty()) return {};
        bool fits = false;
        exponent = digits.toInt(&fits);
        if (!fits || exponent > 9999) exponent = 9999;
        if (down) exponent = -exponent;
    }
    reader.skipBlanks();
    if (!reader.atEnd()) return {};
    return placePoint(parentheses || sign == u'-', whole + fraction, whole.size() + exponent);
}

std::optional<Decimal> Decimal::from(double value) {
    return parse(QString::number(value, 'g', std::numeric_limits<double>::digits10));
}

Decimal Decimal::rounded(int places) const {
    QByteArray digits = whole + fraction.leftJustified(places, '0', true);
    if (places < fraction.size() && fraction[places] >= '5') {
        qsizetype position = digits.size() - 1;
        while (position >= 0 && digits[position] == '9') digits[position--] = '0';
        if (position >= 0)
            ++digits[position];
        else
            digits.prepend('1');
    }
    const bool zero = std::all_of(digits.cbegin(), digits.cend(), [](char digit) { return digit == '0'; });
    const qsizetype point = digits.size() - places;
    return {negative && !zero, digits.left(point), digits.mid(point)};
}

double Decimal::toDouble() const {
    const double size = QByteArray(whole + '.' + fraction).toDouble();
    return negative ? -size : size;
}

bool isNumeric(QStringView text) { return Decimal::parse(text).has_value(); }

std::optional<double> toNumber(QStringView text) {
    const auto number = Decimal::parse(text);
    return number ? std::optional(number->toDouble()) : std::nullopt;
}

std::optional<int> toWhole(QStringView text) {
    const auto number = Decimal::parse(text);
    if (!number) return {};
    const double value = number->rounded(0).toDouble();
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) return {};
    return int(value);
}

QString formatNumber(const Decimal& number, const QString& pattern) {
    const QString forAll = pattern.section(u';', 0, 0);
    const QString forNegative = pattern.section(u';', 1, 1);
    const auto isPlace = [](QChar character) { return QStringView(u"#0,.").contains(character); };
    const auto placesOf = [&](const QString& part) {
        const auto point = part.indexOf(u'.');
        return point < 0 ? 0 : int(std::count_if(part.cbegin() + point + 1, part.cend(), isPlace));
    };
    const Decimal shown = number.rounded(placesOf(forAll));
    const bool ownPart = shown.negative && !forNegative.isEmpty();
    const QString& part = ownPart ? forNegative : forAll;

    const auto begin = std::find_if(part.cbegin(), part.cend(), isPlace);
    const auto end = std::find_if_not(begin, part.cend(), isPlace);
    const QString places(begin, end - begin);
    const QString wholePlaces = places.section(u'.', 0, 0);

    QString digits = QString::fromLatin1(shown.whole == "0" ? QByteArray() : shown.whole);
    digits = digits.rightJustified(wholePlaces.count(u'0'), u'0');
    if (wholePlaces.contains(u','))
        for (qsizetype position = digits.size() - 3; position > 0; position -= 3) digits.insert(position, u',');
    if (!shown.fraction.isEmpty()) digits += u'.' + QString::fromLatin1(shown.fraction);

    const QString sign = shown.negative && !ownPart ? QStringLiteral("-") : QString();
    return sign + QString(part.cbegin(), begin - part.cbegin()) + digits + QString(end, part.cend() - end);
}

QString formatNumber(double number, const QString& pattern) {
    const auto decimal = Decimal::from(number);
    return decimal ? formatNumber(*decimal, pattern) : QString();
}
