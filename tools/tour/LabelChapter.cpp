#include <QLabel>

#include "tour/Chapters.h"

void visitLabels(Guide& guide) {
    guide.begin("A label for each family");
    guide.click("cmdReports");
    guide.waitForScreen("frmReports");
    guide.click("optReportSelection9");
    guide.during([&] { guide.click("cmdMailingLabelOptions"); }, "The options of the labels",
                 [&] {
                     guide.click("optLabelOptions3");
                     guide.picture("label-options");
                     guide.click("optLabelOptions2");
                     guide.click("cmdOK");
                 });
    const auto preview = [&] {
        guide.waitFor([&] { return !guide.control<QLabel>("pageCount").text().endsWith("..."); }, "The last page");
        guide.picture("labels");
        guide.click("cmdClose");
    };
    const auto start = [&] {
        guide.picture("label-start");
        guide.next(preview);
        guide.click("cmdLabel4");
    };
    guide.during([&] { guide.click("cmdPrint"); }, "The reminder of the labels in the printer",
                 [&] {
                     guide.picture("label-reminder");
                     guide.next(start);
                     guide.click("cmdButton1");
                 });
    guide.clickTool("btnStartUp");
    guide.waitForScreen("frmStartUp");
}
