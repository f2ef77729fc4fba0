#include <QRegularExpression>

#include "Outputs.h"
#include "platform/files/Files.h"
#include "platform/report/ReportError.h"
#include "support/Printing.h"

using namespace report;

namespace {

const QPageSize letterPaper(QPageSize::Letter);

/// What would trip a format: its own signs, other alphabets, lines, what looks like a formula or a number.
const ListRows::Tables league{
    {"players",
     {{"Division", "Name", "Zip", "Area", "Phone", "Born", "Game", "Owed", "Rate", "Count"},
      {{"Majors", "=SUM(A1)", "00501", "555", "123-4567", "2014-01-07", "18:30:00", "1,234.50", ".3333", 7},
       {"Majors", "<b>&\"x\"</b>", "97050", "", "", "soon", "", "waived", "1", 0},
       {"Minors", "{\\b Peña} 漢字", "K1A 0B1", "", "1234567", "1899-05-01", "00:05:00", "-3.456", "", 12},
       {"Minors", "two\nlines", "", "", "", "", "", "", "", {}}}}},
};

ReportDefinition playerList() {
    ReportDefinition definition = nameList();
    definition.title = "Fees: A/B & <C>";
    definition.query.text = "players";
    definition.groups = {
        {.key = "Division", .header = {{.field = column("Division")}}, .footer = column("Division").before("All ")}};
    definition.columns = {{"Name", column("Name"), 20},
                          {"Zip", column("Zip"), 8},
                          {"Phone", phone("Area", "Phone"), 14},
                          {"Born", date("Born"), 10},
                          {"Game", time("Game"), 10},
                          {"Owed", money("Owed"), 12, {}, Total::Sum},
                          {"Rate", number("Rate", "0.000"), 8},
                          {"Count", column("Count"), 6, {}, Total::Sum}};
    return definition;
}

class ReportFile : public testing::Test {
protected:
    QString path(const QString& name) const { return folder_.filePath(name); }
    void write(const QString& file, const ReportDefinition& definition, FileFormat format,
               const ListRows::Tables& tables) {
        EXPECT_TRUE(writeFile(path(file), {definition, ListRows::over(tables)}, format, letterPaper));
    }
    /// The file as the office programs read it, in another format.
    QString readBack(const QString& file, const QString& format, const QString& result) {
        outputOf("soffice", {"-env:UserInstallation=file://" + path("profile"), "--headless", "--convert-to", format,
                             "--outdir", path("read"), path(file)});
        return QString::fromUtf8(contentOf(path("read/" + result)));
    }

    QTemporaryDir folder_;
};

int count(const QString& text, const char* pattern) { return int(text.count(QRegularExpression(pattern))); }

}  // namespace

TEST_F(ReportFile, ExcelCellsHaveTheirTypes) {
    write("players.xls", playerList(), FileFormat::Excel, league);
    const QString read = readBack("players.xls", "fods", "players.fods");
    const auto holds = [&](const QString& part) { EXPECT_TRUE(read.contains(part)) << part.toStdString(); };
    const auto text = [&](const QString& shown) {
        EXPECT_EQ(count(read, qPrintable("office:value-type=\"string\"[^>]*>\\s*<text:p>" +
                                         QRegularExpression::escape(shown) + "</text:p>")),
                  1)
            << shown.toStdString();
    };
    for (const char* shown : {"=SUM(A1)", "00501", "97050", "K1A 0B1", "(555) 123-4567", "123-4567", "soon", "5/1/1899",
                              "waived", "{\\b Peña} 漢字"})
        text(shown);
    text("&lt;b&gt;&amp;&quot;x&quot;&lt;/b&gt;");
    EXPECT_FALSE(read.contains("table:formula"));
    holds("office:date-value=\"2014-01-07\"");
    holds("office:time-value=\"PT18H30M00S\"");
    holds("office:value=\"1234.5\"");
    holds("<text:p>$1,234.50</text:p>");
    holds("<text:p>($3.46)</text:p>");
    holds("office:value=\"0.333\"");
    holds("office:value=\"19\"");
    holds("<text:p>two</text:p><text:p>lines</text:p>");
    EXPECT_GE(count(read, "style:row-height=\"0\\.(3[5-9]|4)"), 1) << "inches of a row of two lines";
    holds("table:name=\"Fees- A-B &amp; &lt;C&gt;\"");
    EXPECT_EQ(count(read, "<table:table "), 1);
}

