#include "registration/PlayerPane.h"

#include "platform/text/Dates.h"
#include "platform/text/Money.h"
#include "platform/text/Numbers.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/Form.h"
#include "ratings/clsAbilityRating.h"
#include "setup/clsSchoolName.h"
#include "shell/Program.h"
#include "store/AgeRule.h"
#include "store/Lookup.h"

#include <QLineEdit>

PlayerPane::PlayerPane(Program& program)
    : PersonPane(
          program,
          {.tag = "Player",
           .caption = tr("Player Registrations"),
           .searchName = "cboPlayerSearchList",
           .searchCaption = tr("C&urrent Player"),
           .moveName = "cmdPlayerMove",
           .listQuery =
               "SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as Name "
               "FROM tblRegistration WHERE tblRegistration![DeletedFlag] = False "
               "ORDER BY [PlayerLastName], [PlayerFirstName], [PlayerBirthDate]",
           .checkTitle = tr("Validation Error - Player Registration"),
           .missingText = tr("Error!  Player Name not found in Search List"),
           .leaveQuestion = tr("Save the current Player record?"),
           .menu = tr("Player Registration"),
           .noun = tr("Player")},
          {.table = "tblRegistration",
           .idColumn = "PlayerId",
           .activeColumn = "PlayerActive",
           .followers = {"tblAbilityRating", "tblEquipmentAssignment", "tblRegistrationVolunteer", "tblVolToPosition"},
           .prefix = "Player",
           .labelColumn = "RegCustomFieldLabel",
           .addQuestion = tr("A record for %1 %2 with the current\nbirth date was not found, and neither the Add New\n"
                             "nor Add Sibling buttons were pressed.\n\nWould you like to add a New Player record?\n"
                             "   Yes -> Add New Record\n   No  -> Update the current record\n"
                             "   Cancel -> No changes written to database."),
           .takenTitle = tr("Unable to Update Player Record"),
           .takenText = tr("Unable to change the name or birth date of Player %1 %2.\n"
                           "A record already exists for Player %1 %2 with the same Birth Date.\n\n"
                           "Please enter a different First Name, Last Name, or Birth Date."),
           .duplicateQuestion =
               tr("A record already exists for the Player %1 %2\nwith the same Birth Date as the record "
                  "that is being added or updated.\n\n"
                  "Would you like to overwrite the current record in the database?"),
           .overwriteQuestion =
               tr("A record for player %1 %2 already exists.\n\nDo you want to overwrite the current record?"),
           .renameError =
               tr("An error occurred in trying to Rename a player.\nPlease report this error to Kestrelmoor support."),
           .equipmentError = tr("The Player being deleted has Equipment assigned to them.\n"
                                "Delete any equipment assignments\nbefore deleting this record.")}),
      player_(program.store),
      division_(program.store),
      volunteer_(program.store) {
    start(player_, buildForm());
    showCustomLabels();
}

bool PlayerPane::find(const QString& entry) {
    return player_.FindPlayerRecord(entry, false, true) && !player_.PlayerDeletedFlag;
}

void PlayerPane::shown() {
    bool found = false;
    PersonPane::shown();
    divisionName_.clear();
    feeOnTheWay_.clear();
    if (player_.PlayerDivisionId != 0) division_.FindDivisionRecordById(player_.PlayerDivisionId, false, true, found);
    if (found) divisionName_ = division_.DivName;
    teamName_ = player_.PlayerTeamId == 0
                    ? QString()
                    : ReadFieldValue(program().store, program().store.dataFilePath, QStringLiteral("TeamName"),
                                     QStringLiteral("tblTeam"), live(matches("TeamId", player_.PlayerTeamId)));
    showAge();
    if (!std::exchange(justSaved_, false)) showVolunteers();
    form().refresh();
    showBalance();
    if (player_.IsPlayerNew()) showUsualChoices();
}

