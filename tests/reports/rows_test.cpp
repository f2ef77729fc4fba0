#include <gtest/gtest.h>

#include "reports/Filled.h"
#include "reports/Reports.h"
#include "support/LeagueFile.h"
#include "support/Printing.h"

namespace {

class ReportRows : public testing::Test {
protected:
    void addPlayer(const QString& columns, const QString& values) {
        league.database().execute(
            QString("INSERT INTO tblRegistration (PlayerActive, PlayerBirthDate, %1) VALUES (True, #4-2-2012#, %2)")
                .arg(columns, values));
    }

    LeagueFile league;
};

}  // namespace

TEST_F(ReportRows, RowsTakeTheValuesOfAQueryForWhatTheyAre) {
    const datafile::Database database = league.database();
    database.execute("DELETE FROM tblDivision");
    database.execute(R"(INSERT INTO tblDivision (DivName, DivComments, DateStamp, TimeStamp)
                        VALUES ("O'Neil ""Tee"" or 1 = 1?", "why?", #4-2-2026#, -5))");
    database.execute(R"(INSERT INTO tblDivision (DivName, DivComments, DateStamp, TimeStamp, DeletedFlag)
                        VALUES ("Minors", "", #4-3-2026#, 7, True))");
    const QString comments = R"(SELECT DivName, TimeStamp FROM tblDivision WHERE DivComments = "why?" AND )";
    struct Case {
        QString query;
        QVariantList values;
        QStringList names;
    };
    const QString select = "SELECT DivName, TimeStamp FROM tblDivision WHERE ";
    const Case cases[] = {
        {comments + "DivName = ?", {R"(O'Neil "Tee" or 1 = 1?)"}, {R"(O'Neil "Tee" or 1 = 1?)"}},
        {comments + "DivName = ?", {R"(x" OR "1" = "1)"}, {}},
        {select + "DateStamp >= ? AND TimeStamp = ?", {QDate(2026, 4, 3), 7}, {"Minors"}},
        {select + "DateStamp = ?", {"2026-04-03"}, {"Minors"}},
        {select + "TimeStamp < ?", {-4.5}, {R"(O'Neil "Tee" or 1 = 1?)"}},
        {select + "DeletedFlag = ?", {true}, {"Minors"}},
        {select + "TimeStamp = ?", {QVariant()}, {}},
        // A join, whose rows the data file hands out in another way.
        {"SELECT A.DivName FROM tblDivision AS A INNER JOIN tblDivision AS B ON A.DivisionId = B.DivisionId WHERE "
         "A.TimeStamp IN (?, ?) ORDER BY A.DivName",
         {-5, 7},
         {"Minors", R"(O'Neil "Tee" or 1 = 1?)"}},
    };
    const report::RowSourceFactory open = storeRows(database);
    for (const Case& each : cases) {
        const auto rows = open({each.query, each.values});
        QStringList names;
        while (rows->next()) names << rows->value(rows->column("divname")).toString();
        EXPECT_EQ(names, each.names) << each.query.toStdString();
        EXPECT_EQ(rows->column("TeamName"), -1);
    }
    EXPECT_THROW(open({select + "DivName = ?"}), datafile::Error) << "a value is missing";
}

TEST_F(ReportRows, ActivePlayerListPrintsWhoPlaysThisSeason) {
    const datafile::Database database = league.database();
    database.execute("DELETE FROM tblDivision");
    database.execute(R"(INSERT INTO tblDivision (DivisionId, DivName, DivAgeCutOffMonth, DivAgeCutOffDay)
                        VALUES (1, "Minors", "4", "1"))");
    database.execute(R"(INSERT INTO tblDivision (DivisionId, DivName, DivAgeCutOffMonth, DivAgeCutOffDay)
                        VALUES (2, "Majors", "", ""))");
    database.execute(R"(INSERT INTO tblDivision (DivisionId, DivName, DeletedFlag) VALUES (3, "Gone", True))");
    const QString name = "PlayerLastName, PlayerFirstName, PlayerDivisionId";
    const QString guardians = "PlayerDadFirstName, PlayerDadLastName, PlayerMomFirstName, PlayerMomLastName";
    addPlayer(
        name +
            ", PlayerGender, PlayerAddress1, PlayerAddress2, PlayerCity, PlayerPostalCode, PlayerPhoneArea, "
            "PlayerPhone, " +
            guardians,
        R"("smith", "Bo", 1, "Male", "1 Elm", "Apt 2", "Mill", "97050", "503", "555-0101", "Al", "Smith", "Di", "Smith")");
    addPlayer(name + ", PlayerAddress2, PlayerPhoneArea, PlayerPhone, " + guardians,
              R"("Adams", "Cy ""Ace""", 2, "Box 9", "", "5550102", "Ed", "Adams", "Fay", "Jones")");
    addPlayer(name + ", PlayerPhone, " + guardians, R"("Smith", "Abe", 3, "   -    ", "", "", "Gia", "Smith")");
    addPlayer(name + ", " + guardians, R"("Young", "Zoe", 0, "Hal", "Young", "", "")");
    addPlayer(name + ", DeletedFlag", R"("Deleted", "Dan", 1, True)");
    addPlayer(name, R"("Idle", "Ivy", 1)");
    database.execute("UPDATE tblRegistration SET PlayerActive = False WHERE PlayerLastName = \"Idle\"");

    ReportInput input{.globals = league.context.globals, .today = QDate(2026, 4, 22)};
    input.globals.defaultAgeCutoffMonth = "4";
    input.globals.defaultAgeCutoffDay = "30";
    input.globals.defaultDateFormat = "yyyy-MM-dd";
    const QStringList expected{
        "Adams, Cy \"Ace\"|4/2/2012|14||Box 9|||555-0102|Majors|Ed Adams & Fay Jones",
        "Smith, Abe|4/2/2012|14||||||Not Assigned to a Division|Gia Smith",
        "smith, Bo|4/2/2012|13|Male|1 Elm, Apt 2|Mill|97050|(503) 555-0101|Minors|Al & Di Smith",
        "Young, Zoe|4/2/2012|14||||||Not Assigned to a Division|Hal Young",
        "=Active Players: 4",
    };
    EXPECT_EQ(filled(Reports::rptPlayerReport7(input), league.context), expected);
    EXPECT_EQ(Reports::rptPlayerReport7(input).definition.asOf, "2026-04-22");
    input.globals.defaultDateFormat.clear();
    EXPECT_EQ(Reports::rptPlayerReport7(input).definition.asOf, "4/22/26");
}
