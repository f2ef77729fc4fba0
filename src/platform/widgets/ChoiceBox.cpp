#include "platform/widgets/ChoiceBox.h"

#include <QApplication>
#include <QKeyEvent>

#include "platform/widgets/FilteredEdit.h"

ChoiceBox::ChoiceBox(Options options, QWidget* parent) : ListCombo(parent), options_(options) {
    if (options_ & FreeText) makeEditable();
    connect(this, &QComboBox::activated, this, [this] { Q_EMIT edited(text()); });
}

void ChoiceBox::setEntries(const QStringList& entries) {
    const QString shown = text();
    std::vector<QString> all;
    all.reserve(static_cast<size_t>(entries.size()) + 1);
    if (options_ & EmptyFirst) all.emplace_back();
    all.insert(all.end(), entries.begin(), entries.end());
    strangerIndex_ = -1;
    ListCombo::setEntries(std::move(all));
    setText(shown);
}

void ChoiceBox::setText(const QString& text) {
    if (strangerIndex_ >= 0) list().remove(std::exchange(strangerIndex_, -1));
    int index = indexOf(text);
    if (index >= 0 && entryAt(index) != text) index = -1;
    if (index < 0 && !text.isEmpty() && !(options_ & FreeText)) {
        index = strangerIndex_ = entryCount();
        list().append(text);
    }
    showEntry(index, text);
}

void ChoiceBox::setLimits(KeyFilter filter, int maxLength) {
    if (!edit()) return;
    edit()->setKeyFilter(std::move(filter));
    edit()->setMaxLength(maxLength);
}

void ChoiceBox::typed() { Q_EMIT edited(text()); }

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    if (options_ & FreeText) return ListCombo::keyPressEvent(event);
    if (event->key() != Qt::Key_Backspace && event->key() != Qt::Key_Delete) return searchKey(event);
    if (text().isEmpty()) return;
    setText({});
    Q_EMIT edited({});
}

/// A blank within an entry's name that is being typed belongs to the name; else it opens the list.
void ChoiceBox::searchKey(QKeyEvent* event) {
    const bool typing = lastTyped_.isValid() && !lastTyped_.hasExpired(QApplication::keyboardInputInterval());
    const bool blank = event->key() == Qt::Key_Space;
    if (!event->text().isEmpty() && (typing || !blank)) lastTyped_.start();
    if (!blank || !typing) return ListCombo::keyPressEvent(event);
    QKeyEvent letter(event->type(), Qt::Key_unknown, event->modifiers(), event->text());
    ListCombo::keyPressEvent(&letter);
}

void ChoiceBox::focusOutEvent(QFocusEvent* event) {
    ListCombo::focusOutEvent(event);
    if (!(options_ & UpperCase) || event->reason() == Qt::PopupFocusReason) return;
    const QString before = text();
    if (const QString capitals = before.toUpper(); capitals != before) {
        setText(capitals);
        Q_EMIT edited(capitals);
    }
}
