#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "shell/Screen.h"

class Dialogs;

/// The register of all screens and forms by name. It is filled once at start; afterwards everybody opens a screen
/// here, so that no two screens know each other. It keeps one instance of each, and with it the open flag.
class Screens {
public:
    using ScreenFactory = std::function<std::unique_ptr<Screen>()>;
    using FormFactory = std::function<std::unique_ptr<QDialog>()>;
    enum class Shown { Modally, BesideTheScreens };

    /// `navigator` is the name of the screen that comes up when the last other screen has closed.
    Screens(Dialogs& dialogs, QString navigator);
    ~Screens();
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    void addScreen(const QString& name, ScreenFactory factory);
    void addForm(const QString& name, FormFactory factory, Shown shown = Shown::Modally);

    /// Loads the screen, if it is not loaded, without showing it. Null for a name that is no registered screen.
    Screen* load(const QString& name);
    /// Loads the screen or form if it is not loaded, shows it and brings it forward; a modal form is closed when
    /// this returns. A name that is not registered gives an information box and false.
    bool show(const QString& name);
    bool isOpen(const QString& name) const { return open_.contains(name); }

    /// Before work on the data file as a whole: every open screen offers to save its work. False when an offer was
    /// answered with staying.
    bool offerToSave();
    /// After it: every open screen shows what the file holds now.
    void showAnew();

    /// Ends the program: every open screen offers to save its work, then all close and the event loop is left.
    /// False when an offer was answered with staying; then everything is as it was.
    bool endProgram();

private:
    friend class Screen;
    /// The screen has closed. Closing the last one brings the navigator; closing the navigator then ends the program.
    void ended(Screen& screen);
    /// Notes the screen as the front one. True when it was not so before.
    bool takeFront(Screen& screen);
    void showForm(const QString& name);
    std::vector<QPointer<Screen>> openScreens() const;

    struct Form {
        FormFactory factory;
        Shown shown;
        QPointer<QDialog> window{};
    };

    Dialogs& dialogs_;
    QString navigator_;
    std::map<QString, ScreenFactory> factories_;
    std::map<QString, Form> forms_;
    std::map<QString, Screen*> open_;
    QPointer<Screen> front_;
    bool ending_ = false;
};
