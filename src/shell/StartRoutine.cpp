#include "shell/StartRoutine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/files/Files.h"

namespace {

QString tr(const char* text) { return QCoreApplication::translate("StartRoutine", text); }

}  // namespace

FileRequest dataFileRequest() {
    return {.title = tr("Select the location of the Kestrelmoor.kmr file..."),
            .filters = tr("Kestrelmoor Data File (*.kmr)|*.kmr|All Files (*.*)|*.kmr"),
            .defaultSuffix = ".kmr"};
}

StartRoutine::StartRoutine(Program& program, StartSteps steps) : program_(program), steps_(std::move(steps)) {}

StartRoutine::Outcome StartRoutine::Main() {
    try {
        return run();
    } catch (const std::exception& failure) {
        forgetPickedFile();
        program_.dialogs().warning(tr("File Open Error"), QString::fromUtf8(failure.what()));
        return Outcome::Ended;
    }
}

StartRoutine::Outcome StartRoutine::run() {
    QString& path = program_.store.dataFilePath;
    path = storedPath_ = program_.settings.read(pathSection, pathKey);
    if (path.isEmpty()) {
        path = firstPath();
        savePath();
    }
    if (!QFileInfo(path).isFile() && !searchDataFile()) return Outcome::Ended;
    if (!steps_.correctVersion()) {
        forgetPickedFile();
        program_.dialogs().warning(tr("Database Update Error"),
                                   tr("Datafile is not the correct version") + '\n' + tr("and could not be updated!") +
                                       '\n' + tr("Please contact Kestrelmoor technical Support.") + "\n\n" +
                                       tr("Exiting Kestrelmoor."));
        return Outcome::Ended;
    }
    QCoreApplication::processEvents();
    steps_.loadPreferences();
    program_.helpFile = program_.findFile(helpFileName);
    steps_.loadNavigator();
    if (program_.globals().showSplash) steps_.showSplash();
    steps_.showNavigator();
    return Outcome::Running;
}

/// Where the data file of a user lies who never had one; it is made there if the program brought a base file.
QString StartRoutine::firstPath() const {
    const QString path = QDir(program_.homeFolder()).filePath(dataFileName);
    const QString base = QDir(program_.programFolder).filePath(baseFileName);
    if (!QFileInfo::exists(path) && QFileInfo(base).isFile()) {
        files::copyWhole(base, path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);  // that of an installed base may be less
    }
    return path;
}

/// Asks until there is a path of an existing file, and keeps it. False when the user wants to end the program.
bool StartRoutine::searchDataFile() {
    Dialogs& dialogs = program_.dialogs();
    dialogs.error(tr("Data File Not Found"), tr("The Kestrelmoor data file was not found.  Please select ") + '\n' +
                                                 tr("the path of your Kestrelmoor.kmr file."));
    while (true) {
        const std::optional<QString> path = dialogs.openFile(dataFileRequest());
        if (!path) {
            const QString question = tr("You must select the location of") + '\n' +
                                     tr("Kestrelmoor.kmr data file to continue.") + "\n\n" +
                                     tr("Would you like to continue?");
            if (!dialogs.ask(tr("Open Data File"), question)) return false;
        } else if (path->isEmpty()) {
            const BoxAnswer answer = dialogs.box(BoxKind::Error, BoxButtons::OkCancel, tr("Open Database Error"),
                                                 tr("You must select the path of your Kestrelmoor data file."));
            if (answer != BoxAnswer::Ok) {
                dialogs.information(tr("Kestrelmoor"), tr("Exiting Kestrelmoor."));
                return false;
            }
        } else if (!QFileInfo(*path).isFile()) {
            dialogs.information(tr("File Not Found"), tr("The Kestrelmoor Data file was not found."));
        } else {
            program_.store.dataFilePath = *path;
            picked_ = true;
            savePath();
            return true;
        }
    }
}

void StartRoutine::savePath() {
    if (program_.settings.write(pathSection, pathKey, program_.store.dataFilePath)) return;
    program_.dialogs().warning(tr("Kestrelmoor"), tr("The location of the data file could not be stored in your "
                                                     "settings.\nThe next start will ask for it again."));
}

/// A file picked in this start that turned out useless must not be the one that the next start opens.
void StartRoutine::forgetPickedFile() {
    if (picked_) program_.settings.write(pathSection, pathKey, storedPath_);
}
