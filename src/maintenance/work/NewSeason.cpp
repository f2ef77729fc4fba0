#include "maintenance/work/NewSeason.h"

#include "store/RecordClass.h"

using datafile::Database;

namespace {

/// The part's changes; false when one of them failed, which keeps the others behind it from being made.
bool make(const SeasonPart& part, StoreContext& context, const Database& database, const QString& year) {
    const QString stamps = freshStamps(context.clock);
    const QString today = datafile::quoted(context.clock.today());
    try {
        for (const SeasonChange& change : part.changes) {
            if (change.work) {
                change.work(context, database, year);
            } else {
                QString statement = change.statement;
                statement.replace(QLatin1String("{stamps}"), stamps).replace(QLatin1String("{today}"), today);
                database.execute(statement);
            }
        }
        return true;
    } catch (const datafile::Error&) {
        return false;
    }
}

/// One transaction; what was changed before a change that failed is written with it.
void runStep(const SeasonStep& step, StoreContext& context, const QString& year, const SeasonDisplay& display) {
    display.step(step.parts.front().text);
    try {
        const Database database = context.workspace.openDatabase(context.dataFilePath);
        datafile::Transaction transaction(database);
        for (const SeasonPart& part : step.parts) {
            if (&part != &step.parts.front()) display.part(part.text);
            if (!make(part, context, database, year)) break;
        }
        transaction.commit();
    } catch (const datafile::Error&) {  // the disk: nothing of the step was written
    }
}

}  // namespace

void runNewSeason(StoreContext& context, const SeasonBoxes& boxes, const QString& year, const SeasonDisplay& display) {
    const std::vector<SeasonStep> steps = seasonSteps();
    const int total = static_cast<int>(steps.size());
    int counter = 1;
    for (const SeasonStep& step : steps) {
        if (step.runs(boxes)) runStep(step, context, year, display);
        display.progress(counter++ * 100 / total);
    }
}
