#include "platform/widgets/DesktopDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QScreen>
#include <QWindow>

#include "platform/widgets/WaitCursor.h"

namespace {

QString pictureOf(BoxKind kind) {
    switch (kind) {
        case BoxKind::Error: return QStringLiteral(":/message/error.svg");
        case BoxKind::Warning: return QStringLiteral(":/message/warning.svg");
        case BoxKind::Information: return QStringLiteral(":/message/information.svg");
        case BoxKind::Question: break;
    }
    return QStringLiteral(":/message/question.svg");
}

/// The buttons of a box, the one that Return presses and the one that Escape presses.
struct Buttons {
    QMessageBox::StandardButtons all;
    QMessageBox::StandardButton usual;
    QMessageBox::StandardButton closing;
};

Buttons buttonsOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::Ok: return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
        case BoxButtons::OkCancel: return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
        case BoxButtons::YesNo: return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
        case BoxButtons::YesNoCancel: break;
    }
    return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Cancel};
}

BoxAnswer answerOf(int button) {
    switch (button) {
        case QMessageBox::Ok: return BoxAnswer::Ok;
        case QMessageBox::Yes: return BoxAnswer::Yes;
        case QMessageBox::No: return BoxAnswer::No;
        default: return BoxAnswer::Cancel;
    }
}

/// "Label|*.a;*.b|..." as Qt wants it: one "Label (*.a *.b)" each. What the label itself has in parentheses stays, so
/// the patterns count that follow it and not those that it names.
QStringList nameFilters(const QString& filters) {
    const QStringList parts = filters.split(u'|', Qt::SkipEmptyParts);
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));  // names without a dot too
        result << parts[i] + QStringLiteral(" (") + patterns.join(u' ') + u')';
    }
    return result;
}

std::optional<QString> pickFile(const FileRequest& request, QFileDialog::AcceptMode mode) {
    const UsualCursor cursor;
    QFileDialog dialog(QApplication::activeWindow(), request.title);
    dialog.setAcceptMode(mode);
    // Opening takes names that do not exist as well: what is missing is for the caller to say.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(nameFilters(request.filters));
    dialog.setDefaultSuffix(request.defaultSuffix);
    if (!request.startFolder.isEmpty()) dialog.setDirectory(request.startFolder);
    if (!request.fileName.isEmpty()) dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0);
}

/// The lines of a text stay as they were written where the monitor is wide enough for them.
void keepLines(QMessageBox& message) {
    auto* label = message.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label || !message.text().contains(u'\n')) return;
    label->setWordWrap(false);  // until the box is shown
    const int widest = label->sizeHint().width();
    if (widest < message.screen()->availableSize().width() * 3 / 4) label->setMinimumWidth(widest);
}

/// A text of very many lines scrolls, so that the buttons stay on the screen.
void scrollLongText(QMessageBox& message) {
    constexpr int mostLines = 20;
    if (message.text().count(u'\n') < mostLines) return;
    auto* label = message.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label || !message.layout()) return;
    auto* area = new QScrollArea;
    delete message.layout()->replaceWidget(label, area);
    label->setWordWrap(false);
    label->setContentsMargins({});
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(label);
    area->setFixedSize(label->sizeHint().width() + area->verticalScrollBar()->sizeHint().width(),
                       message.fontMetrics().lineSpacing() * mostLines);
    label->show();
}

}  // namespace

DesktopDialogs::DesktopDialogs() { Q_INIT_RESOURCE(message); }

BoxAnswer DesktopDialogs::box(BoxKind kind, BoxButtons buttons, const QString& title, const QString& text) {
    const UsualCursor cursor;
    const Buttons offered = buttonsOf(buttons);
    const bool destroys =
        buttons == BoxButtons::YesNo && QString(title + text).contains(QStringLiteral("delete"), Qt::CaseInsensitive);
    QMessageBox message(QMessageBox::NoIcon, title, text, offered.all, QApplication::activeWindow());
    message.setIconPixmap(QIcon(pictureOf(kind)).pixmap(QSize(40, 40), message.devicePixelRatioF()));
    for (QAbstractButton* button : message.buttons()) button->setIcon({});
    message.setTextFormat(Qt::PlainText);
    message.setDefaultButton(destroys ? offered.closing : offered.usual);
    message.setEscapeButton(offered.closing);
    keepLines(message);
    scrollLongText(message);
    return answerOf(message.exec());
}

std::optional<QString> DesktopDialogs::openFile(const FileRequest& request) {
    return pickFile(request, QFileDialog::AcceptOpen);
}

std::optional<QString> DesktopDialogs::saveFile(const FileRequest& request) {
    return pickFile(request, QFileDialog::AcceptSave);
}

int DesktopDialogs::showModal(QDialog& form) {
    const UsualCursor cursor;
    const QWidget* window = QApplication::activeWindow();
    if (form.testAttribute(Qt::WA_Resized))  // its buttons have to be in reach on a small screen too
        form.resize(form.size().boundedTo((window ? window : &form)->screen()->availableSize()));
    if (window && !form.parentWidget()) {
        form.winId();  // makes the form's window, so that it can be told over which one it belongs
        form.windowHandle()->setTransientParent(window->windowHandle());
    }
    return form.exec();
}

bool DesktopDialogs::openAddress(const QUrl& address) { return QDesktopServices::openUrl(address); }
