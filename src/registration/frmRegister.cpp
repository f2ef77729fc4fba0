#include "registration/frmRegister.h"

#include <QAction>
#include <QMenu>

#include "platform/widgets/WaitCursor.h"
#include "registration/PlayerPane.h"
#include "registration/SponsorPane.h"
#include "registration/VolunteerPane.h"
#include "registration/clsRegistration.h"
#include "shell/Program.h"

frmRegister::frmRegister(Program& program) : RecordScreen(program, QStringLiteral("frmRegister"), {1260, 700}) {
    showPurpose(tr("Kestrelmoor - Player/Parent/Volunteer/Sponsor Registrations"));
    auto* players = new PlayerPane(program);
    addPane(players);
    addOrder(players, QStringLiteral("cmdAddSibling"), tr("Add S&ibling"), QStringLiteral("mnuDataNewSiblingRecord"),
             [players] { players->addSibling(); });
    findChild<QAction*>(QStringLiteral("mnuDataNewSiblingRecord"))->setText(tr("New S&ibling"));
    auto* volunteers = new VolunteerPane(program);
    addPane(volunteers);
    auto* sponsors = new SponsorPane(program);
    addPane(sponsors);
    addOrder(sponsors, {}, tr("New Sponsor &Pledge"), QStringLiteral("mnuDataNewSponsorPledgeRecord"),
             [sponsors] { sponsors->addPledge(); });

    addFileEntries();
    toolsMenu()->addSeparator();
    const QString last = QStringLiteral("\n\n") + tr("Do You Want to delete these records?");
    addPurge({"mnuToolsDeletePlayers", tr("&Inactive Players"), InactivePlayers,
              tr("This will delete ALL Players that\nare NOT marked Active.") + last,
              tr("All Inactive Players have been deleted."), tr("Delete Inactive Players process cancelled."),
              players});
    addPurge({"mnuToolsDeleteVolunteers", tr("Inactive &Volunteers"), InactiveVolunteers,
              tr("This will delete ALL Volunteers that\nare NOT marked Active.") + last,
              tr("All Inactive Volunteers have been deleted."), tr("Delete Inactive Volunteers process cancelled."),
              volunteers});
    addPurge({"mnuToolsDeleteSchedule", tr("All &Schedule Records"), Schedule,
              tr("This will delete ALL records \nfrom the Schedule Table.") + last,
              tr("All Schedule table records have been deleted."), tr("Delete of Schedule table records cancelled."),
              nullptr});
    toolsMenu()->addSeparator();
    addEntry(toolsMenu(), QStringLiteral("mnuToolsRecalculatePlayerAges"), tr("&Recalculate Player Ages"),
             [this, players] { recalculatePlayerAges(players); });
}

/// The data file as a whole is cared for on the start-up screen, where nobody works on a record.
void frmRegister::addFileEntries() {
    const std::pair<const char*, QString> entries[] = {
        {"mnuFileBackup", tr("&Backup")}, {"mnuFileRestore", tr("&Restore")}, {"mnuFileMerge", tr("&Merge")}};
    for (const auto& [name, caption] : entries)
        addEntry(fileMenu(), QLatin1String(name), caption, [] {})->setEnabled(false);
}

void frmRegister::addPurge(const Purge& each) {
    addEntry(toolsMenu(), QLatin1String(each.entry), each.caption, [this, each] { purge(each); });
}

void frmRegister::purge(const Purge& what) {
    const QString title = tr("Delete Inactive Players");
    if (what.pane && !what.pane->offerToSave(what.pane->text().leaveQuestion)) return;
    if (!program_.dialogs().ask(title, what.question)) return program_.dialogs().information(title, what.cancelled);
    {
        const WaitCursor wait;
        DeleteRecords(program_.store, what.kind);
        if (what.pane) what.pane->showFirst();
    }
    program_.dialogs().information(title, what.done);
}

void frmRegister::recalculatePlayerAges(RecordPane* players) {
    {
        const WaitCursor wait;
        clsRegistration::RecalculatePlayerAges(program_.store);
        players->catchUp();
    }
    program_.dialogs().information(tr("Age Calculation Complete"), tr("All Player Ages have been recalculated."));
}
