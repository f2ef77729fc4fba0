#include <QCoreApplication>
#include <cstdio>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "platform/text/Dates.h"
#include "schedule/exchange/SchedulerImport.h"

// The import of a schedule beside the engine told to store the same games, cut at the commas.

namespace {

constexpr int players = 1000;
constexpr int games = 30000;

struct Agreeing final : QuietDialogs {
    BoxAnswer box(BoxKind, BoxButtons buttons, const QString&, const QString&) override {
        return buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
    }
};

QByteArray scheduleFile() {
    QByteArray file;
    for (int i = 0; i < games; ++i) {
        const QDate date = QDate(2026, 4, 1).addDays(i % 90);
        file += shortDate(date).toUtf8() + ",Saturday," + QByteArray::number(1 + i % 12) + ":30 PM,Imported,Team " +
                QByteArray::number(i % 40) + ",Team " + QByteArray::number(i % 41) + ",Field " +
                QByteArray::number(i % 12) + "\r\n";
    }
    return file;
}

void importByHand(const QString& path, const QByteArray& bytes) {
    const RawFile file(path);
    sqlite3_exec(file.handle(), "BEGIN IMMEDIATE; DELETE FROM tblSchedule WHERE division = 'Imported'", nullptr,
                 nullptr, nullptr);
    RawStatement insert(file,
                        "INSERT INTO tblSchedule (Date, Day, Time, division, VisitorsTeam, HomeTeam, Field, DateStamp, "
                        "TimeStamp, DeletedFlag) VALUES (?, ?, ?, ?, ?, ?, ?, '2026-05-16', 43200, 0)");
    for (const QByteArray& line : bytes.split('\n')) {
        const QByteArrayList parts = line.trimmed().split(',');
        if (parts.size() < 7) continue;
        int month = 0;
        int day = 0;
        int year = 0;
        int hour = 0;
        int minute = 0;
        std::sscanf(parts[0].constData(), "%d/%d/%d", &month, &day, &year);
        std::sscanf(parts[2].constData(), "%d:%d", &hour, &minute);
        char date[32];
        char time[32];
        std::snprintf(date, sizeof date, "%04d-%02d-%02d", year, month, day);
        std::snprintf(time, sizeof time, "%02d:%02d:00", hour % 12 + 12, minute);
        const QByteArray values[] = {date, parts[1], time, parts[3], parts[4], parts[5], parts[6]};
        for (int i = 0; i < 7; ++i) insert.bind(i + 1, values[i]);
        insert.step();
        insert.reset();
    }
    sqlite3_exec(file.handle(), "COMMIT", nullptr, nullptr, nullptr);
}

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    const QByteArray bytes = scheduleFile();
    SampleLeague ours(players);
    SampleLeague raw(players);
    Agreeing dialogs;
    StoreContext context{ours.workspace, ours.clock, dialogs, ours.context.dataFilePath};
    Comparison comparison(&count, arguments);
    comparison.add(
        {"import 30,000 games over as many", players, {.times = 2}},
        [&] { SchedulerImport(context).ImportScheduleFile(*linesOf(bytes)); },
        [&] { importByHand(raw.context.dataFilePath, bytes); });
    return comparison.run();
}
