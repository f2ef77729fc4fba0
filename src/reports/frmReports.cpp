#include "reports/frmReports.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScrollArea>

#include "platform/report/ReportError.h"
#include "platform/report/ReportPreview.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormLayout.h"
#include "reports/Reports.h"
#include "reports/StoreRows.h"
#include "shell/Program.h"

namespace {

/// The numbers under which the output routine knows its destinations.
enum Destination { Preview = 1, Print = 2, RtfFile = 3, PdfFile = 4, HtmlFile = 5, ExcelFile = 6 };

struct DestinationEntry {
    Destination number;
    const char* caption;
    const char* button;  ///< the print button's caption
    bool exists = true;  ///< in this version
};

/// In the order of the buttons.
constexpr DestinationEntry destinations[] = {
    {Print, QT_TRANSLATE_NOOP("frmReports", "Print"), QT_TRANSLATE_NOOP("frmReports", "&Print")},
    {Preview, QT_TRANSLATE_NOOP("frmReports", "Print Preview"), QT_TRANSLATE_NOOP("frmReports", "&Preview")},
    {RtfFile, QT_TRANSLATE_NOOP("frmReports", "File: RTF Format"), QT_TRANSLATE_NOOP("frmReports", "&RTF File"), false},
    {PdfFile, QT_TRANSLATE_NOOP("frmReports", "File: PDF Format"), QT_TRANSLATE_NOOP("frmReports", "&PDF File")},
    {HtmlFile, QT_TRANSLATE_NOOP("frmReports", "File: HTML Format"), QT_TRANSLATE_NOOP("frmReports", "HT&ML File"),
     false},
    {ExcelFile, QT_TRANSLATE_NOOP("frmReports", "File: Excel Format"), QT_TRANSLATE_NOOP("frmReports", "&Excel File"),
     false},
};

constexpr int mailingLabels = 9;  ///< the category with options of its own

QRadioButton* addRadio(QButtonGroup* group, int id, const QString& name, const QString& text = {}) {
    auto* button = new QRadioButton(text);
    button->setObjectName(name);
    group->addButton(button, id);
    return button;
}

/// Tab reaches the selected button of a group and no other. Qt sees to that only where the selection changes by key.
void putTabStop(const QButtonGroup& group) {
    for (QAbstractButton* button : group.buttons())
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

/// A button for what comes later says so.
void setOffered(QWidget* button, bool offered, const QString& otherwise) {
    button->setEnabled(offered);
    button->setToolTip(offered ? QString() : otherwise);
}

}  // namespace

frmReports::frmReports(Program& program)
    : MainScreen(program, QStringLiteral("frmReports"), {860, 680}),
      categories_(Reports::table()),
      categoryButtons_(new QButtonGroup(this)),
      optionButtons_(new QButtonGroup(this)),
      destinationButtons_(new QButtonGroup(this)) {
    auto* content = new QWidget;
    auto* columns = new ColumnRow(content);
    columns->addColumn(makeCategories(), 2);
    auto* choice = new QWidget;
    auto* choiceColumn = new QVBoxLayout(choice);
    choiceColumn->setContentsMargins({});
    choiceColumn->setSpacing(spacing::group);
    choiceColumn->addWidget(makeOptions(), 1);
    choiceColumn->addWidget(makeLists());
    columns->addColumn(choice, 3);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, 0);
    column->setSpacing(spacing::group);
    column->addWidget(columns, 1);
    column->addWidget(makeDestinations());
    auto* view = new QScrollArea;  // for a desktop smaller than the screen; the buttons stay in sight
    view->setFrameShape(QFrame::NoFrame);
    view->setWidgetResizable(true);
    view->setWidget(content);
    auto* whole = new QWidget;
    auto* wholeColumn = new QVBoxLayout(whole);
    wholeColumn->setContentsMargins({});
    wholeColumn->addWidget(view, 1);
    wholeColumn->addLayout(makeButtons());
    setCentralWidget(whole);

    connect(categoryButtons_, &QButtonGroup::idClicked, this, &frmReports::showCategory);
    connect(optionButtons_, &QButtonGroup::idClicked, this, &frmReports::showOption);
    connect(destinationButtons_, &QButtonGroup::idClicked, this, &frmReports::showDestination);
    selectFirstReport();
    destinationButtons_->button(Preview)->setChecked(true);
    showDestination();
    categoryButtons_->checkedButton()->setFocus();
}

