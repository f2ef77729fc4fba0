#pragma once

#include <QIODevice>
#include <QPageLayout>

#include "platform/report/Band.h"

namespace report {

/// Writes the bands of a report into a file without pages of our own making.
class BandWriter {
public:
    virtual ~BandWriter() = default;
    virtual void write(const Band& band) = 0;
    /// What stands behind the last band.
    virtual void finish() = 0;
};

/// HTML that stands alone, for reading and for printing from a browser.
std::unique_ptr<BandWriter> htmlWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper);
/// Rich text for word processors, with the report's lines as tables.
std::unique_ptr<BandWriter> rtfWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper);
/// A workbook of the Excel 97 format, its cells with their types.
std::unique_ptr<BandWriter> xlsWriter(QIODevice& file, const ReportDefinition& definition, const QPageLayout& paper);

/// Labels as the rows of a sheet: one cell with all lines of a label, as many labels side by side as on the sheet.
std::unique_ptr<BandSource> labelRows(std::unique_ptr<BandSource> bands, const LabelSheet& sheet);
/// Labels as a list: each a row with its lines side by side.
std::unique_ptr<BandSource> labelList(std::unique_ptr<BandSource> bands);

}  // namespace report
