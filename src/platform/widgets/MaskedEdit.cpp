#include "platform/widgets/MaskedEdit.h"

#include <QKeyEvent>

MaskedEdit::MaskedEdit(const QString& mask, QWidget* parent) : EntryEdit(parent), mask_(mask), blank_(mask) {
    for (qsizetype position = 0; position < mask_.size(); ++position)
        if (isPlace(position)) blank_[position] = u' ';
    setShownCharacters(static_cast<int>(mask_.size()));
    setText({});
}

bool MaskedEdit::isFull() const {
    const QString shown = text();
    if (!fits(shown)) return false;
    for (qsizetype position = 0; position < mask_.size(); ++position)
        if (isPlace(position) && shown[position] == u' ') return false;
    return true;
}

bool MaskedEdit::isPlace(qsizetype position) const { return mask_[position] == u'#' || mask_[position] == u'?'; }

bool MaskedEdit::takes(qsizetype position, QChar character) const {
    if (mask_[position] == u'#') return character >= u'0' && character <= u'9';
    return mask_[position] == u'?' && character.isLetter();
}

bool MaskedEdit::fits(const QString& text) const {
    if (text.size() != mask_.size()) return false;
    for (qsizetype position = 0; position < mask_.size(); ++position) {
        const bool good = isPlace(position) ? text[position] == u' ' || takes(position, text[position])
                                            : text[position] == mask_[position];
        if (!good) return false;
    }
    return true;
}

std::optional<QString> MaskedEdit::fitted(const QString& text) const {
    if (fits(text)) return text;
    if (const QString padded = text + blank_.mid(text.size()); fits(padded)) return padded;
    // The bare characters of the places, without what stands fixed: "5551234".
    QString built = blank_;
    qsizetype next = 0;
    for (qsizetype position = 0; position < mask_.size(); ++position) {
        if (!isPlace(position)) continue;
        if (next >= text.size() || !takes(position, text[next])) return std::nullopt;
        built[position] = text[next++];
    }
    return next == text.size() ? std::optional(built) : std::nullopt;
}

QString MaskedEdit::shownFor(const QString& text) const { return fitted(text).value_or(text); }

std::optional<qsizetype> MaskedEdit::put(QString& text, qsizetype position, QChar character, bool isTyped) const {
    const auto size = mask_.size();
    if (position < size && !isPlace(position) && mask_[position] == character) return position + 1;
    qsizetype place = position;
    while (place < size && !isPlace(place)) ++place;
    if (place < size && (takes(place, character) || (isTyped && character == u' '))) {
        text[place] = character;
        return place + 1;
    }
    for (qsizetype fixed = position; isTyped && fixed < size; ++fixed)
        if (!isPlace(fixed) && mask_[fixed] == character) return fixed + 1;
    return std::nullopt;
}

std::optional<EntryEdit::Outcome> MaskedEdit::judge(const Change& change) const {
    const auto size = static_cast<int>(mask_.size());
    if (const bool whole = change.from == 0 && change.to == change.before.size(); whole || change.inserted.size() > 1)
        if (const auto text = fitted(change.inserted); text && !change.inserted.isEmpty()) {
            const auto entered = change.inserted.size();
            const bool begun = entered < size && *text == change.inserted + blank_.mid(entered);
            return Outcome{*text, begun ? static_cast<int>(entered) : size};
        }
    QString text = change.before;
    if (!fits(text)) {
        if (change.from > 0 || change.to < text.size()) {
            const QString freely = change.result();
            if (freely.size() > std::max<qsizetype>(size, text.size())) return std::nullopt;
            const QString shown = shownFor(freely);
            return Outcome{shown, change.from + static_cast<int>(change.inserted.size())};
        }
        text = blank_;
    }
    for (int position = change.from; position < std::min(change.to, size); ++position)
        text[position] = blank_[position];

    const bool begins = change.before == blank_ && !change.inserted.isEmpty();
    qsizetype cursor = begins ? 0 : change.from;  // wherever the mouse went into an empty mask
    bool used = change.inserted.isEmpty();
    for (const QChar character : change.inserted)
        if (const auto next = put(text, cursor, character, change.inserted.size() == 1)) {
            cursor = *next;
            used = true;
        }
    if (!used) return std::nullopt;
    return Outcome{text, static_cast<int>(cursor)};
}

void MaskedEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Delete) && !hasSelectedText() && fits(text())) {
        int position = cursorPosition();
        while (position < mask_.size() && !isPlace(position)) ++position;
        setCursorPosition(position);
    }
    EntryEdit::keyPressEvent(event);
}
