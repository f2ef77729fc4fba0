#include "reports/frmReports.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

#include "league/clsTeam.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormLayout.h"
#include "reports/Reports.h"
#include "shell/Program.h"

namespace {

struct DestinationEntry {
    Destination number;
    const char* caption;
    const char* button;  ///< the print button's caption
};

/// In the order of the buttons.
constexpr DestinationEntry destinations[] = {
    {Print, QT_TRANSLATE_NOOP("frmReports", "Print"), QT_TRANSLATE_NOOP("frmReports", "&Print")},
    {Preview, QT_TRANSLATE_NOOP("frmReports", "Print Preview"), QT_TRANSLATE_NOOP("frmReports", "&Preview")},
    {RtfFile, QT_TRANSLATE_NOOP("frmReports", "File: RTF Format"), QT_TRANSLATE_NOOP("frmReports", "&RTF File")},
    {PdfFile, QT_TRANSLATE_NOOP("frmReports", "File: PDF Format"), QT_TRANSLATE_NOOP("frmReports", "&PDF File")},
    {HtmlFile, QT_TRANSLATE_NOOP("frmReports", "File: HTML Format"), QT_TRANSLATE_NOOP("frmReports", "HT&ML File")},
    {ExcelFile, QT_TRANSLATE_NOOP("frmReports", "File: Excel Format"), QT_TRANSLATE_NOOP("frmReports", "&Excel File")},
};

constexpr int mailingLabels = 9;         ///< the category with options of its own
constexpr int divisions = 1, teams = 2;  ///< the second and the third list

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

}  // namespace

frmReports::frmReports(Program& program)
    : MainScreen(program, QStringLiteral("frmReports"), {860, 680}),
      categories_(Reports::table()),
      categoryButtons_(new QButtonGroup(this)),
      optionButtons_(new QButtonGroup(this)),
      destinationButtons_(new QButtonGroup(this)),
      output_(program),
      labels_(program) {
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
    connect(byDivision_, &QCheckBox::clicked, this, &frmReports::showOption);
    connect(lists_[divisions], &ChoiceBox::edited, this, &frmReports::fillTeams);
    categoryButtons_->button(0)->setChecked(true);
    showCategory(0);
    destinationButtons_->button(Preview)->setChecked(true);  // nothing goes to paper unasked
    showDestination();
    categoryButtons_->checkedButton()->setFocus();
}

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
    labelOptions_ = new QPushButton(tr("Mailing L&abel Options"));
    labelOptions_->setObjectName("cmdMailingLabelOptions");
    connect(labelOptions_, &QPushButton::clicked, this, [this] { labels_.choose(optionButtons_->checkedId()); });
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
        auto* label = listLabels_[index] = new QLabel(ReportLists::label(ListKind::None));
        label->setMinimumWidth(label->sizeHint().width());  // the lists keep their place whatever they are called
        label->setObjectName(QStringLiteral("lblList%1").arg(index + 1));
        label->setBuddy(list);
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
    connect(addButton(row, "cmdPrintSetup", tr("Print &Setup"), nullptr), &QPushButton::clicked, this,
            [this] { output_.setUpPrinter(); });
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

void frmReports::showCategory(int category) {
    if (category < 0 || category >= int(categories_.size())) {
        program_.dialogs().error(tr("Report Selection Error"), tr("There has been an error in the selection.\n"
                                                                  "Please notify Kestrelmoor Software of this error."));
        return;
    }
    const std::vector<ReportOption>& options = categories_[size_t(category)].options;
    optionButtons_->setExclusive(false);  // so that there may be none selected
    for (int id = 0; id < mostReportOptions; ++id) {
        QAbstractButton* button = optionButtons_->button(id);
        const bool used = id < int(options.size());
        button->setText(used ? options[size_t(id)].caption : tr("(Unused for this Report)"));
        button->setVisible(used);
        button->setChecked(used && id == 0);
    }
    optionButtons_->setExclusive(true);
    putTabStop(*categoryButtons_);
    nothingToRun_->setVisible(options.empty());
    byDivision_->setChecked(false);
    labelOptions_->setVisible(category == mailingLabels);
    showOption();
}

void frmReports::showOption() {
    putTabStop(*optionButtons_);
    const ReportOption* option = chosen();
    print_->setEnabled(option != nullptr);
    byDivision_->setEnabled(option && option->mayNarrow);
    showLists();
}

