#include "platform/widgets/SearchCombo.h"
#include "setup/clsSchoolName.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

class SetupTest : public testing::Test {
protected:
    void SetUp() override { screen = running.open("frmSetup"); }
    QStringList list(const char* name) {
        auto* combo = control<SearchCombo>(screen, name);
        QStringList entries;
        for (int i = 0; i < combo->entryCount(); ++i) entries << combo->entryAt(i);
        return entries;
    }
    bool enabled(const char* name) { return control(screen, name)->isEnabled(); }
    void addSchool(const QString& name) {
        press(screen, "cmdAdd");
        type(screen, "txtSchoolName", name);
        press(screen, "cmdSave");
    }
    void showTab(const QString& caption) {
        auto* tabs = screen->findChild<QTabWidget*>();
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i) == caption) tabs->setCurrentIndex(i);
    }
    void showSchools() { showTab("Schools"); }

    RunningProgram running;
    Screen* screen = nullptr;
};

TEST_F(SetupTest, EveryButtonKnowsWhenItMayBePressed) {
    EXPECT_TRUE(enabled("cmdAdd") && enabled("cmdDelete") && enabled("cboCertSearchList"));
    EXPECT_FALSE(enabled("cmdSave") || enabled("cmdCancel"));
    type(screen, "txtCertOrg", "Club");
    EXPECT_TRUE(enabled("cmdSave") && enabled("cmdCancel"));
    EXPECT_FALSE(enabled("cmdAdd") || enabled("cmdDelete") || enabled("cboCertSearchList") || enabled("cmdCertMove0"));
    press(screen, "cmdCancel");
    EXPECT_NE(control<QLineEdit>(screen, "txtCertOrg")->text(), "Club");
    EXPECT_TRUE(enabled("cmdAdd"));
    showSchools();
    EXPECT_FALSE(enabled("cmdDelete")) << "there is no school yet";
    EXPECT_FALSE(enabled("txtSchoolName"));
}

TEST_F(SetupTest, SavedRecordsStandInTheListWithAccentedNamesBesideTheirPlainOnes) {
    showSchools();
    for (const char* name : {"Elm", "Écluse", "Fir", "O'Hara; 100% (A)"}) addSchool(QString::fromUtf8(name));
    EXPECT_EQ(status(screen), "Record \"O'Hara; 100 (A)\" Saved.") << "what no filter passes is not typed";
    EXPECT_EQ(list("cboSchoolList"), (QStringList{"Écluse", "Elm", "Fir", "O'Hara; 100 (A)"}));
}

TEST_F(SetupTest, FindingsComeInOneBoxAndTheFirstOneGetsTheCursor) {
    press(screen, "cmdAdd");
    running.league.dialogs.expectWarning(
        "Critical Error - Defaults Setup",
        "The Certification Name is a required entry.\nThe Certifying Organization is a required entry.");
    press(screen, "cmdSave");
    EXPECT_TRUE(control(screen, "txtCertName")->hasFocus());
    press(screen, "cmdCancel");
}

TEST_F(SetupTest, EachTabAsksForWhatItNeeds) {
    const struct {
        const char* tab;
        const char* field;
        const char* findings;
    } tabs[]{
        {"Volunteer Positions", "txtVolPosName",
         "The Volunteer Position Title Name is a required entry.\nThe Certification Name is a required entry."},
        {"Ability Ratings", "txtRatingText",
         "The Rating Text field is a required entry.\nThe Rating Value field is a required entry."},
        {"Vendors", "txtVendorName", "The Vendor Name is a required entry."},
        {"Insurance", "txtInsAgencyName",
         "The Insurance Agency Name is a required entry.\nThe Insurance Company Name is a required entry."},
        {"How Fee Paid", "txtHowFeePaidText", "The How Fee Paid Text is a required entry."},
        {"Schools", "txtSchoolName", "The School Name is a required entry."},
        {"Difficulty Ratings", "txtDifficultyRatingText", "The Difficulty Rating Text field is a required entry."}};
    for (const auto& tab : tabs) {
        SCOPED_TRACE(tab.tab);
        showTab(tab.tab);
        press(screen, "cmdAdd");
        running.league.dialogs.expectWarning("Critical Error - Defaults Setup", tab.findings);
        press(screen, "cmdSave");
        EXPECT_TRUE(control(screen, tab.field)->hasFocus());
        press(screen, "cmdCancel");
    }
}

