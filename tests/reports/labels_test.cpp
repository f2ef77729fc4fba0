#include <gtest/gtest.h>

#include "platform/report/PagePainter.h"
#include "platform/report/Report.h"
#include "reports/Filled.h"
#include "reports/Reports.h"
#include "reports/SampleReports.h"
#include "support/Printing.h"

namespace {

/// A league of a few people, each with a label of its own.
class Labels : public testing::Test {
protected:
    Labels() {
        for (const char* table : {"tblDivision", "tblVolunteerPositions"}) run(QString("DELETE FROM ") + table);
        run("INSERT INTO tblDivision (DivisionId, DivName) VALUES (1, 'Minors')");
    }
    void run(const QString& statement) { league.database().execute(statement); }
    void addPlayer(const QString& last, const QString& address, const QString& columns) {
        run(QString("INSERT INTO tblRegistration (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerAddress1) "
                    "VALUES (\"%1\", \"A\", #4-2-2014#, \"%2\")")
                .arg(last, address));
        run(QString("UPDATE tblRegistration SET %1 WHERE PlayerId = (SELECT MAX(PlayerId) FROM tblRegistration)")
                .arg(columns));
    }
    QStringList printed(MakeReport make, const LabelOptions& labels, const std::array<QString, 3>& lists = {},
                        std::optional<int> division = {}) {
        ReportInput input{.lists = lists, .divisionId = division, .globals = {}, .today = QDate(2026, 4, 22)};
        input.labels = labels;
        return filled(make(input), league.context);
    }
    /// The first line of each label up to its first blank.
    QStringList names(MakeReport make, const LabelOptions& labels, const std::array<QString, 3>& lists = {},
                      std::optional<int> division = {}) {
        QStringList names;
        const QStringList lines = printed(make, labels, lists, division);
        for (qsizetype line = 0; line < lines.size(); line += 3) names << lines[line].section(' ', -1);
        return names;
    }

    LeagueFile league;
};

}  // namespace

