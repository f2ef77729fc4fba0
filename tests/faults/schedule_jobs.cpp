#include "faults/Jobs.h"
#include "schedule/clsSchedule.h"
#include "schedule/exchange/SchedulerImport.h"
#include "support/QuietDialogs.h"

// A division's schedule replaced by a file of the outside scheduler, and by the grid's save.

namespace {

constexpr int gameCount = 120;  // several pages of the file

std::vector<Game> gamesOf(const QString& division, const QString& team) {
    std::vector<Game> games;
    for (int i = 0; i < gameCount; ++i)
        games.push_back({QDate(2026, 4, 1).addDays(i), "Saturday", QTime(9, 30), division,
                         team + QString::number(i % 9), team + QString::number(i % 8), QString(30, u'f')});
    return games;
}

void prepare(const LeagueFolder& folder) {
    folder.makeLeague([](StoreContext& context) {
        clsSchedule schedule(context);
        for (const QString division : {"Minors", "Majors"})
            schedule.ReplaceDivisionSchedule(division, clsSchedule::Games::None, gamesOf(division, "Hawks "));
        schedule.FindScheduleRecord(7, false, true);
        schedule.DeleteScheduleRecord();
    });
}

/// Says Yes to the one question.
struct Agreeing final : QuietDialogs {
    BoxAnswer box(BoxKind, BoxButtons buttons, const QString&, const QString&) override {
        return buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
    }
};

void importSchedule(StoreContext& context) {
    QStringList lines;
    for (const Game& game : gamesOf("Minors", "Owls "))
        lines << QStringList{game.date.toString("M/d/yyyy"),
                             game.day,
                             "9:30 AM",
                             game.division,
                             game.visitorsTeam,
                             game.homeTeam,
                             game.field}
                     .join(u',');
    Agreeing dialogs;
    StoreContext own{context.workspace, context.clock, dialogs, context.dataFilePath};
    SchedulerImport(own).ImportScheduleFile(lines);
}

void saveSchedule(StoreContext& context) {
    clsSchedule(context).ReplaceDivisionSchedule("Minors", clsSchedule::Games::NotDeleted, gamesOf("Minors", "Owls "));
}

}  // namespace

QList<FaultJob> scheduleJobs() {
    return {{.name = "import_schedule", .prepare = prepare, .begin = FaultJob::step(importSchedule)},
            {.name = "save_schedule", .prepare = prepare, .begin = FaultJob::step(saveSchedule)}};
}
