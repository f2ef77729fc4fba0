#include "platform/report/Report.h"

#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>

#include "platform/report/PagePainter.h"
#include "platform/report/ReportError.h"
#include "platform/report/ReportFiller.h"
#include "platform/report/WholeFile.h"

namespace report {

namespace {

constexpr double margin = 36;  // points

/// False when the device takes no further page.
template <typename Device>
bool paintPages(Device& device, QPainter& painter, Paginator& pages, int first, int last) {
    PagePainter pagePainter(pages);
    const double scale = double(device.resolution()) / unitsPerInch;
    painter.scale(scale, scale);
    for (int index = first; index <= last; ++index) {
        const Page* page = pages.page(index);
        if (!page) break;
        if (index > first && !device.newPage()) return false;
        pagePainter.paint(painter, *page);
        pagePainter.paintFoot(painter, index);
    }
    return true;
}

}  // namespace

QPageLayout paperFor(const ReportDefinition& definition, const QPageSize& size) {
    const QPageLayout::Orientation orientation = definition.landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    return QPageLayout(size, orientation, QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
}

std::unique_ptr<Paginator> paginate(const Report& report, const QPageLayout& paper) {
    return std::make_unique<Paginator>(std::make_unique<ReportFiller>(report.definition, report.rows), paper,
                                       report.definition.footer, report.definition.labels);
}

void writePdf(const QString& path, Paginator& pages, const QString& title) {
    pages.layOutAll();
    WholeFile file(path);
    QPdfWriter writer(&file);
    writer.setResolution(unitsPerInch);
    writer.setTitle(title);
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageLayout(QPageLayout(pages.paper().pageSize(), pages.paper().orientation(), QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer) || !paintPages(writer, painter, pages, 0, pages.pageCount() - 1)) file.giveUp();
    painter.end();
    file.commit();
}

void print(QPrinter& printer, const Report& report) {
    const auto pages = paginate(report, paperFor(report.definition, printer.pageLayout().pageSize()));
    pages->layOutAll();
    printer.setFullPage(true);
    printer.setPageOrientation(pages->paper().orientation());
    const bool range = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    QPainter painter;
    const bool painted = painter.begin(&printer) &&
                         paintPages(printer, painter, *pages, range ? printer.fromPage() - 1 : 0,
                                    range ? printer.toPage() - 1 : pages->pageCount() - 1) &&
                         painter.end();
    if (!painted || printer.printerState() == QPrinter::Error)
        throw ReportError(QCoreApplication::translate("report", "The printer did not take the report."));
}

}  // namespace report
