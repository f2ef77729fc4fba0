#include "support/ScriptedDialogs.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <array>

#include "support/Printing.h"

using Kind = ScriptedDialogs::Kind;

namespace {

std::string describe(Kind kind, const QString& title, const QString& text) {
    static constexpr std::array names = {"error box",   "warning box", "information box", "question", "open dialog",
                                         "save dialog", "form",        "address"};
    std::string line = std::string(names[size_t(kind)]) + " \"" + title.toStdString() + '"';
    if (!text.isEmpty()) line += " saying \"" + text.toStdString() + '"';
    return line;
}

Kind kindOf(BoxKind kind) {
    switch (kind) {
        case BoxKind::Error: return Kind::Error;
        case BoxKind::Warning: return Kind::Warning;
        case BoxKind::Information: return Kind::Information;
        case BoxKind::Question: break;
    }
    return Kind::Question;
}

bool offers(BoxButtons buttons, BoxAnswer answer) {
    switch (buttons) {
        case BoxButtons::Ok: return answer == BoxAnswer::Ok;
        case BoxButtons::OkCancel: return answer == BoxAnswer::Ok || answer == BoxAnswer::Cancel;
        case BoxButtons::YesNo: return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
        case BoxButtons::YesNoCancel: break;
    }
    return answer != BoxAnswer::Ok;
}

BoxAnswer closing(BoxButtons buttons) {
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
}

}  // namespace

ScriptedDialogs::~ScriptedDialogs() { verify(); }

void ScriptedDialogs::expectError(const QString& title, std::optional<QString> text) {
    expectBox(BoxKind::Error, title, BoxAnswer::Ok, std::move(text));
}

void ScriptedDialogs::expectWarning(const QString& title, std::optional<QString> text) {
    expectBox(BoxKind::Warning, title, BoxAnswer::Ok, std::move(text));
}

void ScriptedDialogs::expectInformation(const QString& title, std::optional<QString> text) {
    expectBox(BoxKind::Information, title, BoxAnswer::Ok, std::move(text));
}

void ScriptedDialogs::expectQuestion(const QString& title, BoxAnswer answer, std::optional<QString> text) {
    expectBox(BoxKind::Question, title, answer, std::move(text));
}

void ScriptedDialogs::expectBox(BoxKind kind, const QString& title, BoxAnswer answer, std::optional<QString> text) {
    expected_.push_back({.kind = kindOf(kind), .title = title, .text = std::move(text), .answer = answer});
}

void ScriptedDialogs::expectOpenFile(const QString& title, std::optional<QString> path) {
    expected_.push_back({.kind = Kind::OpenFile, .title = title, .path = std::move(path)});
}

void ScriptedDialogs::expectSaveFile(const QString& title, std::optional<QString> path) {
    expected_.push_back({.kind = Kind::SaveFile, .title = title, .path = std::move(path)});
}

void ScriptedDialogs::expectForm(const QString& objectName, std::function<void(QDialog&)> drive) {
    expected_.push_back({.kind = Kind::Form, .title = objectName, .drive = std::move(drive)});
}

void ScriptedDialogs::expectAddress(const QString& address, bool opens) {
    expected_.push_back({.kind = Kind::Address, .title = address, .opens = opens});
}

ScriptedDialogs::Shown ScriptedDialogs::lastShown() const {
    if (!shown_.empty()) return shown_.back();
    ADD_FAILURE() << "no box or dialog was shown";
    return {};
}

void ScriptedDialogs::verify() {
    for (const Expected& open : expected_)
        ADD_FAILURE() << "never shown: " << describe(open.kind, open.title, open.text.value_or(QString()));
    expected_.clear();
}

/// The expectation that stands next, if it is for what is shown; otherwise a failure, and nothing is used up.
std::optional<ScriptedDialogs::Expected> ScriptedDialogs::take(Shown shown) {
    shown_.push_back(shown);
    const std::string found = describe(shown.kind, shown.title, shown.text);
    if (expected_.empty()) {
        ADD_FAILURE() << "unexpected " << found;
        return {};
    }
    const Expected next = expected_.front();
    if (next.kind != shown.kind || next.title != shown.title) {
        ADD_FAILURE() << "unexpected " << found
                      << "\n  expected next: " << describe(next.kind, next.title, next.text.value_or(QString()));
        return {};
    }
    EXPECT_EQ(shown.text, next.text.value_or(shown.text)) << "text of " << describe(shown.kind, shown.title, {});
    expected_.pop_front();
    return next;
}

BoxAnswer ScriptedDialogs::box(BoxKind kind, BoxButtons buttons, const QString& title, const QString& text) {
    const auto expected = take({kindOf(kind), title, text});
    if (!expected) return closing(buttons);
    if (offers(buttons, expected->answer)) return expected->answer;
    ADD_FAILURE() << "the scripted answer is no button of " << describe(kindOf(kind), title, text);
    return closing(buttons);
}

std::optional<QString> ScriptedDialogs::openFile(const FileRequest& request) {
    const auto expected = take({Kind::OpenFile, request.title, {}, request});
    return expected ? expected->path : std::nullopt;
}

std::optional<QString> ScriptedDialogs::saveFile(const FileRequest& request) {
    const auto expected = take({Kind::SaveFile, request.title, {}, request});
    return expected ? expected->path : std::nullopt;
}

int ScriptedDialogs::showModal(QDialog& form) {
    const auto expected = take({Kind::Form, form.objectName(), {}});
    if (!expected) return QDialog::Rejected;
    form.setModal(true);
    form.show();
    expected->drive(form);
    if (form.isVisible()) {
        ADD_FAILURE() << "the script left this form open: " << form.objectName().toStdString();
        form.reject();
    }
    return form.result();
}

bool ScriptedDialogs::openAddress(const QUrl& address) {
    const auto expected = take({Kind::Address, address.toString(), {}});
    return expected && expected->opens;
}
