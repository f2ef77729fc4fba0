#pragma once

#include <QGroupBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "platform/widgets/FormLayout.h"

/// A frame with paragraphs that can be read, scrolled and copied.
inline QWidget* instructions(const QString& title, const QStringList& paragraphs) {
    auto* frame = new QGroupBox(title);
    auto* text = new QPlainTextEdit(paragraphs.join(QStringLiteral("\n\n")));
    text->setObjectName(QStringLiteral("txtInstructions"));
    text->setAccessibleName(title);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(spacing::margin, spacing::margin, spacing::margin, spacing::margin);
    layout->addWidget(text);
    return frame;
}