TEST_F(ReportFile, ExcelGoesOnInAFurtherSheetUnderTheSameHeads) {
    QStringList all;
    for (int row = 0; row < 70000; ++row) all << QString("Player %1 é").arg(row);
    ReportDefinition definition = nameList();
    definition.totals.reset();
    write("long.xls", definition, FileFormat::Excel, names(all));
    const QString first =
        readBack("long.xls", "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,false,false,false,-1",
                 "long-Active Player List.csv");
    const QString second = contentOf(path("read/long-Active Player List (2).csv"));
    QStringList read = first.split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(read.size(), 65536);
    EXPECT_EQ(read.mid(0, 4),
              (QStringList{"Bracken Vale,", "Active Player List,", "Player Name,Paid", "Player 0 é,12.5"}));
    QStringList rest = second.split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(rest.takeFirst(), "Player Name,Paid");
    read += rest;
    ASSERT_EQ(read.size(), 70003);
    for (int row = 0; row < 70000; ++row) ASSERT_EQ(read[row + 3], QString("Player %1 é,12.5").arg(row));
}

TEST_F(ReportFile, RichTextIsReadWithItsTables) {
    write("players.rtf", playerList(), FileFormat::Rtf, league);
    const QString read = readBack("players.rtf", "fodt", "players.fodt");
    EXPECT_EQ(count(read, "<table:table "), 2) << "one for each group";
    EXPECT_EQ(contentOf(path("players.rtf")).count("\\trhdr"), 2) << "heads of each, repeated on its pages";
    EXPECT_EQ(count(read, "<table:table-row "), 2 * (1 + 2 + 1) + 1);
    for (const char* shown : {"=SUM(A1)", "&lt;b&gt;&amp;&quot;x&quot;&lt;/b&gt;", "{\\b Peña} 漢字", "(555) 123-4567",
                              "two<text:line-break/>lines", "$1,234.50", "All Majors", "Fees: A/B &amp; &lt;C&gt;"})
        EXPECT_TRUE(read.contains(shown)) << shown;
    EXPECT_TRUE(read.contains("<text:page-number")) << "in the foot";
    EXPECT_TRUE(read.contains("fo:page-width=\"8.5in\""));
}

TEST_F(ReportFile, HtmlIsEscapedAndStandsAlone) {
    write("players.html", playerList(), FileFormat::Html, league);
    const QString html = contentOf(path("players.html"));
    for (const char* part :
         {"<title>Fees: A/B &amp; &lt;C&gt;</title>", "<td>&lt;b&gt;&amp;&quot;x&quot;&lt;/b&gt;</td>",
          "<td>two<br>lines</td>", "<th scope=\"col\" class=\"a\">Owed</th>", "<td class=\"a\">$1,234.50</td>",
          "<h2>Majors</h2>", "<td colspan=\"5\">All Majors</td>"})
        EXPECT_TRUE(html.contains(part)) << part;
    EXPECT_EQ(count(html, "src=|href=|url\\(|<script"), 0);
    for (const char* element : {"table", "thead", "tr", "td", "th", "h1", "h2", "header", "body", "html"})
        EXPECT_EQ(count(html, qPrintable(QString("<%1[ >]").arg(element))), html.count(QString("</%1>").arg(element)))
            << element;
    const QString read = readBack("players.html", "txt:Text (encoded):UTF8", "players.txt");
    for (const char* shown : {"<b>&\"x\"</b>", "{\\b Peña} 漢字", "Fees: A/B & <C>", "($3.46)"})
        EXPECT_TRUE(read.contains(shown)) << shown;
}

TEST_F(ReportFile, FormsKeepTheirBoxesAndRules) {
    ReportDefinition form;
    form.title = "Registration Form";
    form.lines = {Line{{.field = box("Male", [](const Row&) { return true; })}, {.field = box("Female")}},
                  Line{{.caption = "Phone:", .field = phone("Area", "Number"), .fillIn = 1}}.boxed()};
    const QString shown = QString::fromUtf8("☒ Male|☐ Female|Phone: (    ) ____________");
    write("form.rtf", form, FileFormat::Rtf, {});
    write("form.html", form, FileFormat::Html, {});
    const QString texts[] = {readBack("form.rtf", "txt:Text (encoded):UTF8", "form.txt"), contentOf(path("form.html"))};
    for (QString text : texts) {
        text.replace(QStringLiteral("&nbsp;"), QStringLiteral(" ")).replace(QChar::Nbsp, u' ');
        for (const QString& part : shown.split('|')) EXPECT_TRUE(text.contains(part)) << text.toStdString();
    }
}

