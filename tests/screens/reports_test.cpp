#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/report/ReportFiller.h"
#include "reports/Reports.h"
#include "reports/StoreRows.h"
#include "reports/frmReports.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

using Captions = std::vector<QString>;

QString textOfPdf(const QString& path) {
    QProcess process;
    process.start("pdftotext", {"-layout", path, "-"});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The bands of a report, one a line, with their cells set apart by "|".
QStringList bandsOf(const report::ReportDefinition& definition, const datafile::Database& database) {
    report::ReportFiller filler(definition, storeRows(database));
    QStringList lines;
    for (report::Band band; filler.next(band); band = {}) {
        QStringList cells;
        for (const report::Cell& cell : band.cells) cells << cell.text;
        lines << cells.join('|');
    }
    return lines;
}

class ReportsTest : public testing::Test {
protected:
    ReportsTest() { running.program.globals().organizationName = "Bracken Vale"; }
    void open() { screen = running.open("frmReports"); }
    void addPlayer(const QString& columns, const QString& values) {
        running.league.database().execute(
            QString("INSERT INTO tblRegistration (PlayerActive, PlayerBirthDate, %1) VALUES (True, #4-2-2012#, %2)")
                .arg(columns, values));
    }
    QAbstractButton* button(const char* name, int index) {
        return control<QAbstractButton>(screen, qPrintable(QString("%1%2").arg(name).arg(index)));
    }
    QAbstractButton* print() { return control<QAbstractButton>(screen, "cmdPrint"); }
    void choose(int category, int option) {
        button("optReportSelection", category)->click();
        button("optReportOptions", option)->click();
    }
    QComboBox* list(int index) { return control<QComboBox>(screen, qPrintable(QString("cboList%1").arg(index))); }
    QString label(int index) { return control<QLabel>(screen, qPrintable(QString("lblList%1").arg(index)))->text(); }
    QStringList entries(int index) {
        QStringList texts;
        for (int entry = 0; entry < list(index)->count(); ++entry) texts << list(index)->itemText(entry);
        return texts;
    }
    void pick(int index, const QString& entry) {
        list(index)->setCurrentIndex(list(index)->findText(entry));
        Q_EMIT list(index)->activated(list(index)->currentIndex());
    }
    void chooseDestination(int index) { button("optReportDestination", index)->click(); }
    Captions shown(const char* name, int count) {
        Captions captions;
        for (int index = 0; index < count; ++index)
            if (button(name, index)->isVisible()) captions.push_back(button(name, index)->text());
        return captions;
    }
    QString path() const { return running.league.folder.filePath("players.pdf"); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

}  // namespace

TEST_F(ReportsTest, RowsTakeTheValuesOfAQueryForWhatTheyAre) {
    const datafile::Database database = running.league.database();
    database.execute("DELETE FROM tblDivision");
    database.execute(R"(INSERT INTO tblDivision (DivName, DivComments, DateStamp, TimeStamp)
                        VALUES ("O'Neil ""Tee"" or 1 = 1?", "why?", #4-2-2026#, -5))");
    database.execute(R"(INSERT INTO tblDivision (DivName, DivComments, DateStamp, TimeStamp, DeletedFlag)
                        VALUES ("Minors", "", #4-3-2026#, 7, True))");
    const QString comments = R"(SELECT DivName, TimeStamp FROM tblDivision WHERE DivComments = "why?" AND )";
    struct Case {
        QString query;
        QVariantList values;
        QStringList names;
    };
    const QString select = "SELECT DivName, TimeStamp FROM tblDivision WHERE ";
    const Case cases[] = {
        {comments + "DivName = ?", {R"(O'Neil "Tee" or 1 = 1?)"}, {R"(O'Neil "Tee" or 1 = 1?)"}},
        {comments + "DivName = ?", {R"(x" OR "1" = "1)"}, {}},
        {select + "DateStamp >= ? AND TimeStamp = ?", {QDate(2026, 4, 3), 7}, {"Minors"}},
        {select + "DateStamp = ?", {"2026-04-03"}, {"Minors"}},
        {select + "TimeStamp < ?", {-4.5}, {R"(O'Neil "Tee" or 1 = 1?)"}},
        {select + "DeletedFlag = ?", {true}, {"Minors"}},
        {select + "TimeStamp = ?", {QVariant()}, {}},
        // A join, whose rows the data file hands out in another way.
        {"SELECT A.DivName FROM tblDivision AS A INNER JOIN tblDivision AS B ON A.DivisionId = B.DivisionId WHERE "
         "A.TimeStamp IN (?, ?) ORDER BY A.DivName",
         {-5, 7},
         {"Minors", R"(O'Neil "Tee" or 1 = 1?)"}},
    };
    const report::RowSourceFactory open = storeRows(database);
    for (const Case& each : cases) {
        const auto rows = open({each.query, each.values});
        QStringList names;
        while (rows->next()) names << rows->value(rows->column("divname")).toString();
        EXPECT_EQ(names, each.names) << each.query.toStdString();
        EXPECT_EQ(rows->column("TeamName"), -1);
    }
    EXPECT_THROW(open({select + "DivName = ?"}), datafile::Error) << "a value is missing";
}

TEST_F(ReportsTest, ActivePlayerListPrintsWhoPlaysThisSeason) {
    const datafile::Database database = running.league.database();
    database.execute("DELETE FROM tblDivision");
    database.execute(R"(INSERT INTO tblDivision (DivisionId, DivName, DivAgeCutOffMonth, DivAgeCutOffDay)
                        VALUES (1, "Minors", "4", "1"))");
    database.execute(R"(INSERT INTO tblDivision (DivisionId, DivName, DivAgeCutOffMonth, DivAgeCutOffDay)
                        VALUES (2, "Majors", "", ""))");
    database.execute(R"(INSERT INTO tblDivision (DivisionId, DivName, DeletedFlag) VALUES (3, "Gone", True))");
    const QString name = "PlayerLastName, PlayerFirstName, PlayerDivisionId";
    const QString guardians = "PlayerDadFirstName, PlayerDadLastName, PlayerMomFirstName, PlayerMomLastName";
    addPlayer(
        name +
            ", PlayerGender, PlayerAddress1, PlayerAddress2, PlayerCity, PlayerPostalCode, PlayerPhoneArea, "
            "PlayerPhone, " +
            guardians,
        R"("smith", "Bo", 1, "Male", "1 Elm", "Apt 2", "Mill", "97050", "503", "555-0101", "Al", "Smith", "Di", "Smith")");
    addPlayer(name + ", PlayerAddress2, PlayerPhoneArea, PlayerPhone, " + guardians,
              R"("Adams", "Cy ""Ace""", 2, "Box 9", "", "5550102", "Ed", "Adams", "Fay", "Jones")");
    addPlayer(name + ", PlayerPhone, " + guardians, R"("Smith", "Abe", 3, "   -    ", "", "", "Gia", "Smith")");
    addPlayer(name + ", " + guardians, R"("Young", "Zoe", 0, "Hal", "Young", "", "")");
    addPlayer(name + ", DeletedFlag", R"("Deleted", "Dan", 1, True)");
    addPlayer(name, R"("Idle", "Ivy", 1)");
    database.execute("UPDATE tblRegistration SET PlayerActive = False WHERE PlayerLastName = \"Idle\"");

    ReportInput input{.globals = running.program.globals(), .today = QDate(2026, 4, 22)};
    input.globals.defaultAgeCutoffMonth = "4";
    input.globals.defaultAgeCutoffDay = "30";
    input.globals.defaultDateFormat = "yyyy-MM-dd";
    const QStringList expected{
        "Bracken Vale",
        "|Active Player List|As Of: 2026-04-22",
        "Player Name|Birth Date|Age|Gender|Address|City|Zip/Postal|Phone|Division|Guardians",
        "Adams, Cy \"Ace\"|4/2/2012|14||Box 9|||555-0102|Majors|Ed Adams & Fay Jones",
        "Smith, Abe|4/2/2012|14||||||Not Assigned to a Division|Gia Smith",
        "smith, Bo|4/2/2012|13|Male|1 Elm, Apt 2|Mill|97050|(503) 555-0101|Minors|Al & Di Smith",
        "Young, Zoe|4/2/2012|14||||||Not Assigned to a Division|Hal Young",
        "Active Players: 4",
    };
    EXPECT_EQ(bandsOf(Reports::rptPlayerReport7(input).definition, database), expected);
    input.globals.defaultDateFormat.clear();
    EXPECT_EQ(Reports::rptPlayerReport7(input).definition.asOf, "4/22/26");
}

TEST_F(ReportsTest, EveryCategoryOffersItsOptions) {
    const std::vector<std::pair<QString, Captions>> expected{
        {"Player",
         {"Single Player", "By Division", "By Division/Team", "Not Assigned to a Team", "Player Report by School",
          "Player Report by Age", "Player Age Exception Report"}},
        {"Volunteer", {"Single Volunteer", "By Division", "By Division/Team", "By Category"}},
        {"Sponsor", {"Single Sponsor", "By Division", "By Division/Team", "Unassigned Sponsors", "Sponsor List"}},
        {"Division",
         {"Division Info.", "Team Info by Division", "Division Standings", "Division Schedule",
          "Coach/Team Parent List"}},
        {"Team",
         {"Division/Team Info", "Team/Sponsor Info", "Team Rosters", "Team Schedule", "Fee Report by Division/Team",
          "Team Medical Report", "Team Roster Sorted by Age"}},
        {"Fields", {"Single Field Report", "All Fields Report", "Field/Team Assignment", "Field Schedule"}},
        {"Ability Ratings", {"Player Rating", "Volunteer Rating", "Player By Division", "Player By Division/Team"}},
        {"Equipment", {}},
        {"Game/Match Results", {}},
        {"Mailing Labels", {"All Players", "All Volunteers", "All Sponsors"}},
        {"Schedules", {"Master Schedule", "Division Schedule", "Team Schedule", "Field Schedule"}},
        {"Uniforms",
         {"Uniform Sizes -- All Teams", "Division/Team Uniform Summary", "Uniform Sizes by Team",
          "Pants/Shirts Size Summary", "Pants/Shirts Summary by Division"}},
        {"League Reports and Forms",
         {"Registration Count", "Fee Summary", "Active Player List", "Inactive Player List", "Blank Registration Form",
          "Player Registration Form(s)", "Registration Form (Active Players)"}},
        {"Refund/Balance Due",
         {"Refund Due Summary", "Refund Due by Division/Team", "Balance Due Summary", "Balance Due by Division/Team",
          "Team Fee Report", "Balance Due Invoice"}},
    };
    open();
    for (int category = 0; category < int(expected.size()); ++category) {
        const auto& [caption, options] = expected[size_t(category)];
        EXPECT_EQ(button("optReportSelection", category)->text(), caption);
        button("optReportSelection", category)->click();
        EXPECT_EQ(shown("optReportOptions", mostReportOptions), options) << caption.toStdString();
        EXPECT_EQ(control(screen, "lblNoReports")->isVisible(), options.empty());
        EXPECT_EQ(print()->isEnabled(), !options.empty()) << caption.toStdString();
        EXPECT_EQ(control(screen, "cmdMailingLabelOptions")->isVisible(), caption == "Mailing Labels");
    }
}

TEST_F(ReportsTest, PrintButtonSaysWhereTheReportGoes) {
    const std::vector<std::pair<QString, QString>> expected{
        {"Print", "&Print"},
        {"Print Preview", "&Preview"},
        {"File: RTF Format", "&RTF File"},
        {"File: PDF Format", "&PDF File"},
        {"File: HTML Format", "HT&ML File"},
        {"File: Excel Format", "&Excel File"},
    };
    open();
    EXPECT_EQ(print()->text(), "&Preview") << "nothing goes to paper unasked";
    for (int index = 0; index < int(expected.size()); ++index) {
        const auto& [caption, onButton] = expected[size_t(index)];
        EXPECT_EQ(button("optReportDestination", index)->text(), caption);
        chooseDestination(index);
        EXPECT_EQ(print()->text(), onButton);
    }
}

TEST_F(ReportsTest, RefusesWhatIsNotChosen) {
    const QString theReport = "\nthe report can be printed or displayed.";
    const QString before = "\nbefore the report can be printed or displayed.";
    const QString both = "You must select a Division and Team option" + before;
    const QString team = "You must select a Team option before" + theReport;
    const QString field = "You must select a Field from the list before" + theReport;
    const QString division = "You must select a Division from the list before" + theReport;
    const QString player = "You must select a player from the list before" + theReport;
    const struct {
        int category, option, list;  ///< whose text is empty
        QString message;
    } cases[] = {
        {0, 0, 1, player},
        {0, 2, 2, both},
        {0, 2, 3, both},
        {0, 4, 1, "You must select a School Name from the list before" + theReport},
        {0, 5, 2, division},
        {0, 6, 2, division},
        {1, 0, 1, "You must select a Volunteer from the list before" + theReport},
        {1, 3, 1, "You must select a Volunteer Category from the list" + before},
        {2, 0, 1, "You must select a Sponsor from the list before" + theReport},
        {3, 2, 2, "You must select a Division name or All Divisions" + theReport},
        {3, 3, 2, division},
        {5, 0, 1, "You must select a Field Name from the list before" + theReport},
        {5, 2, 2, "You must select a Division Name from the list before" + theReport},
        {5, 3, 1, field},
        {6, 0, 1, "You must select a Player from the list before" + theReport},
        {6, 1, 1, "You must select a Volunteer from the list before" + theReport},
        {6, 3, 3, team},
        {10, 3, 1, field},
        {12, 5, 1, player},
        {12, 6, 2, "You must select a Division option" + before},
        {13, 1, 3, team},
        {13, 3, 2, both},
        {13, 3, 3, team},
    };
    open();
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << "category " << each.category << ", option " << each.option);
        choose(each.category, each.option);
        for (int other = 1; other <= 3; ++other) {
            if (list(other)->isEnabled() && list(other)->count() > 0) list(other)->setCurrentIndex(0);
        }
        QTest::keyClick(list(each.list), Qt::Key_Delete);
        ASSERT_EQ(list(each.list)->currentText(), "");
        dialogs.expectError("Report Option Error...", each.message);
        press(screen, "cmdPrint");
        EXPECT_EQ(QApplication::focusWidget(), list(each.list));
        dialogs.verify();
    }
}

TEST_F(ReportsTest, ListsOfferTheLiveRowsOfWhatTheOptionIsAbout) {
    const datafile::Database database = running.league.database();
    for (const char* statement : {
             R"(DELETE FROM tblDivision)",
             R"(DELETE FROM tblVolunteerPositions)",
             R"(INSERT INTO tblDivision (DivisionId, DivName) VALUES (1, "Minors"))",
             R"(INSERT INTO tblDivision (DivisionId, DivName, DeletedFlag) VALUES (2, "Gone", True))",
             R"(INSERT INTO tblDivision (DivisionId, DivName) VALUES (3, "Majors"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName) VALUES (1, "Tigers"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName) VALUES (1, "Bears"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName) VALUES (3, "Lions"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName, DeletedFlag) VALUES (1, "Gone", True))",
             R"(INSERT INTO tblVolunteer (VolLastName, VolFirstName, VolHomePhone) VALUES ("Day", "Al", "555-0101"))",
             R"(INSERT INTO tblVolunteer (VolLastName, VolFirstName, DeletedFlag) VALUES ("Gone", "Al", True))",
             R"(INSERT INTO tblSponsor (SponsorName) VALUES ("Mill"))",
             R"(INSERT INTO tblField (FieldName) VALUES ("North"))",
             R"(INSERT INTO tblSchoolInfo (SchoolName) VALUES ("Elm"))",
             R"(INSERT INTO tblVolunteerPositions (VolPosName) VALUES ("Coach"))",
         })
        database.execute(statement);
    addPlayer("PlayerLastName, PlayerFirstName, PlayerIsUmpire", R"("Young", "Zoe", True)");
    addPlayer("PlayerLastName, PlayerFirstName", R"("Adams", "Cy")");
    addPlayer("PlayerLastName, PlayerFirstName, DeletedFlag, PlayerIsUmpire", R"("Gone", "Al", True, True)");
    const struct {
        int category, option, list;
        QString label;
        QStringList entries;
        QString shown{};
    } cases[] = {
        {0, 0, 1, "Player List", {"All Players", "Adams, Cy - 4/2/2012", "Young, Zoe - 4/2/2012"}},
        {0, 0, 2, "(Not Used for this Report)", {}},
        {0, 1, 2, "Division List", {"All Divisions", "Majors", "Minors"}, "All Divisions"},
        {0, 1, 3, "(Not Used for this Report)", {}},
        {0, 2, 3, "Team List", {"All Teams"}, "All Teams"},
        {0, 4, 1, "School Name List", {"All Schools", "Elm"}},
        {1, 0, 1, "Volunteer List", {"Day, Al - 555-0101"}},
        {1, 3, 1, "Volunteer Category List", {"All Volunteer Categories", "Coach"}},
        {2, 0, 1, "Sponsor List", {"Mill"}},
        {5, 0, 1, "Field List", {"All Fields", "North"}},
        {6, 0, 1, "Player List", {"Young, Zoe - 4/2/2012"}},
        {6, 1, 1, "Volunteer List", {"Day, Al - 555-0101"}},
        {9, 0, 2, "(Not Used for this Report)", {}},
    };
    open();
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << "category " << each.category << ", option " << each.option);
        choose(each.category, each.option);
        EXPECT_EQ(label(each.list), each.label);
        EXPECT_EQ(entries(each.list), each.entries);
        EXPECT_EQ(list(each.list)->currentText(), each.shown);
        EXPECT_EQ(list(each.list)->isEnabled(), !each.entries.empty());
    }
    choose(4, 2);
    pick(2, "Minors");
    EXPECT_EQ(entries(3), QStringList({"All Teams", "Bears", "Tigers"}));
    EXPECT_EQ(list(3)->currentText(), "All Teams");
    pick(3, "Tigers");
    choose(4, 5);
    EXPECT_EQ(list(3)->currentText(), "Tigers") << "what is chosen stays for the next report";
    pick(2, "Majors");
    EXPECT_EQ(entries(3), QStringList({"All Teams", "Lions"}));

    auto* narrow = control<QAbstractButton>(screen, "chkByDivision");
    EXPECT_FALSE(narrow->isEnabled());
    choose(9, 0);
    ASSERT_TRUE(narrow->isEnabled());
    narrow->click();
    EXPECT_EQ(label(2), "Select by Division");
    button("optReportOptions", 1)->click();
    EXPECT_EQ(label(1), "Select by Category");
    EXPECT_EQ(entries(1), QStringList({"All Volunteer Categories", "Coach"}));
}

TEST_F(ReportsTest, ListsFollowWhatOtherScreensChange) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    addPlayer("PlayerLastName, PlayerFirstName", R"("Adams", "Cy")");
    addPlayer("PlayerLastName, PlayerFirstName", R"("Young", "Zoe")");
    QEvent comesBack(QEvent::ActivationChange);
    QApplication::sendEvent(screen, &comesBack);
    pick(1, "Young, Zoe - 4/2/2012");
    addPlayer("PlayerLastName, PlayerFirstName", R"("Baker", "Di")");
    QApplication::sendEvent(screen, &comesBack);
    EXPECT_EQ(list(1)->count(), 4);
    EXPECT_EQ(list(1)->currentText(), "Young, Zoe - 4/2/2012");
}

TEST_F(ReportsTest, ReportIsAboutTheDivisionAndTeamChosen) {
    const datafile::Database database = running.league.database();
    database.execute("DELETE FROM tblDivision");
    for (const char* division : {"1, 'Minors'", "2, 'Majors'"})
        database.execute(QString("INSERT INTO tblDivision (DivisionId, DivName) VALUES (%1)").arg(division));
    for (const char* team : {"1, 1, 'Bears'", "2, 2, 'Bears'", "3, 2, 'Lions'"})
        database.execute(QString("INSERT INTO tblTeam (TeamId, DivisionId, TeamName) VALUES (%1)").arg(team));
    for (const char* player : {"'Minor', 'A', 1, 1", "'Major', 'B', 2, 2", "'Lion', 'C', 2, 3"})
        addPlayer("PlayerLastName, PlayerFirstName, PlayerDivisionId, PlayerTeamId", player);
    const struct {
        QString division, team;
        QStringList players;
    } cases[] = {
        {"All Divisions", "All Teams", {"Major, B", "Lion, C", "Minor, A"}},
        {"Majors", "All Teams", {"Major, B", "Lion, C"}},
        {"Majors", "Bears", {"Major, B"}},
        {"Minors", "Bears", {"Minor, A"}},
    };
    open();
    choose(4, 2);
    chooseDestination(3);
    for (const auto& each : cases) {
        pick(2, each.division);
        pick(3, each.team);
        dialogs.expectSaveFile("Save Report", path());
        press(screen, "cmdPrint");
        const QString text = textOfPdf(path());
        for (const QString player : {"Major, B", "Lion, C", "Minor, A"})
            EXPECT_EQ(text.contains(player), each.players.contains(player))
                << player.toStdString() << " of " << each.division.toStdString() << ' ' << each.team.toStdString();
    }
}

TEST_F(ReportsTest, UnknownCategoryIsTold) {
    open();
    dialogs.expectError("Report Selection Error",
                        "There has been an error in the selection.\nPlease notify Kestrelmoor Software of this error.");
    static_cast<frmReports*>(screen)->showCategory(14);
}

TEST_F(ReportsTest, BalanceDueInvoiceIsOfferedAndDoesNothing) {
    open();
    choose(13, 5);
    EXPECT_TRUE(print()->isEnabled());
    press(screen, "cmdPrint");
    dialogs.verify();
}

TEST_F(ReportsTest, ReportThatChecksItselfOpensNoEmptyPreview) {
    running.league.database().execute("DELETE FROM tblDivision");
    open();
    choose(11, 4);
    for (const int destination : {0, 1, 3}) {
        chooseDestination(destination);
        dialogs.expectInformation("No Data to Report", "No Data to Report - No Divisions have been Defined.");
        press(screen, "cmdPrint");
        dialogs.verify();
    }
}

TEST_F(ReportsTest, WritesAPdfFile) {
    addPlayer("PlayerLastName, PlayerFirstName", R"("Peña", "Ann")");
    open();
    choose(12, 2);
    chooseDestination(3);
    dialogs.expectSaveFile("Save Report", path());
    press(screen, "cmdPrint");
    const FileRequest request = dialogs.lastShown().request;
    EXPECT_EQ(request.filters, "Portable Document Format (*.pdf)|*.pdf");
    EXPECT_EQ(request.defaultSuffix, ".pdf");
    const QString text = textOfPdf(path());
    for (const char* part : {"Bracken Vale", "Active Player List", "Peña, Ann", "Active Players: 1", "Page 1 of 1"})
        EXPECT_TRUE(text.contains(part)) << part << " in\n" << text.toStdString();
    EXPECT_TRUE(status(screen).contains(path()));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ReportsTest, WritesNoFileWithoutDataOrWhenTheDialogIsCancelledOrTheFolderIsMissing) {
    open();
    choose(12, 2);
    chooseDestination(3);
    dialogs.expectSaveFile("Save Report", path());
    dialogs.expectInformation("No Data to Report", "No data available for report.");
    press(screen, "cmdPrint");
    EXPECT_FALSE(QFile::exists(path()));

    addPlayer("PlayerLastName, PlayerFirstName", R"("Peña", "Ann")");
    dialogs.expectSaveFile("Save Report", {});
    press(screen, "cmdPrint");
    EXPECT_FALSE(QFile::exists(path()));

    dialogs.expectSaveFile("Save Report", running.league.folder.filePath("missing/players.pdf"));
    dialogs.expectError("Active Player List");
    press(screen, "cmdPrint");
    EXPECT_TRUE(dialogs.lastShown().text.contains("missing/players.pdf"));
    EXPECT_EQ(status(screen), "");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ReportsTest, DialogsForPreviewPrintAndPrinterOpenAndClose) {
    const std::pair<int, const char*> cases[] = {{1, "ReportPreview"}, {0, "printDialog"}};
    open();
    choose(12, 2);
    for (const auto& [destination, form] : cases) {
        chooseDestination(destination);
        dialogs.expectForm(form, [](QDialog& shown) { shown.reject(); });
        press(screen, "cmdPrint");
    }
    dialogs.expectForm("pageSetupDialog", [](QDialog& shown) { shown.reject(); });
    press(screen, "cmdPrintSetup");
    dialogs.verify();
    press(screen, "cmdClose");
    EXPECT_FALSE(running.screens.isOpen("frmReports"));
}

TEST_F(ReportsTest, NeedsNoMouse) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    ASSERT_EQ(screen->focusWidget(), button("optReportSelection", 0));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(button("optReportOptions", 0)->text(), "Single Volunteer");
    QTest::keyClick(screen->focusWidget(), Qt::Key_Up);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), button("optReportOptions", 0));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(button("optReportOptions", 1)->isChecked());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), list(2)) << "not the first list, which this report does not use";
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), button("optReportDestination", 1)) << "not the first, but the selected one";
    QTest::keyClick(screen->focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(button("optReportDestination", 0)->isChecked());
    dialogs.expectForm("printDialog", [](QDialog& shown) { shown.reject(); });
    QTest::keyClick(screen, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogs.shown().empty(); }))
        << "a button pressed by key acts a little later";
}
