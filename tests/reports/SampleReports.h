#pragma once

#include <QTemporaryDir>

#include "reports/Reports.h"
#include "sample_league/SampleLeague.h"
#include "setup/clsOptions.h"
#include "support/LeagueFile.h"

/// The sample league, the same in every run, and what its reports are made of.
struct SampleReports {
    SampleReports() {
        QFile::remove(league.path());
        makeSampleLeague(league.path(), {});
        loadGlobals(league.context);
        addOddRows();
    }

    /// For the day on which the league was last worked at.
    ReportInput input(const std::array<QString, 3>& lists = {}) {
        ReportInput input{.lists = lists, .globals = league.context.globals, .today = QDate(2026, 5, 16)};
        const auto id = [&](const QString& query, const QString& column) {
            return std::optional<int>(int(league.database().openRecordset(query).number(column)));
        };
        if (!lists[1].isEmpty() && lists[1] != "All Divisions")
            input.divisionId =
                id("SELECT DivisionId FROM tblDivision WHERE DivName = " + datafile::quoted(lists[1]), "DivisionId");
        if (input.divisionId && !lists[2].isEmpty() && lists[2] != "All Teams")
            input.teamId =
                id(QString("SELECT TeamId FROM tblTeam WHERE DivisionId = %1 AND TeamName = ").arg(*input.divisionId) +
                       datafile::quoted(lists[2]),
                   "TeamId");
        return input;
    }

    // One of each who has much to tell.
    static inline const QString busySponsor = "Canyon Auto Body";
    static inline const QString busyVolunteer = "Yang, Greg - 580-9052";

    LeagueFile league;

private:
    /// What the sample league lacks: players out of their division's ages, and names as long as they can be.
    void addOddRows() {
        const datafile::Database database = league.database();
        database.execute("UPDATE tblRegistration SET PlayerAge = 3 WHERE PlayerId = 1");
        database.execute("UPDATE tblRegistration SET PlayerAge = 19 WHERE PlayerId IN (2, 3)");
        const struct {
            const char* column;
            int width;
            const char* text;
        } longest[] = {
            {"PlayerLastName", 30, "Featherstonehaugh-Cholmondeley"},
            {"PlayerFirstName", 30, "Wilhelmina-Bartholomea Augusta"},
            {"PlayerAddress1", 50, "12345 North-by-Northwest Meadowbrook Crossing Pkwy"},
            {"PlayerAddress2", 50, "c/o The Worthington-Smythe Household, West Wing 12"},
            {"PlayerCity", 30, "Llanfairpwllgwyngyllgogerychwy"},
            {"PlayerPostalCode", 15, "WWWWW-WWWWWWWWW"},
            {"PlayerCountryCode", 30, "United Kingdom of Gr. Britain "},
            {"PlayerDadLastName", 30, "Featherstonehaugh-Cholmondeley"},
            {"PlayerDadFirstName", 30, "Bartholomew-Maximilian Everard"},
            {"PlayerEmailAddress", 50, "wilhelmina.featherstonehaugh@cholmondeley.example"},
            {"PlayerSchoolName", 50, "Our Lady of Perpetual Help Elementary & Middle Sch"},
            {"PlayerFeeAmount", 9, "$99999.99"},
            {"PlayerMedicalComments", 255,
             "Allergic to bee stings, carries an auto-injector in the blue bag. Mild asthma: inhaler before running. "
             "Wears a hearing aid on the left side; please speak to her from the right. No penicillin. Contact lenses. "
             "Sprained ankle in March, tape it before games."},
        };
        const QString oneInTBall =
            "(SELECT MIN(PlayerId) FROM tblRegistration WHERE PlayerActive = True AND DeletedFlag = False "
            "AND PlayerTeamId <> 0 AND PlayerDivisionId = 1)";
        QStringList values;
        for (const auto& each : longest)
            values << QLatin1String(each.column) + " = " + datafile::quoted(QString(each.text).left(each.width));
        database.execute("UPDATE tblRegistration SET " + values.join(", ") + " WHERE PlayerId = " + oneInTBall);
    }
};

/// A report and what is chosen for it.
struct SampleReport {
    const char* name;
    MakeReport make;
    std::array<QString, 3> lists{};
};

/// Every report of the program, the shorter selection where there is one.
const std::vector<SampleReport>& sampleReports();
