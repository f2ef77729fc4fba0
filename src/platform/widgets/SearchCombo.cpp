#include "platform/widgets/SearchCombo.h"

#include <QKeyEvent>

#include "platform/widgets/FilteredEdit.h"
#include "platform/text/Texts.h"

SearchCombo::SearchCombo(const QString& accessibleName, QWidget* parent) : ListCombo(parent) {
    makeEditable();
    setAccessibleName(accessibleName);
    lineEdit()->setAccessibleName(accessibleName);
    setShownCharacters(40);
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!isCompleting()) settleOn(index);
    });
    connect(this, &QComboBox::activated, this, [this](int index) {
        settleOn(index);
        Q_EMIT picked(index);
    });
}

int SearchCombo::insertEntry(const QString& entry, const std::function<bool(const QString&, const QString&)>& less) {
    return list().insertInOrder(entry, less);
}

void SearchCombo::removeEntry(int index) {
    const bool wasShown = index == currentIndex();
    list().remove(index);
    if (wasShown) setCurrentIndex(-1);
}

void SearchCombo::typed() { typing_ = true; }

void SearchCombo::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && typing_) {
        take();
    } else if (enters || (event->key() == Qt::Key_Escape && !typing_)) {
        event->ignore();
    } else if (event->key() == Qt::Key_Escape) {
        revert();
    } else {
        ListCombo::keyPressEvent(event);
    }
}

void SearchCombo::focusInEvent(QFocusEvent* event) {
    ListCombo::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && !typing_) edit()->selectAll();
}

void SearchCombo::focusOutEvent(QFocusEvent* event) {
    ListCombo::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason && typing_) take();
}

void SearchCombo::settleOn(int index) {
    typing_ = false;
    shown_ = list().index(index);
    if (hasFocus()) edit()->selectAll();
}

void SearchCombo::take() {
    const QString text = currentText();
    const int shown = currentIndex();
    int index = shown;
    if (shown < 0 || entryAt(shown) != text)
        index = text.isEmpty() ? indexOf(text) : CompleteComboText(text, list().entries());
    if (index < 0) return revert();
    showEntry(index, entryAt(index));
    settleOn(index);
    Q_EMIT picked(index);
}

void SearchCombo::revert() {
    const int index = shown_.isValid() ? shown_.row() : -1;
    showEntry(index, entryAt(index));
    settleOn(index);
}
