#pragma once

#include <QMenu>
#include <QPointer>

/// The Edit menu of a main screen: Cut, Copy and Paste on the box in which the user last stood, and Undo, which is
/// the screen's own. The boxes know the usual keys themselves, so the entries only show them.
class EditMenu : public QMenu {
    Q_OBJECT

public:
    explicit EditMenu(QWidget* screen);

Q_SIGNALS:
    void undoWanted();

private:
    QAction* addEntry(const QString& name, const QString& text, QKeySequence::StandardKey key);
    void followFocus(QWidget* now);
    void offerWhatIsPossible();

    QWidget* screen_;
    QPointer<QWidget> box_;
    QAction* cut_;
    QAction* copy_;
    QAction* paste_;
};
