#include "platform/widgets/ChoiceBox.h"
#include "setup/frmOptions.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QLineEdit>
#include <QTabWidget>

namespace {

class OptionsTest : public testing::Test {
protected:
    void SetUp() override {
        running.league.database().execute(
            "UPDATE tblOptions SET [OrganizationName] = \"Elm Valley\", [Address1] = \"1 Elm St\", "
            "[City] = \"Elm\", [StateId] = \"OR\", [PostalCode] = \"97301\"");
        running.league.database().execute(
            "UPDATE tblDefaults SET [DefaultAgeCutoffMonth] = \"1\", [DefaultAgeCutoffDay] = \"31\", "
            "[DefaultDateFormat] = \"\", [DefaultPlayerFee] = \"45\"");
    }
    /// Opens the preferences as the Tools menu does, does something in them and leaves them by Close.
    template <class Drive>
    void drive(Drive what, const char* form = "frmOptions") {
        running.league.dialogs.expectForm("frmOptions", [&](QDialog& dialog) {
            options = &dialog;
            EXPECT_TRUE(QTest::qWaitForWindowActive(options));
            what();
            if (dialog.isVisible()) dialog.reject();
        });
        expectLater();
        running.screens.show(QLatin1String(form));
    }
    /// What the driven form is going to ask: it is scripted behind the form itself.
    void expectLater() {
        if (later) later();
        later = {};
    }
    QString shown(const char* name) { return control<QLineEdit>(options, name)->text(); }
    QString option(const char* column) { return running.league.value("tblOptions", QLatin1String(column)); }
    QString kept(const char* column) { return running.league.value("tblDefaults", QLatin1String(column)); }
    void choose(const char* name, const QString& text) {
        auto* box = control<ChoiceBox>(options, name);
        ASSERT_GE(box->indexOf(text), 0) << name;
        box->setCurrentIndex(box->indexOf(text));
        Q_EMIT box->activated(box->currentIndex());
    }
    void showPage(int page) { options->findChild<QTabWidget*>()->setCurrentIndex(page); }
    bool enabled(const char* name) { return control(options, name)->isEnabled(); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Globals& globals = running.league.context.globals;
    QWidget* options = nullptr;
    std::function<void()> later;
};

TEST_F(OptionsTest, EditIsInTheGlobalsAtOnceAndCancelTakesItBack) {
    drive([&] {
        EXPECT_FALSE(enabled("cmdSave") || enabled("cmdCancel") || enabled("cmdBackupNow") || enabled("cmdCompactNow"));
        EXPECT_TRUE(enabled("cmdClose"));
        EXPECT_EQ(globals.organizationName, "Elm Valley") << "opening reads the file";
        type(options, "txtOrganizationName", "Oak Hill");
        EXPECT_EQ(globals.organizationName, "Oak Hill");
        EXPECT_TRUE(enabled("cmdSave") && enabled("cmdCancel"));
        EXPECT_FALSE(enabled("cmdClose"));
        press(options, "cmdCancel");
        EXPECT_EQ(shown("txtOrganizationName"), "Elm Valley");
        EXPECT_EQ(globals.organizationName, "Elm Valley");
        EXPECT_FALSE(enabled("cmdSave"));

        showPage(1);
        type(options, "mskedDefaultPlayerFee", "60");
        type(options, "mskedCurrentSeason", "2027");
        EXPECT_EQ(globals.defaultPlayerFee, "60");
        EXPECT_EQ(globals.currentSeasonYear, "2027");
        type(options, "mskedDefaultPlayerFee", "");
        EXPECT_EQ(globals.defaultPlayerFee, "0.00");
        choose("cboDefaultDateFormat", "dd MMM yyyy");
        EXPECT_EQ(globals.defaultDateFormat, "dd MMM yyyy");
        press(options, "cmdCancel");
        EXPECT_EQ(globals.defaultPlayerFee, "45");
        EXPECT_EQ(globals.currentSeasonYear, "2026");
        EXPECT_EQ(globals.defaultDateFormat, "M/d/yyyy") << "an empty format is this one";
        EXPECT_EQ(control<ChoiceBox>(options, "cboDefaultDateFormat")->text(), "M/d/yyyy");
    });
}

TEST_F(OptionsTest, OnePressSavesBothRecords) {
    drive([&] {
        type(options, "mskedDaytimePhone", "5035550140");
        type(options, "mskedZipCode", "97301");
        showPage(1);
        type(options, "mskedCurrentSeason", "2027");
        type(options, "mskedDefaultTeamFee", "120");
        choose("cboOrgAffiliation", "Little League");
        showPage(2);
        type(options, "txtCustomFieldLabel6", "A label that is longer than its column");
        type(options, "txtVolCustomFieldLabel1", "Shed Key");
        press(options, "cmdSave");
        EXPECT_TRUE(enabled("cmdClose"));
        EXPECT_FALSE(enabled("cmdSave"));
    });
    EXPECT_EQ(option("DaytimePhone"), "(503) 555-0140");
    EXPECT_EQ(option("EveningPhone"), "") << "an untouched mask is nothing";
    EXPECT_EQ(option("ZipCode"), "97301");
    EXPECT_EQ(option("CurrentSeasonYear"), "2027");
    EXPECT_EQ(option("OrgAffiliation"), "Little League");
    EXPECT_EQ(option("DateStamp"), "2026-04-22");
    EXPECT_EQ(kept("DefaultTeamFee"), "120");
    EXPECT_EQ(kept("RegCustomFieldLabel6"), "A label that is longer th");
    EXPECT_EQ(kept("VolCustomFieldLabel1"), "Shed Key");
    EXPECT_EQ(running.league.count("tblOptions") + running.league.count("tblDefaults"), 2);
}

TEST_F(OptionsTest, DayListFollowsTheMonth) {
    drive([&] {
        showPage(1);
        auto* day = control<ChoiceBox>(options, "cboDefaultAgeCutoffDay");
        EXPECT_EQ(day->text(), "31");
        choose("cboDefaultAgeCutoffMonth", "February");
        EXPECT_EQ(day->entryCount(), 28);
        EXPECT_EQ(day->text(), "") << "there is no such day";
        choose("cboDefaultAgeCutoffMonth", "April");
        EXPECT_EQ(day->entryCount(), 30);
        choose("cboDefaultAgeCutoffDay", "30");
        choose("cboDefaultAgeCutoffMonth", "May");
        EXPECT_EQ(day->entryCount(), 31);
        EXPECT_EQ(day->text(), "30");
        EXPECT_EQ(globals.defaultAgeCutoffMonth + u'/' + globals.defaultAgeCutoffDay, "5/30");
        press(options, "cmdCancel");
        EXPECT_EQ(day->text(), "31");
    });
}

TEST_F(OptionsTest, OrganizationIsCheckedFromItsLastBoxToItsFirst) {
    const struct {
        const char* box;
        const char* wrong;
        const char* text;
    } cases[] = {{"txtOrganizationName", "", "Please enter your Organization's Name."},
                 {"txtAddress1", " ", "Please enter your mailing address."},
                 {"txtCity", "", "Please enter your City's name."},
                 {"cboStateId", "X", "Please enter a 2 letter State Code."},
                 {"txtPostalCode", "", "Please enter at least a valid Zip/Postal Code."}};
    later = [&] {
        for (const auto& each : cases) dialogs.expectWarning("Validation Error - Registration", each.text);
        dialogs.expectWarning("Validation Error - Registration", cases[4].text);
    };
    drive([&] {
        for (const auto& each : cases) {  // each adds to what is wrong, and stands before it in the order of the check
            type(options, each.box, each.wrong);
            showPage(2);
            press(options, "cmdSave");
            EXPECT_EQ(options->findChild<QTabWidget*>()->currentIndex(), 0);
            EXPECT_TRUE(control(options, each.box)->hasFocus()) << each.box;
        }
        QTest::keyClick(options, Qt::Key_Escape);
        EXPECT_TRUE(options->isVisible());
        press(options, "cmdCancel");
    });
    EXPECT_EQ(option("City"), "Elm");
}

TEST_F(OptionsTest, ClosingWithUnsavedWorkOffersToSaveIt) {
    later = [&] { dialogs.expectQuestion("Save Record?", BoxAnswer::No, "Save the current record?"); };
    drive([&] {
        type(options, "txtCity", "Oak");
        showPage(1);
        type(options, "mskedDefaultTeamFee", "99");
        QTest::keyClick(options, Qt::Key_Escape);
        EXPECT_FALSE(options->isVisible());
    });
    EXPECT_EQ(option("City"), "Elm");
    EXPECT_EQ(globals.defaultTeamFee, "0.00") << "what was given up is no longer in the globals";
    later = [&] { dialogs.expectQuestion("Save Record?", BoxAnswer::Yes); };
    drive([&] {
        type(options, "txtCity", "Oak");
        EXPECT_TRUE(options->close());
    });
    EXPECT_EQ(option("City"), "Oak");
}

TEST_F(OptionsTest, SeasonYearIsCheckedWhereverItIsLeft) {
    const QString range = "The year you entered is not valid.\nThe valid year range is 1980 to 2050.";
    later = [&] {
        dialogs.expectWarning("Invalid Year Entered", range);
        dialogs.expectWarning("Invalid Year Entered", range);
    };
    drive([&] {
        showPage(1);
        type(options, "mskedCurrentSeason", "");
        showPage(2);
        EXPECT_EQ(shown("mskedCurrentSeason"), "2026") << "no year is this one";
        showPage(1);
        type(options, "mskedCurrentSeason", "1979");
        QTest::keyClick(control(options, "mskedCurrentSeason"), Qt::Key_Tab);
        EXPECT_TRUE(QTest::qWaitFor([&] { return control(options, "mskedCurrentSeason")->hasFocus(); }));
        press(options, "cmdSave");
        type(options, "mskedCurrentSeason", "2050");
        press(options, "cmdSave");
    });
    EXPECT_EQ(option("CurrentSeasonYear"), "2050");
}

TEST_F(OptionsTest, AnotherDataFileIsTakenForTheNextStart) {
    const QString other = running.league.folder.filePath("Other.kmr");
    makeBaseFile(other);
    running.open("frmSetup");
    later = [&] {
        dialogs.expectOpenFile("Select the location of the Kestrelmoor.kmr file...", other);
        dialogs.expectInformation(
            "Restart Kestrelmoor",
            "Please Exit and restart Kestrelmoor to initialize\nthe data with the new data file.");
        dialogs.expectQuestion("Exit?", BoxAnswer::No, "Exit Kestrelmoor now?");
        dialogs.expectInformation("Restart Kestrelmoor");
        dialogs.expectQuestion("Exit?", BoxAnswer::Yes);
    };
    drive([&] {
        showPage(1);
        EXPECT_EQ(shown("txtDefaultDatabasePath"), running.league.path());
        press(options, "cmdBrowse");
        press(options, "cmdSave");
        EXPECT_EQ(running.settings.read("Database", "Path"), other);
        EXPECT_EQ(running.league.context.dataFilePath, other);
        EXPECT_TRUE(options->isVisible());
        type(options, "txtDefaultDatabasePath", running.league.path());
        press(options, "cmdSave");
        EXPECT_FALSE(options->isVisible());
    });
    EXPECT_FALSE(running.screens.isOpen("frmSetup")) << "the program has ended";
    EXPECT_EQ(running.settings.read("Database", "Path"), running.league.path());
    EXPECT_EQ(kept("DefaultDatabasePath"), running.league.path())
        << "kept in the file that the preferences were opened from";
}

TEST_F(OptionsTest, WrongDataFileIsRefusedAndTheOldOneStays) {
    const QString text = running.league.folder.filePath("notes.txt");
    QFile notes(text);
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly) && notes.write("no league") > 0);
    notes.close();
    later = [&] {
        dialogs.expectError("Database Path Error",
                            "The Data File could not be found\nat the path that was entered.\n"
                            "Please enter the location of your\nKestrelmoor.kmr data file.");
        dialogs.expectError("Database Path Error");
        dialogs.expectOpenFile("Select the location of the Kestrelmoor.kmr file...", std::nullopt);
    };
    drive([&] {
        showPage(1);
        type(options, "mskedDefaultTeamFee", "99");
        for (const QString& path : {running.league.folder.filePath("none.kmr"), text}) {
            type(options, "txtDefaultDatabasePath", path);
            showPage(0);
            press(options, "cmdSave");
            EXPECT_EQ(options->findChild<QTabWidget*>()->currentIndex(), 1);
            EXPECT_TRUE(control(options, "txtDefaultDatabasePath")->hasFocus());
            EXPECT_EQ(kept("DefaultTeamFee"), "0.00") << "nothing of the defaults is saved";
        }
        press(options, "cmdBrowse");
        type(options, "txtDefaultDatabasePath", running.league.path().toUpper());
        press(options, "cmdSave");
        EXPECT_EQ(kept("DefaultTeamFee"), "99") << "a path that differs in case is the same";
    });
    EXPECT_EQ(running.league.context.dataFilePath, running.league.path());
    EXPECT_EQ(running.settings.read("Database", "Path"), "");
}

TEST_F(OptionsTest, CustomFieldLabelsCanBeAskedFor) {
    drive(
        [&] {
            EXPECT_TRUE(control(options, "txtVolCustomFieldLabel6")->isVisible());
            EXPECT_TRUE(control(options, "txtCustomFieldLabel1")->hasFocus());
        },
        "frmOptions.CustomFields");
}

}  // namespace
