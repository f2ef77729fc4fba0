#include "league/frmTeams.h"

#include "league/DivisionPane.h"
#include "league/FieldAssignmentPane.h"
#include "league/FieldPane.h"
#include "league/TeamPane.h"

frmTeams::frmTeams(Program& program) : RecordScreen(program, QStringLiteral("frmTeams"), {1060, 680}) {
    addPane(new DivisionPane(program));
    addPane(new TeamPane(program));
    addPane(new FieldAssignmentPane(program));
    addPane(new FieldPane(program));
}
