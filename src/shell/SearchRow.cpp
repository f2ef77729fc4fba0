#include "shell/SearchRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "platform/datafile/Database.h"
#include "platform/text/Collation.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/SearchCombo.h"
#include "shell/Icons.h"
#include "shell/ScreenPane.h"
#include "store/RecordClass.h"

SearchRow::SearchRow(const PaneText& text, QWidget* parent)
    : QWidget(parent), atFirst_(text.atFirst), atLast_(text.atLast) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::label);
    auto* caption = new QLabel(text.searchCaption, this);
    list_ = new SearchCombo(QString(text.searchCaption).remove(u'&'), this);
    list_->setObjectName(text.searchName);
    list_->setShownCharacters(text.searchCharacters);
    caption->setBuddy(list_);
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
        if (text.moveName.isEmpty()) break;
        if (text.stepsOnly && (each.code == MoveFirst || each.code == MoveLast)) continue;
        auto* button = new QToolButton(this);
        button->setObjectName(text.moveName + QString::number(moves_.size()));
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

std::vector<QString> SearchRow::entries(const datafile::Database& database, const QString& query) {
    std::vector<QString> entries = database.readList(query, QStringLiteral("Name"));
    placeAccented(entries);
    return entries;
}

void SearchRow::read(const datafile::Database& database, const QString& query) {
    list_->setEntries(entries(database, query));
}

void SearchRow::setLocked(bool locked) {
    list_->setEnabled(!locked);
    for (QToolButton* button : moves_) button->setEnabled(!locked && list_->entryCount() > 0);
}

void SearchRow::step(int code) {
    const int last = list_->entryCount() - 1;
    const int current = list_->currentIndex();
    if (last < 0) return;
    Q_EMIT said({});
    if (code == MovePrevious && current <= 0)
        Q_EMIT said(atFirst_.isEmpty() ? tr("First Record") : atFirst_);
    else if (code == MoveNext && current >= last)
        Q_EMIT said(atLast_.isEmpty() ? tr("Last Record") : atLast_);
    else
        Q_EMIT stepped(code == MoveFirst ? 0 : code == MoveLast ? last : code == MoveNext ? current + 1 : current - 1);
}
