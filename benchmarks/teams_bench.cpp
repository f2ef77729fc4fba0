#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QTest>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "app/ProgramParts.h"
#include "platform/text/Collation.h"
#include "platform/widgets/ListMover.h"
#include "platform/widgets/SearchCombo.h"
#include "setup/clsOptions.h"
#include "shell/RecordPane.h"
#include "shell/Screens.h"
#include "support/MemorySettings.h"

// The lists of the teams and of the ratings as their user waits for them, beside plain SQL that fills the same lists.

namespace {

constexpr int unassigned = 2000;

QTabWidget* tabsWith(QWidget& screen, const QString& caption) {
    for (auto* tabs : screen.findChildren<QTabWidget*>())
        for (int index = 0; index < tabs->count(); ++index)
            if (tabs->tabText(index) == caption) return tabs;
    qFatal("There is no tab %s.", qPrintable(caption));
}

void showTab(QWidget& screen, const QString& caption) {
    QTabWidget* tabs = tabsWith(screen, caption);
    for (int index = 0; index < tabs->count(); ++index)
        if (tabs->tabText(index) == caption) tabs->setCurrentIndex(index);
}

struct League : SampleLeague {
    explicit League(int players) : SampleLeague(players) {
        loadGlobals(context);
        // A division of its own with one team and two thousand players without one, each rated.
        run("INSERT INTO tblDivision ([DivName]) VALUES (\"!Draft\")");
        run("INSERT INTO tblTeam ([TeamName], [DivisionId]) SELECT \"Wrens\", [DivisionId] FROM tblDivision WHERE "
            "[DivName] = \"!Draft\"");
        run("UPDATE tblRegistration SET [PlayerActive] = False WHERE [PlayerDivisionId] = 0");
        run(QStringLiteral("UPDATE tblRegistration SET [PlayerTeamId] = 0, [PlayerActive] = True, [DeletedFlag] = "
                           "False, [PlayerDivisionId] = (SELECT [DivisionId] FROM tblDivision WHERE [DivName] = "
                           "\"!Draft\") WHERE [PlayerId] IN (SELECT [PlayerId] FROM tblRegistration LIMIT %1)")
                .arg(unassigned));
        run("DELETE FROM tblAbilityRating WHERE [PlayerId] > 0");
        run("INSERT INTO tblAbilityRating ([PlayerId], [VolId], [BattingRating], [PitcherRating], [CatcherRating]) "
            "SELECT [PlayerId], 0, 1 + [PlayerId] % 5, [PlayerId] % 3, [PlayerId] % 4 FROM tblRegistration");
    }
    void run(const QString& statement) { database->execute(statement); }
    QWidget& open(const char* name) {
        parts.screens().show(name);
        QApplication::processEvents();
        return *parts.screens().load(name);
    }

