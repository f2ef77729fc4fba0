#include "platform/text/Dates.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "setup/frmOptions.h"
#include "shell/Bound.h"
#include "shell/Choices.h"
#include "shell/MonthDay.h"
#include "shell/Program.h"
#include "store/Schema.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

// The pages of the preferences.

namespace {

QPushButton* plainButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return button;
}

QLabel* note(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

}  // namespace

void frmOptions::addOrganizationPage(FormBuilder& builder) {
    OptionsRecord& o = options_;
    builder.tab(tr("Organization"))
        .frame(tr("Organization"))
        .span(2)
        .text("txtOrganizationName", tr("Organization &Name *"), o.OrganizationName, FilterTextWide)
        .span(2)
        .text("txtAddress1", tr("&Address 1 *"), o.Address1, FilterTextWide)
        .span(2)
        .text("txtAddress2", tr("Address &2"), o.Address2, FilterTextWide)
        .text("txtCity", tr("Ci&ty *"), o.City, FilterTextFull)
        .choice("cboStateId", tr("State/Pro&v. *"), o.StateId, stateIds(program_),
                ChoiceBox::FreeText | ChoiceBox::UpperCase, FilterTextFull)
        .masked("mskedZipCode", tr("&Zip Code *"), zipMask, maskedBinding(o.ZipCode))
        .text("txtPostalCode", tr("or &Postal Code *"), o.PostalCode, FilterTextFull)
        .choice("cboCountryCode", tr("Countr&y"), o.CountryCode, {"Canada", "USA"},
                ChoiceBox::FreeText | ChoiceBox::EmptyFirst, FilterTextFull)
        .frame(tr("Contact"))
        .masked("mskedDaytimePhone", tr("&Daytime Phone"), phoneMask, maskedBinding(o.DaytimePhone))
        .masked("mskedEveningPhone", tr("&Evening Phone"), phoneMask, maskedBinding(o.EveningPhone))
        .span(2)
        .text("txtEmailAddress", tr("E&mail Address"), o.EmailAddress, FilterTextFull);
}

void frmOptions::addDefaultsPage(FormBuilder& builder) {
    OptionsRecord& o = options_;
    DefaultsRecord& d = defaults_;
    Text& format = d.DefaultDateFormat;
    builder.tab(tr("Defaults"))
        .column()
        .frame(tr("Season"), 1)
        .masked("mskedCurrentSeason", tr("Season &Year"), "####", o.CurrentSeasonYear)
        .choice("cboOrgAffiliation", tr("Aff&iliation"), o.OrgAffiliation,
                listOf(program_,
                       "SELECT DISTINCT[OrganizationName] FROM tblOfficialDivisionNames ORDER BY [OrganizationName]",
                       "OrganizationName"))
        .choice("cboDefaultDateFormat", tr("Da&te Format"),
                Binding([&format] { return format().isEmpty() ? QStringLiteral("M/d/yyyy") : format(); },
                        [&format](const QString& value) { format = value; }),
                {"MM/dd/yyyy", "MM/dd/yy", "M/d/yy", "M/d/yyyy", "yy/MM/dd", "yyyy-MM-dd", "dd-MMM-yy", "dd MMM yy",
                 "dd MMM yyyy"},
                ChoiceBox::ListOnly)
        .choice("cboDefaultAgeCutoffMonth", tr("Age Cutoff &Month"), monthBinding(d.DefaultAgeCutoffMonth),
                monthNames(), ChoiceBox::ListOnly)
        .choice("cboDefaultAgeCutoffDay", tr("Age Cutoff &Day"),
                dayBinding(d.DefaultAgeCutoffDay, d.DefaultAgeCutoffMonth), daysOfMonth(d.DefaultAgeCutoffMonth),
                ChoiceBox::ListOnly)
        .column()
        .frame(tr("Fees"), 2)
        .money("mskedDefaultPlayerFee", tr("P&layer"), d.DefaultPlayerFee)
        .money("mskedDefaultSponsorFee", tr("Spo&nsor"), d.DefaultSponsorFee)
        .money("mskedDefaultTeamFee", tr("T&eam"), d.DefaultTeamFee)
        .money("mskedDefaultFundRaiserFee", tr("&Fund Raiser"), d.DefaultFundRaiserFee)
        .frame(tr("Address of New Records"), 2)
        .span(2)
        .text("txtDefaultCity", tr("City"), d.DefaultCity, FilterTextFull)
        .choice("cboDefaultStateId", tr("State/Pro&v."), d.DefaultStateId, stateIds(program_),
                ChoiceBox::FreeText | ChoiceBox::UpperCase, FilterTextFull)
        .masked("mskedDefaultZipCode", tr("&Zip Code"), zipMask, maskedBinding(d.DefaultZipCode))
        .text("txtDefaultPostalCode", tr("&Postal Code"), d.DefaultPostalCode, FilterTextFull)
        .text("txtDefaultAreaCode", tr("&Area Code"), d.DefaultAreaCode, FilterNumeric)
        .below();
    addDataFileFrame(builder);
}

