#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <fstream>

#include "shell/Screens.h"
#include "shell/StartRoutine.h"
#include "store/Journal.h"
#include "support/MemorySettings.h"
#include "support/Printing.h"
#include "support/ScriptedDialogs.h"

namespace {

using Outcome = StartRoutine::Outcome;

/// A program of which only the start is real; what each step would do is written down as one word.
struct Start : testing::Test {
    QTemporaryDir folder;
    datafile::Workspace workspace;
    FixedClock clock{QDateTime({2026, 4, 2}, {18, 30})};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    StoreContext store{workspace, clock, dialogs};
    Screens screens{dialogs, "frmStartUp"};
    Program program{store, settings, screens, folder.filePath("program"), folder.filePath("user")};
    QStringList done;
    bool versionIsRight = true;
    bool splashIsOn = false;
    QString failsAt;

    Start() { QDir(folder.path()).mkdir("program"); }

    void step(const QString& name) {
        if (name == failsAt) throw datafile::Error(datafile::Fault::NotADataFile, "No data file.");
        done << name;
    }
    Outcome run() {
        StartRoutine routine(program, {.correctVersion = [this] { return step("version"), versionIsRight; },
                                       .loadPreferences =
                                           [this] {
                                               step("preferences");
                                               store.globals.showSplash = splashIsOn;
                                           },
                                       .loadNavigator = [this] { step("load"); },
                                       .showSplash = [this] { step("splash"); },
                                       .showNavigator = [this] { step("show"); }});
        return routine.Main();
    }
    QString file(const QString& name, const QByteArray& content = "data") {
        QFile made(folder.filePath(name));
        EXPECT_TRUE(QDir(folder.path()).mkpath(QFileInfo(name).path()) && made.open(QIODevice::WriteOnly));
        made.write(content);
        return made.fileName();
    }
    QString storedPath() const { return settings.read("Database", "Path"); }

