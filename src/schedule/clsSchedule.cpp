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
    main().requery();
}
