#pragma once

#include "platform/widgets/EntryEdit.h"
#include "platform/widgets/KeyFilter.h"

/// A box that takes only the characters of its filter and only up to its length. A stored text that is longer, or
/// holds other characters, is shown whole and keeps them until its user takes them out.
class FilteredEdit : public EntryEdit {
    Q_OBJECT

public:
    explicit FilteredEdit(QWidget* parent = nullptr) : EntryEdit(parent) {}

    void setKeyFilter(KeyFilter filter) { filter_ = std::move(filter); }
    /// 0 is without limit. Hides QLineEdit's, which would cut a pasted text before it is filtered.
    void setMaxLength(int length) { maxLength_ = length; }
    int maxLength() const { return maxLength_; }

protected:
    std::optional<Outcome> judge(const Change& change) const override;
    bool isFull() const override { return maxLength_ > 0 && text().size() >= maxLength_; }

private:
    KeyFilter filter_;
    int maxLength_ = 0;
};
