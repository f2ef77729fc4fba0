#include "reports/frmMailingLabelOptions.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "platform/dialogs/Dialogs.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/FormLayout.h"
#include "reports/MailingLabels.h"

frmMailingLabelOptions::frmMailingLabelOptions(int people, const LabelOptions& held, Dialogs& dialogs)
    : dialogs_(dialogs), held_(held), choices_(new QButtonGroup(this)), status_(new QButtonGroup(this)) {
    setObjectName("frmMailingLabelOptions");
    setWindowTitle(tr("Select Mailing Label Options"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addWidget(makeChoices(captions(people)));
    ages_ = makeAges(held);
    QSizePolicy room = ages_->sizePolicy();
    room.setRetainSizeWhenHidden(people == MailingLabels::Players);  // the buttons keep their place, on any screen
    ages_->setSizePolicy(room);
    layout->addWidget(ages_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    const auto add = [&](const char* name, const QString& text, auto press) {
        auto* button = new QPushButton(text);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, this, press);
        buttons->addWidget(button);
        return button;
    };
    add("cmdOK", tr("&OK"), &frmMailingLabelOptions::accept)->setDefault(true);
    add("cmdCancel", tr("&Cancel"), &QDialog::reject);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(choices_, &QButtonGroup::idToggled, this, [this] { ages_->setVisible(isAgeRange()); });
    QAbstractButton* chosen = choices_->button(held.choice);
    (chosen ? chosen : choices_->button(0))->setChecked(true);
    ages_->setVisible(isAgeRange());
    choices_->checkedButton()->setFocus();
}

QStringList frmMailingLabelOptions::captions(int people) {
    switch (people) {
        case MailingLabels::Volunteers: return {tr("&All Active Volunteers"), tr("All &Inactive Volunteers")};
        case MailingLabels::Sponsors: return {tr("&All Assigned Sponsors"), tr("All &Unassigned Sponsors")};
        default:
            return {tr("All &Registered Players (Active Players)"), tr("All &Unregistered Players (Inactive Players)"),
                    tr("&Family Labels (One Label Per Family)"), tr("Age Ran&ge (Ages entered are inclusive)")};
    }
}

QWidget* frmMailingLabelOptions::makeChoices(const QStringList& captions) {
    auto* frame = new QWidget;
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins({});
    column->setSpacing(spacing::line);
    for (const QString& caption : captions) {
        const int id = int(choices_->buttons().size());
        auto* button = new QRadioButton(caption);
        button->setObjectName(QStringLiteral("optLabelOptions%1").arg(id));
        choices_->addButton(button, id);
        column->addWidget(button);
    }
    return frame;
}

QGroupBox* frmMailingLabelOptions::makeAges(const LabelOptions& held) {
    constexpr int digits = 3;
    auto* frame = new QGroupBox(tr("Age Range"));
    auto* fields = new QFormLayout(frame);
    fields->setHorizontalSpacing(spacing::label);
    fields->setVerticalSpacing(spacing::line);
    const auto bound = [&](const char* name, const QString& caption, int age) {
        auto* box = new FilteredEdit;
        box->setObjectName(QLatin1String(name));
        box->setKeyFilter(FilterNumeric);
        box->setMaxLength(digits);
        box->setShownCharacters(digits + 1);
        box->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        if (held.choice == LabelOptions::AgeRange) box->setText(QString::number(age));
        fields->addRow(caption, box);
        return box;
    };
    lower_ = bound("txtLowerBound", tr("&Lower Bound"), held.lowerAge);
    upper_ = bound("txtUpperBound", tr("U&pper Bound"), held.upperAge);
    for (const QString& caption :
         {tr("All - Active && Inactive S&tatus"), tr("Acti&ve Status Only"), tr("&Inactive Status Only")}) {
        const int id = int(status_->buttons().size());
        auto* box = new QCheckBox(caption);
        box->setObjectName(QStringLiteral("chkPlayerStatus%1").arg(id));
        status_->addButton(box, id);
        fields->addRow(box);
    }
    status_->button(held.status)->setChecked(true);
    return frame;
}

bool frmMailingLabelOptions::isAgeRange() const { return choices_->checkedId() == LabelOptions::AgeRange; }

LabelOptions frmMailingLabelOptions::options() const {
    LabelOptions chosen = held_;
    chosen.choice = choices_->checkedId();
    if (isAgeRange()) {
        chosen.status = status_->checkedId();
        chosen.lowerAge = lower_->text().toInt();
        chosen.upperAge = upper_->text().toInt();
    }
    return chosen;
}

bool frmMailingLabelOptions::refuse(FilteredEdit* field, const QString& title, const QString& text) {
    dialogs_.error(title, text);
    field->setFocus();
    return false;
}

bool frmMailingLabelOptions::isValid() {
    if (!isAgeRange()) return true;
    if (!isNumeric(lower_->text()))
        return refuse(lower_, tr("Invalid Age Bounds"),
                      tr("Please enter valid values for the Lower and Upper Age Limits."));
    if (!isNumeric(upper_->text()))
        return refuse(upper_, tr("Invalid Upper Bound"), tr("Please enter a valid value for the Upper Age Limit."));
    if (lower_->text().toInt() > upper_->text().toInt())
        return refuse(lower_, tr("Invalid Age Range"),
                      tr("The Lower Age Limit is greater than the Upper Age Limit.") + u'\n' +
                          tr("Please enter a valid age range."));
    return true;
}

void frmMailingLabelOptions::accept() {
    if (isValid()) QDialog::accept();
}
