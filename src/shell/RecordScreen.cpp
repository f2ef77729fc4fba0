#include "shell/RecordScreen.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/widgets/FormLayout.h"
#include "shell/RecordPane.h"

namespace {

void savePane(RecordPane& pane) { pane.save(); }

}  // namespace

RecordScreen::RecordScreen(Program& program, const QString& name, QSize designSize)
    : MainScreen(program, name, designSize), tabs_(new QTabWidget(this)), buttons_(new QWidget(this)) {
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->addWidget(tabs_, 1);
    layout->addWidget(buttons_);
    auto* row = new QHBoxLayout(buttons_);
    row->setContentsMargins({});
    row->addStretch(1);
    add_ = addButton(QStringLiteral("cmdAdd"), tr("Add &New"), &RecordPane::addNew);
    save_ = addButton(QStringLiteral("cmdSave"), tr("&Save"), nullptr);
    delete_ = addButton(QStringLiteral("cmdDelete"), tr("De&lete"), &RecordPane::remove);
    cancel_ = addButton(QStringLiteral("cmdCancel"), tr("Can&cel"), &RecordPane::cancel);
    refresh_ = addButton(QStringLiteral("cmdRefresh"), tr("&Refresh"), nullptr);
    auto* close = addButton(QStringLiteral("cmdClose"), tr("Cl&ose"), nullptr);
    connect(save_, &QPushButton::clicked, this, [this] {
        if (pane()) savePane(*pane());
    });
    connect(refresh_, &QPushButton::clicked, this, &RecordScreen::refresh);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    setCentralWidget(content);
    connect(tabs_, &QTabWidget::currentChanged, this, &RecordScreen::changeTab);
}

QPushButton* RecordScreen::addButton(const QString& name, const QString& caption, void (RecordPane::*what)()) {
    auto* button = new QPushButton(caption, buttons_);
    button->setObjectName(name);
    button->setAutoDefault(false);
    if (what) connect(button, &QPushButton::clicked, this, [this, what] { press(what); });
    buttons_->layout()->addWidget(button);
    return button;
}

void RecordScreen::press(void (RecordPane::*what)()) {
    if (RecordPane* current = pane()) (current->*what)();
}

void RecordScreen::addPane(RecordPane* added) { addPage(added->text().caption, added, {added}); }

void RecordScreen::addPage(const QString& caption, QWidget* page, const std::vector<RecordPane*>& panes) {
    for (RecordPane* added : panes) {
        addMenu(added, page);
        connect(added, &RecordPane::stateChanged, this, &RecordScreen::showState);
        connect(added, &RecordPane::said, this, &RecordScreen::UpdateStatusBar);
    }
    tabs_->addTab(page, caption);
    showState();
}

/// The Data menu holds one submenu a pane; the same orders as the buttons.
void RecordScreen::addMenu(RecordPane* added, QWidget* page) {
    const QString& tag = added->text().tag;
    const QString& noun = added->text().noun;
    QMenu* menu = dataMenu()->addMenu(added->text().menu.isEmpty() ? added->text().caption : added->text().menu);
    menu->menuAction()->setObjectName(QStringLiteral("mnuData") + tag);
    const auto entry = [&](const char* what, const QString& caption, auto run) {
        QAction* action =
            addEntry(menu, QStringLiteral("mnuData%1%2Record").arg(QLatin1String(what), tag), caption, run);
        return action;
    };
    entries_.push_back(
        {added, page, menu->menuAction(),
         entry("New", noun.isEmpty() ? tr("Add &New") : tr("&New %1").arg(noun), [added] { added->addNew(); }),
         entry("Save", noun.isEmpty() ? tr("&Save") : tr("&Save %1").arg(noun), [added] { added->save(); }),
         entry("Delete", noun.isEmpty() ? tr("De&lete") : tr("De&lete %1").arg(noun), [added] { added->remove(); }),
         entry("Cancel", tr("Can&cel"), [added] { added->cancel(); })});
}

void RecordScreen::addOrder(RecordPane* owner, const QString& name, const QString& caption, const QString& entry,
                            const std::function<void()>& run) {
    QPushButton* button = nullptr;
    if (!name.isEmpty()) {
        button = new QPushButton(caption, buttons_);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, run);
        auto* row = static_cast<QHBoxLayout*>(buttons_->layout());
        row->insertWidget(row->indexOf(add_) + 1, button);
    }
    for (const Entry& each : entries_)
        if (each.pane == owner) orders_.push_back({owner, button, addEntry(each.menu->menu(), entry, caption, run)});
    showState();
}

RecordPane* RecordScreen::pane() const { return paneOf(tabs_->currentWidget()); }

RecordPane* RecordScreen::paneOf(const QWidget* page) const {
    RecordPane* first = nullptr;
    for (const Entry& entry : entries_) {
        if (entry.page != page) continue;
        if (entry.pane->isEditing()) return entry.pane;
        if (!first) first = entry.pane;
    }
    return first;
}

void RecordScreen::refresh() {
    for (const Entry& entry : entries_)
        if (entry.page == tabs_->currentWidget()) entry.pane->refresh();
    focusSearch();
}

void RecordScreen::catchUp() {
    for (const Entry& entry : entries_)
        if (entry.page == tabs_->currentWidget()) entry.pane->catchUp();
}

/// Leaving a tab with unsaved work offers to save it; staying puts the tab back.
void RecordScreen::changeTab(int index) {
    if (index == tab_) return;
    RecordPane* left = paneOf(tabs_->widget(tab_));
    if (left && !left->offerToSave(left->text().leaveQuestion)) {
        tabs_->setCurrentIndex(tab_);
        return;
    }
    tab_ = index;
    ResetStatusBar();
    catchUp();
    showState();
    focusSearch();
}

void RecordScreen::showState() {
    RecordPane* current = pane();
    const bool editing = current && current->isEditing();
    if (editing) edited_ = current;
    const bool canAdd = current && !editing && current->canAdd();
    const bool canDelete = current && current->canDelete();
    const bool saved = save_->hasFocus() && !editing;
    const bool alone = !current || current == tabs_->currentWidget();
    add_->setVisible(alone);
    delete_->setVisible(alone);
    add_->setEnabled(canAdd);
    save_->setEnabled(editing);
    delete_->setEnabled(canDelete);
    cancel_->setEnabled(editing);
    refresh_->setEnabled(current && !editing);
    for (const Order& order : orders_) {
        if (order.button) order.button->setVisible(order.pane == current);
        if (order.button) order.button->setEnabled(order.pane == current && canDelete);
        order.entry->setEnabled(order.pane == current && canDelete);
    }
    for (const Entry& entry : entries_) {
        const bool turn = editing ? entry.pane == current : entry.page == tabs_->currentWidget();
        entry.pane->setEnabled(turn || entry.page != tabs_->currentWidget());
        entry.menu->setEnabled(turn);
        entry.add->setEnabled(!editing && entry.pane->canAdd());
        entry.save->setEnabled(editing);
        entry.remove->setEnabled(!editing && entry.pane->canDelete());
        entry.cancel->setEnabled(editing);
    }
    if (saved && edited_) edited_->focusSearch();  // else the focus would go on to Close
}

bool RecordScreen::offerToSave() {
    for (const Entry& entry : entries_)
        if (!entry.pane->offerToSaveBeforeClosing()) return false;
    return true;
}

void RecordScreen::focusSearch() {
    if (RecordPane* current = pane()) current->focusSearch();
}

void RecordScreen::cameForward() { catchUp(); }

void RecordScreen::undo() {
    if (RecordPane* current = pane(); current && current->isEditing()) current->cancel();
}
