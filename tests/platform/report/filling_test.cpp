#include <gtest/gtest.h>

#include "ListRows.h"
#include "platform/report/ReportError.h"
#include "platform/report/ReportFiller.h"
#include "support/Printing.h"

using namespace report;

namespace {

/// A band as one line of text: its kind, then the cells.
QString asText(const Band& band) {
    static const char* const kinds[] = {"title", "group", "heads", "row", "footer", "totals"};
    QStringList cells;
    for (const Cell& cell : band.cells) cells << cell.text;
    const QString start = band.startsPage ? "[page] " : "";
    return start + QString(2 * band.indent, ' ') + kinds[int(band.kind)] + ": " + cells.join(" | ");
}

QStringList filled(const ReportDefinition& definition, const ListRows::Tables& tables) {
    ReportFiller filler(definition, ListRows::over(tables));
    QStringList lines;
    for (Band band; filler.next(band);) lines << asText(band);
    return lines;
}

const ListRows::Tables league{
    {"players",
     {{"Division", "Team", "Last", "First", "Paid"},
      {{"Majors", "Bears", "Peña", "Ana", "45.10"},
       {"Majors", "Bears", "Smith", "John", "1,000.00"},
       {"Majors", "Cubs", "Lee", "Kim", "unknown"},
       {"Minors", "Cubs", "Roy", "Zoé", "-0.20"}}}},
    {"teams", {{"Team"}, {{"Bears"}, {"Cubs"}, {"Owls"}}}},
    {"roster", {{"Team", "Name"}, {{"Bears", "Ana"}, {"Cubs", "Kim"}, {"Bears", "John"}}}},
};

ReportDefinition playerList() {
    ReportDefinition definition;
    definition.query.text = "players";
    definition.columns = {{"Name", lastFirst("Last", "First"), 30}, {"Paid", money("Paid"), 10, {}, Total::Sum}};
    return definition;
}

}  // namespace

TEST(Field, PrintsStoredValues) {
    const ListRows::Table table{{"Area", "Number", "Last", "First", "Money", "Date", "Time"}, {}};
    struct Case {
        const char* about;
        Field field;
        QVariantList row;
        QString printed;
    };
    const auto two = [](QVariant first, QVariant second) { return QVariantList{first, second, first, second}; };
    const auto one = [](QVariant value) { return QVariantList{{}, {}, {}, {}, value, value, value}; };
    const Case cases[] = {
        {"phone", phone("Area", "Number"), two("555", "123-4567"), "(555) 123-4567"},
        {"phone stored without its dash", phone("Area", "Number"), two("555", "1234567"), "(555) 123-4567"},
        {"phone without an area", phone("Area", "Number"), two("   ", "123-4567"), "123-4567"},
        {"area of an untouched phone", phone("Area", "Number"), two("555", "   -    "), ""},
        {"last name first", lastFirst("Last", "First"), two("Peña", "Ana"), "Peña, Ana"},
        {"last name alone", lastFirst("Last", "First"), two("Peña", ""), "Peña"},
        {"first name first", firstLast("Last", "First"), two("Peña", "Ana"), "Ana Peña"},
        {"thousands", money("Money"), one("1234567.5"), "$1,234,567.50"},
        {"debt", money("Money"), one(-3.456), "($3.46)"},
        {"nothing owed", money("Money"), one("0"), "$0.00"},
        {"no amount", money("Money"), one("paid in full"), "paid in full"},
        {"no amount at all", money("Money"), one(QVariant()), ""},
        {"stored date", date("Date"), one("2026-04-02"), "4/2/2026"},
        {"stored date with its time", date("Date"), one("2026-12-31 18:30:00"), "12/31/2026"},
        {"date", date("Date"), one(QDate(2014, 1, 7)), "1/7/2014"},
        {"no date", date("Date"), one("soon"), "soon"},
        {"stored time", time("Time"), one("18:30:00"), "6:30 PM"},
        {"midnight", time("Time"), one("00:05:00"), "12:05 AM"},
        {"noon", time("Time"), one(QTime(12, 0)), "12:00 PM"},
        {"prefix", column("Last").before("Name: "), two("Peña", ""), "Name: Peña"},
        {"empty with a substitute", column("Last").before("Name: ").orElse("none"), two("", ""), "Name: none"},
        {"column name in other letters", column("LAST"), two("Peña", ""), "Peña"},
        {"computed", computed([](const Row& row) { return row["Money"].toDouble() / 2; }, Format::Money), one(5),
         "$2.50"},
    };
    for (const Case& c : cases) {
        ListRows::Table filledTable = table;
        QVariantList row = c.row;
        row.resize(filledTable.columns.size());
        filledTable.rows = {row};
        ListRows rows(filledTable, {});
        rows.next();
        QVariant value;
        EXPECT_EQ(BoundField(c.field, rows).evaluate(rows, value), c.printed) << c.about;
    }
}

