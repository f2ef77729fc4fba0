#pragma once

#include "platform/report/ReportFiller.h"
#include "reports/LeagueReport.h"
#include "reports/StoreRows.h"
#include "store/StoreContext.h"

/// The rows and totals of a report over a data file, with those of its sub-reports: a band a line, its cells with bars
/// between them. Group headers begin with "#", totals with "=".
inline QStringList filled(const LeagueReport& report, StoreContext& store) {
    if (report.prepare) report.prepare(store);
    report::ReportFiller filler(report.definition, storeRows(store.database()));
    QStringList lines;
    for (report::Band band; filler.next(band); band.reset()) {
        using report::BandKind;
        if (band.kind == BandKind::Title || band.kind == BandKind::ColumnHeads) continue;
        const bool total = band.kind == BandKind::GroupFooter || band.kind == BandKind::Totals;
        QStringList cells;
        for (const report::Cell& cell : band.cells)
            if (!cell.gap) cells << cell.text;
        lines << QString(band.kind == BandKind::GroupHeader ? "#" : total ? "=" : "") + cells.join('|');
    }
    return lines;
}
