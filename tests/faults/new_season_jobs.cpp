#include <gtest/gtest.h>

#include "faults/Jobs.h"
#include "maintenance/work/NewSeason.h"

// Each step of a new season alone.

namespace {

const SeasonDisplay nobody{[](const QString&) {}, [](const QString&) {}, [](int) {}};

void prepare(const LeagueFolder& folder) {
    prepareEveryTable(folder);
    folder.with([](StoreContext& context) {
        const datafile::Database database = context.database();
        for (const char* statement :
             {"DELETE FROM tblOptions WHERE True",
              "INSERT INTO tblOptions ([OptionId], [CurrentSeasonYear]) VALUES (1, \"2025\")",
              "UPDATE tblRegistration SET [PlayerActive] = True, [PlayerIsUmpire] = True, [PlayerGradeLevel] = \"12\", "
              "[PlayerYearsExperience] = \"3\", [PlayerMomVolunteer] = 0, [PlayerComments] = \"c\", "
              "[PlayerTryoutNumber] = \"4\", [PlayerOtherFees] = \"5\", [PlayerAmountPaid] = \"6\"",
              "UPDATE tblVolunteer SET [VolActive] = True"})
            database.execute(statement);
    });
}

}  // namespace

QList<FaultJob> newSeasonJobs() {
    QList<FaultJob> jobs;
    for (size_t number = 1; number <= seasonSteps().size(); ++number)
        jobs << FaultJob{.name = QStringLiteral("season_%1").arg(number),
                         .samples = 2,
                         .prepare = prepare,
                         .begin = FaultJob::step([number](StoreContext& context) {
                             runSeasonStep(seasonSteps()[number - 1], context, QStringLiteral("2026"), nobody);
                         })};
    return jobs;
}
