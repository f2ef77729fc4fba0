#pragma once

#include <QDialog>

struct Program;

/// Takes over a schedule that the outside scheduler made.
class frmImport final : public QDialog {
    Q_OBJECT

public:
    explicit frmImport(Program& program);

private:
    void importFile();

    Program& program_;
};
