#include "app/ProgramParts.h"

#include "app/ScreenRegister.h"
#include "setup/clsOptions.h"
#include "shell/frmSplash.h"
#include "store/CorrectVersion.h"

ProgramParts::ProgramParts(StoreContext& store, Settings& settings, const QString& programFolder,
                           const QString& userFolder)
    : screens_(store.dialogs, navigatorName), program_{store, settings, screens_, programFolder, userFolder} {
    registerScreens(program_);
}

StartRoutine::Outcome ProgramParts::start() {
    StoreContext& store = program_.store;
    StartRoutine routine(program_, {.correctVersion = [&store] { return CorrectVersion(store); },
                                    .loadPreferences = [&store] { loadGlobals(store); },
                                    .loadNavigator = [this] { screens_.load(navigatorName); },
                                    .showSplash = [this] { showSplash(); },
                                    .showNavigator = [this] { screens_.show(navigatorName); }});
    return routine.Main();
}

void ProgramParts::showSplash() {
    clsOptions options(program_.store);
    frmSplash splash([&options] {
        options.ShowSplashScreen = false;
        options.SaveOptionsRecord();
    });
    program_.dialogs().showModal(splash);
}
