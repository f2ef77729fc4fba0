#pragma once

#include <QPlainTextEdit>

#include "platform/widgets/KeyFilter.h"

/// A text of several lines with a filter and a length. Like the one-line boxes it judges what its user puts in and
/// shows a stored text as it stands. Tab moves on to the next field.
class CommentBox final : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit CommentBox(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return toPlainText(); }
    /// A length of 0 is without limit. Line breaks pass every filter.
    void setLimits(KeyFilter filter, int maxLength);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }

Q_SIGNALS:
    /// The user changed the text.
    void edited(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    QString admitted(const QString& inserted) const;

    KeyFilter filter_;
    int maxLength_ = 0;
    bool showing_ = false;
};
