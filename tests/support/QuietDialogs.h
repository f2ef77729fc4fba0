#pragma once

#include "platform/dialogs/Dialogs.h"

/// Dialogs for programs that nobody watches: they answer at once and keep the text of the last box.
class QuietDialogs : public Dialogs {
public:
    BoxAnswer box(BoxKind, BoxButtons, const QString&, const QString& text) override {
        last = text;
        return BoxAnswer::Ok;
    }
    std::optional<QString> openFile(const FileRequest&) override { return {}; }
    std::optional<QString> saveFile(const FileRequest&) override { return {}; }
    int showModal(QDialog&) override { return 0; }
    bool openAddress(const QUrl&) override { return false; }

    QString last;
};
