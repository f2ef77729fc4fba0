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

/// The formats of report files.
enum class FileFormat { Rtf, Pdf, Html, Excel };

/// Told how far a run is: pages of a paper, rows of a file without pages. False ends the run.
using Progress = std::function<bool(int done)>;

/// The paper for a report: half an inch of margin, turned as the definition says. Labels come on sheets of their own
/// size, whatever paper the printer has.
QPageLayout paperFor(const ReportDefinition& definition, const QPageSize& size = QPageSize(QPageSize::Letter));

/// Starts a run. Raises what opening the query raises.
std::unique_ptr<Paginator> paginate(const Report& report, const QPageLayout& paper);

/// Runs the report and writes it as a file, whole or not at all. False when the run was cancelled. Raises NoDataError,
/// files::Error where the file could not be written, and what reading the rows raises; then no file is made, and an
/// older one stays.
bool writeFile(const QString& path, const Report& report, FileFormat format, const QPageSize& size,
               const Progress& progress = {});

/// Prints on the printer's own paper, the pages that its settings name. False when the run was cancelled. Raises
/// ReportError.
bool print(QPrinter& printer, const Report& report, const Progress& progress = {});

}  // namespace report
