#include "setup/frmOptions.h"

#include "platform/text/Numbers.h"
#include "platform/text/Texts.h"
#include "platform/widgets/ButtonRow.h"
#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/FormBuilder.h"
#include "platform/widgets/FormLayout.h"
#include "shell/MonthDay.h"
#include "shell/Program.h"
#include "shell/Screens.h"
#include "shell/StartRoutine.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int organizationPage = 0;
constexpr int defaultsPage = 1;
constexpr const char* firstFields[] = {"txtOrganizationName", "mskedCurrentSeason", "txtCustomFieldLabel1"};

}  // namespace

frmOptions::frmOptions(Program& program, Page page)
    : program_(program), record_(program.store), path_(program.store.dataFilePath), form_(new Form(this)) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(tr("Kestrelmoor - Program Preferences"));
    record_.loadBoth();
    record_.fillGlobals();
    FormBuilder builder(form_);
    addOrganizationPage(builder);
    addDefaultsPage(builder);
    addCustomFieldsPage(builder);
    form_->refresh();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->addWidget(form_, 1);
    layout->addWidget(buttonRow());
    tabs_ = form_->findChild<QTabWidget*>();
    page_ = static_cast<int>(page);
    form_->focusField(QLatin1String(firstFields[page_]));
    connect(tabs_, &QTabWidget::currentChanged, this, &frmOptions::changePage);
    connect(form_, &Form::changed, this, &frmOptions::edited);
    connect(form_, &Form::left, this, &frmOptions::leftField);
    showState();
    resize(820, 580);
}

QWidget* frmOptions::buttonRow() {
    auto* buttons = new ButtonRow(this);
    save_ = buttons->add("cmdSave", tr("&Save"), [this] { save(); });
    cancel_ = buttons->add("cmdCancel", tr("Can&cel"), [this] { cancel(); });
    close_ = buttons->add("cmdClose", tr("Cl&ose"), [this] { reject(); });
    return buttons_ = buttons;
}

void frmOptions::showState() {
    const bool changed = isChanged();
    save_->setEnabled(changed);
    cancel_->setEnabled(changed);
    close_->setEnabled(!changed);
    (changed ? save_ : close_)->setDefault(true);
}

void frmOptions::edited(const QString& field) {
    record_.fillGlobals();
    if (field == u"cboDefaultAgeCutoffMonth")
        form_->findChild<ChoiceBox*>("cboDefaultAgeCutoffDay")
            ->setEntries(daysOfMonth(defaults_.DefaultAgeCutoffMonth));
    showState();
}

/// A button judges the year itself, or drops it.
void frmOptions::leftField(const QString& field) {
    const QWidget* now = focusWidget();
    const bool away = isVisible() && now && now->objectName() != field && !buttons_->isAncestorOf(now);
    if (away && field == u"mskedCurrentSeason") isYearValid();
}

void frmOptions::changePage(int page) {
    const bool leftDefaults = page_ == defaultsPage;
    page_ = page;
    if (leftDefaults && !isNumeric(options_.CurrentSeasonYear()))
        form_->findChild<QLineEdit*>("mskedCurrentSeason")->setText(QString::number(program_.clock().today().year()));
}

void frmOptions::browse() {
    const std::optional<QString> path = program_.dialogs().openFile(dataFileRequest());
    if (path && !path->isEmpty()) form_->findChild<QLineEdit*>("txtDefaultDatabasePath")->setText(*path);
}