    static constexpr char notFound[] = "Data File Not Found";
    static constexpr char pick[] = "Select the location of the Kestrelmoor.kmr file...";
    static constexpr char cancelled[] = "Open Data File";
};

TEST_F(Start, FindsItsFileBesideTheProgramOnAFirstStart) {
    const QString path = file("program/Kestrelmoor.kmr");
    file("program/Kestrelmoor.base", "other");
    const QString help = file("program/Kestrelmoor.hlp");
    EXPECT_EQ(run(), Outcome::Running);
    EXPECT_EQ(done, QStringList({"version", "preferences", "load", "show"}));
    EXPECT_EQ(storedPath(), path);
    EXPECT_EQ(store.dataFilePath, path);
    EXPECT_EQ(program.helpFile, help);
}

TEST_F(Start, MakesTheFirstDataFileOfAUserFromTheBaseFile) {
    const QString base = file("program/Kestrelmoor.base", "base rows");
    QFile::setPermissions(base, QFile::ReadOwner);
    splashIsOn = true;
    EXPECT_EQ(run(), Outcome::Running);
    EXPECT_EQ(done, QStringList({"version", "preferences", "load", "splash", "show"}));
    EXPECT_EQ(storedPath(), folder.filePath("user/Kestrelmoor.kmr"));
    QFile made(storedPath());
    ASSERT_TRUE(made.open(QIODevice::ReadOnly));
    EXPECT_EQ(made.readAll(), QByteArray("base rows"));
    EXPECT_TRUE(made.permissions() & QFile::WriteOwner);
    EXPECT_EQ(QDir(folder.filePath("user")).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(program.helpFile, QString());

    made.close();
    file("user/Kestrelmoor.kmr", "a season's work");
    EXPECT_EQ(run(), Outcome::Running);
    ASSERT_TRUE(made.open(QIODevice::ReadOnly));
    EXPECT_EQ(made.readAll(), QByteArray("a season's work"));
}

TEST_F(Start, DoesNotPointToAFirstDataFileThatCouldNotBeMade) {
    file("program/Kestrelmoor.base");
    file("user", "a file where the folder should be");
    dialogs.expectWarning("File Open Error");
    EXPECT_EQ(run(), Outcome::Ended);
    EXPECT_EQ(storedPath(), QString());
}

TEST_F(Start, AsksForAFileThatIsGoneUntilItHasOne) {
    settings.write("Database", "Path", folder.filePath("gone.kmr"));
    file("program/Kestrelmoor.base");
    const QString good = file("good.kmr");
    dialogs.expectError(notFound,
                        "The Kestrelmoor data file was not found.  Please select \n"
                        "the path of your Kestrelmoor.kmr file.");
    dialogs.expectOpenFile(pick, {});
    dialogs.expectQuestion(cancelled, BoxAnswer::Yes,
                           "You must select the location of\nKestrelmoor.kmr data file to continue.\n\n"
                           "Would you like to continue?");
    dialogs.expectOpenFile(pick, folder.filePath("gone too.kmr"));
    dialogs.expectInformation("File Not Found", "The Kestrelmoor Data file was not found.");
    dialogs.expectOpenFile(pick, "");
    dialogs.expectBox(BoxKind::Error, "Open Database Error", BoxAnswer::Ok,
                      "You must select the path of your Kestrelmoor data file.");
    dialogs.expectOpenFile(pick, good);
    EXPECT_EQ(run(), Outcome::Running);
    EXPECT_EQ(storedPath(), good);
    const FileRequest request = dialogs.shown().back().request;
    EXPECT_EQ(request.filters, QString("Kestrelmoor Data File (*.kmr)|*.kmr|All Files (*.*)|*.kmr"));
    EXPECT_EQ(request.defaultSuffix, QString(".kmr"));
}

TEST_F(Start, EndsWhenTheUserGivesUpTheSearch) {
    const QString gone = folder.filePath("gone.kmr");
    settings.write("Database", "Path", gone);
    dialogs.expectError(notFound);
    dialogs.expectOpenFile(pick, {});
    dialogs.expectQuestion(cancelled, BoxAnswer::No);
    EXPECT_EQ(run(), Outcome::Ended);

    dialogs.expectError(notFound);
    dialogs.expectOpenFile(pick, "");
    dialogs.expectBox(BoxKind::Error, "Open Database Error", BoxAnswer::Cancel);
    dialogs.expectInformation("Kestrelmoor", "Exiting Kestrelmoor.");
    EXPECT_EQ(run(), Outcome::Ended);
    EXPECT_EQ(done, QStringList());
    EXPECT_EQ(storedPath(), gone);
}

TEST_F(Start, EndsWithAMessageWhenAStepFails) {
    struct Case {
        QString failsAt;
        QStringList done;
    };
    const QString path = file("mine.kmr");
    settings.write("Database", "Path", path);
    for (const Case& each :
         {Case{"version", {}}, Case{"preferences", {"version"}}, Case{"splash", {"version", "preferences", "load"}}}) {
        SCOPED_TRACE(each.failsAt.toStdString());
        done.clear();
        failsAt = each.failsAt;
        splashIsOn = true;
        dialogs.expectWarning("File Open Error", "No data file.");
        EXPECT_EQ(run(), Outcome::Ended);
        EXPECT_EQ(done, each.done);
        EXPECT_EQ(storedPath(), path);
    }
    failsAt.clear();
    versionIsRight = false;
    dialogs.expectWarning("Database Update Error",
                          "Datafile is not the correct version\nand could not be updated!\n"
                          "Please contact Kestrelmoor technical Support.\n\nExiting Kestrelmoor.");
    EXPECT_EQ(run(), Outcome::Ended);
    EXPECT_EQ(done.last(), QString("version"));
}

TEST_F(Start, AsksAgainNextTimeWhenThePickedFileWasNone) {
    const QString gone = folder.filePath("gone.kmr");
    settings.write("Database", "Path", gone);
    dialogs.expectError(notFound);
    dialogs.expectOpenFile(pick, file("letter.kmr"));
    dialogs.expectWarning("File Open Error", "No data file.");
    failsAt = "version";
    EXPECT_EQ(run(), Outcome::Ended);
    EXPECT_EQ(storedPath(), gone);
}

TEST_F(Start, SaysWhenThePathCannotBeKept) {
    file("program/Kestrelmoor.kmr");
    settings.refuses = true;
    dialogs.expectWarning("Kestrelmoor");
    EXPECT_EQ(run(), Outcome::Running);
}

TEST_F(Start, JournalAppendsAlignedLines) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    dialogs.expectError("Kestrelmoor", "Disk full");
    dialogs.expectError("Kestrelmoor", "Second");
    WriteJournal(clock, dialogs, "UpdateFunctions", "CorrectVersion", "Disk full");
    WriteJournal(clock, dialogs, "UpdateFunctions", "AProcedureWithAVeryLongName", "Second");
    QFile journal("Journal.Dat");
    ASSERT_TRUE(journal.open(QIODevice::ReadOnly));
    EXPECT_EQ(journal.readAll(),
              QByteArray("4/2/2026 6:30:00 PM UpdateFunctions           CorrectVersion            Disk full\n"
                         "4/2/2026 6:30:00 PM UpdateFunctions           AProcedureWithAVeryLongName Second\n"));
    QFile::remove("Journal.Dat");
    QDir().mkdir("Journal.Dat");
    dialogs.expectError("Kestrelmoor", "Third\nThe journal could not be written.");
    WriteJournal(clock, dialogs, "UpdateFunctions", "Backup", "Third");
    QDir::setCurrent(before);
}

}  // namespace
