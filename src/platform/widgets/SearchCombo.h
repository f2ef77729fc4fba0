#pragma once

#include <QPersistentModelIndex>

#include "platform/widgets/ListCombo.h"

/// The list in which a user looks up a record: type the beginning of an entry, then Enter or leave the box to take it;
/// or choose with the arrow keys or from the opened list. Escape, or leaving with a text that no entry begins with,
/// returns to the entry shown before; an emptied box takes the empty entry, if the list has one. While the box has the
/// focus an entry is selected as a whole: typing begins another search.
class SearchCombo final : public ListCombo {
    Q_OBJECT

public:
    explicit SearchCombo(const QString& accessibleName, QWidget* parent = nullptr);

    /// Inserts in the order of `less`, the order the list is in, and returns where. The selected entry stays selected.
    int insertEntry(const QString& entry, const std::function<bool(const QString&, const QString&)>& less);
    /// Removes one entry. When it was the selected one, nothing is selected afterwards.
    void removeEntry(int index);

Q_SIGNALS:
    /// The user, not the program, picked this entry.
    void picked(int index);

protected:
    void typed() override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void settleOn(int index);
    void take();
    void revert();

    QPersistentModelIndex shown_;  ///< the entry to return to while the user types
    bool typing_ = false;
};
