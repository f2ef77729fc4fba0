#pragma once

#include <QDate>
#include <QDialog>

class QGroupBox;

/// When a field can be played on, as far as it goes: the layout stands, and only Close does something.
class frmFieldAvailability final : public QDialog {
    Q_OBJECT

public:
    explicit frmFieldAvailability(QDate today);

private:
    QGroupBox* setFrame();
    QGroupBox* copyFrame();
    QWidget* gridBox(QDate today);
};
