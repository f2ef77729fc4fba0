#pragma once

#include "shell/Screen.h"

class EditMenu;
class QLabel;
class QToolBar;
class QMenu;

/// A main screen: the shared menus and toolbar, the status line, and a window that comes back where it was left.
/// The screen puts its own content in with setCentralWidget() and its own entries into the menus.
class MainScreen : public Screen {
    Q_OBJECT

public:
    /// `name` is the screen's name in the register and in the settings. The design size is that of a first start.
    MainScreen(Program& program, const QString& name, QSize designSize, QSize minimum = {619, 447});

    /// Shows the text in the status line until it is reset or replaced.
    void UpdateStatusBar(const QString& text);
    void ResetStatusBar();

protected:
    /// The caption says what the screen is for instead of which file is open; the status line names the file then.
    void showPurpose(const QString& caption);

    /// Edit, Undo: takes back the changes to the current record.
    virtual void undo() {}

    /// Adds an entry of the screen's own: on the File menu above Exit, on the others at the end.
    template <typename Handler>
    QAction* addEntry(QMenu* menu, const QString& name, const QString& text, Handler handler) {
        QAction* entry = insertEntry(menu, name, text);
        connect(entry, &QAction::triggered, this, handler);
        return entry;
    }
    QMenu* fileMenu() const { return file_; }
    /// The menu of the tab in view, between View and Tools. It shows as soon as it is asked for.
    QMenu* dataMenu();
    QMenu* toolsMenu() const { return tools_; }

    void leaving() override;
    /// In a low window the toolbar stands at the side and leaves its height to the fields.
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeToolBar();
    QAction* insertEntry(QMenu* menu, const QString& name, const QString& text);
    void buildFileMenu();
    void buildViewMenu();
    void buildToolsMenu();
    void buildHelpMenu();
    void buildToolBar();
    void startNewSeason();
    void showHelp();
    void exitAfterQuestion();

    QMenu* file_ = nullptr;
    QMenu* data_ = nullptr;
    QMenu* tools_ = nullptr;
    QAction* fileTail_ = nullptr;
    QToolBar* toolBar_ = nullptr;
    QLabel* status_ = nullptr;
};
