#include "platform/widgets/ListCombo.h"

#include <QKeyEvent>
#include <QListView>
#include <QScopedValueRollback>

#include "platform/widgets/FilteredEdit.h"
#include "platform/text/Texts.h"

namespace {

/// The box inside a combo. The combo fills it by itself when an entry is chosen: an entry needs no judging.
class ComboEdit final : public FilteredEdit {
public:
    explicit ComboEdit(QComboBox& combo) : FilteredEdit(&combo), combo_(combo) {}

protected:
    std::optional<Outcome> judge(const Change& change) const override {
        const QString whole = change.result();
        if (combo_.currentIndex() >= 0 && whole == combo_.itemText(combo_.currentIndex()))
            return Outcome{whole, change.from + static_cast<int>(change.inserted.size())};
        return FilteredEdit::judge(change);
    }

private:
    QComboBox& combo_;
};

}  // namespace

ListCombo::ListCombo(QWidget* parent) : QComboBox(parent), list_(new EntryListModel(this)) {
    setModel(list_);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(16);
    if (auto* popup = qobject_cast<QListView*>(view())) popup->setUniformItemSizes(true);
}

void ListCombo::setEntries(std::vector<QString>&& entries) {
    list_->setEntries(std::move(entries));
    setCurrentIndex(-1);
}

void ListCombo::setShownCharacters(int count) {
    shownCharacters_ = count;
    updateGeometry();
}

QSize ListCombo::sizeHint() const {
    QSize hint = QComboBox::minimumSizeHint();
    hint.rwidth() += fontMetrics().horizontalAdvance(u'0') * shownCharacters_;
    return hint;
}

QSize ListCombo::minimumSizeHint() const {
    constexpr int fewestShown = 10;
    QSize hint = QComboBox::minimumSizeHint();
    hint.rwidth() += fontMetrics().horizontalAdvance(u'0') * std::min(shownCharacters_, fewestShown);
    return hint;
}

void ListCombo::makeEditable() {
    setLineEdit(new ComboEdit(*this));
    setCompleter(nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, &ListCombo::completeTyped);
}

FilteredEdit* ListCombo::edit() const { return static_cast<FilteredEdit*>(lineEdit()); }

void ListCombo::showEntry(int index, const QString& text) {
    if (currentIndex() != index) setCurrentIndex(index);
    if (edit() && edit()->text() != text) edit()->setText(text);
}

void ListCombo::completeTyped(const QString& text) {
    const int cursor = edit()->cursorPosition();
    const bool atEnd = cursor == text.size();
    const bool completes = !deleting_ && atEnd;
    const int index = completes ? CompleteComboText(text, list_->entries()) : -1;
    {
        const QScopedValueRollback completing(completing_, true);
        showEntry(index, index < 0 ? text : list_->entryAt(index));
    }
    if (index < 0)
        edit()->setCursorPosition(cursor);
    else
        edit()->setSelection(cursor, static_cast<int>(edit()->text().size()) - cursor);
    typed();
}

void ListCombo::keyPressEvent(QKeyEvent* event) {
    const bool deletes =
        event->key() == Qt::Key_Backspace || event->matches(QKeySequence::Delete) || event->matches(QKeySequence::Cut);
    const QScopedValueRollback deleting(deleting_, deletes);
    QComboBox::keyPressEvent(event);
}

void ListCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }
