#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "platform/archive/Archive.h"
#include "platform/datafile/Connection.h"
#include "shell/frmUpdateStatus.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

constexpr char question[] = "Do you have a Current Backup?";
constexpr char fileDialog[] = "Select the Data that is to be merged into your data...";

class MergeScreen : public testing::Test {
protected:
    MergeScreen() { other.database().prepare("INSERT INTO tblVendor (VendorName) VALUES ('Bats & Balls')").run(); }
    /// Opens the form, does something in it and closes it. What it is going to ask is scripted by `later`.
    void drive(const std::function<void()>& what, const std::function<void()>& later = {}) {
        dialogs.expectForm("frmMerge", [&](QDialog& dialog) {
            form = &dialog;
            EXPECT_TRUE(QTest::qWaitForWindowActive(form));
            what();
            if (dialog.isVisible()) press(form, "cmdClose");
            EXPECT_FALSE(dialog.isVisible());
        });
        if (later) later();
        running.screens.show("frmMerge");
    }
    /// One click on "Merge", with that file chosen.
    void merge(const QString& file, const std::function<void()>& boxes = {}) {
        drive([&] { press(form, "cmdMerge"); },
              [&] {
                  dialogs.expectQuestion(question, BoxAnswer::Yes);
                  dialogs.expectOpenFile(fileDialog, file);
                  if (boxes) boxes();
              });
    }
    int vendors() { return running.league.count("tblVendor"); }

    RunningProgram running;
    LeagueFile other;
    ScriptedDialogs& dialogs = running.league.dialogs;
    QDialog* form = nullptr;
};

TEST_F(MergeScreen, SaysWhatItDoes) {
    drive([&] {
        EXPECT_EQ(form->windowTitle(), "Merge Kestrelmoor Data");
        auto* text = control<QPlainTextEdit>(form, "txtInstructions");
        EXPECT_TRUE(text->isReadOnly());
        const QStringList paragraphs = text->toPlainText().split("\n\n");
        ASSERT_EQ(paragraphs.size(), 4);
        EXPECT_TRUE(paragraphs[0].endsWith("is NOT updated in any way."));
        EXPECT_TRUE(paragraphs[3].startsWith("4.  Game Schedules are NOT merged within the databases."));
        EXPECT_EQ(form->focusWidget()->objectName(), "cmdMerge");
        EXPECT_TRUE(control<QPushButton>(form, "cmdMerge")->isDefault());
        QTest::keyClick(form, Qt::Key_Escape);
    });
}

TEST_F(MergeScreen, EndsWithoutAFile) {
    drive(
        [&] {
            press(form, "cmdMerge");
            press(form, "cmdMerge");
        },
        [&] {
            dialogs.expectQuestion(question, BoxAnswer::No,
                                   "Please make sure that you have a current backup\nof your data before attempting "
                                   "the merge!\n\nDo you wish to continue with the merge?");
            dialogs.expectQuestion(question, BoxAnswer::Yes);
            dialogs.expectOpenFile(fileDialog, {});
        });
    const FileRequest request = dialogs.lastShown().request;
    EXPECT_EQ(request.defaultSuffix, ".zip");
    EXPECT_EQ(request.filters,
              "Kestrelmoor Backup File (*.zip)|*.zip|Kestrelmoor Data File (*.kmr)|*.kmr|All Files (*.*)|*.*");
}

