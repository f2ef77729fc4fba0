#include "platform/widgets/ChoiceBox.h"

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
    const bool clears = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (!clears || options_ & FreeText) return ListCombo::keyPressEvent(event);
    if (text().isEmpty()) return;
    setText({});
    Q_EMIT edited({});
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
