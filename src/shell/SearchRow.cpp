#include "shell/SearchRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Icons.h"
#include "store/RecordClass.h"

SearchRow::SearchRow(const QString& text, const QString& searchName, const QString& moveName, int shownCharacters,
                     QWidget* parent)
    : QWidget(parent), list_(new SearchCombo(QString(text).remove(u'&'), this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::label);
    auto* caption = new QLabel(text, this);
    caption->setBuddy(list_);
    list_->setObjectName(searchName);
    list_->setShownCharacters(shownCharacters);
    layout->addWidget(caption);
    layout->addWidget(list_);
    connect(list_, &SearchCombo::picked, this, &SearchRow::picked);
    const struct {
        int code;
        const char* icon;
        QString tip;
    } buttons[] = {{MoveFirst, "move-first", tr("First record")},
                   {MovePrevious, "move-previous", tr("Previous record")},
                   {MoveNext, "move-next", tr("Next record")},
                   {MoveLast, "move-last", tr("Last record")}};
    for (const auto& each : buttons) {
        auto* button = new QToolButton(this);
        button->setObjectName(moveName + QString::number(moves_.size()));
        button->setIcon(shellIcon(QLatin1String(each.icon)));
        button->setToolTip(each.tip);
        button->setAccessibleName(each.tip);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, [this, code = each.code] { step(code); });
        layout->addWidget(button);
        moves_.push_back(button);
    }
    layout->addStretch(1);
}

void SearchRow::setWaiting(bool waiting) {
    list_->setEnabled(!waiting);
    for (QToolButton* button : moves_) button->setEnabled(!waiting && list_->entryCount() > 0);
}

void SearchRow::step(int code) {
    if (list_->entryCount() == 0) return;
    const int last = list_->entryCount() - 1;
    const int current = list_->currentIndex();
    switch (code) {
        case MoveFirst: Q_EMIT stepped(0); break;
        case MoveLast: Q_EMIT stepped(last); break;
        case MovePrevious: current > 0 ? Q_EMIT stepped(current - 1) : Q_EMIT ended(true); break;
        default: current < last ? Q_EMIT stepped(current + 1) : Q_EMIT ended(false); break;
    }
}
