#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/archive/Archive.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

class BackupScreen : public testing::Test {
protected:
    void SetUp() override {
        for (const char* table : {"tblCertifications", "tblSchoolInfo"})
            running.league.database().execute(QString("DELETE FROM %1 WHERE True").arg(table));
        running.league.database().execute("INSERT INTO tblSchoolInfo ([SchoolName]) VALUES (\"Elm\")");
        running.league.database().execute(
            "INSERT INTO tblCertifications ([CertificationName], [CertifyingOrganization]) VALUES (\"Aid\", "
            "\"Board\")");
    }
    /// Picks an option and presses OK. What follows is scripted by `later`.
    void choose(int option, const char* order, const std::function<void()>& later = {}) {
        dialogs.expectForm("frmBackup", [&](QDialog& form) {
            EXPECT_EQ(form.windowTitle(), "Backup, Restore, and Merge");
            EXPECT_TRUE(control<QRadioButton>(&form, "optType0")->isChecked());
            control<QRadioButton>(&form, QString("optType%1").arg(option).toLatin1())->click();
            EXPECT_EQ(control<QPushButton>(&form, "cmdOk")->text(), order);
            press(&form, "cmdOk");
            EXPECT_FALSE(form.isVisible());
        });
        if (later) later();
        running.screens.show("frmBackup");
        dialogs.verify();
    }
    QString at(const char* name) const { return running.league.folder.filePath(name); }
    QString certification() { return running.league.value("tblCertifications", "CertificationName"); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
};

TEST_F(BackupScreen, SavesOpenWorkFirstAndShowsWhatCameBack) {
    Screen* setup = running.open("frmSetup");
    const auto name = [&] { return control<QLineEdit>(setup, "txtCertName")->text(); };
    ASSERT_EQ(name(), "Aid");
    type(setup, "txtCertName", "First Aid");
    choose(0, "&Backup", [&] {
        dialogs.expectQuestion("Save Record?", BoxAnswer::Yes);
        dialogs.expectSaveFile("Backup Database As", at("a.zip"));
        dialogs.expectInformation("Backup Complete", "Backup Operation Complete!");
    });
    EXPECT_EQ(certification(), "First Aid");
    EXPECT_EQ(archive::compare(at("a.zip"), running.league.path()), archive::Fault::None);

    type(setup, "txtCertName", "Last Aid");
    press(setup, "cmdSave");
    EXPECT_EQ(certification(), "Last Aid");
    choose(1, "&Restore", [&] {
        dialogs.expectOpenFile("Restore Kestrelmoor Database...", at("a.zip"));
        dialogs.expectInformation("Restore Complete",
                                  "Restore Operation Complete!\n\nPlease Restart Kestrelmoor to\ninitialize with the "
                                  "new data.");
    });
    EXPECT_EQ(certification(), "First Aid");
    EXPECT_EQ(name(), "First Aid");
}

TEST_F(BackupScreen, StopsWhereTheUserStops) {
    running.league.database().execute("INSERT INTO tblTempResults ([TeamId]) VALUES (1)");
    choose(0, "&Backup", [&] {
        dialogs.expectSaveFile("Backup Database As", {});
        dialogs.expectInformation("Backup Cancelled", "Backup Cancelled!");
    });
    EXPECT_EQ(dialogs.shown()[1].request.fileName, "Kestrelmoor.zip");
    EXPECT_TRUE(QFile::exists(at("Kestrelmoor.BKM"))) << "the safety copy was made before";
    EXPECT_EQ(running.league.count("tblTempResults"), 0) << "and the file compacted";
    ASSERT_TRUE(QFile::remove(at("Kestrelmoor.BKM")));
    choose(1, "&Restore", [&] { dialogs.expectOpenFile("Restore Kestrelmoor Database...", {}); });
    choose(1, "&Restore", [&] {
        dialogs.expectOpenFile("Restore Kestrelmoor Database...", at("none.zip"));
        dialogs.expectInformation("File Not Found", "The Archive file does not exist.\n\nRestore Cancelled.");
    });
    choose(4, "&New Season");
    EXPECT_FALSE(QFile::exists(at("Kestrelmoor.BKM")));
}

TEST_F(BackupScreen, TellsOfAFailure) {
    choose(0, "&Backup", [&] {
        dialogs.expectSaveFile("Backup Database As", running.league.path());
        dialogs.expectError("Backup Error",
                            "Backup Error 9: An Error occurred during the backup.\nPlease try the backup process "
                            "again.  If this error continues to occur, \nplease report the error number to "
                            "Kestrelmoor Support.");
    });
    QFile broken(at("a.zip"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    choose(1, "&Restore", [&] {
        dialogs.expectOpenFile("Restore Kestrelmoor Database...", at("a.zip"));
        dialogs.expectError("Restore Error",
                            "Restore Error 39: The file you are trying to restore\nis corrupted.  "
                            "Please try to restore another backup file.");
    });
    EXPECT_EQ(certification(), "Aid");
}

TEST_F(BackupScreen, CompactRemovesWhatIsMarked) {
    running.league.database().execute("UPDATE tblSchoolInfo SET [DeletedFlag] = True");
    choose(3, "&Delete", [&] {
        dialogs.expectInformation("Delete Records",
                                  "All Records Marked for Deletion \nhave been removed from Kestrelmoor.");
    });
    EXPECT_EQ(running.league.count("tblSchoolInfo"), 0);
    EXPECT_TRUE(QFile::exists(at("Kestrelmoor.BKM")));
    EXPECT_FALSE(QFile::exists(at("Kestrelmoor.CPT")));
}

/// Nothing is done to the file when the safety copy cannot be made.
TEST_F(BackupScreen, CompactNeedsItsSafetyCopy) {
    running.league.database().execute("UPDATE tblSchoolInfo SET [DeletedFlag] = True");
    ASSERT_TRUE(QDir().mkdir(at("Kestrelmoor.BKM")));
    ASSERT_TRUE(QDir().mkdir(at("Kestrelmoor.BKM/full")));
    QDir::setCurrent(running.league.folder.path());
    for (const auto& [option, order] : {std::pair(3, "&Delete"), {2, "&Merge"}})
        choose(option, order, [&] { dialogs.expectError("Kestrelmoor"); });
    EXPECT_EQ(running.league.count("tblSchoolInfo"), 1);
}

}  // namespace
