#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "app/Application.h"
#include "platform/settings/FileSettings.h"
#include "platform/widgets/DesktopDialogs.h"
#include "setup/clsOptions.h"
#include "shell/EmptyScreen.h"
#include "shell/Icons.h"
#include "shell/ScreenTable.h"
#include "shell/Screens.h"
#include "shell/StartRoutine.h"
#include "shell/frmAbout.h"
#include "shell/frmSplash.h"
#include "shell/frmStartUp.h"
#include "store/CorrectVersion.h"

namespace {

constexpr char navigator[] = "frmStartUp";

/// The per-user folder of that kind, or the one that KESTRELMOOR_DATA_FOLDER names for both data and settings.
QString userFolder(QStandardPaths::StandardLocation kind) {
    const QString named = qEnvironmentVariable("KESTRELMOOR_DATA_FOLDER");
    return named.isEmpty() ? QStandardPaths::writableLocation(kind) : QDir(named).absolutePath();
}

void registerScreens(Program& program) {
    Screens& screens = program.screens;
    for (const ScreenEntry& screen : screenTable) {
        const QString name = screen.name;
        screens.addScreen(name, [&program, name] { return std::make_unique<EmptyScreen>(program, name); });
    }
    screens.addScreen(navigator, [&program] { return std::make_unique<frmStartUp>(program); });
    screens.addForm("frmAbout", [&program] { return std::make_unique<frmAbout>(program.dialogs()); });
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
    Screens screens(dialogs, navigator);
    Program program{store, settings, screens, Application::applicationDirPath(),
                    userFolder(QStandardPaths::AppDataLocation)};
    registerScreens(program);

    StartRoutine start(program, {.correctVersion = [&store] { return CorrectVersion(store); },
                                 .loadPreferences = [&store] { loadGlobals(store); },
                                 .loadNavigator = [&screens] { screens.load(navigator); },
                                 .showSplash = [&store] { showSplash(store); },
                                 .showNavigator = [&screens] { screens.show(navigator); }});
    if (start.Main() == StartRoutine::Outcome::Ended) return EXIT_SUCCESS;
    return Application::exec();
}
