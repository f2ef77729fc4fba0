#pragma once

#include "platform/report/Report.h"
#include "reports/MailingLabels.h"
#include "reports/ReportOutput.h"
#include "reports/ReportTable.h"
#include "shell/MainScreen.h"

class ChoiceBox;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QPushButton;

/// The place from which every report is previewed, printed and written to a file.
class frmReports final : public MainScreen {
    Q_OBJECT

public:
    explicit frmReports(Program& program);

    /// Puts up the options of a category and selects the first.
    void showCategory(int category);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeCategories();
    QWidget* makeOptions();
    QWidget* makeLists();
    QWidget* makeDestinations();
    QLayout* makeButtons();
    QPushButton* addButton(QLayout* row, const char* name, const QString& text, void (frmReports::*press)());

    static void putTabStop(const QButtonGroup& group);

    void showOption();
    void showDestination();
    void showLists();
    void fillList(int list, ListKind kind);
    void fillTeams();

    /// The chosen option, or null when there is none.
    const ReportOption* chosen() const;
    /// Says what is still to be chosen and goes there. True when nothing is.
    bool meetsDemands(const ReportOption& option);
    ReportInput input();
    /// Asks for the ages of the chosen division where the report cannot compare them. False where the user stays.
    bool askAges(ReportInput& input);
    std::optional<int> chosenDivision();
    void run();

    std::vector<ReportCategory> categories_;
    QButtonGroup* categoryButtons_;
    QButtonGroup* optionButtons_;
    QButtonGroup* destinationButtons_;
    QWidget* nothingToRun_ = nullptr;
    QCheckBox* byDivision_ = nullptr;
    QPushButton* labelOptions_ = nullptr;
    std::array<ChoiceBox*, 3> lists_{};
    std::array<QLabel*, 3> listLabels_{};
    std::array<ListKind, 3> kinds_{};
    datafile::Database database_;  ///< held, so that its count of changes goes on
    qint64 seenChanges_ = 0;       ///< the data file's count of changes when the lists were read
    QPushButton* print_ = nullptr;
    ReportOutput output_;
    MailingLabels labels_;
};
