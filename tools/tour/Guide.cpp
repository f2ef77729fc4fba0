#include "tour/Guide.h"

#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <cstdio>

namespace {

constexpr int patience = 20000;    // milliseconds
constexpr int watchInterval = 10;  // milliseconds
constexpr int mostStops = 100;     // of the Tab key on a form

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
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible()) window->grab().save(folder_ + "/failed-" + window->objectName() + ".png");
    std::_Exit(EXIT_FAILURE);  // dialogs may stand open, each in a loop of its own
}

void Guide::waitFor(const std::function<bool()>& condition, const QString& what) {
    require(QTest::qWaitFor(condition, patience), what);
}

void Guide::waitForScreen(const QString& name) {
    waitFor([&] { return QApplication::activeWindow() && QApplication::activeWindow()->objectName() == name; },
            "The screen " + name);
}

void Guide::waitForFocus(const QString& name) {
    waitFor([&] { return focus() == name; }, "The focus in " + name);
}

void Guide::waitForStatus(const QString& text) {
    auto& status = control<QLabel>("lblStatus");
    waitFor([&] { return status.text() == text; }, "\"" + text + "\" in the status line");
}

QWidget& Guide::front() {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    if (!window) fail("No window is in front.");
    return *window;
}

void Guide::click(QWidget& widget) {
    require(widget.isEnabled() && widget.isVisible(), "A click on " + widget.objectName());
    const int middle = widget.height() / 2;  // a radio button is as wide as its place, but only its left part reacts
    const bool left = qobject_cast<QRadioButton*>(&widget);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, left ? QPoint(middle, middle) : widget.rect().center());
}

void Guide::clickTab(const QString& title) {
    for (auto* bar : front().findChildren<QTabBar*>())
        for (int index = 0; index < bar->count(); ++index) {
            if (bar->tabText(index) != title || !bar->isVisible()) continue;
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
            return require(bar->currentIndex() == index, "The tab " + title);
        }
    fail("There is no tab " + title + " here.");
}

void Guide::clickTool(const QString& action) {
    for (auto* bar : front().findChildren<QToolBar*>())
        if (auto* found = bar->findChild<QAction*>(action)) return click(*bar->widgetForAction(found));
    fail("There is no " + action + " on a toolbar.");
}

void Guide::clickMenu(const QString& menu, const QString& entry) {
    auto& bar = *front().findChild<QMenuBar*>();
    auto& opened = control<QMenu>(menu);
    auto& action = control<QAction>(entry);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(opened.menuAction()).center());
    waitFor([&] { return opened.isVisible(); }, "The menu " + menu);
    QTest::mouseClick(&opened, Qt::LeftButton, {}, opened.actionGeometry(&action).center());
}

void Guide::fill(const QString& field, const QString& text) {
    for (int stops = 0; focus() != field; ++stops) {
        require(stops < mostStops, "The way to " + field);
        key(Qt::Key_Tab);
    }
    type(text);
    const auto* list = qobject_cast<QComboBox*>(QApplication::focusWidget());
    require(!list || list->currentText() == text, text + " in " + field);
}

void Guide::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* widget = QApplication::focusWidget();
    QTest::keyClick(widget ? widget : &front(), key, modifiers);
}

void Guide::type(const QString& text) {
    QWidget* widget = QApplication::focusWidget();
    if (!widget) fail("Nothing has the focus.");
    const auto searchOver = [this] {
        return !typed_.isValid() || typed_.hasExpired(QApplication::keyboardInputInterval());
    };
    if (qobject_cast<QComboBox*>(widget)) waitFor(searchOver, "The end of the search before");
    QTest::keyClicks(widget, text);
    typed_.start();
}

QString Guide::focus() const {
    const QWidget* widget = QApplication::focusWidget();
    return widget ? widget->objectName() : QString();
}

void Guide::during(const std::function<void()>& cause, const QString& dialog, const std::function<void()>& act) {
    const QPointer<QWidget> screen = QApplication::activeWindow();
    act_ = act;
    cause();  // an access key shows its button pressed first
    waitFor([this] { return !act_ && !QApplication::activeModalWidget(); }, dialog);
    if (!screen || !screen->isVisible()) return;
    screen->activateWindow();  // where no window manager does it
    waitFor([] { return QApplication::activeWindow(); }, "The return to the screen");
}

/// Meets each dialog once. One that nobody awaits is an error of the program's, told with its text.
void Guide::watch() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != seen_) {
        seen_ = dialog;
        standing_.start();
    }
    const QString what = dialog ? dialog->objectName() : QString();
    if (!dialog || what == "frmStatusBar" || what == "runProgress") return;  // which only show how far some work is
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    const QString name = "\"" + dialog->windowTitle() + (box ? "\" (" + box->text() + ')' : QString("\""));
    if (standing_.hasExpired(patience)) fail(name + " did not close.");
    if (std::find(met_.begin(), met_.end(), dialog) != met_.end()) return;
    if (!dialog->isActiveWindow()) return dialog->activateWindow();
    met_.emplace_back(dialog);
    if (!act_) fail(name + " came up.");
    QTimer::singleShot(0, &watch_, std::exchange(act_, {}));  // apart from this timer, which is to watch meanwhile
}

namespace {

/// A dialog with its title, which is a window manager's to draw.
QPixmap framed(QWidget& dialog) {
    const QPixmap content = dialog.grab();
    const int strip = dialog.fontMetrics().height() * 2;
    const qreal ratio = content.devicePixelRatio();
    QPixmap whole(QSize(dialog.width(), dialog.height() + strip) * ratio);
    whole.setDevicePixelRatio(ratio);
    const QRect outline(0, 0, dialog.width() - 1, dialog.height() + strip - 1);
    QPainter painter(&whole);
    painter.fillRect(outline, dialog.palette().mid());
    painter.setPen(dialog.palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, 0, dialog.width(), strip), Qt::AlignCenter, dialog.windowTitle());
    painter.drawPixmap(0, strip, content);
    painter.drawRect(outline);
    return whole;
}

}  // namespace

void Guide::picture(const QString& name) {
    QCoreApplication::processEvents();
    QWidget& window = front();
    QPixmap picture = window.grab();
    for (QWidget* screen : QApplication::topLevelWidgets()) {
        if (&window != QApplication::activeModalWidget()) break;
        const QRect place(screen->mapFromGlobal(window.mapToGlobal(QPoint())), window.size());
        if (screen == &window || !screen->isVisible() || !screen->rect().contains(place)) continue;
        const QPixmap dialog = framed(window);
        picture = screen->grab();
        const int strip = qRound(dialog.deviceIndependentSize().height()) - window.height();
        QPainter(&picture).drawPixmap(place.topLeft() - QPoint(0, strip), dialog);
    }
    const QString path = QString("%1/%2-%3.png").arg(folder_).arg(++pictures_, 2, 10, QChar('0')).arg(name);
    if (!picture.save(path)) fail(path + " could not be written.");
}
