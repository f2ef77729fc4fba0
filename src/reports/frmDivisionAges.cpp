#include "reports/frmDivisionAges.h"

#include "platform/text/Numbers.h"
#include "platform/widgets/FilteredEdit.h"
#include "platform/widgets/FormLayout.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace {

FilteredEdit* ageBox(const char* name, const QString& age) {
    constexpr int digits = 3;
    auto* box = new FilteredEdit;
    box->setObjectName(QLatin1String(name));
    box->setKeyFilter(FilterNumeric);
    box->setMaxLength(digits);
    box->setShownCharacters(digits + 1);
    box->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    if (isNumeric(age)) box->setText(age);
    return box;
}

}  // namespace

frmDivisionAges::frmDivisionAges(const QString& division, const AgeLimits& held, const QString& message)
    : minimum_(ageBox("txtMinimumAge", held.minimum)), maximum_(ageBox("txtMaximumAge", held.maximum)) {
    setObjectName(QStringLiteral("frmDivisionAges"));
    setWindowTitle(tr("Division Ages"));
    auto* text = new QLabel(message);
    text->setObjectName(QStringLiteral("lblMessage"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto* name = new QLabel(division);
    name->setObjectName(QStringLiteral("lblDivisionName"));
    name->setTextFormat(Qt::PlainText);
    auto* fields = new QFormLayout;
    fields->setHorizontalSpacing(spacing::label);
    fields->setVerticalSpacing(spacing::line);
    fields->addRow(tr("Division Name"), name);
    fields->addRow(tr("M&inimum Age"), minimum_);
    fields->addRow(tr("M&aximum Age"), maximum_);
    auto* ok = new QPushButton(tr("&OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->setSpacing(spacing::group);
    layout->addWidget(text);
    layout->addLayout(fields);
    layout->addWidget(ok, 0, Qt::AlignRight);
    minimum_->setFocus();
    resize(360, sizeHint().height());
}

AgeLimits frmDivisionAges::ages() const { return {minimum_->text(), maximum_->text()}; }
