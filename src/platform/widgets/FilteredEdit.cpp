#include "platform/widgets/FilteredEdit.h"

#include <limits>

std::optional<EntryEdit::Outcome> FilteredEdit::judge(const Change& change) const {
    const auto kept = change.before.size() - (change.to - change.from);
    const int room = maxLength_ > 0 ? maxLength_ - static_cast<int>(kept) : std::numeric_limits<int>::max();
    const QString taken = admittedPart(change.inserted, filter_, room, LineBreaks::AsBlanks);
    if (taken.isEmpty() && !change.inserted.isEmpty()) return std::nullopt;
    const Change made{change.before, change.from, change.to, taken};
    return Outcome{made.result(), change.from + static_cast<int>(taken.size())};
}
