#pragma once

#include <QPageLayout>

#include "platform/report/Paginator.h"
#include "platform/report/ReportDefinition.h"

class QPrinter;

namespace report {

/// A report that can be run: what to print and where its rows come from. Each run opens the query anew.
struct Report {
    ReportDefinition definition;
    RowSourceFactory rows;
};

/// The paper for a report: half an inch of margin, turned as the definition says.
QPageLayout paperFor(const ReportDefinition& definition, const QPageSize& size = QPageSize(QPageSize::Letter));

/// Starts a run. Raises what opening the query raises.
std::unique_ptr<Paginator> paginate(const Report& report, const QPageLayout& paper);

/// Writes all pages as a PDF file, whole or not at all. Raises ReportError.
void writePdf(const QString& path, Paginator& pages, const QString& title);

/// Prints on the printer's own paper, the pages that its settings name. Raises ReportError.
void print(QPrinter& printer, const Report& report);

}  // namespace report
