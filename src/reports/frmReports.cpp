#include "reports/frmReports.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

#include "league/clsDivision.h"
#include "league/clsTeam.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormLayout.h"
#include "reports/Reports.h"
#include "reports/frmDivisionAges.h"
#include "shell/Program.h"

namespace {

constexpr int mailingLabels = 9;         ///< the category with options of its own
constexpr int divisions = 1, teams = 2;  ///< the second and the third list

}  // namespace

frmReports::frmReports(Program& program)
    : MainScreen(program, QStringLiteral("frmReports"), {860, 680}),
      categories_(Reports::table()),
      categoryButtons_(new QButtonGroup(this)),
      optionButtons_(new QButtonGroup(this)),
      destinationButtons_(new QButtonGroup(this)),
      database_(program.store.database()),
      output_(program),
      labels_(program) {
    showPurpose(tr("Kestrelmoor - Reports"));
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

    for (const QButtonGroup* group : {categoryButtons_, optionButtons_, destinationButtons_})
        connect(group, &QButtonGroup::buttonClicked, view, [view](QAbstractButton* button) {
            view->ensureWidgetVisible(button);  // chosen by key, it may lie outside
        });
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

/// Another screen may have changed what the lists offer.
void frmReports::changeEvent(QEvent* event) {
    MainScreen::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !print_) return;
    if (database_.changes() != seenChanges_) showLists();
}

/// Puts up the lists that the option uses. What is chosen stays chosen where the list still offers it.
void frmReports::showLists() {
    const ReportOption* option = chosen();
    const bool used = option && (!option->mayNarrow || byDivision_->isChecked());
    const Scope scope = used ? option->scope : Scope::League;
    fillList(0, used ? option->list : ListKind::None);
    fillList(divisions, scope == Scope::League ? ListKind::None : ListKind::Divisions);
    fillTeams();
    seenChanges_ = database_.changes();
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

bool frmReports::askAges(ReportInput& input) {
    if (!input.divisionId) return true;
    clsDivision division(program_.store);
    bool found = false;
    division.FindDivisionRecordById(*input.divisionId, false, true, found);
    const AgeLimits held{division.DivMinAge, division.DivMaxAge};
    const auto compares = [](const QString& age) { return age.isEmpty() || isNumeric(age); };
    if (!found || (compares(held.minimum) && compares(held.maximum))) return true;
    frmDivisionAges form(division.DivName, held,
                         tr("The ages of this division are no numbers.  Please enter those to compare with, for this "
                            "report alone; an empty one limits nothing."));
    if (program_.dialogs().showModal(form) != QDialog::Accepted) return false;
    input.ages = form.ages();
    return true;
}

/// Sends the chosen report to the chosen destination. What fails is told; the screen stays as it was.
void frmReports::run() {
    ResetStatusBar();
    const ReportOption& option = *chosen();
    if (!meetsDemands(option) || !option.report) return;
    try {
        ReportInput with = input();
        if (option.comparesAges && !askAges(with)) return;
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
