#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "maintenance/work/SeasonBoxes.h"
#include "store/StoreContext.h"

/// A change of rows: a statement in which {stamps} and {today} stand for the fresh stamps of a save and today's date,
/// or work of its own.
struct SeasonChange {
    QString statement;
    void (*work)(StoreContext& context, const datafile::Database& database, const QString& year) = nullptr;
};

/// A part of a step that has its own text for the user.
struct SeasonPart {
    QString text;
    std::vector<SeasonChange> changes;
};

/// One step of a new season, a transaction of its own: after a disk that failed or a program that was ended it is all in
/// the file or nothing of it. A row or table that is not as the step needs it ends the step, and what it did before
/// stays.
struct SeasonStep {
    bool (*runs)(const SeasonBoxes& boxes);
    std::vector<SeasonPart> parts;
};

/// In the order in which they run.
std::vector<SeasonStep> seasonSteps();

/// What is shown while a new season runs.
struct SeasonDisplay {
    std::function<void(const QString& text)> step;
    std::function<void(const QString& text)> part;  ///< a further text, within a step that may not be interrupted
    std::function<void(int percent)> progress;
};

/// Does one step; raises what ended it before its time.
void runSeasonStep(const SeasonStep& step, StoreContext& context, const QString& year, const SeasonDisplay& display);

/// Turns the data file over to a new season: visits all steps and does those whose boxes are checked. A step
/// that fails does so in silence, and the run goes on with the next. Rows that are marked as deleted are changed like
/// others.
void runNewSeason(StoreContext& context, const SeasonBoxes& boxes, const QString& year, const SeasonDisplay& display);
