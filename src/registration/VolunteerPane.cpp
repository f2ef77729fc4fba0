#include "registration/VolunteerPane.h"

#include "platform/text/KeyFilters.h"
#include "platform/widgets/FormBuilder.h"
#include "ratings/clsAbilityRating.h"
#include "registration/AddressBoxes.h"
#include "registration/VolunteerLinks.h"
#include "registration/clsRegistration.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/Program.h"

VolunteerPane::VolunteerPane(Program& program)
    : PersonPane(
          program,
          {.tag = "Volunteer",
           .caption = tr("Volunteer Registrations"),
           .searchName = "cboVolSearchList",
           .searchCaption = tr("C&urrent Volunteer"),
           .moveName = "cmdVolMove",
           .listQuery = "SELECT *, ([VolLastName] & \", \" & [VolFirstName] & \" - \" & [VolHomePhone]) as Name FROM "
                        "tblVolunteer WHERE [DeletedFlag] = False ORDER BY [VolLastName], [VolFirstName]",
           .checkTitle = tr("Validation Error - Volunteer Registration"),
           .missingText = tr("Error!  Volunteer Name not found in Search List"),
           .leaveQuestion = tr("Save the current Volunteer record?"),
           .menu = tr("Volunteer Registration"),
           .noun = tr("Volunteer")},
          {.table = "tblVolunteer",
           .idColumn = "VolId",
           .activeColumn = "VolActive",
           .followers = {"tblAbilityRating", "tblEquipmentAssignment", "tblRegistrationVolunteer", "tblVolToPosition",
                         "tblTeamVolunteer", "tblVolunteerCertifications"},
           .prefix = "Vol",
           .labelColumn = "VolCustomFieldLabel",
           .addQuestion = tr("A record for %1 %2 was not found,\nand the Add New button was not pressed.\n\n"
                             "Would you like to add a New Volunteer record?\n   Yes -> Add New Volunteer Record\n"
                             "   No  -> Update the Current Record\n   Cancel -> No Changes Written to Database"),
           .takenTitle = tr("Unable to Update Volunteer Record"),
           .takenText = tr("Unable to change the name or phone number of Volunteer %1 %2.\n"
                           "A record already exists for Volunteer %1 %2 with the same Phone Number.\n\n"
                           "Please enter a different First Name, Last Name, or Phone Number."),
           .duplicateQuestion =
               tr("A record already exists for the Volunteer %1 %2\nwith the same Phone Number as the record that is "
                  "being added or updated.\n\nWould you like to overwrite the current record in the database?"),
           .overwriteQuestion = tr("A record for Volunteer %1 %2 already exists.\n\nDo you want to overwrite the "
                                   "current record?"),
           .renameError = tr("An error occurred in trying to Rename a Volunteer.\nPlease report this error to "
                             "Kestrelmoor support."),
           .equipmentError = tr("The Volunteer being deleted has Equipment assigned to them. Delete any equipment "
                                "assignments before deleting this record.")}),
      volunteer_(program.store) {
    start(volunteer_, buildForm());
    showCustomLabels();
}

Form* VolunteerPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    clsVolunteer& v = volunteer_;
    addPersonalTab(builder);
    addLinksTab(builder);
    addCustomTab(builder, {&v.VolCustomField1, &v.VolCustomField2, &v.VolCustomField3, &v.VolCustomField4,
                           &v.VolCustomField5, &v.VolCustomField6});
    form->setDateFormat(program().globals().defaultDateFormat);
    connect(form, &Form::tabPicked, this, &VolunteerPane::leaveSubTab);
    return form;
}

void VolunteerPane::addPersonalTab(FormBuilder& builder) {
    clsVolunteer& v = volunteer_;
    builder.tab(tr("Volunteer Information"))
        .frame(tr("Volunteer Personal Information"), 3)
        .text("txtVolLastName", tr("Last N&ame *"), v.VolLastName, FilterTextFull)
        .span(2)
        .text("txtVolFirstName", tr("First Name *"), v.VolFirstName, FilterTextFull)
        .span(2);
    addAddress(builder, program(),
               {.prefix = "Vol",
                .street = {tr("Street Address"), v.VolAddress1},
                .apartment = {tr("Apt No."), v.VolAddress2},
                .city = {tr("Cit&y"), v.VolCity},
                .state = {tr("State"), v.VolStateId},
                .postalCode = {tr("&Zip/Postal"), v.VolPostalCode},
                .country = {tr("Country"), v.VolCountryCode}});
    builder.phone("mskedVolHomePhoneArea", "mskedVolHomePhone", tr("Home &Phone *"), v.VolHomePhoneArea, v.VolHomePhone)
        .phone("mskedVolWorkPhoneArea", "mskedVolWorkPhone", tr("&Work Phone"), v.VolWorkPhoneArea, v.VolWorkPhone)
        .phone("mskedVolFaxPhoneArea", "mskedVolFaxPhone", tr("FAX/Other Phone"), v.VolFaxPhoneArea, v.VolFaxPhone)
        .span(2)
        .text("txtVolEmailAddress", tr("Email Address"), v.VolEmailAddress, FilterTextFull)
        .choice("cboVolGender", tr("&Gender"), v.VolGender, {"Male", "Female"})
        .date("dtpVolBirthDate", tr("&Birth Date"), v.VolBirthDate)
        .text("txtVolOccupation", tr("Occupation"), v.VolOccupation, FilterTextFull)
        .comments("txtVolComments", tr("Co&mments"), v.VolComments, FilterTextWide)
        .date("dtpVolRegistrationDate", tr("Registration Date"), v.VolRegistrationDate)
        .span(2)
        .check("chkVolActive", tr("Act&ive?"), v.VolActive);
}