/// The age on screen follows the division and birth date as they are chosen; a look at a record changes nothing.
void PlayerPane::showAge() {
    CutOff own;
    if (!divisionName_.isEmpty()) own = {division_.DivAgeCutOffMonth, division_.DivAgeCutOffDay};
    const Globals& globals = program().globals();
    const CutOff cutOff = cutOffByField(own, {globals.defaultAgeCutoffMonth, globals.defaultAgeCutoffDay});
    const int age =
        CalculateAge(shortDate(player_.PlayerBirthDate), cutOff.month, cutOff.day, globals.currentSeasonYear);
    const bool dirty = player_.IsPlayerDirty();
    player_.PlayerAge = QString::number(age);
    player_.SetIsPlayerDirty(dirty);
}

void PlayerPane::chooseDivision(const QString& name) {
    bool found = false;
    if (!name.isEmpty()) division_.FindDivisionRecord(name, false, true, found);
    divisionName_ = found ? division_.DivName() : QString();
    player_.PlayerDivisionId = found ? division_.DivId() : 0;
    player_.PlayerTeamId = 0;
    teamName_.clear();
    if (found && (player_.PlayerFeeAmount().isEmpty() || player_.PlayerFeeAmount() == feeOnTheWay_))
        player_.PlayerFeeAmount = feeOnTheWay_ = division_.DivRegistrationFee;
    showAge();
}

/// From what the boxes show, as the user sees the sum.
void PlayerPane::showBalance() {
    const auto amount = [this](const char* box) {
        return Money::orZero(form().findChild<QLineEdit*>(QLatin1String(box))->text());
    };
    const Money owed =
        amount("mskedPlayerFeeAmount") + amount("mskedPlayerFundRaiserFee") + amount("mskedPlayerOtherFees");
    const Money paid = amount("mskedPlayerAmountPaid");
    showBalance(owed >= paid ? owed - paid : paid - owed, owed >= paid);
}

void PlayerPane::showBalance(const Money& balance, bool due) {
    const QString name = QStringLiteral("lblPlayerBalance");
    form().setCaption(name, due ? tr("Balance Due") : tr("Refund Due"));
    form().display(name, balance.text());
    const bool darkGround = palette().color(QPalette::Window).lightness() < 128;
    const QColor red = darkGround ? QColor(0xff, 0x7b, 0x7b) : QColor(0xc6, 0x28, 0x28);
    form().setInk(name, due ? QColor() : red);
}

/// A new record's boxes show the usual choices. Where the user touches none of them the record's own are saved.
void PlayerPane::showUsualChoices() {
    form().display(QStringLiteral("chkPlayerBirthCertificateChecked"), false);
    form().display(QStringLiteral("chkPlayerSendInvitation"), true);
    form().display(QStringLiteral("chkPlayerParentApproval"), true);
    form().display(QStringLiteral("mskedPlayerFundRaiserFee"), usualFundRaiserFee());
    showBalance(Money(), true);
}

QString PlayerPane::usualFundRaiserFee() {
    const auto fee = Money::parse(program().globals().defaultFundRaiserFee);
    return fee && *fee != Money() ? fee->text() : QString();
}

void PlayerPane::setDefaults() {
    const Globals& globals = program().globals();
    player_.PlayerCity = globals.defaultCity;
    player_.PlayerStateId = globals.defaultStateId;
    player_.PlayerPostalCode = globals.defaultPostalCode;
    for (Text* area : {&player_.PlayerPhoneArea, &player_.PlayerDadPhoneArea, &player_.PlayerDadWorkPhoneArea,
                       &player_.PlayerDadMobilePhoneArea, &player_.PlayerMomPhoneArea, &player_.PlayerMomWorkPhoneArea,
                       &player_.PlayerMomMobilePhoneArea})
        *area = globals.defaultAreaCode;
    player_.PlayerFeeAmount = QString();
    player_.PlayerFundRaiserFee = usualFundRaiserFee();
}

void PlayerPane::makeNew() {
    player_.NewPlayerRecord();
    setDefaults();
    player_.SetIsPlayerDirty(false);
}

