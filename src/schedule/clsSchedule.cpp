#include "schedule/clsSchedule.h"

bool clsSchedule::FindScheduleRecord(int id, bool show, bool load) {
    return findOrTell(matches("ScheduleId", id), {}, show, load,
                      {"Record Not Found", "Schedule Record Not Found.", "Schedule Record Not Found."});
}

bool clsSchedule::FindScheduleMergeRecord(QDate date, const QString& day, QTime time, const QString& division,
                                          const QString& visitors, const QString& home, const QString& field,
                                          bool load) {
    const QStringList criteria{QStringLiteral("Date = ") + datafile::quoted(date),
                               matches("Day", day),
                               QStringLiteral("Time = ") + datafile::quoted(time),
                               matches("division", division),
                               matches("VisitorsTeam", visitors),
                               matches("HomeTeam", home),
                               matches("Field", field)};
    return find(criteria.join(QStringLiteral(" AND ")), load);
}

void clsSchedule::AddNewScheduleRecord() {
    setNew(true);
    save();
}

void clsSchedule::UpdateScheduleRecord() {
    setNew(false);
    ScheduleStamps.DeletedFlag = false;
    save();
}

void clsSchedule::DeleteDivisionSchedule(const QString& division, Games which) {
    const QString criteria = matches("division", division);
    database().execute(QStringLiteral("DELETE FROM tblSchedule WHERE ") +
                       (which == Games::All ? criteria : live(criteria)));
}

void clsSchedule::ReplaceDivisionSchedule(const QString& division, Games replaced, const std::vector<Game>& games) {
    using datafile::Value;
    const Value today = datafile::fromDate(context().clock.today());
    const Value now{qint64{context().clock.secondsSinceMidnight()}};
    std::vector<datafile::Values> rows;
    rows.reserve(games.size());
    for (const Game& game : games)
        rows.push_back({datafile::fromDate(game.date), Value{game.day},
                        datafile::fromTime(TimeOfDay::toMinute(game.time)), Value{game.division},
                        Value{game.visitorsTeam}, Value{game.homeTeam}, Value{game.field}, today, now,
                        datafile::fromFlag(false)});
    datafile::Transaction transaction(database());
    if (replaced != Games::None) DeleteDivisionSchedule(division, replaced);
    main().addRows({"Date", "Day", "Time", "division", "VisitorsTeam", "HomeTeam", "Field", "DateStamp", "TimeStamp",
                    "DeletedFlag"},
                   rows);
    transaction.commit();
    main().requery();
}