TEST(ReportFiller, GroupsRowsAndTotalsThem) {
    ReportDefinition definition = playerList();
    definition.groups = {{.key = "Division",
                          .header = {{.field = column("Division").before("Division: ")}},
                          .footer = column("Division").before("Total for "),
                          .startsPage = true},
                         {.key = "Team", .header = {{.field = column("Team")}}, .footer = column("Team")}};
    definition.totals = fixed("League");
    EXPECT_EQ(filled(definition, league), (QStringList{
                                              "group: Division: Majors",
                                              "group: Bears",
                                              "heads: Name | Paid",
                                              "row: Peña, Ana | $45.10",
                                              "row: Smith, John | $1,000.00",
                                              "footer: Bears | $1,045.10",
                                              "group: Cubs",
                                              "heads: Name | Paid",
                                              "row: Lee, Kim | unknown",
                                              "footer: Cubs | $0.00",
                                              "footer: Total for Majors | $1,045.10",
                                              // A new division begins its team anew though the name is the same.
                                              "[page] group: Division: Minors",
                                              "group: Cubs",
                                              "heads: Name | Paid",
                                              "row: Roy, Zoé | ($0.20)",
                                              "footer: Cubs | ($0.20)",
                                              "footer: Total for Minors | ($0.20)",
                                              "totals: League | $1,044.90",
                                          }));
}

TEST(ReportFiller, PutsTheHeaderOnceAndACountBehindItsCaption) {
    ReportDefinition definition = playerList();
    definition.title = "Active Player List";
    definition.organization = "Bracken Vale";
    definition.asOf = "4/2/2026";
    definition.columns[0].total = Total::Count;
    definition.totals = fixed("Players:");
    const QStringList lines = filled(definition, league);
    EXPECT_EQ(lines.mid(0, 3), (QStringList{"title: Bracken Vale", "title:  | Active Player List | As Of: 4/2/2026",
                                            "heads: Name | Paid"}));
    EXPECT_EQ(lines.last(), "totals: Players: 4 | $1,044.90");
}

TEST(ReportFiller, BindsSubReportsToTheirParentsRow) {
    ReportDefinition roster;
    roster.title = "Players";
    roster.query.text = "roster";
    roster.boundTo = {"Team"};
    roster.columns = {{"", column("Name")}};
    ReportDefinition definition;
    definition.query.text = "teams";
    definition.columns = {{"Team", column("Team")}};
    definition.lines = {{{.field = fixed("Field:")}, {.field = column("Team").before("Park of the ")}}};
    definition.subReports = {roster};
    EXPECT_EQ(filled(definition, league),
              (QStringList{"heads: Team", "row: Bears", "row: Field: | Park of the Bears", "  group: Players",
                           "  row: Ana", "  row: John", "row: Cubs", "row: Field: | Park of the Cubs",
                           "  group: Players", "  row: Kim", "row: Owls", "row: Field: | Park of the Owls"}));
}

TEST(ReportFiller, RunsAKeyedSubReportOnceForTheWholeReport) {
    const ListRows::Tables tables{{"teams", {{"Id", "Team"}, {{1, "bears"}, {2, "Cubs"}, {3, "Owls"}}}},
                                  {"roster", {{"TeamId", "Name"}, {{1, "Ana"}, {2, "Kim"}, {1, "John"}}}},
                                  {"parks", {{"Name"}, {{"BEARS"}, {"Cubs"}}}}};
    QStringList opened;
    const auto open = [&](const report::Query& query) {
        opened << query.text;
        return ListRows::over(tables)(query);
    };
    ReportDefinition roster;
    roster.query.text = "roster";
    roster.boundTo = {"Id"};
    roster.keys = {"TeamId"};
    roster.columns = {{"Name", column("Name"), 10, {}, Total::Count}};
    roster.totals = fixed("Players:");
    roster.whenEmpty = "Nobody yet";
    ReportDefinition parks;
    parks.query.text = "parks";
    parks.boundTo = {"Team"};
    parks.keys = {"Name"};
    parks.columns = {{"", column("Name")}};
    ReportDefinition definition;
    definition.query.text = "teams";
    definition.groups = {{.key = "Team",
                          .header = {{.field = column("Team")}},
                          .footer = fixed("end"),
                          .lines = {{{.caption = "No.", .field = number("Id")}}},
                          .parts = {parks},
                          .footerParts = {roster}}};
    ReportFiller filler(definition, open);
    QStringList lines;
    for (Band band; filler.next(band);) lines << asText(band);
    EXPECT_EQ(lines, (QStringList{"group: bears", "row: 1", "  row: BEARS", "  heads: Name", "  row: Ana",
                                  "  row: John", "  totals: Players: 2", "footer: end", "group: Cubs", "row: 2",
                                  "  row: Cubs", "  heads: Name", "  row: Kim", "  totals: Players: 1", "footer: end",
                                  "group: Owls", "row: 3", "  row: Nobody yet", "footer: end"}));
    EXPECT_EQ(opened, (QStringList{"teams", "parks", "roster"}));
}

