#include "reports/ReportOutput.h"

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/report/ReportError.h"
#include "platform/report/ReportFiller.h"
#include "platform/report/ReportPreview.h"
#include "platform/report/RunProgress.h"
#include "reports/StoreRows.h"
#include "shell/Program.h"

namespace {

struct FileKind {
    Destination destination;
    report::FileFormat format;
    const char* filters;
    const char* suffix;
};

constexpr FileKind fileKinds[] = {
    {RtfFile, report::FileFormat::Rtf, QT_TRANSLATE_NOOP("ReportOutput", "Rich Text Format (*.rtf)|*.rtf"), ".rtf"},
    {PdfFile, report::FileFormat::Pdf, QT_TRANSLATE_NOOP("ReportOutput", "Portable Document Format (*.pdf)|*.pdf"),
     ".pdf"},
    {HtmlFile, report::FileFormat::Html, QT_TRANSLATE_NOOP("ReportOutput", "HTML Document Format (*.html)|*.html"),
     ".html"},
    {ExcelFile, report::FileFormat::Excel, QT_TRANSLATE_NOOP("ReportOutput", "Excel Format (*.xls)|*.xls"), ".xls"},
};

}  // namespace

ReportOutput::ReportOutput(Program& program) : program_(program) {}
ReportOutput::~ReportOutput() = default;

QString ReportOutput::run(const LeagueReport& report, int destination, QWidget* screen) {
    StoreContext& store = program_.store;
    if (report.prepare) report.prepare(store);
    const report::Report runnable{report.definition, storeRows(store.database())};
    if (const auto& noData = report.definition.noData;
        noData && !report::ReportFiller(runnable.definition, runnable.rows).hasRows()) {
        program_.dialogs().information(noData->title, noData->text);
        return {};
    }
    if (destination == Print) return print(runnable, screen);
    if (destination != Preview) return save(runnable, destination, screen);
    preview(runnable);
    return {};
}

void ReportOutput::preview(const report::Report& report) {
    report::ReportPreview window(report, printer(), program_.dialogs());
    program_.dialogs().showModal(window);
}

QString ReportOutput::print(const report::Report& report, QWidget* screen) {
    QPrintDialog dialog(&printer());
    dialog.setObjectName("printDialog");
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (program_.dialogs().showModal(dialog) != QDialog::Accepted) return {};
    report::RunProgress progress(screen, report.definition.title, report::RunProgress::Counts::Pages);
    const bool whole = report::print(printer(), report, std::ref(progress));
    return whole ? QString() : tr("The report was cancelled.");
}

QString ReportOutput::save(const report::Report& report, int destination, QWidget* screen) {
    const auto kind = std::find_if(std::begin(fileKinds), std::end(fileKinds),
                                   [&](const FileKind& each) { return each.destination == destination; });
    if (kind == std::end(fileKinds)) return {};
    const auto path = program_.dialogs().saveFile({.title = tr("Save Report"),
                                                   .filters = tr(kind->filters),
                                                   .defaultSuffix = QLatin1String(kind->suffix),
                                                   .fileName = report.definition.title});
    if (!path) return {};
    try {
        using report::RunProgress;
        const bool pages = kind->format == report::FileFormat::Pdf;
        RunProgress progress(screen, report.definition.title,
                             pages ? RunProgress::Counts::Pages : RunProgress::Counts::Rows);
        const bool whole =
            report::writeFile(*path, report, kind->format, printer().pageLayout().pageSize(), std::ref(progress));
        return whole ? tr("Report saved as %1.").arg(*path) : tr("The report was cancelled.");
    } catch (const report::NoDataError&) {
        program_.dialogs().information(tr("No Data to Report"), tr("No data available for report."));
        return {};
    }
}

void ReportOutput::setUpPrinter() {
    QPageSetupDialog dialog(&printer());
    dialog.setObjectName("pageSetupDialog");
    program_.dialogs().showModal(dialog);
}

QPrinter& ReportOutput::printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (QPrinterInfo::defaultPrinter().isNull()) printer_->setPageSize(QPageSize(QPageSize::Letter));
    }
    return *printer_;
}
