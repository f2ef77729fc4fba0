#pragma once

#include "platform/dialogs/Dialogs.h"

/// The dialogs of the desktop, over the window that is active.
class DesktopDialogs final : public Dialogs {
public:
    DesktopDialogs();
    BoxAnswer box(BoxKind kind, BoxButtons buttons, const QString& title, const QString& text) override;
    std::optional<QString> openFile(const FileRequest& request) override;
    std::optional<QString> saveFile(const FileRequest& request) override;
    int showModal(QDialog& form) override;
    bool openAddress(const QUrl& address) override;
};
