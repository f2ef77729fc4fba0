#include "shell/RecordScreen.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/widgets/FormLayout.h"

namespace {

void setPossible(QAction* entry, bool possible) {
    if (entry) entry->setEnabled(possible);
}

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
    add_ = makeButton(QStringLiteral("cmdAdd"), tr("Add &New"), &ScreenPane::addNew);
    save_ = makeButton(QStringLiteral("cmdSave"), tr("&Save"), nullptr);
    delete_ = makeButton(QStringLiteral("cmdDelete"), tr("De&lete"), &ScreenPane::remove);
    cancel_ = makeButton(QStringLiteral("cmdCancel"), tr("Can&cel"), &ScreenPane::cancel);
    refresh_ = makeButton(QStringLiteral("cmdRefresh"), tr("&Refresh"), nullptr);
    auto* close = makeButton(QStringLiteral("cmdClose"), tr("Cl&ose"), nullptr);
    connect(save_, &QPushButton::clicked, this, [this] {
        if (ScreenPane* current = pane()) current->save();
    });
    connect(refresh_, &QPushButton::clicked, this, &RecordScreen::refresh);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    setCentralWidget(content);
    connect(tabs_, &QTabWidget::currentChanged, this, &RecordScreen::changeTab);
}

QPushButton* RecordScreen::makeButton(const QString& name, const QString& caption, void (ScreenPane::*what)()) {
    auto* button = new QPushButton(caption, buttons_);
    button->setObjectName(name);
    button->setAutoDefault(false);
    if (what) connect(button, &QPushButton::clicked, this, [this, what] { press(what); });
    buttons_->layout()->addWidget(button);
    return button;
}

void RecordScreen::press(void (ScreenPane::*what)()) {
    if (ScreenPane* current = pane()) (current->*what)();
}

void RecordScreen::addPane(ScreenPane* added) { addPage(added->text().caption, added, {added}); }

void RecordScreen::addPage(const QString& caption, QWidget* page, const std::vector<ScreenPane*>& panes) {
    for (ScreenPane* added : panes) {
        addMenu(added, page);
        if (const PaneText& text = added->text(); !text.addButton.isEmpty())
            entries_.back().addButton = addButton(text.addButton, text.addCaption, [added] { added->addNew(); });
        connect(added, &ScreenPane::stateChanged, this, &RecordScreen::showState);
        connect(added, &ScreenPane::said, this, &RecordScreen::UpdateStatusBar);
    }
    tabs_->addTab(page, caption);
    showState();
}

/// The Data menu holds one submenu a pane; the same orders as the buttons.
void RecordScreen::addMenu(ScreenPane* added, QWidget* page) {
    entries_.push_back({.pane = added, .page = page});
    if (!(added->orders() & ~ScreenPane::Orders(ScreenPane::Refresh))) return;
    const QString& tag = added->text().tag;
    const QString& noun = added->text().noun;
    QMenu* menu = dataMenu()->addMenu(added->text().menu.isEmpty() ? added->text().caption : added->text().menu);
    menu->menuAction()->setObjectName(QStringLiteral("mnuData") + tag);
    const auto entry = [&](ScreenPane::Order order, const char* what, const QString& caption, auto run) -> QAction* {
        if (!added->orders().testFlag(order)) return nullptr;
        return addEntry(menu, QStringLiteral("mnuData%1%2Record").arg(QLatin1String(what), tag), caption, run);
    };
    Entry& made = entries_.back();
    made.menu = menu->menuAction();
    made.add = entry(ScreenPane::AddNew, "New", noun.isEmpty() ? tr("Add &New") : tr("&New %1").arg(noun),
                     [added] { added->addNew(); });
    made.save = entry(ScreenPane::Save, "Save", noun.isEmpty() ? tr("&Save") : tr("&Save %1").arg(noun),
                      [added] { added->save(); });
    made.remove = entry(ScreenPane::Delete, "Delete", noun.isEmpty() ? tr("De&lete") : tr("De&lete %1").arg(noun),
                        [added] { added->remove(); });
    made.cancel = entry(ScreenPane::Cancel, "Cancel", tr("Can&cel"), [added] { added->cancel(); });
}

