#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/report/ReportFiller.h"
#include "reports/Reports.h"
#include "reports/StoreRows.h"
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
    EXPECT_EQ(bandsOf(Reports::rptPlayerReport7(input), database), expected);
    input.globals.defaultDateFormat.clear();
    EXPECT_EQ(Reports::rptPlayerReport7(input).asOf, "4/22/26");
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
        int runnable = 0;
        for (int option = 0; option < int(options.size()); ++option) {
            const QAbstractButton* offered = button("optReportOptions", option);
            runnable += offered->isEnabled();
            EXPECT_NE(offered->isEnabled(), offered->toolTip().contains("later version")) << caption.toStdString();
            EXPECT_FALSE(offered->isChecked() && !offered->isEnabled()) << caption.toStdString();
        }
        EXPECT_EQ(print()->isEnabled(), runnable > 0) << caption.toStdString();
    }
}

TEST_F(ReportsTest, PrintButtonSaysWhereTheReportGoes) {
    const std::vector<std::tuple<QString, QString, bool>> expected{
        {"Print", "&Print", true},
        {"Print Preview", "&Preview", true},
        {"File: RTF Format", "&RTF File", false},
        {"File: PDF Format", "&PDF File", true},
        {"File: HTML Format", "HT&ML File", false},
        {"File: Excel Format", "&Excel File", false},
    };
    open();
    EXPECT_EQ(print()->text(), "&Preview") << "nothing goes to paper unasked";
    for (int index = 0; index < int(expected.size()); ++index) {
        const auto& [caption, onButton, exists] = expected[size_t(index)];
        QAbstractButton* destination = button("optReportDestination", index);
        EXPECT_EQ(destination->text(), caption);
        EXPECT_EQ(destination->isEnabled(), exists) << caption.toStdString();
        EXPECT_NE(exists, destination->toolTip().contains("later version")) << caption.toStdString();
        const QString before = print()->text();
        chooseDestination(index);
        EXPECT_EQ(print()->text(), exists ? onButton : before);
    }
}

TEST_F(ReportsTest, WritesAPdfFile) {
    addPlayer("PlayerLastName, PlayerFirstName", R"("Peña", "Ann")");
    open();
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
    QWidget* at = screen->focusWidget();
    ASSERT_EQ(at, button("optReportSelection", 12)) << "the first category with a report";
    QTest::keyClick(at, Qt::Key_Up);
    EXPECT_TRUE(button("optReportSelection", 11)->isChecked());
    EXPECT_EQ(button("optReportOptions", 0)->text(), "Uniform Sizes -- All Teams");
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), button("optReportOptions", 2));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), button("optReportDestination", 1)) << "not the first, but the selected one";
    QTest::keyClick(screen->focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(button("optReportDestination", 0)->isChecked());
    dialogs.expectForm("printDialog", [](QDialog& shown) { shown.reject(); });
    QTest::keyClick(screen, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogs.shown().empty(); }))
        << "a button pressed by key acts a little later";
}
