#include "platform/widgets/Form.h"
#include "registration/PlayerPane.h"
#include "shell/Program.h"

// A child is known by last name, first name and birth date. Before a save that changes these, or adds them, the user
// decides what is meant.

namespace {

bool same(const PlayerKey& one, const PlayerKey& other) {
    return one.lastName.compare(other.lastName, Qt::CaseInsensitive) == 0 &&
           one.firstName.compare(other.firstName, Qt::CaseInsensitive) == 0 && one.birthDate == other.birthDate;
}

}  // namespace

bool PlayerPane::settleIdentity() {
    const bool sameAsLoaded = same(key(), loaded_);
    if (!player_.IsPlayerNew()) return sameAsLoaded || settleRename();
    if (!sameAsLoaded) return settleNew();
    return program().dialogs().ask(tr("Overwrite Current Record?"),
                                   tr("A record for player %1 %2 already exists.\n\nDo you want to overwrite the current record?")
                                       .arg(player_.PlayerFirstName(), player_.PlayerLastName()));
}

bool PlayerPane::settleRename() {
    const int id = player_.PlayerId;
    clsRegistration other(program().store);
    if (!other.FindPlayerRecord(key().text(), false, true)) {
        const BoxAnswer answer = program().dialogs().box(
            BoxKind::Question, BoxButtons::YesNoCancel, tr("Add New Record?"),
            tr("A record for %1 %2 with the current\nbirth date was not found, and neither the Add New\nnor Add Sibling buttons were pressed.\n\n"
               "Would you like to add a New Player record?\n   Yes -> Add New Record\n   No  -> Update the current record\n"
               "   Cancel -> No changes written to database.")
                .arg(player_.PlayerFirstName(), player_.PlayerLastName()));
        if (answer == BoxAnswer::Yes) player_.SetIsPlayerNew(true);
        return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
    }
    if (!other.PlayerDeletedFlag) return refuseRename();
    revive(id, other.PlayerId);
    if (player_.FindPlayerRecord(key().text(), false, false)) {
        player_.assignAll();
        player_.PlayerDeletedFlag = false;
        return true;
    }
    program().dialogs().error(tr("Rename Error"), tr("An error occurred in trying to Rename a player.\n"
                                                      "Please report this error to Kestrelmoor support."));
    return false;
}

bool PlayerPane::refuseRename() {
    const QString name = player_.PlayerFirstName() + u' ' + player_.PlayerLastName();
    program().dialogs().information(tr("Unable to Update Player Record"),
                                    tr("Unable to change the name or birth date of Player %1.\n"
                                       "A record already exists for Player %1 with the same Birth Date.\n\n"
                                       "Please enter a different First Name, Last Name, or Birth Date.")
                                        .arg(name));
    player_.FindPlayerRecord(loaded_.text(), false, false);
    form().focusField(QStringLiteral("txtPlayerLastName"));
    return false;
}

bool PlayerPane::settleNew() {
    clsRegistration other(program().store);
    if (!other.FindPlayerRecord(key().text(), false, true) || other.PlayerDeletedFlag) return true;
    const bool overwrite = program().dialogs().ask(
        tr("Duplicate Record Found"), tr("A record already exists for the Player %1 %2\nwith the same Birth Date as the record that is being added or updated.\n\n"
                                         "Would you like to overwrite the current record in the database?")
                                          .arg(player_.PlayerFirstName(), player_.PlayerLastName()));
    if (!overwrite) form().focusField(QStringLiteral("txtPlayerLastName"));
    return overwrite;
}

/// The player takes the place of a deleted one of the new name: the deleted row comes back, the current one is
/// retired, and what hung on it moves over.
void PlayerPane::revive(int retiredId, int revivedId) {
    const datafile::Database database = program().store.workspace.openDatabase(program().store.dataFilePath);
    const Clock& clock = program().clock();
    const QString stamps = QStringLiteral("[DateStamp] = %1, [TimeStamp] = %2").arg(datafile::quoted(clock.today())).arg(clock.secondsSinceMidnight());
    const auto update = [&](const char* table, const QString& what, int id) {
        database.execute(QStringLiteral("UPDATE [%1] SET %2, %3 WHERE [PlayerId] = %4").arg(QLatin1String(table), what, stamps).arg(id));
    };
    datafile::Transaction transaction(database);
    update("tblRegistration", QStringLiteral("[DeletedFlag] = False, [PlayerActive] = ") + (player_.PlayerActive ? QStringLiteral("True") : QStringLiteral("False")), revivedId);
    update("tblRegistration", QStringLiteral("[DeletedFlag] = True, [PlayerActive] = False"), retiredId);
    for (const char* table : {"tblAbilityRating", "tblEquipmentAssignment", "tblRegistrationVolunteer", "tblVolToPosition"})
        update(table, QStringLiteral("[PlayerId] = %1").arg(revivedId), retiredId);
    transaction.commit();
}
