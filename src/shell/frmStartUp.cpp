#include "shell/frmStartUp.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "shell/Icons.h"
#include "shell/ProductHeading.h"
#include "shell/Program.h"
#include "shell/ScreenTable.h"
#include "shell/Screens.h"

namespace {

constexpr int tilesInRow = 5;
constexpr int margin = 32;
constexpr int gap = 20;

QString translated(const char* text) { return QCoreApplication::translate("Screens", text); }

}  // namespace

frmStartUp::frmStartUp(Program& program) : Screen(program, "frmStartUp") {
    auto* panel = new QWidget;
    panel->setAccessibleName(tr("Kestrelmoor for Baseball and Softball - Startup"));
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    column->addWidget(new ProductHeading(tr("What would you like to do?")));
    auto* grid = new QGridLayout;
    grid->setSpacing(gap);
    int place = 0;
    for (const Tile& entry : tiles()) {
        grid->addWidget(tile(entry), place / tilesInRow, place % tilesInRow);
        ++place;
    }
    column->addLayout(grid);
    column->addStretch();
    auto* path = new QLabel(tr("Data file: %1").arg(program.store.dataFilePath));
    path->setObjectName("lblDataFile");
    path->setTextFormat(Qt::PlainText);
    path->setWordWrap(true);
    path->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(path);
    auto* view = new QScrollArea;  // for a desktop smaller than the panel
    view->setFrameShape(QFrame::NoFrame);
    view->setWidgetResizable(true);
    view->setWidget(panel);
    setCentralWidget(view);
    findChild<QPushButton*>("cmdRegister")->setFocus();

    const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
    resize(panel->sizeHint().boundedTo(desktop.size()));
    move(desktop.center() - rect().center());
}

std::vector<frmStartUp::Tile> frmStartUp::tiles() {
    Screens& screens = program_.screens;
    std::vector<Tile> tiles;
    for (const ScreenEntry& screen : screenTable) {
        if (screen.button == nullptr) continue;
        const QString name = screen.name;
        tiles.push_back({screen.button,
                         {screen.label},
                         screen.icon,
                         translated(screen.labelText),
                         translated(screen.hint),
                         [this, name] { handOver(name); }});
    }
    tiles.push_back({"cmdBackup",
                     {"lblBackup1", "lblBackup2"},
                     "backup",
                     tr("&Backup, Restore\nand Merge"),
                     tr("Back up the data file, restore it, or merge another one"),
                     [&screens] { screens.show("frmBackup"); }});
    tiles.push_back({"cmdAbout", {"lblAbout"}, "about", tr("Ab&out"), tr("About this program"), [&screens] {
                         screens.show("frmAbout");
                     }});
    tiles.push_back(
        {"cmdExit", {"lblExit"}, "exit", tr("E&xit"), tr("End the program"), [&screens] { screens.endProgram(); }});
    return tiles;
}

QWidget* frmStartUp::tile(const Tile& tile) {
    auto* place = new QWidget;
    auto* column = new QVBoxLayout(place);
    column->setContentsMargins({});
    column->setSpacing(6);
    auto* button = new QPushButton;
    button->setObjectName(tile.button);
    button->setIcon(shellIcon(tile.icon));
    button->setIconSize({56, 56});
    button->setFixedSize(128, 96);
    button->setAutoDefault(true);  // Enter presses the button that has the focus
    button->setToolTip(tile.hint);
    button->setAccessibleName(QString(tile.text).remove('&').replace('\n', ' '));
    button->setAccessibleDescription(tile.hint);
    connect(button, &QPushButton::clicked, this, tile.action);
    column->addWidget(button, 0, Qt::AlignHCenter);

    auto* lines = new QVBoxLayout;
    lines->setSpacing(0);
    const QStringList texts = tile.text.split('\n');
    for (qsizetype line = 0; line < texts.size(); ++line) {
        auto* label = new QLabel(texts[line]);
        label->setObjectName(tile.labels[line]);
        label->setAlignment(Qt::AlignCenter);
        label->setBuddy(button);
        label->installEventFilter(this);
        lines->addWidget(label);
    }
    lines->addStretch();
    column->addLayout(lines);
    return place;
}

/// A click on a label is a click on its button. A double click sends a second press, which finds the panel gone or
/// the button pressed already.
bool frmStartUp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* label = qobject_cast<QLabel*>(watched);
        if (auto* button = label ? qobject_cast<QPushButton*>(label->buddy()) : nullptr) {
            button->click();
            return true;
        }
    }
    return Screen::eventFilter(watched, event);
}

/// Only when the screen stands does the navigator go, so that there is always a way on.
void frmStartUp::handOver(const QString& name) {
    if (!program_.screens.show(name)) return;
    if (Screen* screen = program_.screens.load(name)) screen->focusSearch();
    unload();
}
