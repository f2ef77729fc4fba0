#include "faults/Jobs.h"
#include "registration/clsRegistration.h"

// Saving records, and a change of many rows at once.

namespace {

void prepare(const LeagueFolder& folder) {
    folder.makeLeague([](StoreContext& context) {
        clsRegistration player(context);
        for (int i = 0; i < 30; ++i) {
            player.NewPlayerRecord();
            player.PlayerLastName = i == 17 ? QStringLiteral("Smith") : QStringLiteral("Player%1").arg(i);
            player.PlayerFirstName = "Ann";
            player.PlayerBirthDate = QDate(2012, 4, 2);
            player.PlayerComments = QString(200, 'c');
            player.SavePlayerRecord();
        }
    });
}

/// Fills a player's record in; the step is its save.
template <class Edit>
auto saving(Edit edit) {
    return [edit](StoreContext& context) {
        auto player = std::make_shared<clsRegistration>(context);
        edit(*player);
        return [player] {
            player->SavePlayerRecord();
            return player->isChanged() ? QStringLiteral("The record stayed unsaved.") : FaultJob::done;
        };
    };
}

void change(clsRegistration& player) {
    player.FindPlayerRecord("Smith, Ann - 4/2/2012", false, true);
    player.PlayerCity = "Newtown";
    player.PlayerPhone = "555-1234";
    player.PlayerDadLastName = "Zimmermann";
    player.PlayerComments = QString(255, 'x');
}

void add(clsRegistration& player) {
    player.NewPlayerRecord();
    player.PlayerLastName = "Newcomer";
    player.PlayerFirstName = "Bo";
    player.PlayerBirthDate = QDate(2013, 5, 6);
    player.PlayerComments = QString(255, 'y');
}

/// One transaction that goes on past a row that fails, and is given up at its end then.
void changeMany(StoreContext& context) {
    const datafile::Database database = context.database();
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
}

}  // namespace

QList<FaultJob> recordJobs() {
    return {{.name = "save", .samples = 10, .prepare = prepare, .begin = saving(change)},
            {.name = "add", .samples = 10, .prepare = prepare, .begin = saving(add)},
            {.name = "bulk", .samples = 10, .prepare = prepare, .begin = FaultJob::step(changeMany)}};
}
