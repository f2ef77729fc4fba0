#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include "platform/report/ReportPreview.h"
#include "support/Printing.h"
#include "support/ScriptedDialogs.h"

using namespace report;

namespace {

/// Counts upwards; row 5000 of a source that breaks cannot be read.
class Numbers final : public RowSource {
public:
    Numbers(int count, bool breaks) : count_(count), breaks_(breaks) {}
    int column(const QString& name) const override { return name == "Number" ? 0 : -1; }
    int columnCount() const override { return 1; }
    bool next() override {
        if (breaks_ && row_ == 5000) throw std::runtime_error("The data file is damaged.");
        return ++row_ <= count_;
    }
    QVariant value(int) const override { return QString("Number %1").arg(row_); }

private:
    int count_;
    bool breaks_;
    int row_ = 0;
};

class Preview : public testing::Test {
protected:
    void open(int rows, bool breaks = false) {
        ReportDefinition definition;
        definition.title = "Numbers";
        definition.query.text = "numbers";
        definition.columns = {{"Number", column("Number")}};
        const auto source = [rows, breaks](const Query&) { return std::make_unique<Numbers>(rows, breaks); };
        window_ = std::make_unique<ReportPreview>(Report{definition, source}, printer_, dialogs_);
        window_->show();
    }
    template <typename Widget>
    Widget& find(const char* name) {
        auto* widget = window_->findChild<Widget*>(name);
        if (!widget) throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }
    void click(const char* name) { QTest::mouseClick(&find<QAbstractButton>(name), Qt::LeftButton); }
    int page() { return find<QSpinBox>("pageNumber").value(); }
    QString count() { return find<QLabel>("pageCount").text(); }
    PageView& view() { return find<PageView>("pages"); }
    bool waitForAll() {
        return QTest::qWaitFor([this] { return !count().endsWith("..."); }, 60000);
    }

    QPrinter printer_;
    ScriptedDialogs dialogs_;
    std::unique_ptr<ReportPreview> window_;
};

}  // namespace

TEST_F(Preview, ShowsTheFirstPageBeforeTheRestIsLaidOut) {
    open(20000);
    EXPECT_EQ(count(), "of 1...");
    const QImage shown = view().viewport()->grab().toImage();
    const QRgb paper = shown.pixel(shown.width() / 2, shown.height() - 1);
    EXPECT_EQ(paper, qRgb(255, 255, 255));
    ASSERT_TRUE(waitForAll());
    EXPECT_GT(find<QSpinBox>("pageNumber").maximum(), 300);
}

TEST_F(Preview, TurnsPagesByButtonsKeysAndNumber) {
    open(2000);
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    EXPECT_FALSE(find<QWidget>("cmdPrevious").isEnabled());
    click("cmdNext");
    EXPECT_EQ(page(), 2);
    QTest::keyClick(window_.get(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page(), 3);
    click("cmdPrevious");
    EXPECT_EQ(page(), 2);
    click("cmdLast");
    const int last = page();
    EXPECT_EQ(count(), "of " + QString::number(last));
    EXPECT_FALSE(find<QWidget>("cmdNext").isEnabled());
    find<QSpinBox>("pageNumber").setValue(7);
    EXPECT_EQ(view().currentPage(), 6);
    QTest::keyClick(window_.get(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(page(), 1);
    auto& thumbnails = find<PageView>("thumbnails");
    QTest::mouseClick(thumbnails.viewport(), Qt::LeftButton, {}, {60, thumbnails.height() / 2});
    EXPECT_GT(page(), 1);
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(Preview, ZoomsWithinItsLimits) {
    open(300);
    auto& zoom = find<QComboBox>("zoom");
    const auto type = [&](const QString& text) {
        zoom.setFocus();
        zoom.setEditText(text);
        QTest::keyClick(zoom.lineEdit(), Qt::Key_Return);
    };
    type("150%");
    EXPECT_DOUBLE_EQ(view().zoom(), 1.5);
    type("9000");
    EXPECT_DOUBLE_EQ(view().zoom(), 4);
    type("3");
    EXPECT_DOUBLE_EQ(view().zoom(), 0.5);
    type("large");
    EXPECT_EQ(zoom.currentText(), "50%");
    type("Fit width");
    const double wide = view().zoom();
    type("Fit page");
    EXPECT_LT(view().zoom(), wide);
    click("cmdNext");
    click("cmdNext");
    type("200%");
    EXPECT_EQ(page(), 3) << "zooming stays on the page";
}

TEST_F(Preview, FindsText) {
    open(2000);
    auto& box = find<QLineEdit>("findText");
    box.setText("number 777 ");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(window_->isVisible());
    const int where = page();
    EXPECT_GT(where, 5);
    EXPECT_TRUE(find<QLabel>("findResult").text().isEmpty());
    box.setText("number 9999");
    click("cmdFindNext");
    EXPECT_EQ(find<QLabel>("findResult").text(), "Not found");
    EXPECT_EQ(page(), where);

    box.setText("number");
    click("cmdFirst");
    click("cmdNext");
    click("cmdFindNext");
    EXPECT_EQ(page(), 2) << "a page turned by hand is where the next find begins";
}

TEST_F(Preview, PrintsThePagesAskedForOnThePrintersPaper) {
    QTemporaryDir folder;
    const QString path = folder.filePath("print.pdf");
    printer_.setOutputFileName(path);
    printer_.setPageSize(QPageSize(QPageSize::A4));
    open(300);
    dialogs_.expectForm("printDialog", [this](QDialog& dialog) {
        printer_.setPrintRange(QPrinter::PageRange);
        printer_.setFromTo(2, 3);
        dialog.done(QDialog::Accepted);
    });
    click("cmdPrint");
    QProcess process;
    process.start("pdftotext", {"-layout", path, "-"});
    ASSERT_TRUE(process.waitForFinished());
    const QStringList pages = QString::fromUtf8(process.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), 2);
    EXPECT_FALSE(pages[0].contains("Number 1\n"));
    EXPECT_TRUE(pages[0].contains(QRegularExpression("Page 2 of \\d"))) << pages[0].toStdString();
    process.start("pdfinfo", {path});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_TRUE(process.readAllStandardOutput().contains("(A4)"));

    dialogs_.expectForm("printDialog", [](QDialog& dialog) { dialog.reject(); });
    ASSERT_TRUE(QFile::remove(path));
    click("cmdPrint");
    EXPECT_FALSE(QFile::exists(path)) << "a cancelled dialog prints nothing";
}

TEST_F(Preview, TellsOnceThatTheRestCannotBeRead) {
    dialogs_.expectError("Numbers - Print Preview", "The data file is damaged.");
    open(20000, true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !dialogs_.shown().empty(); }, 60000));
    EXPECT_GT(find<QSpinBox>("pageNumber").maximum(), 20) << "what could be read stays";
    click("cmdNext");
    EXPECT_EQ(page(), 2);
}
