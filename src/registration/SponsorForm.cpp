#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/Grid.h"
#include "registration/SponsorPane.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/Program.h"

Form* SponsorPane::buildForm() {
    auto* form = new Form(this);
    FormBuilder builder(form);
    addInformationTab(builder);
    addPledgeTab(builder);
    return form;
}

void SponsorPane::addInformationTab(FormBuilder& builder) {
    clsSponsors& s = sponsor_;
    builder.tab(tr("Sponsor Information"))
        .column(3)
        .frame(tr("Sponsor"))
        .text("txtSponsorName", tr("Sponsor N&ame *"), s.SponsorName, FilterTextFull)
        .text("txtSponsorContactName", tr("Contact Name"), s.SponsorContactName, FilterTextFull)
        .text("txtSponsorAddress1", tr("Street Address"), s.SponsorAddress1, FilterTextWide)
        .text("txtSponsorAddress2", tr("Apt. Number"), s.SponsorAddress2, FilterTextWide)
        .text("txtSponsorCity", tr("Cit&y"), s.SponsorCity, FilterTextFull)
        .choice("cboSponsorStateId", tr("State/Prov"), s.SponsorStateId, stateIds(program()),
                ChoiceBox::FreeText | ChoiceBox::UpperCase, FilterTextFull)
        .together(tr("Zip/Postal"))
        .masked("mskedSponsorZipCode", tr("Zip"), "#####", maskedBinding(s.SponsorZipCode))
        .masked("mskedSponsorZipCode4", tr("Zip extension"), "####", maskedBinding(s.SponsorZipCode4))
        .text("txtSponsorPostalCode", tr("or Postal Code"), s.SponsorPostalCode, FilterTextFull)
        .choice("cboSponsorCountryCode", tr("Country"), s.SponsorCountryCode, {"Canada", "USA"},
                ChoiceBox::FreeText | ChoiceBox::EmptyFirst, FilterTextFull)
        .row()
        .phone("mskedSponsorPhoneArea", "mskedSponsorPhone", tr("&Phone"), s.SponsorPhoneArea, s.SponsorPhone)
        .phone("mskedSponsorFaxPhoneArea", "mskedSponsorFaxPhone", tr("FA&X"), s.SponsorFaxPhoneArea, s.SponsorFaxPhone)
        .span(2)
        .text("txtSponsorColorRequest", tr("Color(s) Requested"), s.SponsorColorRequest, FilterTextFull)
        .comments("txtSponsorComments", tr("Comments"), s.SponsorComments, FilterTextWide)
        .column(2)
        .frame(tr("Teams and Pledge"), 1)
        .text("txtSponsorNbrOfTeams", tr("Nbr. of Teams Sponsored"), s.SponsorNbrOfTeams, FilterNumeric)
        .masked("mskedSponsorPledgeYear", tr("Pled&ge Year *"), "####", maskedBinding(s.SponsorPledgeYear))
        .money("mskedSponsorPledgeAmount", tr("Pledge A&mount *"), s.SponsorPledgeAmount)
        .money("mskedSponsorPaidAmount", tr("Amount Pa&id"), s.SponsorPaidAmount);
}

void SponsorPane::addPledgeTab(FormBuilder& builder) {
    clsSponsors& s = sponsor_;
    auto* add = new QPushButton(tr("Add Ne&w Pledge"));
    add->setObjectName(QStringLiteral("cmdAddNewPledge"));
    add->setAutoDefault(false);
    add->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    auto* hint =
        new QLabel(tr("To Delete a Previous Pledge - Right click on a row and select Delete from the Popup Menu."));
    hint->setWordWrap(true);
    builder.tab(tr("Pledge Information"))
        .frame({}, 1)
        .shown("lblPledgeSponsorName", tr("Sponsor Name"), [&s] { return s.SponsorName(); })
        .below()
        .column(2)
        .frame(tr("New/Current Pledge"), 1)
        .masked("mskedCurrentPledgeYear", tr("Pled&ge Year"), "####", maskedBinding(s.SponsorPledgeYear))
        .money("mskedCurrentPledgeAmount", tr("Pledge A&mount"), s.SponsorPledgeAmount)
        .money("mskedCurrentPaidAmount", tr("Amount Pa&id"), s.SponsorPaidAmount)
        .custom(add)
        .column(3)
        .frame(tr("Previous Pledges"), 1)
        .custom(makeGrid())
        .custom(hint);
}

Grid* SponsorPane::makeGrid() {
    const auto money = Qt::AlignRight;
    pledges_ = new Grid({{.caption = tr("Pledge Year")},
                         {.caption = tr("Pledge Amt."), .alignment = money},
                         {.caption = tr("Paid Amt."), .alignment = money}});
    pledges_->setObjectName(QStringLiteral("grdPreviousPledges"));
    pledges_->setAccessibleName(tr("Previous Pledges"));
    pledges_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    pledges_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    connect(pledges_, &Grid::menuWanted, this, &SponsorPane::offerPledgeMenu);
    return pledges_;
}