frmReports::~frmReports() = default;

QWidget* frmReports::makeCategories() {
    auto* frame = new QGroupBox(tr("Report Sele&ction"));
    auto* column = new QVBoxLayout(frame);
    for (int id = 0; id < int(categories_.size()); ++id)
        column->addWidget(addRadio(categoryButtons_, id, QStringLiteral("optReportSelection%1").arg(id),
                                   categories_[size_t(id)].caption));
    column->addStretch();
    return frame;
}

QWidget* frmReports::makeOptions() {
    auto* frame = new QGroupBox(tr("Report &Options"));
    auto* column = new QVBoxLayout(frame);
    for (int id = 0; id < mostReportOptions; ++id)
        column->addWidget(addRadio(optionButtons_, id, QStringLiteral("optReportOptions%1").arg(id)));
    nothingToRun_ = new QLabel(tr("There are no reports of this kind."));
    nothingToRun_->setObjectName("lblNoReports");
    column->addWidget(nothingToRun_);
    column->addStretch();
    byDivision_ = new QCheckBox(tr("Select &By Division"));
    byDivision_->setObjectName("chkByDivision");
    byDivision_->setEnabled(false);
    labelOptions_ = new QPushButton(tr("Mailing L&abel Options"));
    labelOptions_->setObjectName("cmdMailingLabelOptions");
    setOffered(labelOptions_, false, tr("Mailing labels come with a later version."));
    auto* row = new QHBoxLayout;
    row->addWidget(byDivision_, 1);
    row->addWidget(labelOptions_);
    column->addLayout(row);
    return frame;
}

QWidget* frmReports::makeLists() {
    auto* frame = new QWidget;
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(spacing::label);
    grid->setVerticalSpacing(spacing::line);
    grid->setColumnStretch(1, 1);
    for (size_t index = 0; index < lists_.size(); ++index) {
        auto* list = lists_[index] = new ChoiceBox;
        list->setObjectName(QStringLiteral("cboList%1").arg(index + 1));
        auto* label = new QLabel(tr("(Not Used for this Report)"));
        label->setObjectName(QStringLiteral("lblList%1").arg(index + 1));
        label->setBuddy(list);
        label->setEnabled(false);
        list->setEnabled(false);
        grid->addWidget(label, int(index), 0);
        grid->addWidget(list, int(index), 1);
    }
    return frame;
}

QWidget* frmReports::makeDestinations() {
    auto* frame = new QGroupBox(tr("Report &Destination"));
    auto* grid = new QGridLayout(frame);
    constexpr int inRow = 3;
    int place = 0;
    for (const DestinationEntry& entry : destinations) {
        auto* button = addRadio(destinationButtons_, entry.number, QStringLiteral("optReportDestination%1").arg(place),
                                tr(entry.caption));
        setOffered(button, entry.exists, tr("Files of this format come with a later version."));
        grid->addWidget(button, place / inRow, place % inRow);
        ++place;
    }
    return frame;
}

QLayout* frmReports::makeButtons() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    row->addStretch(1);
    print_ = addButton(row, "cmdPrint", {}, &frmReports::run);
    addButton(row, "cmdPrintSetup", tr("Print &Setup"), &frmReports::setUpPrinter);
    connect(addButton(row, "cmdClose", tr("C&lose"), nullptr), &QPushButton::clicked, this, &QWidget::close);
    return row;
}

QPushButton* frmReports::addButton(QLayout* row, const char* name, const QString& text, void (frmReports::*press)()) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    if (press) connect(button, &QPushButton::clicked, this, press);
    row->addWidget(button);
    return button;
}

/// The first category that has something to run.
void frmReports::selectFirstReport() {
    const auto hasReport = [](const ReportCategory& category) {
        return std::any_of(category.options.begin(), category.options.end(),
                           [](const ReportOption& option) { return option.report != nullptr; });
    };
    const auto first = std::find_if(categories_.begin(), categories_.end(), hasReport);
    categoryButtons_->button(int(first - categories_.begin()))->setChecked(true);
    showCategory();
}

