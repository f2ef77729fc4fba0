#include "platform/widgets/EntryEdit.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QValidator>

/// Sees each change after the line edit made it and puts the judged text in its place.
class EntryEdit::Judge final : public QValidator {
public:
    explicit Judge(EntryEdit& edit) : QValidator(&edit), edit_(edit) {}

    State validate(QString& text, int& cursor) const override {
        QString& accepted = edit_.accepted_;
        if (edit_.trusted_) accepted = text;
        if (text == accepted) return Acceptable;
        const auto outcome = edit_.judge(changeTo(text, cursor));
        if (!outcome) return Invalid;
        text = accepted = outcome->text;
        cursor = outcome->cursor;
        return Acceptable;
    }

private:
    /// After a user's change the cursor stands behind what was inserted, and all that follows it is untouched.
    Change changeTo(const QString& text, int cursor) const {
        const QString& before = edit_.accepted_;
        const auto untouched = std::min(before.size(), text.size() - cursor);
        const auto to = before.size() - untouched;
        qsizetype from = 0;
        while (from < to && from < cursor && before[from] == text[from]) ++from;
        return {before, static_cast<int>(from), static_cast<int>(to), text.mid(from, text.size() - untouched - from)};
    }

    EntryEdit& edit_;
};

EntryEdit::EntryEdit(QWidget* parent) : QLineEdit(parent) {
    setValidator(new Judge(*this));
    connect(this, &QLineEdit::textEdited, this, &EntryEdit::moveOnWhenFull);
}

void EntryEdit::setText(const QString& text) {
    const QScopedValueRollback trust(trusted_, true);
    QLineEdit::setText(shownFor(text));
}

void EntryEdit::setShownCharacters(int count) {
    shownCharacters_ = count;
    updateGeometry();
}

QSize EntryEdit::sizeHint() const {
    constexpr int charactersOfTheStyle = 17;
    QSize hint = QLineEdit::sizeHint();
    if (shownCharacters_ > 0) {
        const QFontMetrics metrics = fontMetrics();
        const int frame = hint.width() - metrics.horizontalAdvance(u'x') * charactersOfTheStyle;
        hint.setWidth(frame + metrics.horizontalAdvance(u'0') * (shownCharacters_ + 1));
    }
    return hint;
}

QSize EntryEdit::minimumSizeHint() const {
    constexpr int fewestShown = 8;
    const QSize hint = sizeHint();
    const int fewest = QLineEdit::minimumSizeHint().width() + fontMetrics().horizontalAdvance(u'0') * fewestShown;
    return {std::min(hint.width(), fewest), hint.height()};
}

void EntryEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    switch (event->reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason: break;
        case Qt::MouseFocusReason: selectOnRelease_ = true; break;
        default: selectAll();
    }
}

void EntryEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (selectOnRelease_ && !hasSelectedText()) selectAll();
    selectOnRelease_ = false;
}

void EntryEdit::keyPressEvent(QKeyEvent* event) {
    // What undo brings back was in the box before.
    const bool restores = event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo);
    const QScopedValueRollback trust(trusted_, restores);
    QLineEdit::keyPressEvent(event);
}

void EntryEdit::moveOnWhenFull() {
    if (movesOnWhenFull_ && isFull() && cursorPosition() == text().size()) focusNextChild();
}
