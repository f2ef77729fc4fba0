#include <gtest/gtest.h>

#include <QCryptographicHash>

#include "platform/report/Report.h"
#include "platform/report/ReportFiller.h"
#include "reports/StoreRows.h"
#include "reports/SampleReports.h"
#include "support/Printing.h"

namespace {

/// Where golden texts are written anew instead of being compared, and pages as PDF files for people to look at.
const char* const renewVariable = "KESTRELMOOR_RENEW_GOLDEN";
const char* const pagesVariable = "KESTRELMOOR_REPORT_PAGES";

/// The bands of a report, one a line: their kind, an indent by their depth, the cells between bars. Of a long report
/// the beginning and the end, and a sum over all lines.
QString textOf(const report::ReportDefinition& definition, const datafile::Database& database) {
    constexpr qsizetype first = 70, last = 15;
    report::ReportFiller filler(definition, storeRows(database));
    QStringList lines;
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (report::Band band; filler.next(band);) {
        QStringList cells;
        for (const report::Cell& cell : band.cells)
            cells << QString(cell.label + ' ' + cell.text).trimmed().replace('\n', " / ");
        lines << QString("TGHDFE"[int(band.kind)]) + QString(2 * band.indent + 1, ' ') + cells.join(" | ").trimmed();
        hash.addData(lines.back().toUtf8());
        band.reset();
    }
    if (const qsizetype left = lines.size() - first - last; left > 0) {
        lines.erase(lines.begin() + first, lines.end() - last);
        lines.insert(first, QString("... %1 lines more, sum of all %2").arg(left).arg(QString(hash.result().toHex())));
    }
    return lines.join('\n') + '\n';
}

class Definitions : public testing::Test {
protected:
    static void SetUpTestSuite() { sample = std::make_unique<SampleReports>(); }
    static void TearDownTestSuite() { sample.reset(); }
    static inline std::unique_ptr<SampleReports> sample;
};

}  // namespace

/// What the bands hold was read by people when it was put into the folder: `KESTRELMOOR_RENEW_GOLDEN=1 reports_test`
/// writes it anew.
TEST_F(Definitions, FillTheirBandsFromTheSampleLeague) {
    const QString pages = qEnvironmentVariable(pagesVariable);
    for (const SampleReport& each : sampleReports()) {
        SCOPED_TRACE(each.name);
        const LeagueReport report = each.make(sample->input(each.lists));
        if (report.prepare) report.prepare(sample->league.context);
        const QString text = textOf(report.definition, sample->league.database());
        QFile golden(QString(GOLDEN_FOLDER "/%1.txt").arg(each.name));
        const bool renew = qEnvironmentVariableIsSet(renewVariable);
        ASSERT_TRUE(golden.open(renew ? QIODevice::WriteOnly : QIODevice::ReadOnly)) << golden.fileName().toStdString();
        if (renew)
            golden.write(text.toUtf8());
        else
            EXPECT_EQ(text.split('\n'), QString::fromUtf8(golden.readAll()).split('\n'));
        if (pages.isEmpty()) continue;
        const report::Report run{report.definition, storeRows(sample->league.database())};
        for (const auto size : {QPageSize::Letter, QPageSize::A4})
            report::writeFile(QString("%1/%2-%3.pdf").arg(pages, each.name, QPageSize::key(size)), run,
                              report::FileFormat::Pdf, QPageSize(size));
    }
}
