#include "platform/text/Collation.h"

#include <algorithm>
#include <iterator>

#include "platform/text/Dates.h"

namespace {

bool isAscii(QStringView text) {
    char16_t all = 0;
    for (const QChar character : text) all |= character.unicode();
    return all < 128;
}

/// Letters that are no plain letter with a mark, and the plain letters they stand beside.
QLatin1String plainLetters(QChar character) {
    switch (character.unicode()) {
        case u'ß': return QLatin1String("ss");
        case u'æ':
        case u'Æ': return QLatin1String("ae");
        case u'œ':
        case u'Œ': return QLatin1String("oe");
        case u'ø':
        case u'Ø': return QLatin1String("o");
        case u'ł':
        case u'Ł': return QLatin1String("l");
        case u'đ':
        case u'Đ':
        case u'ð':
        case u'Ð': return QLatin1String("d");
        case u'þ':
        case u'Þ': return QLatin1String("th");
        case u'ı': return QLatin1String("i");
        case u'’': return QLatin1String("'");
        default: return {};
    }
}

/// The text with plain letters for accented ones.
QString plain(const QString& text) {
    const auto isPlain = [](QChar character) { return character.unicode() < 128; };
    QString result;
    result.reserve(text.size());
    for (auto at = text.begin(); at != text.end();) {
        const auto accented = std::find_if_not(at, text.end(), isPlain);
        result += QStringView(at, accented);
        at = std::find_if(accented, text.end(), isPlain);
        if (accented == at) continue;
        for (const QChar character : QString(accented, at - accented).normalized(QString::NormalizationForm_KD)) {
            if (character.isMark()) continue;
            const QLatin1String letters = plainLetters(character);
            if (letters.isEmpty())
                result += character.toLower();
            else
                result += letters;
        }
    }
    return result;
}

/// Hands out the weights of a text: its characters in lower case, and 0 for each ", " or " - " between columns.
class Weights {
public:
    explicit Weights(QStringView text) : rest_(text) {}
    bool atEnd() const { return rest_.isEmpty(); }
    char16_t next() {
        const char16_t character = rest_.front().unicode();
        const qsizetype separator = character == u',' && at(1) == u' '                    ? 2
                                    : character == u' ' && at(1) == u'-' && at(2) == u' ' ? 3
                                                                                          : 0;
        rest_ = rest_.sliced(std::max<qsizetype>(separator, 1));
        if (separator > 0) return 0;
        return character >= u'A' && character <= u'Z' ? char16_t(character + (u'a' - u'A')) : character;
    }

private:
    char16_t at(qsizetype index) const { return index < rest_.size() ? rest_[index].unicode() : u'\0'; }

    QStringView rest_;
};

int compareWeights(QStringView left, QStringView right) {
    Weights leftWeights(left);
    Weights rightWeights(right);
    while (!leftWeights.atEnd() && !rightWeights.atEnd())
        if (const int difference = leftWeights.next() - rightWeights.next()) return difference;
    return int(rightWeights.atEnd()) - int(leftWeights.atEnd());
}

/// What an entry is compared by. It sees into texts that it does not own.
struct Key {
    /// `plainText` is the text with plain letters.
    Key(QStringView entry, QStringView plainText) : text(entry), names(plainText) {
        constexpr qsizetype longestDate = 10;
        const qsizetype first = std::max<qsizetype>(names.size() - longestDate, 3);
        for (qsizetype begin = names.size() - 1; begin >= first; --begin) {
            if (names[begin - 1] != u' ' || names[begin - 2] != u'-' || names[begin - 3] != u' ') continue;
            if (!names.sliced(begin).contains(u'/')) return;
            date = names.sliced(begin);
            names = names.first(begin - 3);
            return;
        }
    }
    explicit Key(QStringView plainText) : Key(plainText, plainText) {}

    QStringView text;
    QStringView names;  ///< all but the date at its end
    QStringView date{};
};

bool less(const Key& left, const Key& right) {
    if (const int difference = compareWeights(left.names, right.names)) return difference < 0;
    if (left.date != right.date) {
        const auto leftDate = parseDate(left.date.toString());
        const auto rightDate = parseDate(right.date.toString());
        if (leftDate != rightDate) return leftDate < rightDate;
    }
    return left.text.compare(right.text, Qt::CaseInsensitive) < 0;
}

/// An entry with its key. When it moves, the characters stay where they are.
struct Entry {
    explicit Entry(const QString& entry) : text(entry), letters(plain(entry)), key(text, letters) {}

    QString text;
    QString letters;
    Key key;
};

/// Behind all that do not stand behind the key. It is looked for from the end on, in ever longer steps.
std::vector<QString>::iterator placeOf(const Key& key, std::vector<QString>::iterator begin,
                                       std::vector<QString>::iterator end) {
    auto low = end;
    for (std::ptrdiff_t step = 1; low != begin; step *= 2) {
        low -= std::min(step, low - begin);
        if (!less(key, Key(*low))) break;
        end = low;
    }
    return std::upper_bound(low, end, key,
                            [](const Key& moving, const QString& standing) { return less(moving, Key(standing)); });
}

}  // namespace

bool listLess(const QString& left, const QString& right) { return less(Entry(left).key, Entry(right).key); }

void placeAccented(std::vector<QString>& entries) {
    std::vector<Entry> accented;
    auto end = std::remove_if(entries.begin(), entries.end(), [&accented](const QString& entry) {
        if (isAscii(entry)) return false;
        accented.emplace_back(entry);
        return true;
    });
    std::stable_sort(accented.begin(), accented.end(),
                     [](const Entry& left, const Entry& right) { return less(left.key, right.key); });

    // From the last to the first: what stands behind an entry's place moves to the back, and the entry before it.
    auto gap = entries.end();
    for (auto entry = accented.rbegin(); entry != accented.rend(); ++entry) {
        const auto place = placeOf(entry->key, entries.begin(), end);
        gap = std::move_backward(place, end, gap);
        *--gap = std::move(entry->text);
        end = place;
    }
}

int compareNames(std::string_view left, std::string_view right) {
    const auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + (u'a' - u'A')) : c; };
    const size_t shorter = std::min(left.size(), right.size());
    for (size_t at = 0;; ++at) {
        if (at == shorter) return left.size() < right.size() ? -1 : int(left.size() > right.size());
        const auto leftByte = static_cast<unsigned char>(left[at]);
        const auto rightByte = static_cast<unsigned char>(right[at]);
        if ((leftByte | rightByte) >= 0x80) break;
        if (const int difference = lower(leftByte) - lower(rightByte)) return difference;
    }
    const auto letters = [](std::string_view text) {
        return plain(QString::fromUtf8(text.data(), qsizetype(text.size())));
    };
    const QString leftPlain = letters(left);
    const QString rightPlain = letters(right);
    const auto [leftAt, rightAt] =
        std::mismatch(leftPlain.begin(), leftPlain.end(), rightPlain.begin(), rightPlain.end(),
                      [&](QChar a, QChar b) { return lower(a.unicode()) == lower(b.unicode()); });
    if (leftAt == leftPlain.end() || rightAt == rightPlain.end())
        return int(rightAt == rightPlain.end()) - int(leftAt == leftPlain.end());
    return lower(leftAt->unicode()) - lower(rightAt->unicode());
}
