#include "platform/text/KeyFilters.h"
#include "platform/text/Money.h"
#include "platform/widgets/FormBuilder.h"
#include "registration/AddressBoxes.h"
#include "registration/PlayerPane.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/Program.h"

Form* PlayerPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    builder.tab(tr("Players"));
    addPersonalFrame(builder.column(3));
    addLeagueFrame(builder.column(2));
    addParentsTab(builder);
    addSchoolTab(builder);
    addMedicalTab(builder);
    clsRegistration& p = player_;
    addCustomTab(builder, {&p.PlayerCustomField1, &p.PlayerCustomField2, &p.PlayerCustomField3, &p.PlayerCustomField4,
                           &p.PlayerCustomField5, &p.PlayerCustomField6});
    addOutsideFrame(builder);
    form->setDateFormat(program().globals().defaultDateFormat);
    const QStringList amounts{"mskedPlayerFeeAmount", "mskedPlayerFundRaiserFee", "mskedPlayerOtherFees",
                              "mskedPlayerAmountPaid", "cboPlayerDivision"};  // which gives the fee
    connect(form, &Form::left, this, [this, amounts](const QString& field) {
        if (field == u"cboPlayerDivision") feeOnTheWay_.clear();
        if (amounts.contains(field)) showBalance();
    });
    return form;
}

void PlayerPane::addPersonalFrame(FormBuilder& builder) {
    clsRegistration& player = player_;
    /// On a new record a box that both parents share fills theirs too.
    const auto shared = [&player](Text& own, Text& dad, Text& mom) {
        return Binding([&own] { return own(); },
                       [&player, &own, &dad, &mom](const QString& value) {
                           own = value;
                           if (player.IsPlayerNew()) dad = value, mom = value;
                       },
                       own.size());
    };
    builder.frame(tr("Player Personal Information"), 3)
        .text("txtPlayerLastName", tr("Last N&ame *"),
              shared(player.PlayerLastName, player.PlayerDadLastName, player.PlayerMomLastName), FilterTextFull)
        .text("txtPlayerFirstName", tr("First Name *"), player.PlayerFirstName, FilterTextFull)
        .text("txtPlayerMiddleInitial", tr("Initial"), player.PlayerMiddleInitial, FilterTextFull)
        .span(2);
    addAddress(builder, program(),
               {.prefix = "Player",
                .street = {tr("Street Address 1 *"), player.PlayerAddress1},
                .apartment = {tr("Apt. Number"), player.PlayerAddress2},
                .city = {tr("City  *"), player.PlayerCity},
                .state = {tr("St./Prov.*"), player.PlayerStateId},
                .postalCode = {tr("&Zip/Postal *"), player.PlayerPostalCode},
                .country = {tr("Country"), player.PlayerCountryCode}});
    builder.span(2)
        .phone("mskedPlayerPhoneArea", "mskedPlayerPhone", tr("Home Phone *"),
               shared(player.PlayerPhoneArea, player.PlayerDadPhoneArea, player.PlayerMomPhoneArea),
               shared(player.PlayerPhone, player.PlayerDadPhone, player.PlayerMomPhone))
        .span(3)
        .text("txtPlayerEmailAddress", tr("Email Address"), player.PlayerEmailAddress, FilterTextFull)
        .date("dtpPlayerBirthDate", tr("&Birth Date *"),
              {[&player] { return player.PlayerBirthDate(); },
               [this](const QDate& date) {
                   player_.PlayerBirthDate = date;
                   showAge();
               }})
        .shown(
            "lblPlayerAge", tr("Age"), [&player] { return player.PlayerAge(); }, 4)
        .choice("cboPlayerGender", tr("&Gender"), player.PlayerGender, {"Male", "Female"})
        .text("txtPlayerHeight", tr("Height"), player.PlayerHeight, FilterNumeric)
        .text("txtPlayerWeight", tr("Weight"), player.PlayerWeight, FilterNumeric)
        .text("txtPlayerYearsExperience", tr("Exp."), player.PlayerYearsExperience, FilterNumeric)
        .span(3)
        .together(tr("Hand Used?"))
        .check("chkPlayerHandRight", tr("Right"), player.PlayerHandRight)
        .check("chkPlayerHandLeft", tr("Left"), player.PlayerHandLeft);
}

void PlayerPane::addLeagueFrame(FormBuilder& builder) {
    clsRegistration& player = player_;
    builder.frame(tr("League Use"))
        .span(2)
        .date("dtpPlayerRegistrationDate", tr("Reg Date"), player.PlayerRegistrationDate)
        .span(2)
        .choice("cboPlayerDivision", tr("Division"),
                Binding([this] { return divisionName_; }, [this](const QString& name) { chooseDivision(name); }, 30),
                liveNames("tblDivision", "DivName"))
        .span(2)
        .shown("lblPlayerTeamName", tr("Team Name"), [this] { return teamName_; })
        .check("chkPlayerActive", tr("Active?"), player.PlayerActive)
        .check("chkPlayerIdCheck", tr("Residency Checked?"), player.PlayerIdCheck)
        .check("chkPlayerBirthCertificateChecked", tr("Birth Cert. Checked?"), player.PlayerBirthCertificateChecked)
        .check("chkPlayerIsUmpire", tr("Umpire?"), player.PlayerIsUmpire)
        .span(2)
        .text("txtPlayerTryoutNumber", tr("Tryout Number"), player.PlayerTryoutNumber, FilterNumeric)
        .span(2)
        .text("txtPlayerRegistrationNumber", tr("Registration Nbr"), player.PlayerRegistrationNumber, FilterTextFull)
        .money("mskedPlayerFeeAmount", tr("&Per Player Fee"), player.PlayerFeeAmount)
        .money("mskedPlayerFundRaiserFee", tr("Fund Raiser Donation"), player.PlayerFundRaiserFee)
        .money("mskedPlayerOtherFees", tr("Other Fees"), player.PlayerOtherFees)
        .money("mskedPlayerAmountPaid", tr("A&mt. Paid"), player.PlayerAmountPaid)
        .span(2)
        .choice("cboPlayerHowFeePaid", tr("How Fee Paid?"), player.PlayerHowFeePaid,
                liveNames("tblHowFeePaid", "HowFeePaidText"))
        .span(2)
        .shown(
            "lblPlayerBalance", tr("Balance Due"), [] { return Money().text(); }, 10);
}
