#pragma once

#include <QComboBox>

#include "platform/widgets/EntryListModel.h"

class FilteredEdit;

/// A combo box over a light list of texts that never measures or copies its entries. Where it can be typed in, the
/// first entry that begins with the typed text, whatever its case, is shown with the rest of it selected. The mouse
/// wheel does not change it in passing.
class ListCombo : public QComboBox {
    Q_OBJECT

public:
    explicit ListCombo(QWidget* parent = nullptr);

    /// Puts another list in. Nothing is selected afterwards.
    void setEntries(std::vector<QString>&& entries);
    int entryCount() const { return list_->size(); }
    /// Empty outside the list.
    QString entryAt(int index) const { return list_->entryAt(index); }
    /// -1 where there is none. The exact text wins over one that differs in case.
    int indexOf(const QString& text) const { return list_->indexOf(text); }
    /// How many characters the preferred width has room for.
    void setShownCharacters(int count);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Makes the box one that can be typed in.
    void makeEditable();
    FilteredEdit* edit() const;
    EntryListModel& list() { return *list_; }
    /// Shows an entry, or with -1 none and the text itself.
    void showEntry(int index, const QString& text);
    /// Whether the entry changes only because the user's text is being completed.
    bool isCompleting() const { return completing_; }
    /// The user typed; what is displayed now is the completed text.
    virtual void typed() {}

    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void completeTyped(const QString& text);

    EntryListModel* list_;
    int shownCharacters_ = 24;
    bool deleting_ = false;
    bool completing_ = false;
};
