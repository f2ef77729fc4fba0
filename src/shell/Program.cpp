#include "shell/Program.h"

#include <QDir>
#include <QFileInfo>

#include "platform/files/Files.h"

QString Program::homeFolder() const {
    const QDir own(programFolder);
    if (own.exists(dataFileName) && files::canWriteFolder(programFolder)) return programFolder;
    QDir().mkpath(userFolder);
    return userFolder;
}

QString Program::findFile(const QString& name) const {
    for (const QString& folder : {programFolder, userFolder}) {
        const QFileInfo file(QDir(folder), name);
        if (file.isFile()) return file.absoluteFilePath();
    }
    return {};
}
