#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "platform/datafile/Workspace.h"
#include "shell/frmUpdateStatus.h"
#include "tour/Chapters.h"

namespace {

/// The path of the data file, from the caption of a screen.
QString leaguePath(Guide& guide) { return guide.front().windowTitle().section(" - ", 1); }

/// What the second officer did at home on a copy: a child was registered, and another moved.
QString makeSecondFile(const QString& league) {
    const QString path = QFileInfo(league).path() + "/second-officer.kmr";
    QFile::copy(league, path);
    datafile::Workspace workspace;
    const datafile::Database file = workspace.openDatabase(path);
    file.execute(
        "INSERT INTO tblRegistration ([PlayerLastName], [PlayerFirstName], [PlayerMiddleInitial], [PlayerBirthDate], "
        "[PlayerCity], [PlayerGender], [PlayerActive], [PlayerRegistrationDate], [DateStamp], [TimeStamp]) VALUES "
        "(\"Thistlewood\", \"Marigold\", \"A\", #6-21-2015#, \"Salem\", \"Female\", True, #5-15-2026#, #5-15-2026#, "
        "61200)");
    file.execute(
        "UPDATE tblRegistration SET [PlayerAddress1] = \"7 Mill Road\", [DateStamp] = #5-16-2026#, [TimeStamp] = 43200 "
        "WHERE [PlayerLastName] = \"Winterbourne\" AND [PlayerFirstName] = \"Juniper\"");
    return path;
}

void runMerge(Guide& guide, const QString& path) {
    guide.picture("merge");
    guide.next([&guide, path] {
        guide.picture("merge-question");
        guide.next([&guide, path] {
            auto& name = guide.control<QLineEdit>("fileNameEdit");
            name.setFocus();
            name.selectAll();
            guide.type(path);
            guide.key(Qt::Key_Return);
        });
        guide.click(*dynamic_cast<QMessageBox&>(guide.front()).button(QMessageBox::Yes));
    });
    guide.click("cmdMerge");
    auto& status = guide.control<frmUpdateStatus>("frmUpdateStatus");
    guide.require(status.findChild<QLabel*>("lblStatusText")->text() == "Merge Complete", "The end of the merge");
    guide.picture("merge-complete");
    guide.click(*status.findChild<QPushButton*>("cmdClose"));
    guide.click("cmdClose");
}

}  // namespace

void mergeSecondFile(Guide& guide) {
    guide.begin("The merge of a second officer's file");
    const QString path = makeSecondFile(leaguePath(guide));
    guide.during([&] { guide.click("cmdBackup"); }, "The choice of what to do with the data file",
                 [&] {
                     guide.click("optType2");
                     guide.picture("merge-choice");
                     guide.next([&] { runMerge(guide, path); });
                     guide.click("cmdOk");
                 });
    guide.waitForScreen("frmStartUp");
    guide.click("cmdRegister");
    guide.waitForScreen("frmRegister");
    guide.clickTab("Player Registrations");
    for (const auto& [entry, field, text] :
         {std::tuple{"thistle", "txtPlayerFirstName", "Marigold"}, {"winterb", "txtPlayerAddress1", "7 Mill Road"}}) {
        guide.key(Qt::Key_U, Qt::AltModifier);
        guide.waitForFocus("cboPlayerSearchList");
        guide.type(entry);
        guide.key(Qt::Key_Return);
        guide.require(guide.control<QLineEdit>(field).text() == text, QString("What the second officer did: ") + text);
    }
    guide.picture("merged");
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}
