#pragma once

#include <functional>
#include <vector>

#include "shell/MainScreen.h"
#include "shell/ScreenPane.h"

class QPushButton;
class QTabWidget;
class RecordPane;

/// A main screen made of panes, one a tab, with one set of buttons and a Data menu that serve the pane in view.
class RecordScreen : public MainScreen {
    Q_OBJECT

public:
    RecordScreen(Program& program, const QString& name, QSize designSize);
    /// The pane becomes the screen's. The first one added is in view.
    void addPane(ScreenPane* pane);
    /// A tab that holds several panes, each with its own buttons to add and delete. While one of them is edited the
    /// others wait.
    void addPage(const QString& caption, QWidget* page, const std::vector<ScreenPane*>& panes);
    /// The pane of the tab in view; where it holds several, the one that is edited or else the first. Null when it
    /// holds none.
    ScreenPane* pane() const;
    bool offerToSave() override;
    void focusSearch() override;

protected:
    void cameForward() override;
    void undo() override;
    /// A further order of one pane, as a button behind Add New and an entry of its menu; possible while it is not
    /// edited. Without a button's name there is only the entry.
    void addOrder(ScreenPane* pane, const QString& button, const QString& caption, const QString& entry,
                  const std::function<void()>& run);
    /// A further button behind Add New.
    QPushButton* addButton(const QString& name, const QString& caption, const std::function<void()>& press);
    QTabWidget& tabs() { return *tabs_; }

private:
    QPushButton* makeButton(const QString& name, const QString& caption, void (ScreenPane::*press)());
    void addMenu(ScreenPane* pane, QWidget* page);
    ScreenPane* paneOf(const QWidget* page) const;
    void refresh();
    void catchUp();
    void changeTab(int index);
    void showState();
    void showButtons(const ScreenPane* current);
    void showMenus(const ScreenPane* current);
    void press(void (ScreenPane::*what)());

    struct Entry {
        ScreenPane* pane;
        QWidget* page;  ///< the tab it is on: itself, or a page with others
        QPushButton* addButton = nullptr;
        QAction* menu = nullptr;  ///< its entries are null for orders that the pane does not know
        QAction* add = nullptr;
        QAction* save = nullptr;
        QAction* remove = nullptr;
        QAction* cancel = nullptr;
    };

    QTabWidget* tabs_;
    QWidget* buttons_;
    QPushButton* add_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* delete_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* refresh_ = nullptr;
    struct Order {
        ScreenPane* pane;
        QPushButton* button;
        QAction* entry;
    };
    std::vector<Entry> entries_;
    std::vector<Order> orders_;
    ScreenPane* edited_ = nullptr;  ///< last
    int tab_ = 0;
};
