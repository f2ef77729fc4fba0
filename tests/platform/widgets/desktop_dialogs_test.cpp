#include "platform/widgets/DesktopDialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/widgets/WaitCursor.h"
#include "support/Printing.h"

namespace {

/// Once a modal window of this kind is up, does with it what the user would.
template <typename Window>
void whenShown(std::function<void(Window&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        act(*window);
        if (window->isVisible()) window->close();
    });
}

BoxAnswer answerTo(Qt::Key key, BoxButtons buttons, const QString& title) {
    whenShown<QMessageBox>([&](QMessageBox& box) { QTest::keyClick(&box, key); });
    return DesktopDialogs().box(BoxKind::Question, buttons, title, "Text");
}

}  // namespace

TEST(DesktopDialogs, BoxesAnswerReturnAndEscape) {
    struct Case {
        BoxButtons buttons;
        const char* title;
        BoxAnswer onReturn;
        BoxAnswer onEscape;
    };
    const Case cases[] = {{BoxButtons::Ok, "Error!", BoxAnswer::Ok, BoxAnswer::Ok},
                          {BoxButtons::OkCancel, "Open Database Error", BoxAnswer::Ok, BoxAnswer::Cancel},
                          {BoxButtons::YesNo, "Save Record?", BoxAnswer::Yes, BoxAnswer::No},
                          {BoxButtons::YesNo, "Delete Record?", BoxAnswer::No, BoxAnswer::No},
                          {BoxButtons::YesNoCancel, "Save Record?", BoxAnswer::Yes, BoxAnswer::Cancel}};
    for (const Case& it : cases) {
        EXPECT_EQ(answerTo(Qt::Key_Return, it.buttons, it.title), it.onReturn) << it.title;
        EXPECT_EQ(answerTo(Qt::Key_Escape, it.buttons, it.title), it.onEscape) << it.title;
    }
}

TEST(DesktopDialogs, ManyLinesLeaveTheButtonsOnTheScreen) {
    QString text = "First line";
    for (int line = 1; line <= 200; ++line) text += QStringLiteral("\nRow %1 - Invalid Game Date").arg(line);
    whenShown<QMessageBox>([&](QMessageBox& box) {
        EXPECT_LT(box.height(), QGuiApplication::primaryScreen()->availableSize().height());
        const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
        EXPECT_TRUE(label->isVisible());
        EXPECT_EQ(label->text(), text);
        EXPECT_GE(label->height(), label->sizeHint().height()) << "it can be scrolled to its end";
        EXPECT_TRUE(box.rect().contains(box.button(QMessageBox::Ok)->geometry().center()));
    });
    DesktopDialogs().warning("Schedule Validation", text);
}

TEST(DesktopDialogs, FormKeepsItsSizeWithinTheScreen) {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    for (const auto& [wanted, shown] : {std::pair(QSize(300, 200), QSize(300, 200)), std::pair(2 * room, room)}) {
        QDialog form;
        form.resize(wanted);
        whenShown<QDialog>([&, size = shown](QDialog& seen) { EXPECT_EQ(seen.size(), size); });
        DesktopDialogs().showModal(form);
    }
}

TEST(DesktopDialogs, WorkThatAsksWaitsUnderTheUsualCursor) {
    const WaitCursor work;
    const WaitCursor withinIt;
    whenShown<QMessageBox>([](QMessageBox&) { EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr); });
    DesktopDialogs().box(BoxKind::Question, BoxButtons::YesNo, "Save Record?", "Text");
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST(DesktopDialogs, BoxesShowWhatTheyAreGivenAsPlainText) {
    const QString text = "Record \"<b>Smith & Co</b>\"\nNOT saved.";
    whenShown<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        const QImage picture = box.iconPixmap().toImage();
        EXPECT_EQ(picture, QIcon(":/message/warning.svg").pixmap(picture.size()).toImage());
        EXPECT_FALSE(picture.isNull());
        EXPECT_EQ(box.windowTitle(), QString("Error!"));
    });
    DesktopDialogs().warning("Error!", text);
}

TEST(DesktopDialogs, FileDialogsShowTheFilesOfTheirFilters) {
    const QTemporaryDir folder;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QString("Pick a file"));
        EXPECT_EQ(dialog.nameFilters(), QStringList({"Data File (*.kmr) (*.kmr)", "All Files (*.*) (*.kmr)",
                                                     "Pictures (*.png *.jpg)", "Any (*)"}));
        const auto* types = dialog.findChild<QComboBox*>("fileTypeCombo");
        ASSERT_TRUE(types);
        EXPECT_EQ(types->itemText(1), QString("All Files (*.*)"));
        EXPECT_EQ(dialog.directory().absolutePath(), QDir(folder.path()).absolutePath());
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("league");
        dialog.findChild<QLineEdit*>("fileNameEdit")->setFocus();
        QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    const auto picked = DesktopDialogs().openFile(
        {.title = "Pick a file",
         .filters = "Data File (*.kmr)|*.kmr|All Files (*.*)|*.kmr|Pictures|*.png;*.jpg|Any|*.*",
         .defaultSuffix = ".kmr",
         .startFolder = folder.path()});
    EXPECT_EQ(picked, folder.filePath("league.kmr"));
}

TEST(DesktopDialogs, SavingOffersANameAndAsksBeforeAFileIsReplaced) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("games.shd"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const FileRequest request{.title = "Export",
                              .filters = "Schedule (*.shd)|*.shd",
                              .defaultSuffix = ".shd",
                              .startFolder = folder.path(),
                              .fileName = "games.shd"};
    bool asked = false;
    const auto accept = [&](bool replace) {
        whenShown<QFileDialog>([&asked, replace](QFileDialog& dialog) {
            whenShown<QMessageBox>([&asked, replace](QMessageBox& question) {
                asked = true;
                question.button(replace ? QMessageBox::Yes : QMessageBox::No)->click();
            });
            dialog.findChild<QLineEdit*>("fileNameEdit")->setFocus();
            QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        return DesktopDialogs().saveFile(request);
    };
    EXPECT_EQ(accept(true), folder.filePath("games.shd"));
    EXPECT_TRUE(asked);
    EXPECT_EQ(accept(false), std::nullopt);
}

TEST(DesktopDialogs, FormsBelongToTheActiveWindow) {
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QDialog form;
    whenShown<QDialog>([&](QDialog& shown) {
        EXPECT_EQ(shown.windowHandle()->transientParent(), window.windowHandle());
        shown.accept();
    });
    EXPECT_EQ(DesktopDialogs().showModal(form), QDialog::Accepted);
}