TEST_F(MergeScreen, RefusesWhatCannotBeMerged) {
    const auto ownFile = [&] {
        dialogs.expectWarning("Invalid Merge File",
                              "You have selected your current data file as the\nMERGE FROM file.  Please select a data "
                              "file\nother than your current data file.\n\nPress OK to continue.");
    };
    merge(running.league.path(), ownFile);
    merge(running.league.folder.path() + "/./KESTRELMOOR.kmr", ownFile);
    const QString link = running.league.folder.filePath("link.kmr");
    ASSERT_TRUE(QFile::link(running.league.path(), link));
    merge(link, ownFile);

    merge(other.folder.filePath("nothing.zip"), [&] {
        dialogs.expectWarning("Restore Error...",
                              "Invalid Kestrelmoor Backup File.  Please make sure that you are\nrestoring from a valid "
                              "Kestrelmoor Backup File.");
    });
    merge(other.folder.filePath("nothing.kmr"), [&] { dialogs.expectWarning("Database Error"); });
    EXPECT_TRUE(dialogs.lastShown().text.startsWith("0-The data file "));

    const QString letter = other.folder.filePath("letter.txt");
    QFile file(letter);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Dear Sirs,");
    file.close();
    merge(letter, [&] {
        dialogs.expectWarning(
            "Invalid Data Format",
            "The file you have selected does not appear to be a Kestrelmoor\ndata file.  Please select "
            "a valid Kestrelmoor data file that is\nto be merged into your data.\n\nPress OK to continue.");
    });
    other.database().prepare("UPDATE tblVersion SET DBVersion = 'Version 1.37'").run();
    merge(other.path(), [&] {
        dialogs.expectError(
            "Old Data Format - Cannot Merge Data",
            "The merge file you have selected is an older database version and does not support merging "
            "of data.\n\nPlease make sure that all users have upgraded to the latest version of "
            "Kestrelmoor,\nand then try the merge again.");
    });
    EXPECT_EQ(vendors(), 0);
}

/// The data file may have been put where backups are unpacked to.
TEST_F(MergeScreen, NeverUnpacksOverTheDataFile) {
    const QString inWorkFolder = running.league.folder.filePath("Merge File/Kestrelmoor.kmr");
    QDir(running.league.folder.path()).mkdir("Merge File");
    ASSERT_TRUE(QFile::copy(running.league.path(), inWorkFolder));
    running.league.context.dataFilePath = inWorkFolder;
    const QString zip = other.folder.filePath("backup.zip");
    ASSERT_EQ(archive::pack(other.path(), zip), archive::Fault::None);
    merge(zip, [&] { dialogs.expectWarning("Invalid Merge File"); });
    EXPECT_EQ(running.league.workspace.openDatabase(inWorkFolder).openRecordset("tblVendor").recordCount(), 0);
}

TEST_F(MergeScreen, MergesADataFileOrABackupAndMayGoOn) {
    const QString zip = other.folder.filePath("Backup.ZIP");
    ASSERT_EQ(archive::pack(other.path(), zip), archive::Fault::None);
    Screen* setup = running.open("frmSetup");
    drive(
        [&] {
            for (int run = 0; run < 2; ++run) {
                std::optional<bool> isHeld;
                const auto watch = [&] {
                    if (!form->findChild<frmUpdateStatus*>()) return;
                    isHeld = !control(form, "cmdMerge")->isEnabled();
                    form->reject();
                    *isHeld = *isHeld && form->isVisible();
                };
                QTimer timer;
                QObject::connect(&timer, &QTimer::timeout, form, watch);
                timer.start(0);
                press(form, "cmdMerge");
                timer.stop();
                EXPECT_EQ(isHeld, true) << "took input while it ran";
                EXPECT_TRUE(control(form, "cmdMerge")->isEnabled());
                auto* status = form->findChild<frmUpdateStatus*>();
                ASSERT_TRUE(status);
                EXPECT_EQ(status->windowTitle(), "Merge Kestrelmoor Database");
                EXPECT_EQ(control<QLabel>(status, "lblStatusText")->text(), "Merge Complete");
                EXPECT_EQ(control<QProgressBar>(status, "prgStatusBar")->value(), 100);
                press(status, "cmdClose");
                EXPECT_FALSE(status->isVisible());
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                EXPECT_EQ(vendors(), 1);
            }
        },
        [&] {
            for (const QString& file : {other.path(), zip}) {
                dialogs.expectQuestion(question, BoxAnswer::Yes);
                dialogs.expectOpenFile(fileDialog, file);
            }
        });
    EXPECT_TRUE(setup->isVisible());
    EXPECT_TRUE(QFile::exists(running.league.folder.filePath("Merge File/Kestrelmoor.kmr")));
}

}  // namespace
