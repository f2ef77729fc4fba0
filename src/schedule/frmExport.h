#pragma once

#include <QDialog>

class ChoiceBox;
class QPushButton;
struct Program;

/// Writes the teams and fields of one division, or of each in turn, into files for the outside scheduler.
class frmExport final : public QDialog {
    Q_OBJECT

public:
    explicit frmExport(Program& program);

private:
    void exportChosen();
    /// False when the division's file was not written.
    bool ExportDivision(const QString& division);

    Program& program_;
    ChoiceBox* cboDivision_;
    QPushButton* cmdExport_;
};
