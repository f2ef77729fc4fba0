#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormLayout.h"
#include "reports/frmReports.h"

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

QRadioButton* addRadio(QButtonGroup* group, int id, const QString& name, const QString& text = {}) {
    auto* button = new QRadioButton(text);
    button->setObjectName(name);
    group->addButton(button, id);
    return button;
}

}  // namespace

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

void frmReports::showDestination() {
    putTabStop(*destinationButtons_);
    for (const DestinationEntry& entry : destinations)
        if (entry.number == destinationButtons_->checkedId()) print_->setText(tr(entry.button));
}

/// Tab reaches the selected button of a group and no other. Qt sees to that only where the selection changes by key.
void frmReports::putTabStop(const QButtonGroup& group) {
    for (QAbstractButton* button : group.buttons())
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}
