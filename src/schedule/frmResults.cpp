#include "schedule/frmResults.h"

#include "schedule/ResultsPane.h"
#include "schedule/SchedulePane.h"
#include "schedule/StandingsPane.h"

frmResults::frmResults(Program& program) : RecordScreen(program, QStringLiteral("frmResults"), {1200, 690}) {
    addPane(new SchedulePane(program));
    addPane(new ResultsPane(program));
    addPane(new StandingsPane(program));
}
