#include "league/FieldPane.h"

#include <QPushButton>

#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/Program.h"
#include "shell/Screens.h"

FieldPane::FieldPane(Program& program)
    : RecordPane(program, {.tag = "Field",
                           .caption = tr("Fields"),
                           .searchName = "cboFieldSearchList",
                           .searchCaption = tr("C&urrent Field"),
                           .moveName = "cmdFieldMove",
                           .listQuery = "SELECT *, ([FieldName]) as Name FROM tblField WHERE [DeletedFlag] = False "
                                        "ORDER BY [FieldName]",
                           // The title is that of the setup; this tab has always had it.
                           .checkTitle = tr("Critical Error - Defaults Setup"),
                           .missingText = tr("Error!  Field Name not found in Search List"),
                           .leaveQuestion = tr("Save the current Field record?"),
                           .saved = tr("Record \"%1\" Added."),
                           .namesRepeat = true}),
      field_(program.store),
      availability_(new QPushButton(tr("Set Field Availabilit&y Date/Time"))) {
    availability_->setObjectName(QStringLiteral("cmdFieldAvailability"));
    availability_->setAutoDefault(false);
    availability_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(availability_, &QPushButton::clicked, this,
            [this] { this->program().screens.show(QStringLiteral("frmFieldAvailability")); });
    start(field_, buildForm());
}

Form* FieldPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    addFieldFrame(builder.column(3));
    addAddressFrame(builder);
    builder.column(2)
        .frame(tr("Notes"), 1)
        .comments("txtFieldDirections", tr("Directions\nTo Field"), field_.FieldDirections, FilterTextWide)
        .comments("txtFieldComments", tr("Comments"), field_.FieldComments, FilterTextWide)
        .custom(availability_);
    return form;
}

void FieldPane::addFieldFrame(FormBuilder& builder) {
    builder.frame(tr("Field"))
        .span(2)
        .text("txtFieldName", tr("Field N&ame *"), field_.FieldName, FilterTextFull)
        .span(2)
        .text("txtFieldLeagueAssociation", tr("League Association"), field_.FieldLeagueAssociation, FilterTextFull)
        .span(2)
        .text("txtFieldContactName", tr("Contact Person"), field_.FieldContactName, FilterTextFull)
        .span(2)
        .phone("mskedFieldContactPhoneArea", "mskedFieldContactPhone", tr("Contact &Phone"),
               field_.FieldContactPhoneArea, field_.FieldContactPhone)
        .yesNo("optFieldMultiPurpose", tr("MultiPurpose?"), yesIsZero(field_.FieldMultiPurpose))
        .yesNo("optFieldLights", tr("Lights?"), yesIsZero(field_.FieldLights));
}

void FieldPane::addAddressFrame(FormBuilder& builder) {
    builder.frame(tr("Address"))
        .span(2)
        .text("txtFieldStreet1", tr("Street Address 1"), field_.FieldStreet1, FilterTextWide)
        .span(2)
        .text("txtFieldStreet2", tr("Street Address 2"), field_.FieldStreet2, FilterTextWide)
        .text("txtFieldCity", tr("City"), field_.FieldCity, FilterTextFull)
        .choice("cboFieldStateId", tr("State"), field_.FieldStateId, stateIds(program()))
        .together(tr("&Zip/Postal Code"))
        .masked("mskedFieldZipCode", tr("Zip"), "#####", maskedBinding(field_.FieldZipCode))
        .masked("mskedFieldZipCode4", tr("Zip extension"), "####", maskedBinding(field_.FieldZipCode4))
        .text("txtFieldPostalCode", tr("or Postal Code"), field_.FieldPostalCode, FilterTextFull);
}

std::vector<Finding> FieldPane::check() const {
    if (!field_.FieldName().trimmed().isEmpty()) return {};
    return {{firstField(), tr("The Field Name is a required entry.")}};
}

void FieldPane::shown() { availability_->setEnabled(search().entryCount() > 0); }
