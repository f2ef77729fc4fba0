#include "shell/EmptyScreen.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/Icons.h"
#include "shell/ScreenTable.h"

EmptyScreen::EmptyScreen(Program& program, const QString& name) : MainScreen(program, name, {960, 640}) {
    const auto* entry = std::find_if(screenTable.begin(), screenTable.end(),
                                     [&](const ScreenEntry& screen) { return name == screen.name; });
    const auto translated = [](const char* text) { return QCoreApplication::translate("Screens", text); };

    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setSpacing(12);
    auto* drawing = new QLabel;
    drawing->setPixmap(shellIcon(entry->icon).pixmap(QSize(96, 96), devicePixelRatioF()));
    drawing->setAlignment(Qt::AlignCenter);
    auto* title = new QLabel(translated(entry->labelText).remove('&'));
    title->setAlignment(Qt::AlignCenter);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    title->setFont(font);
    auto* text = new QLabel(tr("%1.\nThis is not yet part of this version.").arg(translated(entry->hint)));
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    column->addStretch();
    column->addWidget(drawing);
    column->addWidget(title);
    column->addWidget(text);
    column->addStretch();
    setCentralWidget(page);
}
