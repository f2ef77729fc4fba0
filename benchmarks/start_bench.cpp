#include <QElapsedTimer>
#include <QProcess>
#include <QTabWidget>
#include <cstdio>
#include <unistd.h>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "app/Application.h"
#include "app/ProgramParts.h"
#include "shell/ScreenTable.h"
#include "support/MemorySettings.h"

// The program's start, and the memory it takes with its screens open, beside a bare window that opens the same file and
// copies it. Each is done by a child process: this program again, called as "start_bench --child KIND FILE". A child
// prints its resident size in bytes as soon as it shows what it was asked for.

namespace {

void tellSize() {
    QApplication::processEvents();
    QFile about("/proc/self/statm");
    const bool isOpen = about.open(QIODevice::ReadOnly);
    const qlonglong pages = isOpen ? about.readAll().split(' ').value(1).toLongLong() : 0;
    std::printf("%lld\n", pages * sysconf(_SC_PAGESIZE));
    std::fflush(stdout);
}

/// Copies by the system's own means, and waits for the disk as the program does.
void copyRaw(const QString& from, const QString& to) {
    QFile::remove(to);
    QFile copy(to);
    if (!QFile::copy(from, to) || !copy.open(QIODevice::ReadWrite) || fsync(copy.handle()) != 0)
        qFatal("The file could not be copied.");
}

int beBare(int count, char** arguments, const QString& path) {
    QApplication application(count, arguments);
    QWidget window;
    window.resize(700, 500);
    window.show();
    QApplication::processEvents();
    const RawFile file(path);
    RawStatement version(file, "SELECT DBVersion FROM tblVersion");
    version.step();
    copyRaw(path, path.chopped(4) + ".raw");
    tellSize();
    return EXIT_SUCCESS;
}

int beProgram(int count, char** arguments, const QString& path, bool opensScreens) {
    QuietDialogs dialogs;
    Application application(count, arguments, dialogs);
    MemorySettings settings;
    settings.write("Database", "Path", path);
    SystemClock clock;
    datafile::Workspace workspace;
    StoreContext store{workspace, clock, dialogs};
    ProgramParts parts(store, settings, Application::applicationDirPath(), Application::applicationDirPath());
    if (parts.start() != StartRoutine::Outcome::Running)
        qFatal("The program did not start: %s", qPrintable(dialogs.last));
    if (!opensScreens) return tellSize(), EXIT_SUCCESS;
    for (const ScreenEntry& entry : screenTable) {
        parts.screens().show(entry.name);
        for (auto* tabs : parts.screens().load(entry.name)->findChildren<QTabWidget*>())
            for (int i = 0; i < tabs->count(); ++i) tabs->setCurrentIndex(i), QApplication::processEvents();
    }
    tellSize();
    return EXIT_SUCCESS;
}

int beChild(int count, char** arguments) {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));  // and not "no raise() offscreen"
    });
    const QString kind = QString::fromLocal8Bit(arguments[2]);
    const QString path = QString::fromLocal8Bit(arguments[3]);
    if (kind == "bare") return beBare(count, arguments, path);
    return beProgram(count, arguments, path, kind == "screens");
}

struct Start {
    double seconds;
    double bytes;
};

Start run(const QString& kind, const QString& path) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    child.start(QCoreApplication::applicationFilePath(), {"--child", kind, path});
    if (!child.waitForReadyRead(-1)) qFatal("The child process gave nothing.");
    const double seconds = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    child.waitForFinished(-1);
    return {seconds, child.readAllStandardOutput().trimmed().toDouble()};
}

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (count == 4 && qstrcmp(arguments[1], "--child") == 0) return beChild(count, arguments);
    QCoreApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    std::vector<std::unique_ptr<SampleLeague>> leagues;
    for (const int players : leagueSizes) {
        leagues.push_back(std::make_unique<SampleLeague>(players));
        const QString path = leagues.back()->context.dataFilePath;
        const auto seconds = [path](const QString& kind) { return [path, kind] { return run(kind, path).seconds; }; };
        const auto bytes = [path](const QString& kind) { return [path, kind] { return run(kind, path).bytes; }; };
        comparison.addMeasured({"start to the navigator, safety copy made", players, {.times = 2}}, 9,
                               seconds("program"), seconds("bare"));
        comparison.addMeasured({"memory with all screens open", players, {.total = 200 << 20}, Unit::Bytes}, 1,
                               bytes("screens"), bytes("bare"));
    }
    return comparison.run();
}
