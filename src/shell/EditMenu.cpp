#include "shell/EditMenu.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

struct BoxState {
    bool selection = false;
    bool writable = false;
};

/// The box that holds the text; combo and spin boxes keep theirs in a line edit inside.
QWidget* textBoxOf(QWidget* focus) {
    if (auto* combo = qobject_cast<QComboBox*>(focus)) return combo->lineEdit();
    if (qobject_cast<QAbstractSpinBox*>(focus)) return focus->findChild<QLineEdit*>();
    return focus;
}

BoxState stateOf(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        const bool readable = line->echoMode() == QLineEdit::Normal;
        return {line->hasSelectedText() && readable, line->isEnabled() && !line->isReadOnly()};
    }
    if (auto* text = qobject_cast<QPlainTextEdit*>(box)) {
        return {text->textCursor().hasSelection(), text->isEnabled() && !text->isReadOnly()};
    }
    if (auto* text = qobject_cast<QTextEdit*>(box)) {
        return {text->textCursor().hasSelection(), text->isEnabled() && !text->isReadOnly()};
    }
    return {};
}

}  // namespace

EditMenu::EditMenu(QWidget* screen) : QMenu(screen), screen_(screen) {
    setObjectName("mnuEdit");
    setTitle(tr("&Edit"));
    QAction* undo = addAction(tr("&Undo"));
    undo->setObjectName("mnuEditUndo");
    undo->setStatusTip(tr("Take back the changes to the record since it was saved"));
    connect(undo, &QAction::triggered, this, &EditMenu::undoWanted);
    addSeparator();
    cut_ = addEntry("mnuEditCut", tr("Cu&t"), QKeySequence::Cut);
    copy_ = addEntry("mnuEditCopy", tr("&Copy"), QKeySequence::Copy);
    paste_ = addEntry("mnuEditPaste", tr("&Paste"), QKeySequence::Paste);
    connect(cut_, &QAction::triggered, this, [this] { QMetaObject::invokeMethod(box_, "cut"); });
    connect(copy_, &QAction::triggered, this, [this] { QMetaObject::invokeMethod(box_, "copy"); });
    connect(paste_, &QAction::triggered, this, [this] { QMetaObject::invokeMethod(box_, "paste"); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
    connect(this, &QMenu::aboutToShow, this, &EditMenu::offerWhatIsPossible);
}

QAction* EditMenu::addEntry(const QString& name, const QString& text, QKeySequence::StandardKey key) {
    const QString keys = QKeySequence(key).toString(QKeySequence::NativeText);
    QAction* action = addAction(text + '\t' + keys);
    action->setObjectName(name);
    return action;
}

/// The menu bar takes the focus when it is opened by keys; the box meant is the one before.
void EditMenu::followFocus(QWidget* now) {
    if (now == nullptr || !screen_->isAncestorOf(now) || qobject_cast<QMenuBar*>(now)) return;
    box_ = textBoxOf(now);
}

void EditMenu::offerWhatIsPossible() {
    const BoxState state = stateOf(box_);
    cut_->setEnabled(state.selection && state.writable);
    copy_->setEnabled(state.selection);
    paste_->setEnabled(state.writable && !QApplication::clipboard()->text().isEmpty());
}
