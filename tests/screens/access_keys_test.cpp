#include "setup/frmOptions.h"
#include "shell/ScreenTable.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

/// Everything in view that answers to Alt and a letter, as "letter: what".
QStringList accessKeys(QWidget& screen) {
    QStringList keys;
    const auto note = [&keys](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) keys << key.toString() + QStringLiteral(": ") + text;
    };
    for (const QLabel* label : screen.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) note(label->text());
    for (const QAbstractButton* button : screen.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->shortcut().isEmpty() && !button->inherits("QToolButton"))
            note(button->text());  // without a shortcut the key is that of a part of the page, for which it stands
    for (const QGroupBox* group : screen.findChildren<QGroupBox*>())
        if (group->isVisible()) note(group->title());
    for (const QMenuBar* bar : screen.findChildren<QMenuBar*>())
        for (const QAction* menu : bar->actions()) note(menu->text());
    keys.sort();
    return keys;
}

void expectNoTwoAlikeOnPage(QWidget& screen, const QString& where) {
    const QStringList keys = accessKeys(screen);
    for (qsizetype i = 1; i < keys.size(); ++i)
        EXPECT_NE(keys[i].section(u':', 0, 0), keys[i - 1].section(u':', 0, 0))
            << where.toStdString() << ": " << keys[i - 1].toStdString() << " and " << keys[i].toStdString();
}

void expectNoTwoAlike(QWidget& screen) {
    const QString name = screen.objectName();
    expectNoTwoAlikeOnPage(screen, name);
    for (QTabWidget* each : screen.findChildren<QTabWidget*>())
        for (int tab = 0; tab < each->count(); ++tab) {
            each->setCurrentIndex(tab);
            if (each->isVisible()) expectNoTwoAlikeOnPage(screen, name + u' ' + each->tabText(tab));
        }
}

TEST(AccessKeysTest, NoTwoOnAPageAreAlike) {
    RunningProgram running;
    for (const ScreenEntry& entry : screenTable) expectNoTwoAlike(*running.open(entry.name));
    frmOptions options(running.program);
    options.show();
    expectNoTwoAlike(options);
}

}  // namespace
