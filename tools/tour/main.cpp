#include <QDir>
#include <cstdio>

#include "app/Application.h"
#include "platform/settings/FileSettings.h"
#include "platform/widgets/DesktopDialogs.h"
#include "sample_league/SampleLeague.h"
#include "tour/Tour.h"

namespace {

/// The sample league in a folder of its own, as a user finds it who starts the program for the first time.
void makeLeague(StoreContext& store, const QString& folder) {
    QDir().mkpath(folder);
    const QString path = QDir(folder).filePath(dataFileName);
    makeSampleLeague(path);
    store.workspace.openDatabase(path).execute("UPDATE tblOptions SET [ShowSplashScreen] = True");
}

}  // namespace

/// kestrelmoor-tour OUTPUT_FOLDER: walks through the program and leaves pictures, a PDF and the league there.
int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fprintf(stderr, "Usage: kestrelmoor-tour OUTPUT_FOLDER\n");
        return 2;
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);  // a desktop's own cannot be driven
    DesktopDialogs dialogs;
    Application application(argumentCount, arguments, dialogs);
    const QDir output(QString::fromLocal8Bit(arguments[1]));
    const QString folder = output.absolutePath();
    const QString data = output.absoluteFilePath("data");
    const QString pdf = output.absoluteFilePath("active-player-list.pdf");
    Guide guide(folder);
    FileSettings settings(data + "/Kestrelmoor.ini");
    FixedClock clock(QDateTime({2026, 5, 16}, {10, 0}));  // the day up to which the sample league has come
    datafile::Workspace workspace;
    StoreContext store{workspace, clock, dialogs};
    guide.begin("The sample league");
    try {
        makeLeague(store, data);
    } catch (const std::exception& failure) {
        guide.fail(QString::fromUtf8(failure.what()));
    }
    ProgramParts parts(store, settings, data, data);
    Tour(parts, guide, pdf).take();
    std::printf("Pictures: %s/*.png\nPrinted list: %s\n", qPrintable(folder), qPrintable(pdf));
    return EXIT_SUCCESS;
}
