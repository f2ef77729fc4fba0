#include "platform/settings/FileSettings.h"

#include <QSettings>

QString FileSettings::read(const QString& section, const QString& key, const QString& otherwise) const {
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(section);
    // A value that was typed into the file by hand with a comma in it reads as a list.
    return file.contains(key) ? file.value(key).toStringList().join(QStringLiteral(", ")) : otherwise;
}

bool FileSettings::write(const QString& section, const QString& key, const QString& value) {
    QSettings file(path_, QSettings::IniFormat);  // anew each time: a fault reported once would stick to the object
    file.beginGroup(section);
    file.setValue(key, value);
    file.endGroup();
    file.sync();
    return file.status() == QSettings::NoError;
}
