#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>

#include "tour/Chapters.h"

namespace {

void backUp(Guide& guide, const QString& archive) {
    guide.begin("A backup");
    const auto told = [&] {
        guide.require(guide.front().windowTitle() == "Backup Complete", "The backup");
        guide.picture("backup-complete");
        guide.key(Qt::Key_Return);
    };
    const auto name = [&] {
        guide.next(told);
        auto& box = guide.control<QLineEdit>("fileNameEdit");
        guide.require(box.text() == "Kestrelmoor.zip", "The name that is offered");
        box.setFocus();
        box.selectAll();
        guide.type(archive);
        guide.key(Qt::Key_Return);
    };
    guide.during([&] { guide.click("cmdBackup"); }, "The choice of what to do",
                 [&] {
                     guide.next(name);
                     guide.click("optType3");
                     guide.click("optType0");
                     guide.picture("backup");
                     guide.click("cmdOk");
                 });
    guide.require(QFile(archive).size() > 0, "The archive");
}

void openSeason(Guide& guide) {
    guide.begin("A new season");
    guide.click("cmdSetup");
    guide.waitForScreen("frmSetup");
    guide.during([&] { guide.clickMenu("mnuTools", "mnuToolsNewSeason"); }, "The new season's screen",
                 [&] {
                     guide.waitForFocus("mskedNewSeasonYear");
                     guide.type("2027");
                     for (const char* box : {"chkMarkPlayersInactive", "chkIncreaseGradeLevel", "chkDeleteDivisions"})
                         guide.fill(box, " ");
                     guide.require(guide.control<QCheckBox>("chkDeleteGameResults").isChecked(), "The linked boxes");
                     guide.picture("new-season");
                     guide.click("cmdNewSeasonGo");
                     auto& text = guide.control<QLabel>("lblStatusText");
                     guide.waitFor([&] { return text.text() == "New Season Updates Complete."; }, "The new season");
                     auto& status = guide.control<QDialog>("frmUpdateStatus");
                     guide.picture("new-season-complete");
                     guide.click(*status.findChild<QWidget*>("cmdClose"));
                     guide.click("cmdNewSeasonClose");
                 });
}

/// The screen from which the season was opened has gone; the user goes on with another that stands open.
void returnToNavigator(Guide& guide) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmReports" && window->isVisible()) window->activateWindow();
    guide.waitForScreen("frmReports");
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}

}  // namespace

void visitMaintenance(Guide& guide, const QString& archive) {
    backUp(guide, archive);
    openSeason(guide);
    returnToNavigator(guide);
}
