#pragma once

#include <QElapsedTimer>
#include <QStringList>

#include "platform/widgets/KeyFilter.h"
#include "platform/widgets/ListCombo.h"

/// A field whose value comes from a list. A value that the list does not hold is shown all the same.
class ChoiceBox final : public ListCombo {
    Q_OBJECT

public:
    enum Option {
        ListOnly = 0,    ///< only an entry can be chosen; Backspace and Delete clear the choice
        FreeText = 1,    ///< another text can be typed
        EmptyFirst = 2,  ///< the list begins with an empty entry
        UpperCase = 4    ///< a typed text turns into capitals when the box is left
    };
    Q_DECLARE_FLAGS(Options, Option)

    explicit ChoiceBox(Options options = ListOnly, QWidget* parent = nullptr);

    /// Puts another list in and keeps the value.
    void setEntries(const QStringList& entries);
    /// Shows a value; one that no entry equals joins a ListOnly list at its end while it is shown.
    void setText(const QString& text);
    QString text() const { return currentText(); }
    /// For a box that can be typed in; no effect on another.
    void setLimits(KeyFilter filter, int maxLength);

Q_SIGNALS:
    /// The user changed the value.
    void edited(const QString& text);

protected:
    void typed() override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void searchKey(QKeyEvent* event);

    Options options_;
    QElapsedTimer lastTyped_;  ///< a letter of an entry's name
    int strangerIndex_ = -1;   ///< of the shown value that is none of the list's own
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ChoiceBox::Options)