TEST(ReportFiller, StandsReportsAndRowsSideBySide) {
    const ListRows::Tables tables{{"one", {{"A"}, {{"x"}}}},
                                  {"shirts", {{"Size", "Count"}, {{"Small", 1}, {"Large", 2}, {"Other", 3}}}},
                                  {"hats", {{"Size", "Count"}, {{"Flat", 5}}}}};
    ReportDefinition shirts;
    shirts.query.text = "shirts";
    shirts.title = "Shirts";
    shirts.columns = {{"Size", column("Size")}, {"Count", number("Count"), 5, {}, Total::Sum}};
    shirts.totals = fixed("All");
    ReportDefinition hats = shirts;
    hats.query.text = "hats";
    hats.title = "Hats";
    ReportDefinition definition;
    definition.query.text = "one";
    definition.subReports = {shirts, hats};
    definition.subReportsAcross = 2;
    EXPECT_EQ(filled(definition, tables),
              (QStringList{"  group: Shirts |  | Hats", "  heads: Size | Count |  | Size | Count",
                           "  row: Small | 1 |  | Flat | 5", "  row: Large | 2 |  | ", "  row: Other | 3 |  | ",
                           "  totals: All | 6 |  | All | 5"}));
    definition.subReports = {hats, hats, hats};
    EXPECT_EQ(filled(definition, tables),
              (QStringList{"  group: Hats |  | Hats", "  heads: Size | Count |  | Size | Count",
                           "  row: Flat | 5 |  | Flat | 5", "  totals: All | 5 |  | All | 5", "  group: Hats",
                           "  heads: Size | Count", "  row: Flat | 5", "  totals: All | 5"}));
    ReportFiller filler(definition, ListRows::over(tables));
    Band band;
    ASSERT_TRUE(filler.next(band));
    EXPECT_FALSE(band.sameBlock);
    while (filler.next(band)) EXPECT_TRUE(band.sameBlock) << "all reports of one row stay together";
    shirts.title.clear();
    shirts.across = 2;
    EXPECT_EQ(filled(shirts, tables),
              (QStringList{"heads: Size | Count |  | Size | Count", "row: Small | 1 |  | Large | 2",
                           "row: Other | 3 |  |  | ", "totals: All | 6"}));
}

TEST(ReportFiller, PrintsAFormWithAndWithoutARow) {
    ReportDefinition form;
    form.lines = {
        {{"Name:", lastFirst("Last", "First"), 10, {}, Total::None, false, false, 0, 1}},
        {{.field = phone("Area", "Phone"), .fillIn = 1}, {.field = box("Male", "Sex", "male")}},
        Line{{.field = cityLine("City", "State", "Zip", "Country")}, {.field = fixed("words of its own")}}.ifFilled(),
        Line{{.field = yesNo("Active").before("Active: ")}, {.field = joined({"City", "Zip", "State"}, "/")}}.boxed(),
        Line{{.field = fixed("in the same box")}}.boxed(),
    };
    EXPECT_EQ(filled(form, {}), (QStringList{"row: ____________", "row: (    ) ____________ | [ ] Male",
                                             "row: Active:  | ", "row: in the same box"}));
    form.query.text = "player";
    const ListRows::Tables tables{
        {"player",
         {{"Last", "First", "Area", "Phone", "Sex", "City", "State", "Zip", "Country", "Active"},
          {{"Roy", "Zoé", "", "5551234", "Male", "Mill", "OR", "97050", "USA", 1}}}}};
    EXPECT_EQ(filled(form, tables),
              (QStringList{"row: Roy, Zoé", "row: 555-1234 | [x] Male", "row: Mill, OR 97050  USA | words of its own",
                           "row: Active: Yes | Mill/97050/OR", "row: in the same box"}));
    ReportFiller filler(form, ListRows::over(tables));
    std::vector<int> edges;
    for (Band band; filler.next(band);) edges.push_back(band.edges);
    EXPECT_EQ(edges, (std::vector<int>{NoEdge, NoEdge, NoEdge, TopEdge | SideEdges, BottomEdge | SideEdges}));
}

TEST(ReportFiller, KnowsAnEmptyReport) {
    const ListRows::Tables none{{"players", {league.at("players").columns, {}}}};
    ReportDefinition definition = playerList();
    definition.totals = fixed("Total");
    EXPECT_FALSE(ReportFiller(definition, ListRows::over(none)).hasRows());
    EXPECT_EQ(filled(definition, none), QStringList());
    EXPECT_TRUE(ReportFiller(definition, ListRows::over(league)).hasRows());
}

TEST(ReportFiller, NamesAColumnThatTheQueryLacks) {
    ReportDefinition definition = playerList();
    definition.columns.push_back({"Hat", column("HatSize")});
    try {
        ReportFiller filler(definition, ListRows::over(league));
        FAIL() << "nothing was raised";
    } catch (const ReportError& error) {
        EXPECT_TRUE(error.text().contains("HatSize")) << error.what();
    }
}