QPushButton* RecordScreen::addButton(const QString& name, const QString& caption, const std::function<void()>& press) {
    auto* button = new QPushButton(caption, buttons_);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, press);
    auto* row = static_cast<QHBoxLayout*>(buttons_->layout());
    row->insertWidget(row->indexOf(add_) + 1, button);
    QWidget::setTabOrder(add_, button);
    return button;
}

void RecordScreen::addOrder(ScreenPane* owner, const QString& name, const QString& caption, const QString& entry,
                            const std::function<void()>& run) {
    QPushButton* button = name.isEmpty() ? nullptr : addButton(name, caption, run);
    for (const Entry& each : entries_)
        if (each.pane == owner) orders_.push_back({owner, button, addEntry(each.menu->menu(), entry, caption, run)});
    showState();
}

ScreenPane* RecordScreen::pane() const { return paneOf(tabs_->currentWidget()); }

ScreenPane* RecordScreen::paneOf(const QWidget* page) const {
    ScreenPane* first = nullptr;
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
    ResetStatusBar();
    ScreenPane* left = paneOf(tabs_->widget(tab_));
    if (left && !left->offerToSave(left->text().leaveQuestion)) {
        tabs_->setCurrentIndex(tab_);
        return;
    }
    tab_ = index;
    catchUp();
    showState();
    focusSearch();
}

void RecordScreen::showState() {
    ScreenPane* current = pane();
    const bool editing = current && current->isEditing();
    if (editing) edited_ = current;
    const bool saved = save_->hasFocus() && !editing;
    showButtons(current);
    showMenus(current);
    if (saved && edited_) edited_->focusSearch();  // else the focus would go on to Close
}

void RecordScreen::showButtons(const ScreenPane* current) {
    const bool editing = current && current->isEditing();
    const bool canDelete = current && current->canDelete();
    const bool alone = !current || current == tabs_->currentWidget();
    const auto knows = [current](ScreenPane::Order order) { return !current || current->orders().testFlag(order); };
    add_->setVisible(alone && knows(ScreenPane::AddNew) && (!current || current->text().addButton.isEmpty()));
    save_->setVisible(knows(ScreenPane::Save));
    delete_->setVisible(alone && knows(ScreenPane::Delete));
    cancel_->setVisible(knows(ScreenPane::Cancel));
    refresh_->setVisible(knows(ScreenPane::Refresh));
    add_->setEnabled(current && !editing && current->canAdd());
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
        if (!entry.addButton) continue;
        entry.addButton->setVisible(entry.pane == current);
        entry.addButton->setEnabled(!editing && entry.pane->canAdd());
    }
}

void RecordScreen::showMenus(const ScreenPane* current) {
    const bool editing = current && current->isEditing();
    for (const Entry& entry : entries_) {
        const bool turn = editing ? entry.pane == current : entry.page == tabs_->currentWidget();
        entry.pane->setEnabled(turn || entry.page != tabs_->currentWidget());
        setPossible(entry.menu, turn);
        setPossible(entry.add, !editing && entry.pane->canAdd());
        setPossible(entry.save, editing);
        setPossible(entry.remove, !editing && entry.pane->canDelete());
        setPossible(entry.cancel, editing);
    }
}

bool RecordScreen::offerToSave() {
    for (const Entry& entry : entries_)
        if (!entry.pane->offerToSaveBeforeClosing()) return false;
    return true;
}

void RecordScreen::focusSearch() {
    if (ScreenPane* current = pane()) current->focusSearch();
}

void RecordScreen::cameForward() { catchUp(); }

void RecordScreen::undo() {
    if (ScreenPane* current = pane(); current && current->isEditing()) current->cancel();
}
