#include "tour/Guide.h"

#include <QMessageBox>
#include <QPainter>
#include <QTest>
#include <QToolBar>
#include <cstdio>

namespace {

constexpr int patience = 20000;    // milliseconds
constexpr int watchInterval = 10;  // milliseconds

}  // namespace

Guide::Guide(QString folder) : folder_(std::move(folder)) {
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { watch(); });
    watch_.start(watchInterval);
}

void Guide::begin(const QString& step) {
    step_ = step;
    std::printf("%s\n", qPrintable(step));
    std::fflush(stdout);
}

void Guide::fail(const QString& why) {
    std::fprintf(stderr, "The tour ended at \"%s\": %s\n", qPrintable(step_), qPrintable(why));
    if (QWidget* window = QApplication::activeWindow()) window->grab().save(folder_ + "/failed.png");
    std::_Exit(EXIT_FAILURE);  // dialogs may stand open, each in a loop of its own
}

void Guide::waitFor(const std::function<bool()>& condition, const QString& what) {
    require(QTest::qWaitFor(condition, patience), what);
}

void Guide::waitForScreen(const QString& name) {
    waitFor([&] { return QApplication::activeWindow() && QApplication::activeWindow()->objectName() == name; },
            "The screen " + name);
}

QWidget& Guide::front() {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    if (!window) fail("No window is in front.");
    return *window;
}

void Guide::click(QWidget& widget) {
    require(widget.isEnabled() && widget.isVisible(), "A click on " + widget.objectName());
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void Guide::clickTool(const QString& action) {
    for (auto* bar : front().findChildren<QToolBar*>())
        if (auto* found = bar->findChild<QAction*>(action)) return click(*bar->widgetForAction(found));
    fail("There is no " + action + " on a toolbar.");
}

void Guide::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* widget = QApplication::focusWidget();
    QTest::keyClick(widget ? widget : &front(), key, modifiers);
}

void Guide::type(const QString& text) {
    QWidget* widget = QApplication::focusWidget();
    if (!widget) fail("Nothing has the focus.");
    QTest::keyClicks(widget, text);
}

QString Guide::focus() const {
    const QWidget* widget = QApplication::focusWidget();
    return widget ? widget->objectName() : QString();
}

void Guide::during(const std::function<void()>& cause, const QString& dialog, const std::function<void()>& act) {
    act_ = act;
    cause();
    if (act_) fail(dialog + " did not come up.");
}

/// Meets each dialog once. One that nobody awaits is an error of the program's, told with its text.
void Guide::watch() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == met_) return;
    if (dialog && !QApplication::activeWindow()) return;  // not yet on the screen
    met_ = dialog;
    if (!dialog) return;
    if (!act_) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        fail("\"" + dialog->windowTitle() + "\" came up" + (box ? ": " + box->text() : QString(".")));
    }
    std::exchange(act_, {})();
}

void Guide::picture(const QString& name) {
    QCoreApplication::processEvents();
    QWidget& window = front();
    QPixmap picture = window.grab();
    for (QWidget* screen : QApplication::topLevelWidgets()) {
        const QRect place(screen->mapFromGlobal(window.mapToGlobal(QPoint())), window.size());
        if (screen == &window || !screen->isVisible() || !screen->rect().contains(place)) continue;
        QPixmap whole = screen->grab();
        QPainter painter(&whole);
        painter.drawPixmap(place.topLeft(), picture);
        painter.setPen(window.palette().color(QPalette::WindowText));
        painter.drawRect(place);
        painter.end();
        picture = whole;
    }
    const QString path = QString("%1/%2-%3.png").arg(folder_).arg(++pictures_, 2, 10, QChar('0')).arg(name);
    if (!picture.save(path)) fail(path + " could not be written.");
}
