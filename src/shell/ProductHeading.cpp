#include "shell/ProductHeading.h"

#include <QHBoxLayout>
#include <QLabel>

#include "shell/Icons.h"

ProductHeading::ProductHeading(const QString& lineBelow) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(20);
    auto* mark = new QLabel;
    mark->setPixmap(shellIcon("kestrelmoor").pixmap(QSize(72, 72), devicePixelRatioF()));
    row->addWidget(mark);

    const auto line = [](const QString& name, const QString& text, double scale) {
        auto* label = new QLabel(text);
        label->setObjectName(name);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * scale);
        label->setFont(font);
        return label;
    };
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(line("lblHeading", tr("Kestrelmoor for Baseball and Softball"), 1.9));
    texts->addWidget(line("lblLineBelow", lineBelow, 1.15));
    texts->addStretch();
    row->addLayout(texts, 1);
}
