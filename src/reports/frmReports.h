#pragma once

#include "platform/report/Report.h"
#include "reports/ReportTable.h"
#include "shell/MainScreen.h"

class ChoiceBox;
class QButtonGroup;
class QCheckBox;
class QPrinter;
class QPushButton;

/// The place from which every report is previewed, printed and written to a file.
class frmReports final : public MainScreen {
    Q_OBJECT

public:
    explicit frmReports(Program& program);
    ~frmReports() override;

private:
    QWidget* makeCategories();
    QWidget* makeOptions();
    QWidget* makeLists();
    QWidget* makeDestinations();
    QLayout* makeButtons();
    QPushButton* addButton(QLayout* row, const char* name, const QString& text, void (frmReports::*press)());

    void selectFirstReport();
    void showCategory();
    void showOption();
    void showDestination();

    /// The chosen option, or null when there is none to run.
    const ReportOption* chosen() const;
    report::Report chosenReport() const;
    void run();
    void runTo(const report::Report& report, int destination);
    void preview(const report::Report& report);
    void print(const report::Report& report);
    void savePdf(const report::Report& report);
    void setUpPrinter();
    /// Made when it is first needed: asking the system for its printers takes time.
    QPrinter& printer();

    std::vector<ReportCategory> categories_;
    QButtonGroup* categoryButtons_;
    QButtonGroup* optionButtons_;
    QButtonGroup* destinationButtons_;
    QWidget* nothingToRun_ = nullptr;
    QCheckBox* byDivision_ = nullptr;
    QPushButton* labelOptions_ = nullptr;
    std::array<ChoiceBox*, 3> lists_{};
    QPushButton* print_ = nullptr;
    std::unique_ptr<QPrinter> printer_;
};
