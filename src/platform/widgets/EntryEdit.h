#pragma once

#include <QLineEdit>
#include <optional>

/// A one-line box that judges every change its user makes, on whatever way it comes: typed, composed, pasted,
/// dropped or cut. What the program shows with setText() is not judged, so a stored text is never altered by being
/// shown. Entering the box selects its whole text.
class EntryEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryEdit(QWidget* parent = nullptr);

    /// Shows a stored text as it stands. Hides QLineEdit's, which would judge it like a pasted one.
    void setText(const QString& text);
    /// Whether a change that fills the box moves the focus on to the next one.
    void setMovesOnWhenFull(bool movesOn) { movesOnWhenFull_ = movesOn; }
    /// How many characters the preferred width has room for; 0 leaves the style's own width.
    void setShownCharacters(int count);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// The characters [from, to) of `before` are to give way to `inserted`.
    struct Change {
        QString before;
        int from;
        int to;
        QString inserted;
        QString result() const { return before.left(from) + inserted + before.mid(to); }
    };
    struct Outcome {
        QString text;
        int cursor;
    };
    /// What a user's change leads to; nothing refuses it and leaves the text as it was.
    virtual std::optional<Outcome> judge(const Change& change) const = 0;
    /// The text that the box shows for a stored one.
    virtual QString shownFor(const QString& text) const { return text; }
    virtual bool isFull() const = 0;

    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Judge;
    void moveOnWhenFull();

    QString accepted_;
    int shownCharacters_ = 0;
    bool trusted_ = false;
    bool movesOnWhenFull_ = false;
    bool selectOnRelease_ = false;
};
