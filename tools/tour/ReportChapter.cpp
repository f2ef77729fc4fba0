#include <QComboBox>
#include <QLabel>
#include <QRadioButton>

#include "tour/Chapters.h"

namespace {

void choose(Guide& guide, int category, int option) {
    guide.click(QString("optReportSelection%1").arg(category));
    const QString button = QString("optReportOptions%1").arg(option);
    guide.click(button);
    guide.require(guide.control<QRadioButton>(button).isChecked(), "The choice of the report");
}

/// The entry of a list that begins with the text, found by typing.
void pick(Guide& guide, const QString& list, const QString& text) {
    auto& box = guide.control<QComboBox>(list);
    box.setFocus();
    guide.waitForFocus(list);
    guide.type(text);
    guide.waitFor([&] { return box.currentText().startsWith(text); }, "The entry \"" + text + '"');
}

/// The chosen report in its preview, all pages laid out.
void preview(Guide& guide, const QString& name) {
    guide.during([&] { guide.click("cmdPrint"); }, "The preview",
                 [&] {
                     guide.waitFor([&] { return !guide.control<QLabel>("pageCount").text().endsWith("..."); },
                                   "The last page");
                     guide.picture(name);
                     guide.click("cmdClose");
                 });
}

}  // namespace

void visitReports(Guide& guide) {
    guide.begin("What is missing for a report");
    guide.click("cmdReports");
    guide.waitForScreen("frmReports");
    choose(guide, 12, 5);
    guide.during([&] { guide.click("cmdPrint"); }, "The box with what is missing",
                 [&] {
                     guide.picture("reports-missing");
                     guide.key(Qt::Key_Return);
                 });
    guide.begin("A player's registration form");
    pick(guide, "cboList1", "Ab");
    preview(guide, "registration-form");

    guide.begin("A team's roster");
    choose(guide, 4, 2);
    pick(guide, "cboList2", "Minors");
    pick(guide, "cboList3", "Bl");
    guide.picture("reports-roster");
    preview(guide, "roster");

    guide.begin("Who still owes the league money");
    choose(guide, 13, 2);
    preview(guide, "balance-due");
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}
