#include "registration/frmRegister.h"

#include "registration/PlayerPane.h"
#include "registration/SponsorPane.h"

frmRegister::frmRegister(Program& program) : RecordScreen(program, QStringLiteral("frmRegister"), {1240, 700}) {
    auto* players = new PlayerPane(program);
    addPane(players);
    addOrder(players, QStringLiteral("cmdAddSibling"), tr("Add S&ibling"), QStringLiteral("mnuDataNewSiblingRecord"),
             [players] { players->addSibling(); });
    auto* sponsors = new SponsorPane(program);
    addPane(sponsors);
    addOrder(sponsors, {}, tr("New Sponsor &Pledge"), QStringLiteral("mnuDataNewSponsorPledgeRecord"),
             [sponsors] { sponsors->addPledge(); });
}
