#pragma once

#include <QDialog>

class Dialogs;

/// Version, web address and a way to the desktop's system information.
class frmAbout final : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(Dialogs& dialogs);

private:
    void openSite();
    void showSystemInformation();

    Dialogs& dialogs_;
};