void frmOptions::addDataFileFrame(FormBuilder& builder) {
    DefaultsRecord& d = defaults_;
    auto* browseButton = plainButton(QStringLiteral("cmdBrowse"), tr("&Browse..."));
    connect(browseButton, &QPushButton::clicked, this, &frmOptions::browse);
    const auto lastBackup = [this] {
        const QDate date = options_.LastBackupDate;
        return date == QDate(1940, 1, 1) ? tr("Never") : formatDate(date, QStringLiteral("m-d-yy"));
    };
    builder.frame(tr("Data File"), 3)
        .span(2)
        .text("txtDefaultDatabasePath", tr("Data File Pat&h"),
              Binding([this] { return path_; },
                      [this, &d](const QString& path) { path_ = path, d.DefaultDatabasePath = path; },
                      d.DefaultDatabasePath.size()))
        .custom(browseButton)
        .row()
        .span(3)
        .shown("lblDefaultFilePath", tr("Default Folder"),
               [&d] { return d.DefaultFilePath().isEmpty() ? tr("Not set") : d.DefaultFilePath(); })
        .row()
        .shown("lblDatabaseVersionNumber", tr("Database"), [] { return GetCurrentDBVersion(); })
        .shown("lblLastBackupDate", tr("Last Backup"), lastBackup);
    const struct {
        const char* what;
        QString caption;
        QString buttonCaption;
    } chores[] = {{"Backup", tr("Days between Backups"), tr("Backup Now")},
                  {"Compact", tr("Days between Compactions"), tr("Compact Now")}};
    for (const auto& chore : chores) {
        const QLatin1String what(chore.what);
        auto* days = new QSpinBox;
        days->setObjectName(QStringLiteral("spn%1DatabaseDays").arg(what));
        days->findChild<QLineEdit*>()->setObjectName(QStringLiteral("txt%1DatabaseDays").arg(what));
        days->setAccessibleName(chore.caption);
        days->setMaximum(999);
        days->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        auto* button = plainButton(QStringLiteral("cmd%1Now").arg(what), chore.buttonCaption);
        button->setEnabled(false);
        auto* label = new QLabel(chore.caption);
        label->setBuddy(days);
        auto* both = new QWidget;
        auto* row = new QHBoxLayout(both);
        row->setContentsMargins({});
        row->addWidget(days);
        row->addWidget(button);
        row->addStretch(1);
        builder.row().custom(label).span(2).custom(both);
    }
    builder.row().span(3).custom(
        note(tr("Nothing is backed up or compacted by itself: use Backup, Restore and Merge on the startup panel.")));
}

void frmOptions::addCustomFieldsPage(FormBuilder& builder) {
    DefaultsRecord& d = defaults_;
    auto* message =
        note(tr("Each player and each volunteer has six fields for whatever your league wants to know. Give them "
                "labels of up to 25 characters here; a field without a label of yours keeps its usual one."));
    message->setObjectName(QStringLiteral("txtCustomFieldMessage"));
    builder.tab(tr("Custom Fields")).frame({}, 1).custom(message).below();
    const struct {
        const char* prefix;
        QString title;
        std::array<Text*, 6> labels;
    } sides[] = {{"txtCustomFieldLabel",
                  tr("Player Labels"),
                  {&d.RegCustomFieldLabel1, &d.RegCustomFieldLabel2, &d.RegCustomFieldLabel3, &d.RegCustomFieldLabel4,
                   &d.RegCustomFieldLabel5, &d.RegCustomFieldLabel6}},
                 {"txtVolCustomFieldLabel",
                  tr("Volunteer Labels"),
                  {&d.VolCustomFieldLabel1, &d.VolCustomFieldLabel2, &d.VolCustomFieldLabel3, &d.VolCustomFieldLabel4,
                   &d.VolCustomFieldLabel5, &d.VolCustomFieldLabel6}}};
    bool hasKeys = true;
    for (const auto& side : sides) {
        builder.column().frame(side.title, 1);
        int number = 0;
        for (Text* label : side.labels) {
            ++number;
            builder.text(QLatin1String(side.prefix) + QString::number(number),
                         (hasKeys ? tr("Label &%1") : tr("Label %1")).arg(number), *label, FilterTextWide);
        }
        hasKeys = false;
    }
}