TEST_F(SetupTest, DeletedPositionTakesItsLinksAlong) {
    const QString key = running.league.value("SELECT * FROM tblVolunteerPositions ORDER BY [VolPosName]", "VolPosId");
    for (const QString& position : {key, QStringLiteral("99")})
        running.league.database().execute("INSERT INTO tblVolToPosition ([VolId], [VolPosId]) VALUES (9, " + position +
                                          ")");
    showTab("Volunteer Positions");
    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    EXPECT_EQ(running.league.value("SELECT * FROM tblVolToPosition WHERE [DeletedFlag] = True", "VolPosId"), key);
    EXPECT_EQ(running.league.value("SELECT * FROM tblVolToPosition WHERE [DeletedFlag] = False", "VolPosId"), "99");
}

TEST_F(SetupTest, MovingTellsWhereTheListEnds) {
    const QStringList entries = list("cboCertSearchList");
    auto* name = control<QLineEdit>(screen, "txtCertName");
    press(screen, "cmdCertMove1");
    EXPECT_EQ(status(screen), "First Record");
    press(screen, "cmdCertMove3");
    EXPECT_EQ(name->text(), entries.last());
    press(screen, "cmdCertMove2");
    EXPECT_EQ(status(screen), "Last Record");
    press(screen, "cmdCertMove1");
    EXPECT_EQ(name->text(), entries[entries.size() - 2]);
    EXPECT_EQ(status(screen), "");
    auto* search = control<SearchCombo>(screen, "cboCertSearchList");
    search->setFocus();
    QTest::keyClick(search, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(search, entries[1].left(4).toLower());
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(name->text(), entries[1]);
}

TEST_F(SetupTest, DeletedCertificationTakesItsLinksAlongAndComesBackUnderItsKey) {
    const QStringList entries = list("cboCertSearchList");
    const QString query = "SELECT * FROM tblCertifications WHERE [CertificationName] = " + datafile::quoted(entries[0]);
    const QString key = running.league.value(query, "CertificationId");
    running.league.database().execute(
        "INSERT INTO tblVolunteerCertifications ([VolId], [CertificationId]) VALUES (9, " + key + ")");
    const QString question = "This will permanently delete the current record.\n\nDo you want to continue?";
    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::No, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), QStringLiteral("Record \"%1\" NOT Deleted.").arg(entries[0]));
    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes, question);
    press(screen, "cmdDelete");
    EXPECT_EQ(status(screen), QStringLiteral("Record \"%1\" Deleted.").arg(entries[0]));
    EXPECT_EQ(list("cboCertSearchList"), entries.mid(1));
    EXPECT_EQ(control<QLineEdit>(screen, "txtCertName")->text(), entries[1]);
    EXPECT_EQ(running.league.value("tblVolunteerCertifications", "DeletedFlag"), "1");
    press(screen, "cmdAdd");
    type(screen, "txtCertName", entries[0].toUpper());
    type(screen, "txtCertOrg", "Club");
    press(screen, "cmdSave");
    EXPECT_EQ(running.league.value(query, "CertificationId"), key);
    EXPECT_EQ(list("cboCertSearchList").size(), entries.size());
}

TEST_F(SetupTest, DeletingTheLastRecordLeavesBlankBoxes) {
    showSchools();
    addSchool("Elm");
    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    EXPECT_EQ(control<QLineEdit>(screen, "txtSchoolName")->text(), "");
    EXPECT_FALSE(enabled("cmdDelete"));
    addSchool("Fir");
    EXPECT_EQ(list("cboSchoolList"), QStringList{"Fir"});
}

