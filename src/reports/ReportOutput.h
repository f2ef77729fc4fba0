#pragma once

#include <QCoreApplication>
#include <memory>

#include "platform/report/Report.h"
#include "reports/LeagueReport.h"

class QPrinter;
struct Program;

/// The numbers under which the output routine knows its destinations.
enum Destination { Preview = 1, Print = 2, RtfFile = 3, PdfFile = 4, HtmlFile = 5, ExcelFile = 6 };

/// The output routine: sends a report to the preview, to the printer or into a file.
class ReportOutput {
    Q_DECLARE_TR_FUNCTIONS(ReportOutput)

public:
    explicit ReportOutput(Program& program);
    ~ReportOutput();

    /// Runs a report. A run without data is told where the report or the destination says so, a cancelled dialog ends
    /// it. Gives back what the status line is to say, which may be nothing. Raises what making the report raises.
    QString run(const LeagueReport& report, int destination, QWidget* screen);
    void setUpPrinter();

private:
    void preview(const report::Report& report);
    QString print(const report::Report& report, QWidget* screen);
    QString save(const report::Report& report, int destination, QWidget* screen);
    /// Made when it is first needed: asking the system for its printers takes time.
    QPrinter& printer();

    Program& program_;
    std::unique_ptr<QPrinter> printer_;
};
