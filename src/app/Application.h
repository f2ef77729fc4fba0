#pragma once

#include <QApplication>

class Dialogs;

/// The application object. An exception that no event handler caught ends in a box and not in a crash.
class Application final : public QApplication {
    Q_OBJECT

public:
    Application(int& argumentCount, char** arguments, Dialogs& dialogs);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    Dialogs& dialogs_;
};
