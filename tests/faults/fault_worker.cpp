#include <QCoreApplication>
#include <cstdio>
#include <optional>

#include "registration/clsRegistration.h"
#include "store/CorrectVersion.h"
#include "store/Housekeeping.h"
#include "support/QuietDialogs.h"

// One piece of work on a league's data file, done in a process of its own so that it may be ended midway:
//
//     fault_worker save|add|bulk|copy|upgrade|compact <data file> [again]
//
// Prints a line with what the user is told: "done", or the text of the error. With "again" a user who was told an error
// tries a second time, and a second line says what came of it.

namespace {

constexpr char done[] = "done";

QString save(RecordClass& record) {
    record.save();
    return record.isChanged() ? QStringLiteral("The record stayed unsaved.") : QString::fromLatin1(done);
}

/// A step over several rows in one transaction. It goes on past a row that fails, and is given up at its end then.
QString changeMany(StoreContext& context) {
    const datafile::Database database = context.workspace.openDatabase(context.dataFilePath);
    datafile::Transaction transaction(database);
    datafile::Recordset players = database.openRecordset("tblRegistration");
    std::optional<datafile::Error> failure;
    for (; !players.eof(); players.moveNext()) {
        try {
            players.edit();
            players.set("PlayerTeamId", 7);
            players.set("PlayerPhone", QStringLiteral("555-7777"));
            players.update();
        } catch (const datafile::Error& error) {
            if (!failure) failure = error;
        }
    }
    if (failure) throw *failure;
    transaction.commit();
    return QString::fromLatin1(done);
}

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    const QString task = application.arguments().value(1);
    datafile::Workspace workspace;
    FixedClock clock(QDateTime(QDate(2026, 4, 22), QTime(12, 0)));
    QuietDialogs dialogs;
    StoreContext context{workspace, clock, dialogs, application.arguments().value(2)};
    context.globals.currentSeasonYear = "2026";

    std::optional<clsRegistration> player;
    if (task == u"save" || task == u"add") player.emplace(context);
    const auto work = [&]() -> QString {
        if (task == u"upgrade") return CorrectVersion(context) ? QString::fromLatin1(done) : dialogs.last;
        if (task == u"compact") return CompactDataFile(context), QString::fromLatin1(done);
        if (task == u"copy") return MakeSafetyCopy(context) ? QString::fromLatin1(done) : dialogs.last;
        if (task == u"bulk") return changeMany(context);
        return save(*player);
    };
    if (task == u"save") {
        if (!player->FindPlayerRecord("Smith, Ann - 4/2/2012", false, true)) return 1;
        player->PlayerCity = "Newtown";
        player->PlayerPhone = "555-1234";
        player->PlayerDadLastName = "Zimmermann";
        player->PlayerComments = QString(255, 'x');
    } else if (task == u"add") {
        player->NewPlayerRecord();
        player->PlayerLastName = "Newcomer";
        player->PlayerFirstName = "Bo";
        player->PlayerBirthDate = QDate(2013, 5, 6);
        player->PlayerComments = QString(255, 'y');
    }

    const int tries = application.arguments().value(3) == u"again" ? 2 : 1;
    for (int i = 0; i < tries; ++i) {
        QString told;
        try {
            told = work();
        } catch (const datafile::Error& error) {
            told = error.text();
        }
        std::puts(qPrintable(told.replace('\n', ' ')));
        std::fflush(stdout);
        if (told == QLatin1String(done)) break;
    }
    return 0;
}