/// Puts up the options of the chosen category and selects the first that can be run.
void frmReports::showCategory() {
    const std::vector<ReportOption>& options = categories_[size_t(categoryButtons_->checkedId())].options;
    optionButtons_->setExclusive(false);  // so that there may be none selected
    bool selected = false;
    for (int id = 0; id < mostReportOptions; ++id) {
        QAbstractButton* button = optionButtons_->button(id);
        const bool used = id < int(options.size());
        const bool exists = used && options[size_t(id)].report != nullptr;
        button->setText(used ? options[size_t(id)].caption : tr("(Unused for this Report)"));
        button->setVisible(used);
        setOffered(button, exists, tr("This report comes with a later version."));
        button->setChecked(exists && !selected);
        selected = selected || exists;
    }
    optionButtons_->setExclusive(true);
    putTabStop(*categoryButtons_);
    putTabStop(*optionButtons_);
    nothingToRun_->setVisible(options.empty());
    labelOptions_->setVisible(categoryButtons_->checkedId() == mailingLabels);
    showOption();
}

void frmReports::showOption() { print_->setEnabled(chosen() != nullptr); }

void frmReports::showDestination() {
    putTabStop(*destinationButtons_);
    for (const DestinationEntry& entry : destinations)
        if (entry.number == destinationButtons_->checkedId()) print_->setText(tr(entry.button));
}

const ReportOption* frmReports::chosen() const {
    const int option = optionButtons_->checkedId();
    return option < 0 ? nullptr : &categories_[size_t(categoryButtons_->checkedId())].options[size_t(option)];
}

report::Report frmReports::chosenReport() const {
    ReportInput input{
        .byDivision = byDivision_->isChecked(), .globals = program_.globals(), .today = program_.clock().today()};
    for (size_t index = 0; index < lists_.size(); ++index) input.lists[index] = lists_[index]->text();
    const StoreContext& store = program_.store;
    return {chosen()->report(input), storeRows(store.workspace.openDatabase(store.dataFilePath))};
}

/// Prints the chosen report to the chosen destination. What fails is told; the screen stays as it was.
void frmReports::run() {
    ResetStatusBar();
    try {
        runTo(chosenReport(), destinationButtons_->checkedId());
    } catch (const std::exception& failure) {
        program_.dialogs().error(chosen()->caption, QString::fromUtf8(failure.what()));
    }
}

void frmReports::runTo(const report::Report& report, int destination) {
    switch (destination) {
        case Preview: return preview(report);
        case Print: return print(report);
        case PdfFile: return savePdf(report);
        default: return;
    }
}

void frmReports::preview(const report::Report& report) {
    report::ReportPreview window(report, printer(), program_.dialogs());
    program_.dialogs().showModal(window);
}

void frmReports::print(const report::Report& report) {
    QPrintDialog dialog(&printer());
    dialog.setObjectName("printDialog");
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (program_.dialogs().showModal(dialog) != QDialog::Accepted) return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    report::print(printer(), report);
}

void frmReports::savePdf(const report::Report& report) {
    const report::ReportDefinition& definition = report.definition;
    const auto path = program_.dialogs().saveFile({.title = tr("Save Report"),
                                                   .filters = tr("Portable Document Format (*.pdf)|*.pdf"),
                                                   .defaultSuffix = ".pdf",
                                                   .fileName = definition.title});
    if (!path) return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    try {
        report::writeFile(*path, report, report::FileFormat::Pdf, printer().pageLayout().pageSize());
    } catch (const report::NoDataError& none) {
        QGuiApplication::restoreOverrideCursor();
        program_.dialogs().information(tr("No Data to Report"), none.text());
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        return;
    }
    UpdateStatusBar(tr("Report saved as %1.").arg(*path));
}

void frmReports::setUpPrinter() {
    QPageSetupDialog dialog(&printer());
    dialog.setObjectName("pageSetupDialog");
    program_.dialogs().showModal(dialog);
}

QPrinter& frmReports::printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (QPrinterInfo::defaultPrinter().isNull()) printer_->setPageSize(QPageSize(QPageSize::Letter));
    }
    return *printer_;
}
