#pragma once

#include <QDialog>

#include "maintenance/work/SeasonBoxes.h"

class ButtonRow;
class Form;
class FormBuilder;
class QPushButton;
struct Program;

/// Turns the data file over to a new season: the year, and a box for each thing to be done to all rows.
class frmNewSeason final : public QDialog {
    Q_OBJECT

public:
    explicit frmNewSeason(Program& program);

    void reject() override;

private:
    void addYear(FormBuilder& builder);
    void addBoxes(FormBuilder& builder);
    void addButtons();
    void edited(const QString& field);
    void leftField(const QString& field);
    bool isYearValid();
    void readYear();
    void showBoxes();
    void arm(bool armed);
    void refresh();
    void go();
    void run();

    Program& program_;
    QString year_;
    SeasonBoxes boxes_;
    Form* form_;
    ButtonRow* buttons_;
    QPushButton* go_ = nullptr;
    QPushButton* refresh_ = nullptr;
    bool running_ = false;
};