std::vector<Finding> PlayerPane::check() const {
    const struct {
        const Text& value;
        const char* field;
        QString text;
    } rules[] = {{player_.PlayerLastName, "txtPlayerLastName", tr("The Players Last Name is a required entry.")},
                 {player_.PlayerFirstName, "txtPlayerFirstName", tr("The Players First Name is a required entry.")},
                 {player_.PlayerAddress1, "txtPlayerAddress1", tr("The Players Address is a required entry.")},
                 {player_.PlayerCity, "txtPlayerCity", tr("The City is a required entry.")},
                 {player_.PlayerStateId, "cboPlayerStateId", tr("The State Id is a required entry.")},
                 {player_.PlayerPostalCode, "txtPlayerPostalCode", tr("The Zip/Postal Code is a required entry.")},
                 {player_.PlayerPhone, "mskedPlayerPhone", tr("The Phone Number is a required entry.")}};
    std::vector<Finding> findings;
    for (const auto& rule : rules) {
        if (isBlank(rule.value)) findings.push_back({rule.field, rule.text});
        if (&rule.value == &player_.PlayerFirstName && !player_.PlayerBirthDate().isValid())
            findings.push_back(
                {QStringLiteral("dtpPlayerBirthDate"), tr("The Players Birth Date is a required entry.")});
    }
    const struct {
        const Text& lastName;
        const Text& firstName;
        const Text& phone;
        const char* field;
        QString text;
    } guardians[] = {{player_.PlayerMomLastName, player_.PlayerMomFirstName, player_.PlayerMomPhone,
                      "mskedPlayerMomPhone", tr("    - Guardian 2 does not have a phone number.")},
                     {player_.PlayerDadLastName, player_.PlayerDadFirstName, player_.PlayerDadPhone,
                      "mskedPlayerDadPhone", tr("    - Guardian 1 does not have a phone number.")}};
    for (const auto& guardian : guardians)
        if (guardian.lastName.isFilled() && guardian.firstName.isFilled() && isBlank(guardian.phone))
            findings.push_back(
                {guardian.field, tr("Don't forget to enter a phone number for the guardian.") + u'\n' + guardian.text});
    return findings;
}

bool PlayerPane::write() {
    if (settleIdentity() == Settled::Stop) return false;
    remindOfParents();
    settleSchool();
    if (!RecordPane::write()) return false;
    reconcileParents();
    justSaved_ = true;
    return true;
}

/// A school that the league does not know yet is added, or not kept with the player.
void PlayerPane::settleSchool() {
    const QString name = player_.PlayerSchoolName;
    clsSchoolName school(program().store);
    if (name.isEmpty() || school.FindSchoolRecord(name, false, false)) return;
    const bool add = program().dialogs().ask(
        tr("Add New School Name?"),
        tr("The School Name entered was not\nfound in the School database file.\n\n"
           "Would you like to add this School Name to \nthe database file?  \n"
           "Note:  If you answer No, the School Name\nwill not be saved with the Player record."));
    if (!add) {
        player_.PlayerSchoolName = QString();
        return;
    }
    school.NewSchoolRecord();
    school.SchoolName = name;
    school.SaveSchoolRecord();
    form()
        .findChild<ChoiceBox*>(QStringLiteral("cboPlayerSchoolName"))
        ->setEntries(liveNames("tblSchoolInfo", "SchoolName"));
}

bool PlayerPane::findRating(clsAbilityRating& ratings) const {
    return ratings.FindARPlayerRecord(player_.PlayerId, false, false);
}

QString PlayerPane::deleteQuestion() const { return tr("Are you sure you want to delete player %1?").arg(name()); }

std::optional<PersonPane::Twin> PlayerPane::twin() const {
    clsRegistration other(program().store);
    if (!other.FindPlayerRecord(name(), false, true)) return {};
    return Twin{other.PlayerId, other.PlayerDeletedFlag};
}

void PlayerPane::addSibling() {
    if (player_.PlayerId == 0 || isEditing()) return;
    const auto blank = [this] {
        player_.NewSiblingPlayerRecord();
        player_.PlayerDivisionId = 0;
        player_.PlayerTeamId = 0;
        player_.PlayerBeltedPants = false;
        player_.PlayerMedicalForm = false;
        player_.SetIsPlayerDirty(false);
    };
    beginNew(blank, QStringLiteral("txtPlayerFirstName"));  // the first one to fill: the last name is the family's
}
