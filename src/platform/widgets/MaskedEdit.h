#pragma once

#include "platform/widgets/EntryEdit.h"

/// A box with fixed places, such as a phone number's "###-####". In a mask '#' is the place of a digit and '?' that of
/// a letter; anything else stands as it is. text() is always what the box displays, so the untouched phone mask reads
/// as three blanks, a dash and four blanks.
///
/// Typing overwrites in place and skips what stands fixed; deleting blanks a place. A stored text that does not fit
/// the mask is shown as it is and edited freely, until it fits or is replaced as a whole.
class MaskedEdit final : public EntryEdit {
    Q_OBJECT

public:
    explicit MaskedEdit(const QString& mask, QWidget* parent = nullptr);

    const QString& mask() const { return mask_; }
    /// What the box reads while nothing was entered.
    const QString& blankText() const { return blank_; }
    bool isBlank() const { return text() == blank_; }
    /// Whether every place holds a character.
    bool isFull() const override;

protected:
    std::optional<Outcome> judge(const Change& change) const override;
    QString shownFor(const QString& text) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isPlace(qsizetype position) const;
    bool takes(qsizetype position, QChar character) const;
    bool fits(const QString& text) const;
    /// The text as the mask displays it, where nothing of it would get lost.
    std::optional<QString> fitted(const QString& text) const;
    /// Puts a character where it belongs when the cursor stands at `position`, and gives the cursor's next position;
    /// nothing when the mask has no use for it. A typed character can also blank a place or jump to what stands fixed.
    std::optional<qsizetype> put(QString& text, qsizetype position, QChar character, bool isTyped) const;

    QString mask_;
    QString blank_;
};