TEST_F(SetupTest, UnsavedWorkIsOfferedWhereverTheUserGoes) {
    auto* tabs = screen->findChild<QTabWidget*>();
    type(screen, "txtCertName", "");
    running.league.dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current record?");
    running.league.dialogs.expectWarning("Critical Error - Defaults Setup");
    showSchools();
    EXPECT_EQ(tabs->currentIndex(), 0) << "what cannot be saved keeps the tab";
    running.league.dialogs.expectQuestion("Save Record?", BoxAnswer::No);
    showSchools();
    EXPECT_EQ(tabs->tabText(tabs->currentIndex()), "Schools");
    press(screen, "cmdAdd");
    type(screen, "txtSchoolName", "Elm");
    running.league.dialogs.expectQuestion("Save Record?", BoxAnswer::Yes);
    EXPECT_TRUE(screen->close());
    EXPECT_EQ(running.league.value("tblSchoolInfo", "SchoolName"), "Elm");
}

TEST_F(SetupTest, SaveThatFailsAtClosingCanBeGivenUpOrNot) {
    showSchools();
    addSchool("Ash");
    addSchool("Elm");
    type(screen, "txtSchoolName", "Fir");
    running.league.database().execute("DELETE FROM tblSchoolInfo WHERE [SchoolName] = \"Elm\"");
    const auto failing = [this](BoxAnswer answer) {
        running.league.dialogs.expectQuestion("Save Record?", BoxAnswer::Yes);
        running.league.dialogs.expectError("Save Record?",
                                           "The following error occurred while attempting to save:\n"
                                           "The record was removed in the meantime.");
        running.league.dialogs.expectQuestion(
            "Save Record?", answer,
            "If you continue the current operation, \nchanges to your data will be lost.\n"
            "Do you want to continue anyway?");
    };
    failing(BoxAnswer::No);
    EXPECT_FALSE(screen->close());
    failing(BoxAnswer::Yes);
    EXPECT_TRUE(screen->close());
}

TEST_F(SetupTest, ScreenThatComesForwardShowsWhatOthersChanged) {
    showSchools();
    addSchool("Elm");
    clsSchoolName other(running.league.context);
    other.NewSchoolRecord();
    other.SchoolName = "Ash";
    other.SaveSchoolRecord();
    running.open("frmTeams");
    running.open("frmSetup")->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list("cboSchoolList") == QStringList{"Ash", "Elm"}; }));
    EXPECT_EQ(control<QLineEdit>(screen, "txtSchoolName")->text(), "Elm");
}

TEST_F(SetupTest, MaskedTextsAreKeptAsShownAndUntouchedMasksAsNothing) {
    const struct {
        const char* tab;
        const char* table;
        std::vector<std::array<const char*, 4>> boxes;  ///< box, typed, column, kept
    } tabs[]{{"Vendors",
              "tblVendor",
              {{"txtVendorName", "Acme", "VendorName", "Acme"},
               {"mskedVendorContactPhone", "5035550100", "VendorContactPhone", "(503) 555-0100"},
               {"mskedVendorZipCode", "97050", "VendorZipCode", "97050"},
               {"cboVendorStateId", "or", "VendorStateId", "OR"},
               {"mskedVendorCreditLimit", "1250", "VendorCreditLimit", "1250"}}},
             {"Insurance",
              "tblInsurance",
              {{"txtInsAgencyName", "Acme", "InsAgencyName", "Acme"},
               {"txtInsCompanyName", "Bolt", "InsCompanyName", "Bolt"},
               {"mskedInsPhone", "", "InsPhone", ""},
               {"mskedInsFax", "5550100", "InsFax", "(555) 010-0"},
               {"mskedInsZipCode", "970501234", "InsZipCode", "97050-1234"}}}};
    for (const auto& tab : tabs) {
        SCOPED_TRACE(tab.tab);
        showTab(tab.tab);
        press(screen, "cmdAdd");
        for (const auto& box : tab.boxes) type(screen, box[0], box[1]);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        press(screen, "cmdSave");
        EXPECT_EQ(status(screen), "Record \"Acme\" Saved.");
        for (const auto& box : tab.boxes) EXPECT_EQ(running.league.value(tab.table, box[2]), box[3]) << box[0];
    }
}

