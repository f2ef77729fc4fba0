#include "reports/Reports.h"

using namespace report;

namespace {

/// In the order in which they are added up.
const char* const skills[] = {"PitcherRating", "CatcherRating",  "InfieldRating", "OutfieldRating",
                              "BattingRating", "ThrowingRating", "RunningRating", "KnowledgeRating"};
const char* const umpireSkills[] = {"UmpireHomePlateRating", "UmpireFieldRating", "UmpireKnowledgeRating"};
const char* const coachSkills[] = {"CoachAbilityRating", "CoachAttitudeRating", "CoachKnowledgeRating"};
const char* const positions[] = {"PositionPitcher",    "PositionCatcher",     "PositionFirstBase",
                                 "PositionSecondBase", "PositionShortStop",   "PositionThirdBase",
                                 "PositionLeftField",  "PositionCenterField", "PositionRightField"};

template <size_t Count>
Field total(const char* const (&names)[Count]) {
    return computed(
        [&names](const Row& row) {
            int sum = 0;
            for (const char* name : names) sum += row[QLatin1String(name)].toInt();
            return sum;
        },
        Format::Number);
}

/// The average of what is rated at all.
Field average() {
    Field field = computed(
        [](const Row& row) {
            double sum = 0;
            int rated = 0;
            for (const char* name : skills) {
                const int value = row[QLatin1String(name)].toInt();
                sum += value;
                if (value != 0) ++rated;
            }
            return rated == 0 ? 0 : sum / rated;
        },
        Format::Number);
    field.pattern = "#0.00";
    return field;
}

/// The columns of the grades, each with the word of the scale as "PitcherRatingWord"; a word that was deleted still
/// tells what was graded with it, where no other one does.
QString graded(std::initializer_list<QStringList> all) {
    QString columns;
    for (const QStringList& names : all)
        for (const QString& name : names)
            columns += QStringLiteral(
                           ", %1, (SELECT RatingText FROM tblRating WHERE RatingValue = tblAbilityRating!%1 "
                           "ORDER BY tblRating!DeletedFlag) AS %1Word")
                           .arg(name);
    return columns;
}

template <size_t Count>
QStringList listOf(const char* const (&names)[Count]) {
    return {std::begin(names), std::end(names)};
}

}  // namespace

ReportDefinition Reports::ratingList(const ReportInput& input, const QString& title, Needs parents,
                                     const QString& order) {
    ReportDefinition list = headed(input, title);
    list.landscape = true;
    QString ratings;
    for (const char* name : skills)
        ratings += QStringLiteral(
                       ", (SELECT %1 FROM tblAbilityRating WHERE tblAbilityRating!PlayerId = "
                       "tblRegistration!PlayerId AND tblAbilityRating!DeletedFlag = False) AS %1")
                       .arg(QLatin1String(name));
    list.query = activePlayers(parents, ratings.mid(2))
                     .whereChosen("PlayerDivisionId", input.divisionId)
                     .whereChosen("PlayerTeamId", input.teamId)
                     .orderBy(order);
    const auto grade = [](const QString& caption, const char* name) {
        const Field rated =
            computed([name = QString(QLatin1String(name))](
                         const Row& row) -> QVariant { return row[name].toInt() == 0 ? QVariant() : row[name]; },
                     Format::Number);
        return Column{.caption = caption, .field = rated, .share = 9};
    };
    list.columns = {
        {tr("Player Name"), lastFirst("PlayerLastName", "PlayerFirstName"), 25},
        {tr("Birth Date"), date("PlayerBirthDate"), 11, Alignment::Right},
        {tr("Age"), playerAge(input), 6, Alignment::Center},
        grade(tr("Pitcher"), skills[0]),
        grade(tr("Catcher"), skills[1]),
        grade(tr("Infield"), skills[2]),
        grade(tr("Outfield"), skills[3]),
        grade(tr("Batting"), skills[4]),
        grade(tr("Throwing"), skills[5]),
        grade(tr("Running"), skills[6]),
        grade(tr("Knowl."), skills[7]),
        {tr("Total Rating"), total(skills), 10.5},
        {tr("Avg. Rating"), average(), 10.5},
    };
    return list;
}

