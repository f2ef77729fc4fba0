#include "platform/text/Texts.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

bool isDigit(QChar character) { return character >= u'0' && character <= u'9'; }

struct YearEntry {
    Q_DECLARE_TR_FUNCTIONS(YearEntry)
};

}  // namespace

QString FormatZipText(const QString& zip) {
    if (zip.size() < 6 || zip.size() > 10) return zip;
    QString text = zip;
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return !isDigit(character); }, u'0');
    text[5] = u'-';
    return text;
}

std::optional<EntryFault> checkYearEntry(const QString& year) {
    const QString text = year.trimmed();
    if (text.isEmpty() || !std::all_of(text.cbegin(), text.cend(), isDigit))
        return EntryFault{YearEntry::tr("Invalid Year Format"),
                          YearEntry::tr("You must enter a four digit\nin this field.")};
    constexpr int first = 1980;
    constexpr int last = 2050;
    const int number = text.toInt();  // 0 when it is too long for a number
    if (number < first || number > last)
        return EntryFault{YearEntry::tr("Invalid Year Entered"),
                          YearEntry::tr("The year you entered is not valid.\nThe valid year range is 1980 to 2050.")};
    return {};
}

int CompleteComboText(const QString& typed, std::span<const QString> entries) {
    if (typed.isEmpty()) return -1;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const QString& entry) { return entry.startsWith(typed, Qt::CaseInsensitive); });
    return found == entries.end() ? -1 : int(found - entries.begin());
}
