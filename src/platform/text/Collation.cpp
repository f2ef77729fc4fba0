#include "platform/text/Collation.h"

#include <algorithm>
#include <iterator>

#include "platform/text/Dates.h"

namespace {

bool isAscii(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 128; });
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
    if (isAscii(text)) return text;
    QString result;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (character.isMark()) continue;
        const QLatin1String letters = plainLetters(character);
        if (letters.isEmpty())
            result += character.toLower();
        else
            result += letters;
    }
    return result;
}

/// Hands out the weights of a text: its characters in lower case, and 0 for each ", " or " - " between columns.
class Weights {
public:
    explicit Weights(QStringView text) : rest_(text) {}
    bool atEnd() const { return rest_.isEmpty(); }
    char16_t next() {
        for (const QStringView separator : {QStringView(u", "), QStringView(u" - ")}) {
            if (!rest_.startsWith(separator)) continue;
            rest_ = rest_.sliced(separator.size());
            return 0;
        }
        const char16_t character = rest_.front().unicode();
        rest_ = rest_.sliced(1);
        return character >= u'A' && character <= u'Z' ? char16_t(character + (u'a' - u'A')) : character;
    }

private:
    QStringView rest_;
};

int compareWeights(QStringView left, QStringView right) {
    Weights leftWeights(left);
    Weights rightWeights(right);
    while (!leftWeights.atEnd() && !rightWeights.atEnd())
        if (const int difference = leftWeights.next() - rightWeights.next()) return difference;
    return int(rightWeights.atEnd()) - int(leftWeights.atEnd());
}

/// An entry made ready to be compared often. A copy shares the characters, so its views stay good.
struct Entry {
    explicit Entry(const QString& entry) : text(entry), letters(plain(entry)), names(letters) {
        const qsizetype separator = names.lastIndexOf(u" - ");
        if (separator < 0 || !names.sliced(separator).contains(u'/')) return;
        date = names.sliced(separator + 3);
        names = names.first(separator);
    }

    QString text;
    QString letters;
    QStringView names;   ///< in letters: all but the date at its end
    QStringView date{};  ///< in letters
};

bool less(const Entry& left, const Entry& right) {
    if (const int difference = compareWeights(left.names, right.names)) return difference < 0;
    if (left.date != right.date) {
        const auto leftDate = parseDate(left.date.toString());
        const auto rightDate = parseDate(right.date.toString());
        if (leftDate != rightDate) return leftDate < rightDate;
    }
    return left.text.compare(right.text, Qt::CaseInsensitive) < 0;
}

}  // namespace

bool listLess(const QString& left, const QString& right) { return less(Entry(left), Entry(right)); }

void placeAccented(std::vector<QString>& entries) {
    const auto end = std::stable_partition(entries.begin(), entries.end(), isAscii);
    std::vector<Entry> accented(end, entries.end());
    if (accented.empty()) return;
    std::stable_sort(accented.begin(), accented.end(), less);

    std::vector<QString> placed;
    placed.reserve(entries.size());
    auto position = entries.begin();
    for (const Entry& entry : accented) {
        const auto place = std::upper_bound(position, end, entry, [](const Entry& moving, const QString& standing) {
            return less(moving, Entry(standing));
        });
        placed.insert(placed.end(), std::move_iterator(position), std::move_iterator(place));
        placed.push_back(entry.text);
        position = place;
    }
    placed.insert(placed.end(), std::move_iterator(position), std::move_iterator(end));
    entries = std::move(placed);
}