TEST_F(Labels, PlayersAreChosenByStatusAgeAndDivision) {
    addPlayer("Ten", "1 Elm", "PlayerActive = True, PlayerAge = 10, PlayerDivisionId = 1");
    addPlayer("Eleven", "1 Elm", "PlayerActive = True, PlayerAge = 11");
    addPlayer("Twelve", "1 Elm", "PlayerActive = False, PlayerAge = 12, PlayerDivisionId = 1");
    addPlayer("Gone", "1 Elm", "PlayerActive = True, PlayerAge = 11, DeletedFlag = True");
    using Options = LabelOptions;
    const struct {
        Options options;
        std::optional<int> division;
        QStringList names;
    } cases[] = {
        {{}, {}, {"Eleven", "Ten", "Twelve"}},
        {{}, 1, {"Ten", "Twelve"}},
        {{.choice = Options::Active}, {}, {"Eleven", "Ten"}},
        {{.choice = Options::Inactive}, {}, {"Twelve"}},
        {{.choice = Options::AgeRange, .lowerAge = 11, .upperAge = 12}, {}, {"Eleven", "Twelve"}},
        {{.choice = Options::AgeRange, .lowerAge = 10, .upperAge = 10}, {}, {"Ten"}},
        {{.choice = Options::AgeRange, .status = Options::OnlyActive, .lowerAge = 11, .upperAge = 12}, {}, {"Eleven"}},
        {{.choice = Options::AgeRange, .status = Options::OnlyInactive, .lowerAge = 1, .upperAge = 99}, 1, {"Twelve"}},
        {{.choice = Options::AgeRange, .lowerAge = 13, .upperAge = 99}, {}, {}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(names(Reports::rptLabelFormat1, each.options, {}, each.division), each.names)
            << each.options.choice << ", " << each.options.status << ", " << each.options.lowerAge;
}

TEST_F(Labels, AFamilyIsALastNameAtAnAddress) {
    const LabelOptions family{.choice = LabelOptions::Family};
    EXPECT_EQ(printed(Reports::rptLabelFormat1, family), QStringList());
    addPlayer("Smith", "1 Elm", "PlayerAddress2 = 'Apt 2', PlayerCity = 'Mill', PlayerStateId = 'OR'");
    addPlayer("Smith", "1 Elm", "PlayerAddress2 = 'Apt 3', PlayerActive = False");
    addPlayer("Smith", "1 Elm Street", "PlayerDivisionId = 1, PlayerPostalCode = '97050'");
    addPlayer("SMITH", "1 Elm Street", "PlayerCountryCode = 'USA'");
    addPlayer("Day", "1 Elm", "DeletedFlag = True");
    EXPECT_EQ(printed(Reports::rptLabelFormat1, family),
              QStringList({"Day Family", "1 Elm", "", "Smith Family", "1 Elm  Apt 2", "Mill, OR", "Smith Family",
                           "1 Elm Street", "97050", "SMITH Family", "1 Elm Street", "USA"}));
    EXPECT_EQ(printed(Reports::rptLabelFormat1, family, {}, 1), QStringList({"Smith Family", "1 Elm Street", "97050"}));
    EXPECT_EQ(printed(Reports::rptLabelFormat1, family, {}, 2), QStringList()) << "nothing is left of the run before";
}

TEST_F(Labels, VolunteersAreChosenByStatusAndCategory) {
    for (const char* values : {"1, 'Day', True, False", "2, 'Poe', False, False", "3, 'Gone', True, True"})
        run(QString("INSERT INTO tblVolunteer (VolId, VolLastName, VolActive, DeletedFlag) VALUES (%1)").arg(values));
    run("INSERT INTO tblVolunteerPositions (VolPosId, VolPosName) VALUES (1, 'Umpire')");
    run("INSERT INTO tblVolunteerPositions (VolPosId, VolPosName) VALUES (2, 'Coach')");
    for (const char* values : {"1, 1, False", "1, 1, False", "2, 2, False", "1, 2, True"})
        run(QString("INSERT INTO tblVolToPosition (VolId, VolPosId, DeletedFlag) VALUES (%1)").arg(values));
    const struct {
        int choice;
        QString category;
        QStringList names;
    } cases[] = {
        {LabelOptions::All, "", {"Day", "Poe"}},
        {LabelOptions::ActiveVolunteers, "All Volunteer Categories", {"Day"}},
        {LabelOptions::InactiveVolunteers, "", {"Poe"}},
        {LabelOptions::All, "Umpire", {"Day"}},
        {LabelOptions::All, "Coach", {"Poe"}},
        {LabelOptions::ActiveVolunteers, "Coach", {}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(names(Reports::rptLabelFormat2, {.choice = each.choice}, {each.category}), each.names)
            << each.choice << " " << each.category.toStdString();
}

TEST_F(Labels, SponsorsAreChosenByTheirTeams) {
    for (const char* values : {"1, 'Bakery', False", "2, 'Garage', False", "3, 'Hotel', False", "4, 'Gone', True"})
        run(QString("INSERT INTO tblSponsor (SponsorId, SponsorName, DeletedFlag) VALUES (%1)").arg(values));
    for (const char* values : {"1, 1, False", "1, 1, False", "2, 2, False", "3, 1, True", "4, 1, False"})
        run(QString("INSERT INTO tblTeam (SponsorId, DivisionId, DeletedFlag) VALUES (%1)").arg(values));
    const struct {
        int choice;
        std::optional<int> division;
        QStringList names;
    } cases[] = {
        {LabelOptions::All, {}, {"Bakery", "Garage", "Hotel"}},
        {LabelOptions::AssignedSponsors, {}, {"Bakery", "Garage"}},
        {LabelOptions::AssignedSponsors, 1, {"Bakery"}},
        {LabelOptions::All, 2, {"Garage"}},
        {LabelOptions::UnassignedSponsors, {}, {"Hotel"}},
        {LabelOptions::UnassignedSponsors, 1, {"Hotel"}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(names(Reports::rptLabelFormat3, {.choice = each.choice}, {}, each.division), each.names)
            << each.choice;
}

TEST(LabelCounts, FamiliesOfTheSampleLeagueFillTheSheetsFromTheStart) {
    SampleReports sample;
    ReportInput input = sample.input();
    input.labels = {.choice = LabelOptions::Family, .skip = 29};
    const LeagueReport sheet = Reports::rptLabelFormat1(input);
    const auto labels = filled(sheet, sample.league.context).size() / 3;
    const int families = sample.league.count(
        "SELECT DISTINCT PlayerLastName COLLATE BINARY, PlayerAddress1 COLLATE BINARY FROM tblRegistration");
    EXPECT_EQ(labels, families);
    const report::Report run{sheet.definition, storeRows(sample.league.database())};
    const auto pages = report::paginate(run, report::paperFor(sheet.definition));
    pages->layOutAll();
    EXPECT_EQ(pages->pageCount(), 1 + (families - 1 + 29) / 30) << "one label on the first sheet";
}

/// In points: three labels of 2 5/8 by 1 inch across, 1/8 inch between them, 3/16 beside and 1/2 above and below.
TEST(LabelGeometry, EveryTextStaysInsideItsLabel) {
    SampleReports sample;
    for (const MakeReport make : {Reports::rptLabelFormat1, Reports::rptLabelFormat2, Reports::rptLabelFormat3}) {
        const LeagueReport sheet = make(sample.input());
        const report::Report run{sheet.definition, storeRows(sample.league.database())};
        const auto pages = report::paginate(run, report::paperFor(sheet.definition, QPageSize(QPageSize::A4)));
        EXPECT_EQ(pages->paper().fullRect(QPageLayout::Point), QRectF(0, 0, 612, 792));
        pages->layOutAll();
        for (int index = 0; index < pages->pageCount(); ++index) {
            const report::Page& page = *pages->page(index);
            for (const report::TextItem& item : page.items) {
                if (item.length == 0) continue;
                const QRectF text = report::areasOf(*pages, page, item.start, item.length).at(0);
                const QRectF area(text.topLeft() / report::unitsPerPoint, text.size() / report::unitsPerPoint);
                const int column = int((area.center().x() - 13.5) / 198), row = int((area.center().y() - 36) / 72);
                EXPECT_TRUE(column >= 0 && column < 3 && row >= 0 && row < 10) << column << ", " << row;
                EXPECT_TRUE(QRectF(13.5 + 198 * column, 36 + 72 * row, 189, 72).contains(area))
                    << page.textOf(item).toString().toStdString();
            }
        }
    }
}
