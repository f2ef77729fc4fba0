#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/dialogs/Dialogs.h"

/// Dialogs that answer from a script. A test says in order what it expects to be asked, each with its answer:
///
///     dialogs.expectQuestion("Save Record?", BoxAnswer::Yes);
///     dialogs.expectError("Validation Error - Division", "Division Name is missing.\n");
///
/// The running test fails on a box or dialog that nobody expected (which is then answered as if it were closed), on
/// one with another kind, title or text, and, when this object ends, on an expectation that was never met.
class ScriptedDialogs final : public Dialogs {
public:
    enum class Kind { Error, Warning, Information, Question, OpenFile, SaveFile, Form, Address };

    /// One thing that was shown.
    struct Shown {
        Kind kind;
        QString title;          ///< of a box or file dialog; the object name of a form; the address
        QString text;           ///< of a box
        FileRequest request{};  ///< of a file dialog
    };

    ~ScriptedDialogs() override;

    // Boxes with one button. Without a text any text will do.
    void expectError(const QString& title, std::optional<QString> text = {});
    void expectWarning(const QString& title, std::optional<QString> text = {});
    void expectInformation(const QString& title, std::optional<QString> text = {});
    /// The Yes/No question.
    void expectQuestion(const QString& title, BoxAnswer answer, std::optional<QString> text = {});
    /// A box of any kind that offers more than its kind's usual buttons, such as OK and Cancel.
    void expectBox(BoxKind kind, const QString& title, BoxAnswer answer, std::optional<QString> text = {});
    /// File dialogs; no path stands for Cancel.
    void expectOpenFile(const QString& title, std::optional<QString> path);
    void expectSaveFile(const QString& title, std::optional<QString> path);
    /// A modal form by its object name. It is shown, `drive` does what the user does in it and must close it.
    /// What comes up meanwhile is expected after the form: script it in the order in which it is shown.
    void expectForm(const QString& objectName, std::function<void(QDialog&)> drive);
    void expectAddress(const QString& address, bool opens = true);

    /// All that was shown so far, expected or not.
    const std::vector<Shown>& shown() const { return shown_; }
    /// What was shown last; fails the test and is empty when there was nothing.
    Shown lastShown() const;
    /// Fails the running test when an expectation is still open, and forgets it. The destructor calls it.
    void verify();

    BoxAnswer box(BoxKind kind, BoxButtons buttons, const QString& title, const QString& text) override;
    std::optional<QString> openFile(const FileRequest& request) override;
    std::optional<QString> saveFile(const FileRequest& request) override;
    int showModal(QDialog& form) override;
    bool openAddress(const QUrl& address) override;

private:
    struct Expected {
        Kind kind;
        QString title;
        std::optional<QString> text{};
        BoxAnswer answer = BoxAnswer::Ok;
        std::optional<QString> path{};
        std::function<void(QDialog&)> drive{};
        bool opens = false;
    };

    std::optional<Expected> take(Shown shown);

    std::deque<Expected> expected_;
    std::vector<Shown> shown_;
};
