#include "setup/clsOptions.h"

#include "platform/text/Numbers.h"

OptionsRecord::OptionsRecord(StoreContext& context) : RecordClass(context) {
    open({.source = "tblOptions",
          .tag = ".clsOptions",
          .noRecords = "Options Table.",
          .badMove = "Invalid Options Move Operation."});
}

void OptionsRecord::NewOptionsRecord() {
    newRecord();
    LastBackupDate = context().clock.today();
    LastCompactDate = context().clock.today();
    CurrentSeasonYear = QString::number(context().clock.today().year());
}

bool OptionsRecord::FindFirstOptionsRecord(bool show, bool load) {
    return firstOrTell(show, load, {"Record Not Found...", "No Options Records found.", ""});
}

DefaultsRecord::DefaultsRecord(StoreContext& context) : RecordClass(context) {
    open({.source = "tblDefaults",
          .tag = ".clsOptions",
          .noRecords = "Defaults Table.",
          .badMove = "Invalid Defaults Move Operation."});
}

void DefaultsRecord::NewDefaultsRecord() {
    newRecord();
    for (Text* fee : {&DefaultPlayerFee, &DefaultSponsorFee, &DefaultFundRaiserFee, &DefaultTeamFee}) *fee = "0.00";
    DefaultDateFormat = "MM/dd/yy";
}

bool DefaultsRecord::FindFirstDefaultsRecord(bool show, bool load) {
    return firstOrTell(show, load, {"Record Not Found...", "No Defaults Records found.", ""});
}

void clsOptions::loadBoth() {
    if (!FindFirstOptionsRecord(false, true)) {
        NewOptionsRecord();
        ShowSplashScreen = true;
        SaveOptionsRecord();
    }
    if (!FindFirstDefaultsRecord(false, true)) {
        NewDefaultsRecord();
        SaveDefaultsRecord();
    }
}

void clsOptions::fillGlobals() const {
    const QDate today = OptionsRecord::context().clock.today();
    const auto numericOr = [](const QString& text, const QString& otherwise) {
        return isNumeric(text) ? text : otherwise;
    };
    const QString none = QStringLiteral("0.00");
    const QString first = QStringLiteral("1");
    Globals& globals = OptionsRecord::context().globals;
    globals.organizationName = OrganizationName;
    globals.organizationAffiliation = OrgAffiliation;
    globals.lastBackupDate = LastBackupDate() == QDate(1940, 1, 1) ? today : LastBackupDate();
    globals.currentSeasonYear = numericOr(CurrentSeasonYear, QString::number(today.year()));
    globals.showSplash = ShowSplashScreen;
    globals.defaultFilePath = DefaultFilePath;
    globals.defaultDatabasePath = DefaultDatabasePath;
    globals.defaultPlayerFee = numericOr(DefaultPlayerFee, none);
    globals.defaultSponsorFee = numericOr(DefaultSponsorFee, none);
    globals.defaultFundRaiserFee = numericOr(DefaultFundRaiserFee, none);
    globals.defaultTeamFee = numericOr(DefaultTeamFee, none);
    globals.defaultCity = DefaultCity;
    globals.defaultStateId = DefaultStateId;
    globals.defaultZipCode = DefaultZipCode;
    globals.defaultPostalCode = DefaultPostalCode;
    globals.defaultAreaCode = DefaultAreaCode;
    globals.defaultDateFormat = DefaultDateFormat().isEmpty() ? QStringLiteral("M/d/yyyy") : DefaultDateFormat();
    globals.defaultAgeCutoffMonth = numericOr(DefaultAgeCutoffMonth, first);
    globals.defaultAgeCutoffDay = numericOr(DefaultAgeCutoffDay, first);
}

void loadGlobals(StoreContext& context) {
    clsOptions options(context);
    options.loadBoth();
    options.fillGlobals();
}
