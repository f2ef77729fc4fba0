#include "shell/MainScreen.h"

#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "shell/ConfirmExit.h"
#include "shell/EditMenu.h"
#include "shell/Icons.h"
#include "shell/Program.h"
#include "shell/ScreenTable.h"
#include "shell/Screens.h"
#include "shell/WindowPlacement.h"

namespace {

QString translated(const char* text) { return QCoreApplication::translate("Screens", text); }

}  // namespace

MainScreen::MainScreen(Program& program, const QString& name, QSize designSize, QSize minimum) : Screen(program, name) {
    buildFileMenu();
    auto* edit = new EditMenu(this);
    connect(edit, &EditMenu::undoWanted, this, [this] { undo(); });
    menuBar()->addMenu(edit);
    buildViewMenu();
    buildToolsMenu();
    buildHelpMenu();
    buildToolBar();
    status_ = new QLabel(this);
    status_->setObjectName("lblStatus");
    status_->setTextFormat(Qt::PlainText);
    status_->setMargin(4);
    statusBar()->addWidget(status_, 1);
    WindowPlacement(program.settings, name).restore(*this, designSize, minimum);
}

void MainScreen::UpdateStatusBar(const QString& text) { status_->setText(text); }

void MainScreen::ResetStatusBar() { status_->clear(); }

void MainScreen::showPurpose(const QString& caption) {
    setWindowTitle(caption);
    auto* file = new QLabel(program_.store.dataFilePath);
    file->setObjectName("lblDataFile");
    file->setTextFormat(Qt::PlainText);
    file->setToolTip(tr("Data file: %1").arg(program_.store.dataFilePath));
    file->setEnabled(false);
    file->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addPermanentWidget(file, 1);
}

void MainScreen::leaving() { WindowPlacement(program_.settings, objectName()).save(*this); }

QMenu* MainScreen::dataMenu() {
    if (data_ == nullptr) {
        data_ = new QMenu(tr("&Data"), this);
        data_->setObjectName("mnuData");
        menuBar()->insertMenu(tools_->menuAction(), data_);
    }
    return data_;
}

QAction* MainScreen::insertEntry(QMenu* menu, const QString& name, const QString& text) {
    auto* entry = new QAction(text, menu);
    entry->setObjectName(name);
    menu->insertAction(menu == file_ ? fileTail_ : nullptr, entry);
    return entry;
}

void MainScreen::buildFileMenu() {
    file_ = menuBar()->addMenu(tr("&File"));
    file_->setObjectName("mnuFile");
    QAction* exit = addEntry(file_, "mnuFileExit", tr("E&xit"), [this] { close(); });
    exit->setShortcut(Qt::CTRL | Qt::Key_W);
    exit->setStatusTip(tr("Close this screen"));
    fileTail_ = file_->insertSeparator(exit);
}

void MainScreen::buildViewMenu() {
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->setObjectName("mnuView");
    int key = Qt::Key_1;
    for (const ScreenEntry& screen : screenTable) {
        const QString name = screen.name;
        const bool here = name == objectName();
        QAction* entry = addEntry(view, here && name == "frmTeams" ? "mnuViewTeams" : screen.menuEntry,
                                  translated(screen.menuText), [this, name] { program_.screens.show(name); });
        entry->setIcon(shellIcon(screen.icon));
        entry->setShortcut(Qt::CTRL | Qt::Key(key++));
        entry->setStatusTip(translated(screen.hint));
        entry->setEnabled(!here);
    }
    view->addSeparator();
    QAction* exit = addEntry(view, "mnuViewExit", tr("E&xit Kestrelmoor"), [this] { program_.screens.endProgram(); });
    exit->setShortcut(QKeySequence::Quit);
    exit->setStatusTip(tr("End the program"));
}

void MainScreen::buildToolsMenu() {
    tools_ = menuBar()->addMenu(tr("&Tools"));
    tools_->setObjectName("mnuTools");
    Screens& screens = program_.screens;
    addEntry(tools_, "mnuToolsNewSeason", tr("&New Season..."), [this] { startNewSeason(); });
    addEntry(tools_, "mnuToolsPreferences", tr("&Program Preferences..."), [&screens] { screens.show("frmOptions"); });
    tools_->addSeparator();
    addEntry(tools_, "mnuExportToDS", tr("&Export Data To Diamond Scheduler"),
             [&screens] { screens.show("frmExport"); });
    addEntry(tools_, "mnuImportFromDS", tr("&Import Schedule from Diamond Scheduler"),
             [&screens] { screens.show("frmImport"); });
}

void MainScreen::buildHelpMenu() {
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->setObjectName("mnuHelp");
    QAction* contents = addEntry(help, "mnuHelpContents", tr("&Contents"), [this] { showHelp(); });
    contents->setShortcut(QKeySequence::HelpContents);
    addEntry(help, "mnuHelpSearch", tr("&Search for Help On..."), [this] { showHelp(); });
    help->addSeparator();
    addEntry(help, "mnuHelpAbout", tr("&About Kestrelmoor..."), [this] { program_.screens.show("frmAbout"); });
}

void MainScreen::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    placeToolBar();
}

void MainScreen::placeToolBar() {
    constexpr int lowWindow = 440;
    const bool low = height() < lowWindow;
    const Qt::ToolBarArea wanted = low ? Qt::LeftToolBarArea : Qt::TopToolBarArea;
    if (toolBarArea(toolBar_) == wanted) return;
    toolBar_->setToolButtonStyle(low ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    toolBar_->setIconSize(low ? QSize(16, 16) : QSize(24, 24));
    addToolBar(wanted, toolBar_);
}

void MainScreen::buildToolBar() {
    QToolBar* bar = addToolBar(tr("Screens"));
    toolBar_ = bar;
    bar->setObjectName("tbrScreens");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize({24, 24});
    const auto addKey = [&](const QString& key, const char* icon, const QString& text, const QString& hint) {
        QAction* action = bar->addAction(shellIcon(icon), text);
        action->setObjectName(key);
        action->setToolTip(hint);
        action->setStatusTip(hint);
        return action;
    };
    for (const ScreenEntry& screen : screenTable) {
        const QString name = screen.name;
        QAction* key = addKey(screen.toolKey, screen.icon, translated(screen.toolText), translated(screen.hint));
        key->setEnabled(name != objectName());
        connect(key, &QAction::triggered, this, [this, name] { program_.screens.show(name); });
    }
    bar->addSeparator();
    QAction* about = addKey("btnAbout", "about", tr("About"), tr("About this program"));
    connect(about, &QAction::triggered, this, [this] { program_.screens.show("frmAbout"); });
    QAction* exit = addKey("btnExit", "exit", tr("Exit"), tr("End the program"));
    connect(exit, &QAction::triggered, this, &MainScreen::exitAfterQuestion);
}

/// The rollover changes the whole data file, so the record in hand is offered for saving before it, and the screen,
/// whose rows are no longer those of the file, goes.
void MainScreen::startNewSeason() {
    if (offerToSave() && program_.screens.show("frmNewSeason")) unload();
}

void MainScreen::showHelp() {
    if (program_.helpFile.isEmpty()) {
        program_.dialogs().information(tr("Kestrelmoor"), tr("Help is currently not available."));
    } else if (!program_.dialogs().openAddress(QUrl::fromLocalFile(program_.helpFile))) {
        program_.dialogs().warning(tr("Kestrelmoor"),
                                   tr("No program was found to show the help file\n%1.").arg(program_.helpFile));
    }
}

void MainScreen::exitAfterQuestion() {
    if (ConfirmExit(program_.dialogs())) program_.screens.endProgram();
}
