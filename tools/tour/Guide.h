#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

/// Uses the program as a user does, with keys and mouse, and takes pictures of what is seen. What does not come about
/// in time ends the whole process with a message and exit code 1.
class Guide {
public:
    /// Pictures go into this folder.
    explicit Guide(QString folder);

    /// Names the part of the tour that follows, for the user and for the message when it fails.
    void begin(const QString& step);
    [[noreturn]] void fail(const QString& why);
    void require(bool holds, const QString& what) {
        if (!holds) fail(what + " did not come about.");
    }
    void waitFor(const std::function<bool()>& condition, const QString& what);
    void waitForScreen(const QString& name);
    void waitForFocus(const QString& name);
    void waitForStatus(const QString& text);

    /// The window that takes the keys: the dialog in front, otherwise the active screen.
    QWidget& front();
    /// A control of the front window by its object name.
    template <class Kind = QWidget>
    Kind& control(const QString& name) {
        auto* found = front().findChild<Kind*>(name);
        if (!found) fail("There is no " + name + " here.");
        return *found;
    }
    void click(const QString& name) { click(control(name)); }
    /// The tab of that title, in whichever tab widget of the front window has it.
    void clickTab(const QString& title);
    void click(QWidget& widget);
    /// The button of a toolbar's action.
    void clickTool(const QString& action);
    /// The entry of a menu in the active screen's menu bar.
    void clickMenu(const QString& menu, const QString& entry);
    /// Goes on to the field with the Tab key and types over what stands there.
    void fill(const QString& field, const QString& text);
    /// Keys go to whatever has the focus.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void type(const QString& text);
    /// The object name of what has the focus.
    QString focus() const;

    /// Runs `cause`, which brings up a dialog, and `act` in that dialog, which has to close it.
    void during(const std::function<void()>& cause, const QString& dialog, const std::function<void()>& act);
    /// From within such an act: what is done in the dialog that comes up after this one.
    void next(const std::function<void()>& act) { act_ = act; }

    /// Writes the next picture, "03-name.png": the front window, over the screen that it stands in front of.
    void picture(const QString& name);

private:
    void watch();

    QString folder_;
    QString step_;
    int pictures_ = 0;
    std::function<void()> act_;           ///< in the dialog that is awaited
    QPointer<QWidget> seen_;              ///< the dialog in front
    std::vector<QPointer<QWidget>> met_;  ///< dialogs that were handed to their acts
    QElapsedTimer standing_;
    QElapsedTimer typed_;  ///< letters that follow too soon go on with the search for the ones before
    QTimer watch_;
};
