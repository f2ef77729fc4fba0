#pragma once

#include <functional>

#include "platform/report/Report.h"
#include "platform/report/ReportError.h"
#include "platform/report/ReportFiller.h"

namespace report {

enum class FileFormat { Rtf, Pdf, Html, Excel };
using Progress = std::function<bool(int)>;
class NoDataError final : public ReportError {
public:
    NoDataError() : ReportError({}) {}
};
inline bool writeFile(const QString& path, const Report& report, FileFormat, const QPageSize& paper, const Progress&) {
    if (!ReportFiller(report.definition, report.rows).hasRows()) throw NoDataError();
    writePdf(path, *paginate(report, paperFor(report.definition, paper)), report.definition.title);
    return true;
}
inline bool print(QPrinter& printer, const Report& report, const Progress&) {
    print(printer, report);
    return true;
}

}  // namespace report
