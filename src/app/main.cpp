#include <QDir>
#include <QStandardPaths>

#include "app/Application.h"
#include "app/ProgramParts.h"
#include "platform/settings/FileSettings.h"
#include "platform/widgets/DesktopDialogs.h"

namespace {

/// The per-user folder of that kind, or the one that KESTRELMOOR_DATA_FOLDER names for both data and settings.
QString userFolder(QStandardPaths::StandardLocation kind) {
    const QString named = qEnvironmentVariable("KESTRELMOOR_DATA_FOLDER");
    return named.isEmpty() ? QStandardPaths::writableLocation(kind) : QDir(named).absolutePath();
}

}  // namespace

int main(int argumentCount, char** arguments) {
    DesktopDialogs dialogs;
    Application application(argumentCount, arguments, dialogs);
    FileSettings settings(userFolder(QStandardPaths::AppConfigLocation) + "/Kestrelmoor.ini");
    SystemClock clock;
    datafile::Workspace workspace;
    StoreContext store{workspace, clock, dialogs};
    ProgramParts parts(store, settings, Application::applicationDirPath(), userFolder(QStandardPaths::AppDataLocation));
    return parts.start() == StartRoutine::Outcome::Ended ? EXIT_SUCCESS : Application::exec();
}
