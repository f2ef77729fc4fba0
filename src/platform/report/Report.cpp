#include "platform/report/Report.h"

#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>

#include "platform/files/Files.h"
#include "platform/report/BandWriter.h"
#include "platform/report/PagePainter.h"
#include "platform/report/ReportError.h"
#include "platform/report/ReportFiller.h"

namespace report {

namespace {

constexpr double margin = 36;           // points
constexpr int rowsBetweenReports = 64;  // of progress

enum class Ending { Done, Cancelled, Failed };

bool goesOn(const Progress& progress, int done) { return !progress || progress(done); }

bool layOut(Paginator& pages, const Progress& progress) {
    while (pages.layOutMore())
        if (!goesOn(progress, pages.pageCount())) return false;
    return true;
}

template <typename Device>
Ending paintPages(Device& device, QPainter& painter, Paginator& pages, int first, int last, const Progress& progress) {
    PagePainter pagePainter(pages);
    const double scale = double(device.resolution()) / unitsPerInch;
    painter.scale(scale, scale);
    for (int index = first; index <= last; ++index) {
        const Page* page = pages.page(index);
        if (!page) break;
        if (index > first && !device.newPage()) return Ending::Failed;
        pagePainter.paint(painter, *page);
        pagePainter.paintFoot(painter, index);
        if (!goesOn(progress, index + 1)) return Ending::Cancelled;
    }
    return Ending::Done;
}

std::unique_ptr<Paginator> paginate(std::unique_ptr<BandSource> bands, const ReportDefinition& definition,
                                    const QPageLayout& paper) {
    return std::make_unique<Paginator>(std::move(bands), paper, definition.footer, definition.labels);
}

bool writePdf(files::WholeFile& file, Paginator& pages, const QString& title, const Progress& progress) {
    if (!layOut(pages, progress)) return false;
    QPdfWriter writer(&file);
    writer.setResolution(unitsPerInch);
    writer.setTitle(title);
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageLayout(QPageLayout(pages.paper().pageSize(), pages.paper().orientation(), QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer)) throw ReportError(QCoreApplication::translate("report", "The pages cannot be drawn."));
    const Progress checked = [&](int done) {
        file.check();
        return goesOn(progress, done);
    };
    return paintPages(writer, painter, pages, 0, pages.pageCount() - 1, checked) != Ending::Cancelled;
}

bool writeBands(files::WholeFile& file, BandWriter& writer, BandSource& bands, const Progress& progress) {
    Band band;
    for (int rows = 0; bands.next(band);) {
        writer.write(band);
        if (band.kind != BandKind::Detail || band.keepWithPrevious || ++rows % rowsBetweenReports != 0) continue;
        file.check();
        if (!goesOn(progress, rows)) return false;
    }
    writer.finish();
    return true;
}

}  // namespace

NoDataError::NoDataError() : ReportError(QCoreApplication::translate("report", "No data available for report.")) {}

QPageLayout paperFor(const ReportDefinition& definition, const QPageSize& size) {
    const QPageLayout::Orientation orientation = definition.landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    return QPageLayout(definition.labels ? QPageSize(QPageSize::Letter) : size, orientation,
                       QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
}

std::unique_ptr<Paginator> paginate(const Report& report, const QPageLayout& paper) {
    return paginate(std::make_unique<ReportFiller>(report.definition, report.rows), report.definition, paper);
}

bool writeFile(const QString& path, const Report& report, FileFormat format, const QPageSize& size,
               const Progress& progress) {
    const ReportDefinition& definition = report.definition;
    const QPageLayout paper = paperFor(definition, size);
    auto filler = std::make_unique<ReportFiller>(definition, report.rows);
    if (!filler->hasRows()) throw NoDataError();
    std::unique_ptr<BandSource> bands = std::move(filler);
    files::WholeFile file(path);
    const auto write = [&](auto makeWriter) {
        return writeBands(file, *makeWriter(file, definition, paper), *bands, progress);
    };
    if (definition.labels && format == FileFormat::Excel)
        bands = labelList(std::move(bands));
    else if (definition.labels && format != FileFormat::Pdf)
        bands = labelRows(std::move(bands), *definition.labels);
    bool done = false;
    switch (format) {
        case FileFormat::Pdf:
            done = writePdf(file, *paginate(std::move(bands), definition, paper), definition.title, progress);
            break;
        case FileFormat::Rtf: done = write(rtfWriter); break;
        case FileFormat::Html: done = write(htmlWriter); break;
        case FileFormat::Excel: done = write(xlsWriter); break;
    }
    if (done) file.commit();
    return done;
}

bool print(QPrinter& printer, const Report& report, const Progress& progress) {
    const auto pages = paginate(report, paperFor(report.definition, printer.pageLayout().pageSize()));
    if (!layOut(*pages, progress)) return false;
    printer.setDocName(report.definition.title);
    printer.setFullPage(true);
    if (report.definition.labels) printer.setPageSize(pages->paper().pageSize());
    printer.setPageOrientation(pages->paper().orientation());
    const bool range = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = range ? printer.fromPage() - 1 : 0;
    const int last = range ? printer.toPage() - 1 : pages->pageCount() - 1;
    QPainter painter;
    Ending ending = Ending::Failed;
    if (painter.begin(&printer)) ending = paintPages(printer, painter, *pages, first, last, progress);
    if (ending == Ending::Cancelled) {
        printer.abort();
        return false;
    }
    if (ending == Ending::Failed || !painter.end() || printer.printerState() == QPrinter::Error)
        throw ReportError(QCoreApplication::translate("report", "The printer did not take the report."));
    return true;
}

}  // namespace report
