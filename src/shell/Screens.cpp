#include "shell/Screens.h"

#include <QCoreApplication>

#include "platform/dialogs/Dialogs.h"

Screens::Screens(Dialogs& dialogs, QString navigator) : dialogs_(dialogs), navigator_(std::move(navigator)) {}

Screens::~Screens() {
    for (const auto& [name, form] : forms_) delete form.window;
    for (const auto& [name, screen] : std::exchange(open_, {})) delete screen;
}

void Screens::addScreen(const QString& name, ScreenFactory factory) { factories_[name] = std::move(factory); }

void Screens::addForm(const QString& name, FormFactory factory, Shown shown) {
    forms_[name] = Form{std::move(factory), shown};
}

Screen* Screens::load(const QString& name) {
    if (const auto open = open_.find(name); open != open_.end()) return open->second;
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) return nullptr;
    return open_[name] = factory->second().release();
}

bool Screens::show(const QString& name) {
    if (forms_.contains(name)) {
        showForm(name);
        return true;
    }
    const bool wasOpen = isOpen(name);
    Screen* screen = load(name);
    if (screen == nullptr) {
        dialogs_.information(QCoreApplication::translate("Screens", "Kestrelmoor"),
                             QCoreApplication::translate("Screens", "This is not yet part of this version."));
        return false;
    }
    if (!wasOpen) front_ = screen;  // it has just read its data
    screen->setWindowState(screen->windowState() & ~Qt::WindowMinimized);
    screen->show();
    screen->raise();
    screen->activateWindow();
    return true;
}

void Screens::showForm(const QString& name) {
    front_ = nullptr;  // whichever screen comes next, the form may have changed the data meanwhile
    Form& form = forms_[name];
    if (form.shown == Shown::Modally) {
        dialogs_.showModal(*form.factory());
        return;
    }
    if (form.window.isNull()) {
        form.window = form.factory().release();
        form.window->setAttribute(Qt::WA_DeleteOnClose);
    }
    form.window->show();
    form.window->raise();
    form.window->activateWindow();
}

std::vector<QPointer<Screen>> Screens::openScreens() const {
    std::vector<QPointer<Screen>> screens;
    for (const auto& [name, screen] : open_) screens.emplace_back(screen);
    return screens;
}

bool Screens::offerToSave() {
    for (const auto& screen : openScreens()) {
        if (!screen.isNull() && !screen->offerToSave()) return false;
    }
    return true;
}

void Screens::showAnew() {
    for (const auto& screen : openScreens()) {
        if (!screen.isNull()) screen->cameForward();
    }
}

bool Screens::endProgram() {
    if (ending_) return true;
    const std::vector<QPointer<Screen>> screens = openScreens();
    if (!offerToSave()) return false;
    ending_ = true;
    for (const auto& [name, form] : forms_) {
        if (!form.window.isNull()) form.window->close();
    }
    for (const auto& screen : screens) {
        if (!screen.isNull()) screen->unload();
    }
    QCoreApplication::exit(0);
    return true;
}

void Screens::ended(Screen& screen) {
    open_.erase(screen.objectName());
    screen.deleteLater();
    if (ending_ || !open_.empty()) return;
    if (screen.objectName() == navigator_) {
        endProgram();
    } else {
        show(navigator_);
    }
}

bool Screens::takeFront(Screen& screen) {
    if (front_ == &screen) return false;
    front_ = &screen;
    return true;
}
