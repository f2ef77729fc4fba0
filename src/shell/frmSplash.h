#pragma once

#include <QDialog>
#include <functional>

class QCheckBox;

/// The greeting at start: product title and version. Clearing `chkSkipScreen` calls `stopShowing` on OK, which
/// keeps the greeting from coming up at the next start.
class frmSplash final : public QDialog {
    Q_OBJECT

public:
    explicit frmSplash(std::function<void()> stopShowing);

    void accept() override;

private:
    std::function<void()> stopShowing_;
    QCheckBox* chkSkipScreen_;
};
