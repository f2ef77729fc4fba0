#include "maintenance/work/NewSeason.h"

#include <algorithm>
#include <optional>

#include "store/RecordClass.h"

using datafile::Database;

namespace {

/// What the disk refuses or loses, as against rows and tables that are not as the step needs them.
bool isOfDisk(datafile::Fault fault) {
    using datafile::Fault;
    constexpr Fault ofData[] = {Fault::TooLong,   Fault::Required, Fault::NotAllowed,
                                Fault::Duplicate, Fault::Relation, Fault::Statement};
    return std::find(std::begin(ofData), std::end(ofData), fault) == std::end(ofData);
}

void make(const SeasonPart& part, StoreContext& context, const Database& database, const QString& year) {
    const QString stamps = freshStamps(context.clock);
    const QString today = datafile::quoted(context.clock.today());
    for (const SeasonChange& change : part.changes) {
        if (change.work) {
            change.work(context, database, year);
        } else {
            QString statement = change.statement;
            statement.replace(QLatin1String("{stamps}"), stamps).replace(QLatin1String("{today}"), today);
            database.execute(statement);
        }
    }
}

}  // namespace

void runSeasonStep(const SeasonStep& step, StoreContext& context, const QString& year, const SeasonDisplay& display) {
    display.step(step.parts.front().text);
    const Database database = context.database();
    datafile::Transaction transaction(database);
    std::optional<datafile::Error> failure;
    try {
        for (const SeasonPart& part : step.parts) {
            if (&part != &step.parts.front()) display.part(part.text);
            make(part, context, database, year);
        }
    } catch (const datafile::Error& error) {
        if (isOfDisk(error.fault())) throw;
        failure = error;
    }
    transaction.commit();
    if (failure) throw *failure;
}

void runNewSeason(StoreContext& context, const SeasonBoxes& boxes, const QString& year, const SeasonDisplay& display) {
    const std::vector<SeasonStep> steps = seasonSteps();
    const int total = static_cast<int>(steps.size());
    int counter = 1;
    for (const SeasonStep& step : steps) {
        try {
            if (step.runs(boxes)) runSeasonStep(step, context, year, display);
        } catch (const datafile::Error&) {  // the run goes on
        }
        display.progress(counter++ * 100 / total);
    }
}