bool frmOptions::isOrganizationValid() {
    const QRegularExpression zip(QStringLiteral("^\\d{5}(-?\\d{1,4})?$"));
    const auto blank = [](const QString& text) { return text.trimmed().isEmpty(); };
    const struct {
        bool isMissing;
        const char* field;
        QString text;
    } rules[] = {
        {blank(options_.PostalCode) && !zip.match(options_.ZipCode).hasMatch(), "txtPostalCode",
         tr("Please enter at least a valid Zip/Postal Code.")},
        {options_.StateId().trimmed().size() != 2, "cboStateId", tr("Please enter a 2 letter State Code.")},
        {blank(options_.City), "txtCity", tr("Please enter your City's name.")},
        {blank(options_.Address1), "txtAddress1", tr("Please enter your mailing address.")},
        {blank(options_.OrganizationName), "txtOrganizationName", tr("Please enter your Organization's Name.")}};
    for (const auto& rule : rules) {
        if (!rule.isMissing) continue;
        program_.dialogs().warning(tr("Validation Error - Registration"), rule.text);
        form_->focusField(QLatin1String(rule.field));
        return false;
    }
    return true;
}

bool frmOptions::isYearValid() {
    const std::optional<EntryFault> fault = checkYearEntry(options_.CurrentSeasonYear);
    if (!fault) return true;
    program_.dialogs().warning(fault->title, fault->text);
    form_->focusField(QStringLiteral("mskedCurrentSeason"));
    return false;
}

bool frmOptions::takeDataFile() {
    QString& inUse = program_.store.dataFilePath;
    if (path_.toLower() == inUse.toLower()) return true;
    const QFileInfo file(path_);
    QString refusal;
    if (!file.isFile())
        refusal =
            tr("The Data File could not be found\nat the path that was entered.\n"
               "Please enter the location of your\nKestrelmoor.kmr data file.");
    try {
        if (refusal.isEmpty()) program_.store.workspace.openDatabase(file.absoluteFilePath());
    } catch (const datafile::Error& error) {
        refusal = error.text();
    }
    if (refusal.isEmpty() && !program_.settings.write(pathSection, pathKey, file.absoluteFilePath()))
        refusal = tr("The location of the data file could not be stored in your settings.");
    if (!refusal.isEmpty()) {
        program_.dialogs().error(tr("Database Path Error"), refusal);
        form_->focusField(QStringLiteral("txtDefaultDatabasePath"));
        return false;
    }
    inUse = file.absoluteFilePath();
    program_.dialogs().information(
        tr("Restart Kestrelmoor"),
        tr("Please Exit and restart Kestrelmoor to initialize\nthe data with the new data file."));
    restartDue_ = true;
    return true;
}

/// Writes what was changed of both records; false when something of it stayed unsaved, of which the user was told.
bool frmOptions::save() {
    try {
        if (options_.isChanged()) {
            if (!isYearValid() || !isOrganizationValid()) return false;
            options_.SaveOptionsRecord();
            showState();
        }
        if (defaults_.isChanged()) {
            if (!takeDataFile()) return false;
            defaults_.SaveDefaultsRecord();
            showState();
        }
    } catch (const std::exception& error) {
        program_.dialogs().error(tr("The record was not saved"), QString::fromUtf8(error.what()));
        showState();
        return false;
    }
    if (std::exchange(restartDue_, false) && program_.dialogs().ask(tr("Exit?"), tr("Exit Kestrelmoor now?")) &&
        program_.screens.endProgram())
        accept();
    return true;
}

/// Takes back what the page in view edits; the page of defaults edits both records.
void frmOptions::cancel() { undo(page_ == organizationPage || page_ == defaultsPage, page_ != organizationPage); }

void frmOptions::undo(bool organization, bool defaults) {
    if (organization) options_.UndoOptionsRecord();
    if (defaults) {
        defaults_.UndoDefaultsRecord();
        path_ = program_.store.dataFilePath;
    }
    form_->refresh();
    form_->findChild<ChoiceBox*>("cboDefaultAgeCutoffDay")->setEntries(daysOfMonth(defaults_.DefaultAgeCutoffMonth));
    record_.fillGlobals();
    showState();
}

void frmOptions::reject() {
    if (!isOrganizationValid()) return;
    if (isChanged()) {
        const bool keeps = program_.dialogs().ask(tr("Save Record?"), tr("Save the current record?"));
        if (keeps && !save()) return;
        if (!keeps) undo(true, true);
    }
    QDialog::reject();
}
