#include <sys/stat.h>
#include <unistd.h>

#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include "journeys/Journey.h"
#include "support/Printing.h"
#include "support/Screens.h"

namespace {

using Outcome = StartRoutine::Outcome;

TEST_F(Journey, FirstStartLeadsToTheFirstPlayerOnThePrintedList) {
    dialogs.expectForm("frmSplash", [](QDialog& splash) { press(&splash, "cmdOK"); });
    ASSERT_EQ(parts.start(), Outcome::Running);
    EXPECT_EQ(settings.read("Database", "Path"), leaguePath());
    Screen* navigator = parts.screens().load("frmStartUp");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(navigator));
    press(navigator, "cmdRegister");

    Screen* registration = parts.screens().load("frmRegister");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(registration));
    press(registration, "cmdAdd");
    const struct {
        const char* box;
        QString text;
    } entries[]{{"txtPlayerLastName", QString::fromUtf8("Peña")},
                {"txtPlayerFirstName", QString::fromUtf8("Zoë")},
                {"txtPlayerAddress1", "18 Orchard Lane"},
                {"txtPlayerCity", "Oakville"},
                {"cboPlayerStateId", "OR"},
                {"txtPlayerPostalCode", "97050"},
                {"mskedPlayerPhone", "5550182"},
                {"dtpPlayerBirthDate", "9/14/2016"}};
    for (const auto& entry : entries) type(registration, entry.box, entry.text);
    dialogs.expectForm("frmGuardianReminder", [](QDialog& reminder) { QTest::keyClick(&reminder, Qt::Key_Return); });
    press(registration, "cmdSave");
    EXPECT_EQ(status(registration), QString::fromUtf8("Record \"Peña, Zoë - 9/14/2016\" Saved."));

    parts.screens().show("frmReports");
    Screen* reports = parts.screens().load("frmReports");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(reports));
    control<QAbstractButton>(reports, "optReportSelection12")->click();
    control<QAbstractButton>(reports, "optReportOptions2")->click();
    control<QAbstractButton>(reports, "optReportDestination3")->click();
    const QString pdf = folder.filePath("list.pdf");
    dialogs.expectSaveFile("Save Report", pdf);
    press(reports, "cmdPrint");
    QProcess process;
    process.start("pdftotext", {"-layout", pdf, "-"});
    ASSERT_TRUE(process.waitForFinished());
    const QString text = QString::fromUtf8(process.readAllStandardOutput());
    EXPECT_TRUE(text.contains(QString::fromUtf8("Peña, Zoë"))) << text.toStdString();
    EXPECT_TRUE(text.contains("9/14/2016") && text.contains("18 Orchard Lane")) << text.toStdString();
    EXPECT_TRUE(parts.screens().endProgram());
}

/// A data file with which the program cannot work, and what its user is told.
struct BadFile {
    const char* name;
    const char* told;
    std::function<QByteArray(QByteArray good)> content;
};

void PrintTo(const BadFile& file, std::ostream* out) { *out << file.name; }

class BadFileJourney : public Journey, public testing::WithParamInterface<BadFile> {};

TEST_P(BadFileJourney, IsRefusedInWordsAndLeftAsItIs) {
    const QString path = folder.filePath("league.kmr");
    const QByteArray content = GetParam().content(bytes(folder.filePath("program/" + QString(baseFileName))));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    settings.write("Database", "Path", path);
    dialogs.expectError("Kestrelmoor");
    dialogs.expectWarning("Database Update Error");
    EXPECT_EQ(parts.start(), Outcome::Ended);
    EXPECT_TRUE(dialogs.shown().front().text.contains(GetParam().told)) << dialogs.shown().front().text.toStdString();
    EXPECT_EQ(bytes(path), content);
    EXPECT_EQ(QDir(folder.path()).entryList({"league*"}), QStringList{"league.kmr"}) << "and nothing beside it";
    EXPECT_EQ(settings.read("Database", "Path"), path);
}

INSTANTIATE_TEST_SUITE_P(
    Start, BadFileJourney,
    testing::Values(BadFile{"Cut", "damaged", [](QByteArray good) { return good.left(good.size() / 2); }},
                    BadFile{"Overwritten", "damaged",
                            [](QByteArray good) { return good.replace(100, 3000, QByteArray(3000, 'x')); }},
                    BadFile{"Text", "not a Kestrelmoor data file",
                            [](const QByteArray&) { return QByteArray("Dear parents,\n").repeated(90); }},
                    BadFile{"Empty", "not a Kestrelmoor data file", [](const QByteArray&) { return QByteArray(); }},
                    BadFile{"OfAnotherProgram", "not a Kestrelmoor data file",
                            [](QByteArray good) { return good.replace(68, 4, "MPBJ"); }}),
    [](const auto& each) { return each.param.name; });

class HeldFileJourney : public Journey {
protected:
    HeldFileJourney() {
        QDir().mkdir(folder.filePath("user"));
        QFile::copy(folder.filePath("program/" + QString(baseFileName)), leaguePath());
        settings.write("Database", "Path", leaguePath());
    }
    void expectRefusal(const QString& told) {
        const QByteArray content = bytes(leaguePath());
        dialogs.expectError("Kestrelmoor");
        dialogs.expectWarning("Database Update Error");
        EXPECT_EQ(parts.start(), Outcome::Ended);
        EXPECT_TRUE(dialogs.shown().front().text.contains(told)) << dialogs.shown().front().text.toStdString();
        EXPECT_EQ(bytes(leaguePath()), content);
    }
};

TEST_F(HeldFileJourney, LockedByAnotherProcess) {
    QProcess other;
    other.start("sqlite3", {leaguePath()});
    ASSERT_TRUE(other.waitForStarted());
    other.write("BEGIN EXCLUSIVE;\nSELECT 'held';\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return other.readAllStandardOutput().contains("held"); }));
    expectRefusal("in use by another program");
    other.closeWriteChannel();
    ASSERT_TRUE(other.waitForFinished());
}

TEST_F(HeldFileJourney, ReadOnly) {
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(leaguePath()), 0444), 0);
    const bool asRoot = ::geteuid() == 0;  // who may write everything
    ASSERT_EQ(::seteuid(asRoot ? 65534 : ::geteuid()), 0);
    expectRefusal("cannot be written");
    ASSERT_EQ(::seteuid(asRoot ? 0 : ::geteuid()), 0);
}

}  // namespace