void VolunteerPane::addLinksTab(FormBuilder& builder) {
    links_ = new VolunteerLinks(program(), volunteer_);
    connect(links_, &VolunteerLinks::said, this, &RecordPane::said);
    builder.tab(tr("Positions and Certifications")).frame({}, 1).custom(links_);
}

/// Positions and the like are written at once, so the record they belong to is settled first.
void VolunteerPane::leaveSubTab() {
    if (!offerToSave({}, tr("Save Volunteer Record?"))) form().focusField(firstField());
}

void VolunteerPane::shown() {
    PersonPane::shown();
    if (!volunteer_.IsVolNew()) loadedKey_ = key();
    links_->refresh();
}

bool VolunteerPane::find(const QString& entry) {
    const VolunteerKey wanted = VolunteerKey::parse(entry);
    return volunteer_.find(
        live(matches(
            {{"VolLastName", wanted.lastName}, {"VolFirstName", wanted.firstName}, {"VolHomePhone", wanted.phone}})),
        true);
}

QString VolunteerPane::deletedName() const { return volunteer_.VolLastName() + u", " + volunteer_.VolFirstName(); }

void VolunteerPane::makeNew() {
    const Globals& globals = program().globals();
    volunteer_.NewVolRecord();
    volunteer_.VolCity = globals.defaultCity;
    volunteer_.VolStateId = globals.defaultStateId;
    volunteer_.VolPostalCode = globals.defaultPostalCode;
    for (Text* area : {&volunteer_.VolHomePhoneArea, &volunteer_.VolWorkPhoneArea, &volunteer_.VolFaxPhoneArea})
        *area = globals.defaultAreaCode;
    volunteer_.VolActive = true;
    volunteer_.SetIsVolDirty(false);
}

std::vector<Finding> VolunteerPane::check() const {
    const struct {
        const Text& value;
        const char* field;
        QString text;
    } rules[] = {
        {volunteer_.VolLastName, "txtVolLastName", tr("The Volunteers Last Name is a required entry.")},
        {volunteer_.VolFirstName, "txtVolFirstName", tr("The Volunteers First Name is a required entry.")},
        {volunteer_.VolHomePhoneArea, "mskedVolHomePhoneArea", tr("The Home Phone Area Code is a required entry.")},
        {volunteer_.VolHomePhone, "mskedVolHomePhone", tr("The Home Phone Number is a required entry.")}};
    std::vector<Finding> findings;
    for (const auto& rule : rules)
        if (isBlank(rule.value)) findings.push_back({rule.field, rule.text});
    return findings;
}

std::optional<PersonPane::Twin> VolunteerPane::twin() const {
    clsVolunteer other(program().store);
    if (!other.FindVolRecord(name(), false, true)) return {};
    return Twin{other.VolId, other.VolDeletedFlag};
}

bool VolunteerPane::write() {
    const VolunteerKey before = loadedKey_;
    const Settled settled = settleIdentity();
    if (settled == Settled::Stop) return false;
    datafile::Transaction transaction(database());
    if (!RecordPane::write()) return false;
    if (settled == Settled::Rename) renameParents(before);
    transaction.commit();
    return true;
}

/// Players know their parents by name and phone, and follow them, linked or not.
void VolunteerPane::renameParents(const VolunteerKey& before) {
    clsRegistration players(program().store);
    for (const char* parent : {"Dad", "Mom"}) {
        bool found = false;
        players.UpdateOldVolInfo(
            QLatin1String(parent), {before.lastName, before.firstName, before.phone},
            {volunteer_.VolLastName, volunteer_.VolFirstName, volunteer_.VolHomePhone, volunteer_.VolHomePhoneArea},
            found);
    }
}

bool VolunteerPane::findRating(clsAbilityRating& ratings) const {
    return ratings.FindARVolunteerRecord(volunteer_.VolId, false, false);
}

QString VolunteerPane::deleteQuestion() const {
    return tr("Are you sure you want to delete Volunteer %1?").arg(name());
}
