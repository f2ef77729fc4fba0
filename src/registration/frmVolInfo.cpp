#include "registration/frmVolInfo.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/text/KeyFilters.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "registration/AddressBoxes.h"
#include "registration/PersonPane.h"
#include "shell/Bound.h"
#include "shell/Program.h"

frmVolInfo::frmVolInfo(Program& program, clsVolunteer& volunteer)
    : program_(program), volunteer_(volunteer), form_(new Form(this)) {
    setObjectName(QStringLiteral("frmVolInfo"));
    setWindowTitle(tr("New Volunteer Information"));
    clsVolunteer& v = volunteer_;
    FormBuilder builder(form_);
    builder.frame(tr("Volunteer Personal Information"))
        .shown("lblVolLastName", tr("Last Name"), [&v] { return v.VolLastName(); })
        .shown("lblVolFirstName", tr("First Name"), [&v] { return v.VolFirstName(); });
    addAddress(builder, program,
               {.prefix = "Vol",
                .street = {tr("Street &Address"), v.VolAddress1},
                .apartment = {tr("Apt No."), v.VolAddress2},
                .city = {tr("Cit&y"), v.VolCity},
                .state = {tr("S&tate"), v.VolStateId},
                .postalCode = {tr("&Zip/Postal Code"), v.VolPostalCode},
                .country = {tr("Co&untry"), v.VolCountryCode}});
    builder.phone("mskedVolHomePhoneArea", "mskedVolHomePhone", tr("&Home Phone *"), v.VolHomePhoneArea, v.VolHomePhone)
        .phone("mskedVolWorkPhoneArea", "mskedVolWorkPhone", tr("&Work Phone"), v.VolWorkPhoneArea, v.VolWorkPhone)
        .phone("mskedVolFaxPhoneArea", "mskedVolFaxPhone", tr("&Mobile Phone"), v.VolFaxPhoneArea, v.VolFaxPhone)
        .text("txtVolEmailAddress", tr("&Email Address"), v.VolEmailAddress, FilterTextFull)
        .choice("cboVolGender", tr("&Gender"), v.VolGender, {"Male", "Female"})
        .text("txtVolOccupation", tr("&Occupation"), v.VolOccupation, FilterTextFull)
        .date("dtpVolBirthDate", tr("&Birth Date"), v.VolBirthDate)
        .date("dtpVolRegistrationDate", tr("&Registration Date"), v.VolRegistrationDate)
        .comments("txtVolComments", tr("Comme&nts"), v.VolComments, FilterTextWide);
    form_->setDateFormat(program.globals().defaultDateFormat);
    form_->refresh();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::group, spacing::group, spacing::group, spacing::group);
    layout->setSpacing(spacing::group);
    layout->addWidget(form_, 1);
    auto* buttons = new QDialogButtonBox(this);
    auto* saveButton = buttons->addButton(tr("&Save"), QDialogButtonBox::AcceptRole);
    saveButton->setObjectName(QStringLiteral("cmdSave"));
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmVolInfo::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(760, 480);
    form_->focusField(QStringLiteral("txtVolAddress1"));
}

void frmVolInfo::save() {
    const struct {
        const Text& value;
        const char* field;
        QString text;
    } rules[] = {{volunteer_.VolLastName, "txtVolAddress1", tr("The Volunteers Last Name is a required entry.")},
                 {volunteer_.VolFirstName, "txtVolAddress1", tr("The Volunteers First Name is a required entry.")},
                 {volunteer_.VolHomePhone, "mskedVolHomePhone", tr("The Home Phone Number is a required entry.")}};
    QStringList lines;
    QString first;
    for (const auto& rule : rules) {
        if (!isBlank(rule.value)) continue;
        lines << rule.text;
        if (first.isEmpty()) first = QLatin1String(rule.field);
    }
    if (const QString unreadable = form_->unreadableField(); !unreadable.isEmpty()) {
        lines << tr("The date cannot be read.");
        if (first.isEmpty()) first = unreadable;
    }
    if (lines.isEmpty()) return accept();
    program_.dialogs().warning(tr("Validation Error - Volunteer Registration"), lines.join(u'\n'));
    form_->focusField(first);
}
