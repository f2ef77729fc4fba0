#include <QFontDatabase>
#include <QRegularExpression>

#include "Outputs.h"
#include "support/Printing.h"

using namespace report;

namespace {

QString textOf(const QString& path) { return outputOf("pdftotext", {"-layout", path, "-"}); }

void write(const QString& path, const ListRows::Tables& tables) {
    const Report report{nameList(), ListRows::over(tables)};
    writeFile(path, report, FileFormat::Pdf, QPageSize(QPageSize::Letter));
}

class Pdf : public testing::Test {
protected:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath("players é.pdf");
};

}  // namespace

TEST_F(Pdf, HoldsEveryPageAsText) {
    QStringList all;
    for (int row = 0; row < 120; ++row) all << QString("Player %1").arg(row);
    write(path_, names(all));

    const QString about = outputOf("pdfinfo", {path_});
    EXPECT_TRUE(about.contains(QRegularExpression("Title: +Active Player List\n"))) << about.toStdString();
    EXPECT_TRUE(about.contains(QRegularExpression("Pages: +3\n"))) << about.toStdString();
    EXPECT_TRUE(about.contains("(letter)")) << about.toStdString();
    const QStringList pages = textOf(path_).split('\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), 3);
    for (int page = 0; page < 3; ++page) {
        EXPECT_TRUE(pages[page].contains(QRegularExpression("Player Name +Paid\n")));
        EXPECT_TRUE(
            pages[page].contains(QRegularExpression(QString("rptPlayerReport7 +Page %1 of 3\n").arg(page + 1))));
    }
    for (const QString& name : all) EXPECT_EQ(pages.join("").count(QRegularExpression(name + " +\\$12.50\n")), 1);
    EXPECT_TRUE(pages[2].contains(QRegularExpression("Total +\\$1,500.00\n")));
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "no temporary file is left";
}

TEST_F(Pdf, WritesNamesOfAllAlphabets) {
    QStringList all{"Québec", "Peña", "Nguyễn", "Łukasz Żółć", "Đorđević", "Юлия", "Ελένη", "محمد", "“O’Brien” – €5"};
    if (!QFontDatabase::families(QFontDatabase::SimplifiedChinese).isEmpty()) all << "漢字";
    write(path_, names(all));
    const QString text = textOf(path_).normalized(QString::NormalizationForm_KC);
    for (const QString& name : all) EXPECT_TRUE(text.contains(name)) << name.toStdString();
}

TEST_F(Pdf, PrintsNothingButLabelsOnASheetOfLabels) {
    ReportDefinition definition;
    definition.query.text = "names";
    definition.typeface = Typeface::Label;
    definition.lines = {{{.field = column("Name")}}, {{.field = column("Paid")}}};
    definition.footer = "rptLabelFormat1";
    definition.labels = LabelSheet{.skip = 1};
    const auto tables = names({"Ann", "Bob", "Cid"});
    const Report report{definition, ListRows::over(tables)};
    writeFile(path_, report, FileFormat::Pdf, QPageSize(QPageSize::A4));
    EXPECT_EQ(textOf(path_).simplified(), "Ann Bob 12.5 12.5 Cid 12.5");
}
