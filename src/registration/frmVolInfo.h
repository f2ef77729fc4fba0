#pragma once

#include <QDialog>

#include "registration/clsVolunteer.h"

class Form;
struct Program;

/// Makes a volunteer of a parent. It is given a new volunteer record that holds what is known of the parent, lets the
/// user complete it, and is accepted when it may be saved; saving is the caller's.
class frmVolInfo final : public QDialog {
    Q_OBJECT

public:
    frmVolInfo(Program& program, clsVolunteer& volunteer);

private:
    void save();

    Program& program_;
    clsVolunteer& volunteer_;
    Form* form_;
};
