#include "league/frmTeams.h"

#include "league/DivisionPane.h"

frmTeams::frmTeams(Program& program) : RecordScreen(program, QStringLiteral("frmTeams"), {980, 660}) {
    addPane(new DivisionPane(program));
}