QString Reports::gradesOfPlayers() {
    QString columns = graded({listOf(skills)});
    for (const char* position : positions) columns += ", " + QLatin1String(position);
    return columns + ", PositionAllPositions" + gradesOfStaff();
}

QString Reports::gradesOfStaff() {
    return graded({listOf(umpireSkills), listOf(coachSkills)}) + ", tblAbilityRating!VolId AS RatedId, CoachReturn";
}

Column Reports::gradeCell(const QString& caption, const QString& name) {
    return {caption, computed([name, none = tr("Not Rated"), unknown = tr("Rating Not Found")](const Row& row) {
                const int value = row[name].toInt();
                const QString word = row.text(name % QStringLiteral("Word"));
                if (value == 0) return none;
                return QString((word.isEmpty() ? unknown : word) % QStringLiteral(" (%1)").arg(value));
            })};
}

std::vector<Line> Reports::playerGrades() {
    const auto played =
        computed([all = tr("All Positions Played"),
                  captions = QStringList{tr("Pitcher"), tr("Catcher"), tr("First Base"), tr("Second Base"),
                                         tr("Short Stop"), tr("Third Base"), tr("Left Field"), tr("Center Field"),
                                         tr("Right Field")}](const Row& row) {
            if (row["PositionAllPositions"].toBool()) return all;
            QStringList names;
            for (size_t index = 0; index < std::size(positions); ++index)
                if (row[QLatin1String(positions[index])].toBool()) names << captions[qsizetype(index)];
            return names.join(QStringLiteral(", "));
        });
    return {
        Line{{.field = fixed(tr("Player Ratings"))}}.heading().spaced(),
        Line{gradeCell(tr("Pitcher:"), skills[0]), gradeCell(tr("Catcher:"), skills[1]),
             gradeCell(tr("Infield:"), skills[2]), gradeCell(tr("Outfield:"), skills[3])},
        Line{gradeCell(tr("Batting:"), skills[4]), gradeCell(tr("Throwing:"), skills[5]),
             gradeCell(tr("Running:"), skills[6]), gradeCell(tr("Knowledge:"), skills[7])},
        Line{{tr("Total Rating:"), total(skills), 10, Alignment::Left, Total::None, true},
             {tr("Avg. Rating:"), average(), 30, Alignment::Left, Total::None, true}},
        Line{{tr("Positions Played:"), played}}.ifFilled(),
    };
}

/// `otherwise` is printed for an answer that is none of the three.
std::vector<Line> Reports::staffGrades(const QString& otherwise) {
    const auto returns = computed(
        [otherwise, answers = QStringList{tr("Yes"), tr("No"), tr("Maybe")}, unknown = tr("Unknown")](const Row& row) {
            if (row["RatedId"].isNull()) return unknown;
            return answers.value(row["CoachReturn"].isNull() ? -1 : row["CoachReturn"].toInt(), otherwise);
        });
    return {
        Line{{.field = fixed(tr("Coach Ratings"))}}.heading().spaced(),
        Line{gradeCell(tr("Coaching Experience:"), coachSkills[0]), gradeCell(tr("Attitude:"), coachSkills[1]),
             gradeCell(tr("Knowledge:"), coachSkills[2])},
        Line{{tr("Total Coach Rating:"), total(coachSkills), 10, Alignment::Left, Total::None, true},
             {tr("Should Coach Return?"), returns, 20, Alignment::Left, Total::None, true}},
        Line{{.field = fixed(tr("Umpire Ratings"))}}.heading().spaced(),
        Line{gradeCell(tr("Home Plate Umpire:"), umpireSkills[0]), gradeCell(tr("Field Umpire:"), umpireSkills[1]),
             gradeCell(tr("Knowledge:"), umpireSkills[2])},
        Line{{tr("Total Umpire Rating:"), total(umpireSkills), 10, Alignment::Left, Total::None, true}},
    };
}
