#include "schedule/exchange/SchedulerImport.h"

#include "schedule/clsSchedule.h"

#include <QCoreApplication>

namespace {

constexpr int highestCount = 32767;

QString tr(const char* text) { return QCoreApplication::translate("SchedulerImport", text); }

}  // namespace

void SchedulerImport::ImportScheduleFile(const QStringList& lines) {
    clsSchedule schedule(context_);
    QString division;
    auto replaced = clsSchedule::Games::None;
    bool refused = false;
    if (lines.isEmpty()) {
        context_.dialogs.warning(tr("No Data Available..."),
                                 tr("The import file was empty.") + u'\n' + tr("Aborting import."));
    } else {
        division = divisionOf(lines.front());
        if (schedule.FindDivisionRecord(division)) {
            refused = !mayReplace(division);
            replaced = clsSchedule::Games::All;
        }
    }
    if (!refused) {
        judge(lines.isEmpty() ? QStringList(QString()) : lines);
        schedule.ReplaceDivisionSchedule(division, replaced, games_);
    }
    context_.dialogs.information(tr("Import Finished"),
                                 tr("There were %1 records for division \"%2\"").arg(count_).arg(division) + u'\n' +
                                     tr("imported into the Schedule table."));
}

bool SchedulerImport::mayReplace(const QString& division) const {
    return context_.dialogs.ask(
        tr("Schedule Found..."),
        tr("Records for Division \"%1\" have been found in the schedule table.  If").arg(division) + u'\n' +
            tr("you continue, the current records for the division will be deleted") + u'\n' +
            tr("from the Schedule table and replaced by the file you requested to import.") + QStringLiteral("\n\n") +
            tr(" Do you want to contiue?"));
}

void SchedulerImport::judge(const QStringList& lines) {
    for (const QString& line : lines) {
        Game game;
        const LineFault fault = readLine(line, game);
        ++count_;
        if (fault == LineFault::None) {
            games_.push_back(std::move(game));
        } else if (&line == &lines.back()) {
            tell(fault, BoxButtons::Ok);
        } else {
            return stayOn(fault);
        }
    }
}

/// A bad line stays in hand, so its box comes again and again. From the second time on the user can leave.
void SchedulerImport::stayOn(LineFault fault) {
    tell(fault, BoxButtons::Ok);
    while (count_ < highestCount) {
        ++count_;
        if (tell(fault, BoxButtons::OkCancel) == BoxAnswer::Cancel) return;
    }
}

BoxAnswer SchedulerImport::tell(LineFault fault, BoxButtons buttons) const {
    QString title = tr("Invalid Schedule Date");
    QString text = tr("An Invalid Schedule Date was found.");
    if (fault == LineFault::Day) {
        title = tr("Invalid Schedule Day");
        text = tr("An Invalid Schedule Day was found.");
    } else if (fault == LineFault::Time) {
        title = tr("Invalid Schedule Time");
        text = tr("An Invalid Schedule Time was found.");
    }
    return context_.dialogs.box(BoxKind::Warning, buttons, title,
                                text + QStringLiteral("\n\n") + tr("Aborting File Import."));
}
