#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>

class QDialog;

/// What a file dialog is asked with. Filters are in the form "Label (*.ext)|*.ext|Label|*.ext".
struct FileRequest {
    QString title{};
    QString filters{};
    QString defaultSuffix{};  ///< with its dot: ".kmr"
    QString startFolder{};    ///< empty: wherever the user was last
    QString fileName{};       ///< offered name, may be empty
};

enum class BoxKind { Error, Warning, Information, Question };
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Cancel, Yes, No };

/// The one door through which the program speaks to its user outside its own screens: message boxes, file
/// dialogs, modal forms, web addresses. The real one shows windows; the one for tests answers from a script.
/// Texts are plain text with "\n" as line break.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows one box and waits for its answer. Closing the box counts as Cancel, or No, or Ok, whichever it has.
    virtual BoxAnswer box(BoxKind kind, BoxButtons buttons, const QString& title, const QString& text) = 0;
    /// The path the user picked, or nothing when the dialog was cancelled.
    virtual std::optional<QString> openFile(const FileRequest& request) = 0;
    /// As openFile, for a file to be written; the dialog itself asks before an existing file is replaced.
    virtual std::optional<QString> saveFile(const FileRequest& request) = 0;
    /// Shows a form modally; the result is QDialog::Accepted (1) or QDialog::Rejected (0).
    virtual int showModal(QDialog& form) = 0;
    /// Hands the address to the desktop's browser. False when nothing could open it.
    virtual bool openAddress(const QUrl& address) = 0;

    void error(const QString& title, const QString& text) { box(BoxKind::Error, BoxButtons::Ok, title, text); }
    void warning(const QString& title, const QString& text) { box(BoxKind::Warning, BoxButtons::Ok, title, text); }
    void information(const QString& title, const QString& text) {
        box(BoxKind::Information, BoxButtons::Ok, title, text);
    }
    /// The Yes/No question; true for Yes.
    bool ask(const QString& title, const QString& text) {
        return box(BoxKind::Question, BoxButtons::YesNo, title, text) == BoxAnswer::Yes;
    }
};
