#pragma once

#include "store/RecordClass.h"

/// The organisation and its housekeeping: the one row of tblOptions.
class OptionsRecord : public RecordClass {
public:
    explicit OptionsRecord(StoreContext& context);

    Whole OptionId{this, "OptionId", {.blank = 1}};
    Text OrganizationName{this, "OrganizationName"};
    Text OrgAffiliation{this, "OrgAffiliation"};
    Text Address1{this, "Address1"};
    Text Address2{this, "Address2"};
    Text City{this, "City"};
    Text StateId{this, "StateId"};
    Text ZipCode{this, "ZipCode"};
    Text PostalCode{this, "PostalCode"};
    Text CountryCode{this, "CountryCode"};
    Text DaytimePhone{this, "DaytimePhone"};
    Text EveningPhone{this, "EveningPhone"};
    Text EmailAddress{this, "EmailAddress"};
    Day LastBackupDate{this, "LastBackupDate", NoDate::Stamp};
    Day LastCompactDate{this, "LastCompactDate", NoDate::Stamp};
    Text CurrentSeasonYear{this, "CurrentSeasonYear"};
    Flag ShowSplashScreen{this, "ShowSplashScreen"};
    Stamps OptionsStamps{this};

    void OptionsMove(int code) { move(code); }
    void SaveOptionsRecord() { save(); }
    void SaveOptionsMergeRecord() { saveMerge(); }
    bool IsOptionsValid(bool showError) const { return isValid(showError); }
    void UndoOptionsRecord() { undo(); }
    /// Blank, but for today's dates and this year's season.
    void NewOptionsRecord();
    bool FindFirstOptionsRecord(bool show, bool load);
    bool IsOptionsDirty() const { return isDirty(); }
    bool IsOptionsNew() const { return isNew(); }
    void SetIsOptionsDirty(bool dirty) { setDirty(dirty); }
    void SetIsOptionsNew(bool isNew) { setNew(isNew); }
};

/// The defaults of new records and the labels of the custom fields: the one row of tblDefaults.
class DefaultsRecord : public RecordClass {
public:
    explicit DefaultsRecord(StoreContext& context);

    Whole DefaultsId{this, "DefaultsId", {.blank = 1}};
    Text DefaultFilePath{this, "DefaultFilePath"};
    Text DefaultDatabasePath{this, "DefaultDatabasePath"};
    Text DefaultPlayerFee{this, "DefaultPlayerFee"};
    Text DefaultSponsorFee{this, "DefaultSponsorFee"};
    Text DefaultFundRaiserFee{this, "DefaultFundRaiserFee"};
    Text DefaultTeamFee{this, "DefaultTeamFee"};
    Text DefaultCity{this, "DefaultCity"};
    Text DefaultStateId{this, "DefaultStateId"};
    Text DefaultZipCode{this, "DefaultZipCode"};
    Text DefaultPostalCode{this, "DefaultPostalCode"};
    Text DefaultAreaCode{this, "DefaultAreaCode"};
    Text DefaultDateFormat{this, "DefaultDateFormat"};
    Text DefaultAgeCutoffMonth{this, "DefaultAgeCutoffMonth"};
    Text DefaultAgeCutoffDay{this, "DefaultAgeCutoffDay"};
    Text RegCustomFieldLabel1{this, "RegCustomFieldLabel1"};
    Text RegCustomFieldLabel2{this, "RegCustomFieldLabel2"};
    Text RegCustomFieldLabel3{this, "RegCustomFieldLabel3"};
    Text RegCustomFieldLabel4{this, "RegCustomFieldLabel4"};
    Text RegCustomFieldLabel5{this, "RegCustomFieldLabel5"};
    Text RegCustomFieldLabel6{this, "RegCustomFieldLabel6"};
    Text VolCustomFieldLabel1{this, "VolCustomFieldLabel1"};
    Text VolCustomFieldLabel2{this, "VolCustomFieldLabel2"};
    Text VolCustomFieldLabel3{this, "VolCustomFieldLabel3"};
    Text VolCustomFieldLabel4{this, "VolCustomFieldLabel4"};
    Text VolCustomFieldLabel5{this, "VolCustomFieldLabel5"};
    Text VolCustomFieldLabel6{this, "VolCustomFieldLabel6"};
    Stamps DefaultsStamps{this};

    void DefaultsMove(int code) { move(code); }
    void SaveDefaultsRecord() { save(); }
    void SaveDefaultsMergeRecord() { saveMerge(); }
    bool IsDefaultsValid(bool showError) const { return isValid(showError); }
    void UndoDefaultsRecord() { undo(); }
    /// Blank, but for fees of "0.00" and the date format "MM/dd/yy".
    void NewDefaultsRecord();
    bool FindFirstDefaultsRecord(bool show, bool load);
    bool IsDefaultsDirty() const { return isDirty(); }
    bool IsDefaultsNew() const { return isNew(); }
    void SetIsDefaultsDirty(bool dirty) { setDirty(dirty); }
    void SetIsDefaultsNew(bool isNew) { setNew(isNew); }
};

/// The league's preferences, both rows.
class clsOptions final : public OptionsRecord, public DefaultsRecord {
public:
    explicit clsOptions(StoreContext& context) : OptionsRecord(context), DefaultsRecord(context) {}

    /// Loads both rows. A file that has no options or defaults row yet is a new one: it gets its first rows, with the
    /// splash on.
    void loadBoth();
    /// Puts the properties as they stand, saved or not, into the program's globals, with the fallbacks for what is
    /// missing or no number.
    void fillGlobals() const;
};

/// Loads the preferences and fills the program's globals: what the start needs of them.
void loadGlobals(StoreContext& context);