TEST_F(SetupTest, NameOfALiveRecordIsRefused) {
    showSchools();
    for (const char* name : {"Elm", "Fir"}) addSchool(name);
    const auto refuse = [&](const QString& name) {
        type(screen, "txtSchoolName", name);
        running.league.dialogs.expectWarning(
            "Critical Error - Defaults Setup",
            name + " already exists.\nDuplicates are not allowed.\nPlease enter another name.");
        press(screen, "cmdSave");
        EXPECT_TRUE(control(screen, "txtSchoolName")->hasFocus());
        press(screen, "cmdCancel");
    };
    press(screen, "cmdAdd");
    refuse("ELM");
    EXPECT_EQ(control<QLineEdit>(screen, "txtSchoolName")->text(), "Fir");
    refuse("Elm");
    type(screen, "txtSchoolName", "FIR");
    press(screen, "cmdSave");
    EXPECT_EQ(list("cboSchoolList"), (QStringList{"Elm", "FIR"})) << "its own name may be written otherwise";
    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    press(screen, "cmdDelete");
    addSchool("Fir");
    EXPECT_EQ(running.league.count("tblSchoolInfo"), 2) << "a deleted one's name is free and brings it back";
}

TEST_F(SetupTest, KeysOfTheSizesGoToTheGarmentInHand) {
    showTab("Uniform Sizes");
    control(screen, "cboHatSizeSearchList")->setFocus();
    QTest::keyClick(screen, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(control(screen, "txtHatSizeText")->hasFocus());
    EXPECT_EQ(control<QLineEdit>(screen, "txtHatSizeText")->text(), "");
    type(screen, "txtHatSizeText", "Aaa");
    type(screen, "txtHatSize", "A");
    control(screen, "cmdSave")->setFocus();
    QTest::keyClick(control(screen, "cmdSave"), Qt::Key_Space);
    EXPECT_TRUE(control(screen, "cboHatSizeSearchList")->hasFocus()) << "ready for the next hat";
    running.league.dialogs.expectQuestion("Delete Confirmation", BoxAnswer::Yes);
    QTest::keyClick(screen, Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(status(screen), "Record \"A - Aaa\" Deleted.");
}

TEST_F(SetupTest, EachGarmentHasItsOwnSizesAndWaitsWhileAnotherIsEdited) {
    showTab("Uniform Sizes");
    EXPECT_FALSE(control(screen, "cmdAdd")->isVisible());
    const struct {
        const char* tag;
        const char* called;
    } garments[]{{"PantSize", "Pants"},
                 {"ShirtSize", "Shirt"},
                 {"HatSize", "Hat"},
                 {"SocksSize", "Socks"},
                 {"ShoeSize", "Shoe"}};
    for (const auto& each : garments) {
        SCOPED_TRACE(each.tag);
        const QString tag = each.tag;
        const auto named = [&tag](const char* pattern) { return QString(pattern).arg(tag).toLatin1(); };
        const QStringList before = list(named("cbo%1SearchList"));
        press(screen, named("cmdAdd%1"));
        running.league.dialogs.expectWarning("Critical Error - Defaults Setup",
                                             QString("The %1 Size Description is a required entry.\n"
                                                     "The %1 Size Designator is a required entry.")
                                                 .arg(each.called));
        press(screen, "cmdSave");
        for (const auto& other : garments)
            EXPECT_EQ(control(screen, QString("txt%1Text").arg(other.tag).toLatin1())->isEnabled(), tag == other.tag);
        type(screen, named("txt%1Text"), "Aaa Small");
        type(screen, named("txt%1"), "AS");
        press(screen, "cmdSave");
        EXPECT_EQ(status(screen), "Record \"AS - Aaa Small\" Saved.");
        EXPECT_EQ(list(named("cbo%1SearchList")), QStringList{"Aaa Small"} + before);
        for (const auto& other : garments) EXPECT_TRUE(enabled(QString("cmdAdd%1").arg(other.tag).toLatin1()));
        for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
            running.league.dialogs.expectQuestion("Delete Confirmation", answer);
            press(screen, named("cmdDelete%1"));
            EXPECT_EQ(status(screen),
                      QString("Record \"AS - Aaa Small\" %1Deleted.").arg(answer == BoxAnswer::No ? "NOT " : ""));
        }
        EXPECT_EQ(list(named("cbo%1SearchList")), before);
    }
    press(screen, "cmdAddShoeSize");
    running.league.dialogs.expectQuestion("Save Record?", BoxAnswer::No);
    showSchools();
    EXPECT_TRUE(control(screen, "cmdAdd")->isVisible()) << "the last garment's work was offered to be saved";
}

}  // namespace
