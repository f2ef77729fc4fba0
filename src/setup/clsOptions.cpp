#include "setup/clsOptions.h"

#include "platform/text/Numbers.h"

OptionsRecord::OptionsRecord(StoreContext& context) : RecordClass(context) {
    open({.source = "tblOptions", .tag = ".clsOptions", .noRecords = "Options Table.", .badMove = "Invalid Options Move Operation."});
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
    open({.source = "tblDefaults", .tag = ".clsOptions", .noRecords = "Defaults Table.", .badMove = "Invalid Defaults Move Operation."});
}

void DefaultsRecord::NewDefaultsRecord() {
    newRecord();
    for (Text* fee : {&DefaultPlayerFee, &DefaultSponsorFee, &DefaultFundRaiserFee, &DefaultTeamFee}) *fee = "0.00";
    DefaultDateFormat = "MM/dd/yy";
}

bool DefaultsRecord::FindFirstDefaultsRecord(bool show, bool load) {
    return firstOrTell(show, load, {"Record Not Found...", "No Defaults Records found.", ""});
}

void loadGlobals(StoreContext& context) {
    clsOptions options(context);
    if (!options.FindFirstOptionsRecord(false, true)) {
        options.NewOptionsRecord();
        options.ShowSplashScreen = true;
        options.SaveOptionsRecord();
    }
    if (!options.FindFirstDefaultsRecord(false, true)) {
        options.NewDefaultsRecord();
        options.SaveDefaultsRecord();
    }
    const QDate today = context.clock.today();
    const auto numericOr = [](const QString& text, const char* otherwise) {
        return isNumeric(text) ? text : QString::fromLatin1(otherwise);
    };
    Globals& globals = context.globals;
    globals.organizationName = options.OrganizationName;
    globals.organizationAffiliation = options.OrgAffiliation;
    const bool neverBackedUp = options.LastBackupDate() == QDate(1940, 1, 1);
    globals.lastBackupDate = neverBackedUp ? today : options.LastBackupDate();
    globals.currentSeasonYear = isNumeric(options.CurrentSeasonYear()) ? options.CurrentSeasonYear() : QString::number(today.year());
    globals.showSplash = options.ShowSplashScreen;
    globals.defaultFilePath = options.DefaultFilePath;
    globals.defaultDatabasePath = options.DefaultDatabasePath;
    globals.defaultPlayerFee = numericOr(options.DefaultPlayerFee, "0.00");
    globals.defaultSponsorFee = numericOr(options.DefaultSponsorFee, "0.00");
    globals.defaultFundRaiserFee = numericOr(options.DefaultFundRaiserFee, "0.00");
    globals.defaultTeamFee = numericOr(options.DefaultTeamFee, "0.00");
    globals.defaultCity = options.DefaultCity;
    globals.defaultStateId = options.DefaultStateId;
    globals.defaultZipCode = options.DefaultZipCode;
    globals.defaultPostalCode = options.DefaultPostalCode;
    globals.defaultAreaCode = options.DefaultAreaCode;
    globals.defaultDateFormat = options.DefaultDateFormat().isEmpty() ? QStringLiteral("M/d/yyyy") : options.DefaultDateFormat();
    globals.defaultAgeCutoffMonth = numericOr(options.DefaultAgeCutoffMonth, "1");
    globals.defaultAgeCutoffDay = numericOr(options.DefaultAgeCutoffDay, "1");
}
