#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFontDatabase>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>

#include "ListRows.h"
#include "platform/files/Files.h"
#include "platform/report/Report.h"
#include "support/Printing.h"

using namespace report;

namespace {

QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString textOf(const QString& path) { return outputOf("pdftotext", {"-layout", path, "-"}); }

ListRows::Tables names(const QStringList& all) {
    ListRows::Tables tables{{"names", {{"Name", "Paid"}, {}}}};
    for (const QString& name : all) tables["names"].rows.push_back({name, "12.5"});
    return tables;
}

ReportDefinition nameList() {
    ReportDefinition definition;
    definition.title = "Active Player List";
    definition.organization = "Bracken Vale";
    definition.footer = "rptPlayerReport7";
    definition.query.text = "names";
    definition.columns = {{"Player Name", column("Name"), 30}, {"Paid", money("Paid"), 10, {}, Total::Sum}};
    definition.totals = fixed("Total");
    return definition;
}

void write(const QString& path, const ListRows::Tables& tables) {
    const Report report{nameList(), ListRows::over(tables)};
    writeFile(path, report, FileFormat::Pdf, QPageSize(QPageSize::Letter));
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// No file may grow beyond so many bytes while this lives: what a full disk does to a writer.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit now{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

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

TEST_F(Pdf, LeavesTheOldFileWhenWritingFails) {
    write(path_, names({"Before"}));
    const QByteArray before = contentOf(path_);
    QStringList many;
    for (int row = 0; row < 3000; ++row) many << QString("Player %1").arg(row);
    const ListRows::Tables fits = names({"Before"});
    const ListRows::Tables large = names(many);
    const auto size = rlim_t(before.size());
    const std::tuple<const ListRows::Tables&, rlim_t> cases[] = {{large, 60000}, {fits, size - 50}, {fits, 0}};
    for (const auto& [tables, space] : cases) {
        const FullDisk full(space);
        EXPECT_THROW(write(path_, tables), files::Error) << space;
        EXPECT_EQ(contentOf(path_), before);
        EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "no temporary file is left";
    }
    write(path_, names({"After"}));
    EXPECT_TRUE(textOf(path_).contains("After"));
}

TEST_F(Pdf, SaysWhichFileCouldNotBeWritten) {
    for (const QString& target : {folder_.filePath("missing/x.pdf"), folder_.path()}) {
        try {
            write(target, names({"Ann"}));
            FAIL() << "nothing was raised for " << target.toStdString();
        } catch (const files::Error& error) {
            EXPECT_TRUE(error.text().contains(target)) << error.what();
        }
    }
}
