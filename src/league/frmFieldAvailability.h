#pragma once

#include <QDialog>

class QGroupBox;

/// When a field can be played on, as far as it goes: the layout stands, and only Close does something.
class frmFieldAvailability final : public QDialog {
    Q_OBJECT

public:
    explicit frmFieldAvailability(QWidget* parent = nullptr);

private:
    QGroupBox* setFrame();
    QGroupBox* copyFrame();
    QWidget* gridBox();
};