    MemorySettings settings;
    ProgramParts parts{context, settings, {}, {}};
};

/// What stands in front of a player in a list, put in by hand.
std::vector<QString> scored(RawStatement& players) {
    std::vector<QString> entries;
    while (players.step()) {
        const double count = static_cast<double>(players.number(2));
        const double score = count > 0 ? static_cast<double>(players.number(1)) / count : 0;
        entries.push_back(u'(' + QString::number(score, 'f', 2) + QStringLiteral(") ") + players.text(0));
    }
    players.reset();
    placeAccented(entries);
    return entries;
}

constexpr char rawPlayers[] =
    "SELECT PlayerLastName || ', ' || PlayerFirstName || ' - ' || PlayerBirthDate, "
    "max(BattingRating,0)+max(CatcherRating,0)+max(KnowledgeRating,0)+max(OutfieldRating,0)+max(PitcherRating,0)+"
    "max(RunningRating,0)+max(ThrowingRating,0)+max(InfieldRating,0), "
    "(BattingRating>0)+(CatcherRating>0)+(KnowledgeRating>0)+(OutfieldRating>0)+(PitcherRating>0)+(RunningRating>0)+"
    "(ThrowingRating>0)+(InfieldRating>0) "
    "FROM tblRegistration r LEFT JOIN tblAbilityRating a ON a.PlayerId = r.PlayerId WHERE ";
constexpr char rawEnding[] =
    " AND PlayerActive = 1 AND r.DeletedFlag = 0 ORDER BY PlayerLastName, PlayerFirstName, PlayerBirthDate";

void measureAssignments(Comparison& comparison, League& league, ListMover* plain) {
    QWidget& screen = league.open("frmTeams");
    showTab(screen, "Teams");
    showTab(screen, "Player/Team Assignments");
    QApplication::processEvents();
    auto* pool = screen.findChild<QListView*>("lstPlayerRegistrations");
    auto* team = screen.findChild<QListView*>("lstTeamList");
    if (pool->model()->rowCount() != unassigned) qFatal("The pool holds %d players.", pool->model()->rowCount());
    const QString division =
        league.database->readList("SELECT [DivisionId] FROM tblDivision WHERE [DivName] = \"!Draft\"", "DivisionId")
            .front();
    auto raw = std::make_shared<RawFile>(league.context.dataFilePath);
    plain->resize(900, 400);
    plain->show();
    QApplication::processEvents();
    const auto statement = [&](const QString& where) {
        return std::make_shared<RawStatement>(*raw, (rawPlayers + where + rawEnding).toUtf8().constData());
    };
    const auto free = statement(
        QStringLiteral("((PlayerDivisionId = %1 AND PlayerTeamId = 0) OR PlayerDivisionId = 0)").arg(division));
    const auto placed = statement(
        QStringLiteral("PlayerDivisionId = %1 AND PlayerTeamId = (SELECT max(TeamId) FROM tblTeam)").arg(division));
    comparison.add(
        {"enter the assignments of 2,000 players", league.size, {.times = 1.3}},
        [&screen] {
            showTab(screen, "Team Information");
            showTab(screen, "Player/Team Assignments");
            QApplication::processEvents();
        },
        [raw, plain, free, placed] {
            plain->hide();
            plain->setEntries(ListMover::Left, scored(*free));
            plain->setEntries(ListMover::Right, scored(*placed));
            plain->show();
            QApplication::processEvents();
        });
    auto assign = std::make_shared<RawStatement>(
        *raw,
        "UPDATE tblRegistration SET PlayerDivisionId = ?1, PlayerTeamId = ?2, PlayerAge = PlayerAge, DateStamp = "
        "'2026-05-16', TimeStamp = 43200 WHERE PlayerId = 1");
    comparison.add(
        {"move a player to the team and back", league.size, {.times = 1.3}},
        [pool, team] {
            for (QListView* list : {pool, team}) {
                list->setCurrentIndex(list->model()->index(0, 0));
                QTest::keyClick(list, Qt::Key_Return);
                QApplication::processEvents();
            }
            if (team->model()->rowCount() != 0) qFatal("The player did not come back.");
        },
        [raw, assign, plain, division = division.toLongLong()] {
            for (const int to : {1, 0}) {
                assign->bind(1, division);
                assign->bind(2, qint64{to});
                assign->step();
                assign->reset();
                plain->moveEntry(to == 1 ? ListMover::Left : ListMover::Right, 0, std::less<QString>());
                QApplication::processEvents();
            }
        });
}

void measureRatings(Comparison& comparison, League& league, SearchCombo* combo) {
    QWidget& screen = league.open("frmRatings");
    showTab(screen, "Volunteer Ratings");
    QApplication::processEvents();
    RecordPane* pane = nullptr;
    for (auto* each : screen.findChildren<RecordPane*>())
        if (each->findChild<SearchCombo*>("cboUmpireSearchList")) pane = each;
    if (!pane) qFatal("There is no list of umpires and volunteers.");
    auto raw = std::make_shared<RawFile>(league.context.dataFilePath);
    combo->show();
    const auto statement = [&raw](const char* sql) { return std::make_shared<RawStatement>(*raw, sql); };
    const auto players = statement(
        "SELECT LastName || ', ' || FirstName || ' - ' || BirthDate FROM tblTempSearchList WHERE PlayerId <> 0 "
        "ORDER BY LastName, FirstName, BirthDate");
    const auto volunteers = statement(
        "SELECT LastName || ', ' || FirstName || ' - ' || HomePhone FROM tblTempSearchList WHERE VolId <> 0 "
        "ORDER BY LastName, FirstName");
    comparison.add(
        {"build the list of umpires and volunteers", league.size, {.times = 1.3}},
        [pane] {
            pane->showFirst();
            QApplication::processEvents();
        },
        [raw, combo, players, volunteers] {
            sqlite3_exec(
                raw->handle(),
                "BEGIN; DELETE FROM tblTempSearchList; "
                "INSERT INTO tblTempSearchList (PlayerId, VolId, FirstName, MiddleInitial, LastName, BirthDate, "
                "HomePhone) SELECT PlayerId, 0, PlayerFirstName, PlayerMiddleInitial, PlayerLastName, PlayerBirthDate, "
                "'' FROM tblRegistration WHERE PlayerIsUmpire = 1 AND DeletedFlag = 0; "
                "INSERT INTO tblTempSearchList (PlayerId, VolId, FirstName, MiddleInitial, LastName, BirthDate, "
                "HomePhone) SELECT 0, VolId, VolFirstName, '', VolLastName, '1940-01-01', VolHomePhone FROM "
                "tblVolunteer WHERE DeletedFlag = 0; COMMIT",
                nullptr, nullptr, nullptr);
            std::vector<QString> entries;
            for (const auto& query : {players, volunteers}) {
                while (query->step()) entries.push_back(query->text(0));
                query->reset();
            }
            combo->setEntries(std::move(entries));
            combo->setCurrentIndex(0);
            QApplication::processEvents();
        });
}

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) fprintf(stderr, "%s\n", qPrintable(text));  // not "no raise() offscreen"
    });
    QApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    constexpr int players = 100000;
    League draft(players);
    League grades(players);
    ListMover plainLists("lstPlain", "Unassigned", "Team");
    SearchCombo plainList("People");
    measureAssignments(comparison, draft, &plainLists);
    measureRatings(comparison, grades, &plainList);
    return comparison.run();
}
