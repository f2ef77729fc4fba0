#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QDialog>

#include "support/Printing.h"
#include "support/ScriptedDialogs.h"

TEST(ScriptedDialogs, AnswersInOrderAndKeepsWhatWasShown) {
    ScriptedDialogs dialogs;
    dialogs.expectQuestion("Save Record?", BoxAnswer::Yes, "Save the current record?");
    dialogs.expectBox(BoxKind::Error, "Open Database Error", BoxAnswer::Cancel);
    dialogs.expectOpenFile("Pick", "/tmp/a.kmr");
    dialogs.expectSaveFile("Keep", {});
    dialogs.expectForm("frmAbout", [&](QDialog& form) {
        EXPECT_TRUE(form.isVisible());
        EXPECT_FALSE(dialogs.openAddress(QUrl("https://example.org")));
        form.accept();
    });
    dialogs.expectAddress("https://example.org", false);

    EXPECT_TRUE(dialogs.ask("Save Record?", "Save the current record?"));
    EXPECT_EQ(dialogs.box(BoxKind::Error, BoxButtons::OkCancel, "Open Database Error", "Text"), BoxAnswer::Cancel);
    EXPECT_EQ(dialogs.openFile({.title = "Pick", .filters = "All|*.*"}), QString("/tmp/a.kmr"));
    EXPECT_EQ(dialogs.lastShown().request.filters, QString("All|*.*"));
    EXPECT_EQ(dialogs.saveFile({.title = "Keep"}), std::nullopt);
    QDialog form;
    form.setObjectName("frmAbout");
    EXPECT_EQ(dialogs.showModal(form), QDialog::Accepted);
    EXPECT_EQ(dialogs.shown().size(), 6u);
}

TEST(ScriptedDialogs, FailsTheTestOnWhatWasNotScripted) {
    ScriptedDialogs dialogs;
    EXPECT_NONFATAL_FAILURE(dialogs.error("Disk", "full"), "unexpected error box \"Disk\" saying \"full\"");

    dialogs.expectQuestion("Exit...", BoxAnswer::Yes);
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(dialogs.ask("Save Record?", "")), "expected next: question \"Exit...\"");
    EXPECT_NONFATAL_FAILURE(dialogs.verify(), "never shown: question \"Exit...\"");

    dialogs.expectError("Disk", "full");
    EXPECT_NONFATAL_FAILURE(dialogs.error("Disk", "empty"), "text of error box");
    dialogs.expectQuestion("Exit...", BoxAnswer::Cancel);
    EXPECT_NONFATAL_FAILURE(dialogs.ask("Exit...", ""), "no button");

    QDialog form;
    form.setObjectName("frmAbout");
    dialogs.expectForm("frmAbout", [](QDialog&) {});
    EXPECT_NONFATAL_FAILURE(dialogs.showModal(form), "left this form open");
    EXPECT_FALSE(form.isVisible());
}
