#include "registration/frmRegister.h"

#include "registration/PlayerPane.h"

frmRegister::frmRegister(Program& program) : RecordScreen(program, QStringLiteral("frmRegister"), {1240, 700}) {
    auto* players = new PlayerPane(program);
    addPane(players);
    addOrder(players, QStringLiteral("cmdAddSibling"), tr("Add S&ibling"), QStringLiteral("mnuDataNewSiblingRecord"),
             [players] { players->addSibling(); });
}
