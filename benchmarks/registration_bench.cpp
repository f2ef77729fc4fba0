#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "app/ProgramParts.h"
#include "platform/widgets/SearchCombo.h"
#include "registration/clsRegistration.h"
#include "setup/clsOptions.h"
#include "shell/Screens.h"
#include "support/MemorySettings.h"

// The registration screen as its user feels it: the next player shown, a player saved with both parents looked up.

namespace {

struct League : SampleLeague {
    explicit League(int players) : SampleLeague(players) {
        loadGlobals(context);
        settings.write("WindowSettings\\frmRegister", "ShowGuardianMsg", "False");
        parts.screens().show("frmRegister");
        screen = parts.screens().load("frmRegister");
        QApplication::processEvents();
    }

    MemorySettings settings;
    ProgramParts parts{context, settings, {}, {}};
    Screen* screen = nullptr;
};

void measure(Comparison& comparison, League& league, int players) {
    auto* next = league.screen->findChild<QToolButton*>("cmdPlayerMove2");
    comparison.add({"show the next player", players, {.total = 0.05}}, [next] {
        QTest::mouseClick(next, Qt::LeftButton);
        QApplication::processEvents();
    });
    auto* address = league.screen->findChild<QLineEdit*>("txtPlayerAddress2");
    auto* save = league.screen->findChild<QWidget*>("cmdSave");
    auto* status = league.screen->findChild<QLabel*>("lblStatus");
    // The raw engine's commit is the file system's share.
    auto raw = std::make_shared<RawFile>(league.context.dataFilePath);
    comparison.add(
        {"save a player, parents looked up", players, {.more = 0.1}},
        [address, save, status, number = 0]() mutable {
            address->setText(QStringLiteral("Apt %1").arg(++number % 100));
            QTest::mouseClick(save, Qt::LeftButton);
            QApplication::processEvents();
            if (!status->text().endsWith(QLatin1String("Saved."))) qFatal("The player was not saved.");
            status->clear();
        },
        [raw, number = 0]() mutable {
            RawStatement write(*raw,
                               QStringLiteral("UPDATE tblRegistration SET PlayerAddress2 = 'Apt %1' WHERE PlayerId = 1")
                                   .arg(++number % 100)
                                   .toUtf8()
                                   .constData());
            write.step();
        });
    comparison.add(
        {"recalculate all ages", players, {.times = 2.5}},
        [&league, year = 2000]() mutable {
            league.context.globals.currentSeasonYear = QString::number(year = year == 2026 ? 2025 : 2026);
            clsRegistration::RecalculatePlayerAges(league.context);
        },
        [raw] { RawStatement(*raw, "UPDATE tblRegistration SET PlayerAge = PlayerAge + 1").step(); });
}

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // "no raise() offscreen"
    QApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    std::vector<std::unique_ptr<League>> leagues;
    for (const int players : leagueSizes) {
        leagues.push_back(std::make_unique<League>(players));
        measure(comparison, *leagues.back(), players);
    }
    return comparison.run();
}
