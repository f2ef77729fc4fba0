#pragma once

#include <QDialog>

class QButtonGroup;
class QPushButton;
struct Program;

/// Lets the user choose what is to be done with the data file, and closes before it is done.
class frmBackup final : public QDialog {
    Q_OBJECT

public:
    explicit frmBackup(Program& program);

private:
    QWidget* optionFrame();
    void showOption(int option);
    void run();

    Program& program_;
    QButtonGroup* optType_ = nullptr;
    QPushButton* ok_ = nullptr;
};
