#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QProgressDialog>
#include <QTimer>

#include "platform/files/Files.h"
#include "screens/ReportsScreen.h"

namespace {

QString textOfPdf(const QString& path) {
    QProcess process;
    process.start("pdftotext", {"-layout", path, "-"});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class ReportOutputTest : public ReportsTest {
protected:
    ReportOutputTest() {
        open();
        choose(12, 2);
    }
    void addPena() { addPlayer("PlayerLastName, PlayerFirstName", R"("Peña", "Ann")"); }
};

}  // namespace

TEST_F(ReportOutputTest, ReportIsAboutTheDivisionAndTeamChosen) {
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

TEST_F(ReportOutputTest, ReportThatChecksItselfOpensNoEmptyPreview) {
    running.league.database().execute("DELETE FROM tblDivision");
    choose(11, 4);
    for (const int destination : {0, 1, 3}) {
        chooseDestination(destination);
        dialogs.expectInformation("No Data to Report", "No Data to Report - No Divisions have been Defined.");
        press(screen, "cmdPrint");
        dialogs.verify();
    }
}

TEST_F(ReportOutputTest, EveryFileHoldsTheReport) {
    addPena();
    const struct {
        int destination;
        const char* suffix;
        QString filters;
        QByteArray begins, holds;  ///< in the format's own spelling
    } cases[] = {
        {2, "rtf", "Rich Text Format (*.rtf)|*.rtf", "{\\rtf1", "Active Players: 1"},
        {3, "pdf", "Portable Document Format (*.pdf)|*.pdf", "%PDF-", "/Title"},
        {4, "html", "HTML Document Format (*.html)|*.html", "<!DOCTYPE html>", "Active Players: 1"},
        {5, "xls", "Excel Format (*.xls)|*.xls", "\xd0\xcf\x11\xe0", "Active Players: 1"},
    };
    for (const auto& each : cases) {
        chooseDestination(each.destination);
        dialogs.expectSaveFile("Save Report", path(each.suffix));
        press(screen, "cmdPrint");
        const FileRequest request = dialogs.lastShown().request;
        EXPECT_EQ(request.filters, each.filters);
        EXPECT_EQ(request.defaultSuffix, QString(".") + each.suffix);
        EXPECT_EQ(request.fileName, "Active Player List");
        const QByteArray content = contentOf(path(each.suffix));
        EXPECT_TRUE(content.startsWith(each.begins)) << each.suffix;
        EXPECT_TRUE(content.contains(each.holds)) << each.suffix;
        EXPECT_TRUE(status(screen).contains(path(each.suffix)));
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    const QString text = textOfPdf(path());
    for (const char* part : {"Bracken Vale", "Active Player List", "Peña, Ann", "Active Players: 1", "Page 1 of 1"})
        EXPECT_TRUE(text.contains(part)) << part << " in\n" << text.toStdString();
}

TEST_F(ReportOutputTest, AsksForAgesThatAreNoNumbers) {
    running.league.database().execute("DELETE FROM tblDivision");
    running.league.database().execute(
        "INSERT INTO tblDivision (DivisionId, DivName, DivMinAge, DivMaxAge) VALUES (1, 'Minors', 'six', '10')");
    for (const char* player : {"'Eight', 'A', 1, 8", "'Nine', 'A', 1, 9", "'Eleven', 'A', 1, 11"})
        addPlayer("PlayerLastName, PlayerFirstName, PlayerDivisionId, PlayerAge", player);
    choose(0, 6);
    chooseDestination(3);
    pick(2, "Minors");
    dialogs.expectForm("frmDivisionAges", [](QDialog& form) { form.reject(); });
    press(screen, "cmdPrint");
    EXPECT_FALSE(QFile::exists(path()));
    dialogs.expectForm("frmDivisionAges", [](QDialog& form) {
        type(&form, "txtMinimumAge", "9");
        press(&form, "cmdOK");
    });
    dialogs.expectSaveFile("Save Report", path());
    press(screen, "cmdPrint");
    const QString text = textOfPdf(path());
    for (const auto& [player, listed] : {std::pair("Eight, A", true), {"Nine, A", false}, {"Eleven, A", true}})
        EXPECT_EQ(text.contains(player), listed) << player;
}

TEST_F(ReportOutputTest, PrintsWhereThePrinterOfTheDialogSaysSo) {
    addPena();
    chooseDestination(0);
    dialogs.expectForm("printDialog", [this](QDialog& shown) {
        QPrinter* printer = static_cast<QPrintDialog&>(shown).printer();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(path());
        shown.done(QDialog::Accepted);
    });
    press(screen, "cmdPrint");
    EXPECT_TRUE(textOfPdf(path()).contains("Peña, Ann"));
}

TEST_F(ReportOutputTest, ALongRunIsShownAndCanBeCancelled) {
    addPena();
    for (int doubled = 0; doubled < 13; ++doubled)
        running.league.database().execute(
            "INSERT INTO tblRegistration (PlayerActive, PlayerBirthDate, PlayerLastName, PlayerFirstName) "
            "SELECT PlayerActive, PlayerBirthDate, PlayerLastName, PlayerFirstName FROM tblRegistration");
    choose(0, 0);
    pick(1, "All Players");
    files::writeWhole(path(), "older");
    QTimer user;
    QString seen;
    QObject::connect(&user, &QTimer::timeout, &user, [&seen] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* progress = qobject_cast<QProgressDialog*>(window); progress && progress->isVisible()) {
                seen = progress->labelText();
                progress->cancel();
            }
    });
    user.start(10);
    chooseDestination(3);
    dialogs.expectSaveFile("Save Report", path());
    press(screen, "cmdPrint");
    EXPECT_TRUE(seen.startsWith("Page ")) << seen.toStdString();
    EXPECT_EQ(status(screen), "The report was cancelled.");
    EXPECT_EQ(contentOf(path()), "older");
}

TEST_F(ReportOutputTest, WritesNoFileWithoutDataOrWhenTheDialogIsCancelledOrTheFolderIsMissing) {
    chooseDestination(3);
    dialogs.expectSaveFile("Save Report", path());
    dialogs.expectInformation("No Data to Report", "No data available for report.");
    press(screen, "cmdPrint");
    EXPECT_FALSE(QFile::exists(path()));

    addPena();
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

TEST_F(ReportOutputTest, DialogsForPreviewPrintAndPrinterOpenAndClose) {
    const std::pair<int, const char*> cases[] = {{1, "ReportPreview"}, {0, "printDialog"}};
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