TEST_F(ReportFile, LabelsKeepTheSheetOrBecomeAList) {
    ReportDefinition definition;
    definition.query.text = "names";
    definition.lines = {{{.field = column("Name")}}, {{.field = column("Paid")}}};
    definition.labels = LabelSheet{.skip = 2};
    const auto tables = names({"Ann", "Bob"});
    write("labels.html", definition, FileFormat::Html, tables);
    EXPECT_TRUE(contentOf(path("labels.html")).contains("<td></td><td></td><td>Ann<br>12.5</td></tr>"));
    write("labels.xls", definition, FileFormat::Excel, tables);
    EXPECT_EQ(readBack("labels.xls", "csv", "labels.csv"), "Ann,12.5\nBob,12.5\n");
    write("labels.rtf", definition, FileFormat::Rtf, tables);
    const QString read = readBack("labels.rtf", "fodt", "labels.fodt");
    EXPECT_TRUE(read.contains("style:row-height=\"1in\"")) << "an inch each, exactly";
    EXPECT_EQ(count(read, "<table:table-row "), 2);
}

TEST_F(ReportFile, FileIsWholeOrNotThere) {
    QStringList many;
    for (int row = 0; row < 5000; ++row) many << QString("Player %1").arg(row);
    const ListRows::Tables small = names({"Before"});
    const ListRows::Tables large = names(many);
    for (const FileFormat format : {FileFormat::Pdf, FileFormat::Rtf, FileFormat::Html, FileFormat::Excel}) {
        const QString file = path("report");
        write("report", nameList(), format, small);
        const QByteArray before = contentOf(file);
        const auto unchanged = [&] {
            EXPECT_EQ(contentOf(file), before) << int(format);
            EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"report"});
        };
        const Report run{nameList(), ListRows::over(large)};
        for (const rlim_t space : {rlim_t(60000), rlim_t(before.size() - 50), rlim_t(0)}) {
            const FullDisk full(space);
            EXPECT_THROW(writeFile(file, run, format, letterPaper), files::Error) << int(format) << " " << space;
            unchanged();
        }
        int last = 0;
        const auto stop = [&](int done) { return (last = done) < 20; };
        EXPECT_FALSE(writeFile(file, run, format, letterPaper, stop));
        EXPECT_GE(last, 20);
        EXPECT_LT(last, 200) << "it goes no further";
        unchanged();
        EXPECT_THROW(writeFile(file, {nameList(), ListRows::over(names({}))}, format, letterPaper), NoDataError);
        unchanged();
        write("report", nameList(), format, large);
        EXPECT_NE(contentOf(file), before);
        ASSERT_TRUE(QFile::remove(file));
    }
}

TEST_F(ReportFile, KeepsTheLinkAndThePermissionsOfAnOlderFile) {
    const QString real = path("real.html");
    write("real.html", nameList(), FileFormat::Html, names({"Before"}));
    ASSERT_TRUE(QFile::link(real, path("link.html")));
    ASSERT_TRUE(QFile::setPermissions(real, QFile::ReadOwner | QFile::WriteOwner));
    write("link.html", nameList(), FileFormat::Html, names({"After"}));
    EXPECT_EQ(QFile::symLinkTarget(path("link.html")), real);
    EXPECT_TRUE(contentOf(real).contains("After"));
    EXPECT_FALSE(QFile::permissions(real) & (QFile::ReadGroup | QFile::ReadOther));
}

TEST_F(ReportFile, SaysWhichFileCouldNotBeWritten) {
    for (const QString& target : {path("missing/x.pdf"), folder_.path()}) {
        try {
            writeFile(target, {nameList(), ListRows::over(names({"Ann"}))}, FileFormat::Pdf, letterPaper);
            FAIL() << "nothing was raised for " << target.toStdString();
        } catch (const files::Error& error) {
            EXPECT_TRUE(error.text().contains(target)) << error.what();
        }
    }
}
