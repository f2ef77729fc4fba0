#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>

#include "tour/Chapters.h"

void backUp(Guide& guide, const QString& archive) {
    guide.begin("A backup");
    guide.during([&] { guide.click("cmdBackup"); }, "The choice of what to do",
                 [&] {
                     guide.picture("backup");
                     guide.click("cmdOk");
                 });
    Q_UNUSED(archive);
}