/// Puts up the lists that the option uses. What is chosen stays chosen where the list still offers it.
void frmReports::showLists() {
    const ReportOption* option = chosen();
    const bool used = option && (!option->mayNarrow || byDivision_->isChecked());
    const Scope scope = used ? option->scope : Scope::League;
    fillList(0, used ? option->list : ListKind::None);
    fillList(divisions, scope == Scope::League ? ListKind::None : ListKind::Divisions);
    fillTeams();
    if (!used || !option->mayNarrow) return;
    const bool byCategory = option->list == ListKind::Categories;
    listLabels_[byCategory ? 0 : divisions]->setText(byCategory ? tr("Select by Category") : tr("Select by Division"));
}

void frmReports::fillTeams() {
    const ReportOption* option = chosen();
    fillList(teams, option && option->scope == Scope::Team ? ListKind::Teams : ListKind::None);
}

/// The lists of divisions and teams begin with all of them chosen, the first list with nothing.
void frmReports::fillList(int index, ListKind kind) {
    ChoiceBox* list = lists_[size_t(index)];
    const QString before = kinds_[size_t(index)] == kind ? list->text() : QString();
    std::vector<QString> entries;
    if (kind != ListKind::None) entries = ReportLists::entries(program_.store, kind, chosenDivision());
    kinds_[size_t(index)] = kind;
    list->setText({});
    list->setEntries(QStringList(entries.begin(), entries.end()));
    if (list->indexOf(before) >= 0)
        list->setText(before);
    else if (index > 0)
        list->setText(ReportLists::allEntry(kind));
    list->setEnabled(kind != ListKind::None);
    listLabels_[size_t(index)]->setText(ReportLists::label(kind));
    listLabels_[size_t(index)]->setEnabled(kind != ListKind::None);
}

void frmReports::showDestination() {
    putTabStop(*destinationButtons_);
    for (const DestinationEntry& entry : destinations)
        if (entry.number == destinationButtons_->checkedId()) print_->setText(tr(entry.button));
}

const ReportOption* frmReports::chosen() const {
    const int option = optionButtons_->checkedId();
    return option < 0 ? nullptr : &categories_[size_t(categoryButtons_->checkedId())].options[size_t(option)];
}

/// A name that no live division has means all divisions.
std::optional<int> frmReports::chosenDivision() {
    const QString name = kinds_[divisions] == ListKind::None ? QString() : lists_[divisions]->text();
    if (name.isEmpty() || name == ReportLists::allEntry(ListKind::Divisions)) return {};
    const int id = clsTeam(program_.store).FindDivisionId(name);
    return id == 0 ? std::nullopt : std::optional(id);
}

ReportInput frmReports::input() {
    ReportInput input{.divisionId = chosenDivision(),
                      .byDivision = byDivision_->isChecked(),
                      .globals = program_.globals(),
                      .today = program_.clock().today()};
    for (size_t index = 0; index < lists_.size(); ++index)
        if (kinds_[index] != ListKind::None) input.lists[index] = lists_[index]->text();
    const QString& team = input.lists[teams];
    if (input.divisionId && !team.isEmpty() && team != ReportLists::allEntry(ListKind::Teams))
        if (const int id = clsTeam(program_.store).FindTeamId(team, *input.divisionId); id != 0) input.teamId = id;
    return input;
}

bool frmReports::meetsDemands(const ReportOption& option) {
    for (const Demand& demand : option.demands) {
        ChoiceBox* list = lists_[size_t(demand.list - 1)];
        if (!list->text().isEmpty()) continue;
        program_.dialogs().error(tr("Report Option Error..."), demand.message);
        list->setFocus();
        return false;
    }
    return true;
}

/// Sends the chosen report to the chosen destination. What fails is told; the screen stays as it was.
void frmReports::run() {
    ResetStatusBar();
    const ReportOption& option = *chosen();
    if (!meetsDemands(option) || !option.report) return;
    try {
        ReportInput with = input();
        if (categoryButtons_->checkedId() == mailingLabels) {
            const std::optional<LabelOptions> labels = labels_.begin(optionButtons_->checkedId());
            if (!labels) return;
            with.labels = *labels;
        }
        UpdateStatusBar(output_.run(option.report(with), destinationButtons_->checkedId(), this));
    } catch (const std::exception& failure) {
        program_.dialogs().error(option.caption, QString::fromUtf8(failure.what()));
    }
}
