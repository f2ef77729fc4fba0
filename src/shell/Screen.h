#pragma once

#include <QMainWindow>

class QCloseEvent;
class Screens;
struct Program;

/// A window that counts as an open screen: the navigator and the main screens. It is made by the register of
/// screens, reports its end there, and is deleted by itself once it is closed.
class Screen : public QMainWindow {
    Q_OBJECT

public:
    Screen(Program& program, const QString& name);

    /// Asked before the screen closes, by whichever way. A screen with unsaved work offers to save it here; false
    /// keeps the screen open. Never asked twice for one closing.
    virtual bool offerToSave() { return true; }
    /// The screen was opened from the navigator: the place for the focus is its search list, if it has one.
    virtual void focusSearch() {}
    /// The user came to this screen from another screen or form, which may have changed the data.
    virtual void cameForward() {}
    /// Closes without another offer to save.
    void unload();

protected:
    /// The screen is about to go; its window still stands as the user left it.
    virtual void leaving() {}
    /// "Kestrelmoor - " and the path of the data file: the caption of every screen.
    QString caption() const;

    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

    Program& program_;

private:
    bool offered_ = false;
};
