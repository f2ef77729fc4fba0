#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "app/Application.h"
#include "app/ScreenRegister.h"
#include "platform/settings/FileSettings.h"
#include "platform/widgets/DesktopDialogs.h"
#include "setup/clsOptions.h"
#include "shell/Icons.h"
#include "shell/Screens.h"
#include "shell/StartRoutine.h"
#include "shell/frmSplash.h"
#include "store/CorrectVersion.h"

namespace {

/// The per-user folder of that kind, or the one that KESTRELMOOR_DATA_FOLDER names for both data and settings.
QString userFolder(QStandardPaths::StandardLocation kind) {
    const QString named = qEnvironmentVariable("KESTRELMOOR_DATA_FOLDER");
    return named.isEmpty() ? QStandardPaths::writableLocation(kind) : QDir(named).absolutePath();
}

void showSplash(StoreContext& store) {
    clsOptions options(store);
    frmSplash splash([&options] {
        options.ShowSplashScreen = false;
        options.SaveOptionsRecord();
    });
    store.dialogs.showModal(splash);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    DesktopDialogs dialogs;
    Application application(argumentCount, arguments, dialogs);
    Application::setWindowIcon(shellIcon("kestrelmoor"));
    FileSettings settings(userFolder(QStandardPaths::AppConfigLocation) + "/Kestrelmoor.ini");
    SystemClock clock;
    datafile::Workspace workspace;
    StoreContext store{workspace, clock, dialogs};
    Screens screens(dialogs, navigatorName);
    Program program{store, settings, screens, Application::applicationDirPath(),
                    userFolder(QStandardPaths::AppDataLocation)};
    registerScreens(program);

    StartRoutine start(program, {.correctVersion = [&store] { return CorrectVersion(store); },
                                 .loadPreferences = [&store] { loadGlobals(store); },
                                 .loadNavigator = [&screens] { screens.load(navigatorName); },
                                 .showSplash = [&store] { showSplash(store); },
                                 .showNavigator = [&screens] { screens.show(navigatorName); }});
    if (start.Main() == StartRoutine::Outcome::Ended) return EXIT_SUCCESS;
    return Application::exec();
}
