#include "platform/widgets/CommentBox.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <limits>

CommentBox::CommentBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!showing_) Q_EMIT edited(text());
    });
}

void CommentBox::setText(const QString& text) {
    const QScopedValueRollback showing(showing_, true);
    setPlainText(text);
}

void CommentBox::setLimits(KeyFilter filter, int maxLength) {
    filter_ = std::move(filter);
    maxLength_ = maxLength;
}

QSize CommentBox::sizeHint() const {
    constexpr int lines = 4;
    const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {240, fontMetrics().lineSpacing() * lines + margins};
}

QString CommentBox::admitted(const QString& inserted) const {
    const auto selected = textCursor().selectionEnd() - textCursor().selectionStart();
    const int length = document()->characterCount() - 1;
    const int room = maxLength_ > 0 ? maxLength_ - length + selected : std::numeric_limits<int>::max();
    return admittedPart(QString(inserted).replace(QStringLiteral("\r\n"), QStringLiteral("\n")), filter_, room,
                        LineBreaks::Keep);
}

void CommentBox::keyPressEvent(QKeyEvent* event) {
    const bool types = !event->text().isEmpty() && (event->text()[0].isPrint() || event->text()[0] == u'\r');
    const bool commands = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (types && !commands && admitted(event->text()).isEmpty()) return;
    QPlainTextEdit::keyPressEvent(event);
}

void CommentBox::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent judged(event->preeditString(), event->attributes());
    judged.setCommitString(admitted(event->commitString()), event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&judged);
    event->accept();
}

void CommentBox::insertFromMimeData(const QMimeData* source) {
    const QString taken = admitted(source->text());
    if (!taken.isEmpty()) textCursor().insertText(taken);
    ensureCursorVisible();
}
